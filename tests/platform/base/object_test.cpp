#include "platform/base/object.h"

#include <gtest/gtest.h>

#include <memory>

#include "archive_test_classes.h"

namespace {
class Named : public CObject
{
    DECLARE_DYNAMIC(Named)
};

class Made : public Named
{
    DECLARE_DYNCREATE(Made)
};

class Unmakeable : public CObject
{
    DECLARE_DYNCREATE(Unmakeable)

    Unmakeable() { throw std::bad_alloc(); }
};

IMPLEMENT_DYNAMIC(Named, CObject)
IMPLEMENT_DYNCREATE(Made, Named)
IMPLEMENT_DYNCREATE(Unmakeable, CObject)
}  // namespace

TEST(RuntimeClass, KnowsNameSizeAndBase)
{
    Made const object;
    CRuntimeClass const * record = object.GetRuntimeClass();
    EXPECT_EQ(record, RUNTIME_CLASS(Made));
    EXPECT_STREQ(record->m_lpszClassName, "Made");
    EXPECT_EQ(record->m_nObjectSize, static_cast<int>(sizeof(Made)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(Named)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(Named().IsKindOf(RUNTIME_CLASS(Made)));
}

TEST(RuntimeClass, MakesObjectsOfClassesThatAllowIt)
{
    std::unique_ptr<CObject> const made(RUNTIME_CLASS(Made)->CreateObject());
    ASSERT_TRUE(made);
    EXPECT_EQ(made->GetRuntimeClass(), RUNTIME_CLASS(Made));
    EXPECT_EQ(RUNTIME_CLASS(Named)->CreateObject(), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CObject)->CreateObject(), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(Unmakeable)->CreateObject(), nullptr);
}

TEST(RuntimeClass, SerialClassesAreFoundByName)
{
    EXPECT_EQ(CRuntimeClass::FromName("BigLeaf"), RUNTIME_CLASS(BigLeaf));
    EXPECT_EQ(CRuntimeClass::FromName("CObArray"), RUNTIME_CLASS(CObArray));
    EXPECT_EQ(CRuntimeClass::FromName("Made"), nullptr);
    EXPECT_TRUE(BigLeaf().IsSerializable());
    EXPECT_FALSE(Made().IsSerializable());
}

TEST(RuntimeClass, RegistrationEndsWithItsModule)
{
    static CRuntimeClass const record = {"Passing", 1, 1, nullptr, RUNTIME_CLASS(CObject)};
    {
        detail::ClassRegistration const registration(record);
        EXPECT_EQ(CRuntimeClass::FromName("Passing"), &record);
    }
    EXPECT_EQ(CRuntimeClass::FromName("Passing"), nullptr);
}
