// CVARDObject, CVARDSortObject, CVARDNamedObject: copies, names, class records, archive form.
#include "foundation/vard_object.h"

#include <gtest/gtest.h>

#include "tests/foundation/object_fixture.h"

TEST(VardObject, CopyTakesNothingButANull)
{
    CVARDObject object;
    CVARDNamedObject other;
    EXPECT_EQ(object.CopyObject(nullptr), 0);
    EXPECT_EQ(object.CopyObject(&object), 1);
    EXPECT_EQ(object.CopyObject(&other), 1);
}

TEST(VardObject, NewObjectIsOfTheObjectsOwnClass)
{
    Load load("x", 3);
    std::unique_ptr<CObject> const made(static_cast<CVARDObject &>(load).CreateNewObject());
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetRuntimeClass(), RUNTIME_CLASS(Load));
    EXPECT_EQ(static_cast<Load &>(*made).m_value, 0);
}

TEST(VardObject, ClassThatCantBeMadeGivesNull)
{
    Unmakeable object;
    EXPECT_EQ(object.CreateNewObject(), nullptr);
}

TEST(VardObject, ClassRecordsHaveSchemaOneAndTheirBases)
{
    for (CRuntimeClass const * record :
         {RUNTIME_CLASS(CVARDObject), RUNTIME_CLASS(CVARDSortObject), RUNTIME_CLASS(CVARDNamedObject)}) {
        EXPECT_EQ(record->m_wSchema, 1U) << record->m_lpszClassName;
        std::unique_ptr<CObject> const made(record->CreateObject());
        EXPECT_EQ(made->GetRuntimeClass(), record);
    }
    EXPECT_EQ(RUNTIME_CLASS(CVARDNamedObject)->m_pBaseClass, RUNTIME_CLASS(CVARDSortObject));
    EXPECT_EQ(RUNTIME_CLASS(CVARDSortObject)->m_pBaseClass, RUNTIME_CLASS(CVARDObject));
    EXPECT_EQ(RUNTIME_CLASS(CVARDObject)->m_pBaseClass, RUNTIME_CLASS(CObject));
}

TEST(VardObject, StoresNothing)
{
    CVARDObject object;
    CVARDSortObject sortable;
    EXPECT_TRUE(Stored(object).empty());
    EXPECT_TRUE(Stored(sortable).empty());
}

TEST(VardSortObject, IsNeverLess)
{
    CVARDSortObject a;
    CVARDSortObject b;
    EXPECT_EQ(a.IsLess(&b), 0);
    EXPECT_EQ(a.IsLess(&a), 0);
    EXPECT_EQ(a.IsLess(nullptr), 0);
}

TEST(VardNamedObject, NameStartsEmptyAndIsSet)
{
    CVARDNamedObject object;
    EXPECT_EQ(object.GetName(), "");
    object.SetName("Load1");
    EXPECT_EQ(object.GetName(), "Load1");
}

TEST(VardNamedObject, CopiesItsName)
{
    CVARDNamedObject from;
    from.SetName("Load1");
    CVARDNamedObject copied;
    CVARDNamedObject assigned;
    EXPECT_EQ(copied.CopyObject(&from), 1);
    EXPECT_EQ(copied.GetName(), "Load1");
    assigned = from;
    EXPECT_EQ(assigned.GetName(), "Load1");
}

TEST(VardNamedObject, CopyOfAnotherKindChangesNothing)
{
    CVARDNamedObject object;
    object.SetName("kept");
    CVARDObject plain;
    EXPECT_EQ(object.CopyObject(&plain), 0);
    EXPECT_EQ(object.CopyObject(nullptr), 0);
    EXPECT_EQ(object.GetName(), "kept");
}

TEST(VardNamedObject, StoresItsNameAsText)
{
    CVARDNamedObject object;
    object.SetName("Zed\xEF");
    EXPECT_EQ(Stored(object), (Bytes{4, 'Z', 'e', 'd', 0xEF}));
}

TEST(VardNamedObject, LoadsItsName)
{
    CVARDNamedObject object;
    object.SetName("old");
    LoadFrom(object, {2, 'A', '1'});
    EXPECT_EQ(object.GetName(), "A1");
}
