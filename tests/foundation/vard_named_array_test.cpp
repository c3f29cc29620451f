// CVARDNamedArray: ownership, copies and archive form.
#include "foundation/vard_named_array.h"

#include <gtest/gtest.h>

#include "tests/foundation/object_fixture.h"

namespace {
int ValueAt(CVARDNamedArray const & array, int index)
{
    auto const * const load = dynamic_cast<Load *>(array.GetAt(index));
    return load ? load->m_value : -1;
}
}  // namespace

TEST(NamedArray, AddingGivesTheIndex)
{
    CVARDNamedArray array;
    EXPECT_EQ(array.GetCount(), 0);
    EXPECT_EQ(array.AddObject(new Load("a", 1)), 0);
    EXPECT_EQ(array.AddObject(nullptr), 1);
    EXPECT_EQ(array.AddObject(new Load("b", 2)), 2);
    EXPECT_EQ(array.GetCount(), 3);
    EXPECT_EQ(ValueAt(array, 0), 1);
    EXPECT_EQ(array[1], nullptr);
    EXPECT_EQ(array[2], array.GetAt(2));
}

TEST(NamedArray, IndexOutsideIsNull)
{
    CVARDNamedArray array;
    array.AddObject(new Load("a", 1));
    EXPECT_EQ(array.GetAt(array.GetCount()), nullptr);
    EXPECT_EQ(array.GetAt(1000), nullptr);
    EXPECT_EQ(array.GetAt(-1), nullptr);
}

TEST(NamedArray, OwnsItsItems)
{
    int const before = Load::g_alive;
    {
        CVARDNamedArray array;
        array.AddObject(new Load("a", 1));
        array.AddObject(nullptr);
        array.AddObject(new Load("b", 2));
        array.RemoveAll();
        EXPECT_EQ(array.GetCount(), 0);
        EXPECT_EQ(Load::g_alive, before);
        array.AddObject(new Load("c", 3));
    }
    EXPECT_EQ(Load::g_alive, before);
}

TEST(NamedArray, CopyHasItsOwnObjects)
{
    CVARDNamedArray from;
    from.SetName("loads");
    from.AddObject(new Load("a", 1));
    CVARDNamedArray const copy(from);
    EXPECT_EQ(copy.GetName(), "loads");
    ASSERT_EQ(copy.GetCount(), 1);
    EXPECT_NE(copy.GetAt(0), from.GetAt(0));
    EXPECT_EQ(copy.GetAt(0)->GetRuntimeClass(), RUNTIME_CLASS(Load));
    EXPECT_EQ(ValueAt(copy, 0), 1);
}

TEST(NamedArray, NullItemsAndThoseThatCantBeMadeAreLeftOutOfACopy)
{
    CVARDNamedArray from;
    from.AddObject(new Load("a", 1));
    from.AddObject(nullptr);
    from.AddObject(new Unmakeable);
    from.AddObject(new Load("b", 2));
    CVARDNamedArray const copy(from);
    ASSERT_EQ(copy.GetCount(), 2);
    EXPECT_EQ(ValueAt(copy, 1), 2);
}

TEST(NamedArray, AssignmentReplacesTheItems)
{
    int const before = Load::g_alive;
    CVARDNamedArray from;
    from.SetName("loads");
    from.AddObject(new Load("a", 1));
    CVARDNamedArray to;
    to.AddObject(new Load("x", 7));
    to.AddObject(new Load("y", 8));
    to = from;
    EXPECT_EQ(to.GetName(), "loads");
    ASSERT_EQ(to.GetCount(), 1);
    EXPECT_EQ(ValueAt(to, 0), 1);
    EXPECT_EQ(Load::g_alive, before + 2);
}

TEST(NamedArray, SelfAssignmentChangesNothing)
{
    CVARDNamedArray array;
    array.SetName("loads");
    array.AddObject(new Load("a", 1));
    CObject const * const item = array.GetAt(0);
    CVARDNamedArray const & same = array;
    array = same;
    EXPECT_EQ(array.GetName(), "loads");
    EXPECT_EQ(array.GetAt(0), item);
}

TEST(NamedArray, CopyObjectTakesTheNameAlone)
{
    CVARDNamedArray from;
    from.SetName("loads");
    from.AddObject(new Load("a", 1));
    CVARDNamedArray to;
    EXPECT_EQ(to.CopyObject(&from), 1);
    EXPECT_EQ(to.GetName(), "loads");
    EXPECT_EQ(to.GetCount(), 0);
}

TEST(NamedArray, NestedArrayIsCopiedByItsNameOnly)
{
    CVARDNamedArray from;
    auto * const inner = new CVARDNamedArray;
    inner->SetName("inner");
    inner->AddObject(new Load("a", 1));
    from.AddObject(inner);
    CVARDNamedArray const copy(from);
    ASSERT_EQ(copy.GetCount(), 1);
    auto const & innerCopy = dynamic_cast<CVARDNamedArray &>(*copy.GetAt(0));
    EXPECT_EQ(innerCopy.GetName(), "inner");
    EXPECT_EQ(innerCopy.GetCount(), 0);
}

TEST(NamedArray, ItemsGoThroughTheVirtualAddObject)
{
    class Counting : public CVARDNamedArray
    {
      public:
        int AddObject(CVARDObject * object) override
        {
            ++m_added;
            return CVARDNamedArray::AddObject(object);
        }
        int m_added = 0;
    };
    CVARDNamedArray from;
    from.AddObject(new Load("a", 1));
    from.AddObject(new Load("b", 2));
    Counting to;
    static_cast<CVARDNamedArray &>(to) = from;
    EXPECT_EQ(to.m_added, 2);
}

// Name, count (16 bits), then per object: new class tag, schema, length of the class's name, its name; a
// second object of the class has the class's number 1 with the highest bit; null is the tag 0.
TEST(NamedArray, StoredFormToTheByte)
{
    CVARDNamedArray array;
    array.SetName("N");
    array.AddObject(new Load("a", 258));
    array.AddObject(nullptr);
    array.AddObject(new Load("", -1));
    Bytes const expected{1,   'N', 3, 0, 0xFF, 0xFF, 1, 0,    4,    0, 'L',  'o',  'a',  'd', 1,
                         'a', 2,   1, 0, 0,    0,    0, 0x01, 0x80, 0, 0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(Stored(array), expected);
}

TEST(NamedArray, LoadingReplacesTheItems)
{
    int const before = Load::g_alive;
    CVARDNamedArray from;
    from.SetName("N");
    from.AddObject(new Load("a", 5));
    from.AddObject(nullptr);
    CVARDNamedArray to;
    to.AddObject(new Load("x", 1));
    LoadFrom(to, Stored(from));
    EXPECT_EQ(to.GetName(), "N");
    ASSERT_EQ(to.GetCount(), 2);
    EXPECT_EQ(ValueAt(to, 0), 5);
    EXPECT_EQ(to.GetAt(1), nullptr);
    EXPECT_EQ(Load::g_alive, before + 2);
}

TEST(NamedArray, CutAtEveryByteThrowsAndLeaksNothing)
{
    int const before = Load::g_alive;
    CVARDNamedArray from;
    from.SetName("N");
    from.AddObject(new Load("a", 5));
    from.AddObject(new Load("b", 6));
    Bytes const whole = Stored(from);
    from.RemoveAll();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        CVARDNamedArray to;
        EXPECT_EQ(CauseOfLoading(to, Bytes(whole.begin(), whole.begin() + static_cast<long>(length))),
                  CArchiveException::endOfFile)
            << length;
    }
    EXPECT_EQ(Load::g_alive, before);
}

TEST(NamedArray, ObjectOfAForeignClassIsRefused)
{
    Bytes const bytes{0, 1, 0, 0xFF, 0xFF, 1, 0, 7, 0, 'F', 'o', 'r', 'e', 'i', 'g', 'n'};
    CVARDNamedArray array;
    EXPECT_EQ(CauseOfLoading(array, bytes), CArchiveException::badClass);
}

// The second tag refers to the first object, which has an owner already.
TEST(NamedArray, SecondReferenceToAnOwnedObjectIsRefused)
{
    Bytes const bytes{0, 2, 0, 0xFF, 0xFF, 1, 0, 4, 0, 'L', 'o', 'a', 'd', 1, 'a', 5, 0, 0, 0, 2, 0};
    int const before = Load::g_alive;
    {
        CVARDNamedArray array;
        EXPECT_EQ(CauseOfLoading(array, bytes), CArchiveException::badIndex);
    }
    EXPECT_EQ(Load::g_alive, before);
}
