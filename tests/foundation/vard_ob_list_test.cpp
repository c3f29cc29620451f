// CVARDObList: ownership, the active position, copies and archive form.
#include "foundation/vard_ob_list.h"

#include <gmock/gmock.h>

#include <limits>

#include "tests/foundation/object_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
/// Gives the tests a way to the protected operations.
class OpenList : public CVARDObList
{
  public:
    using CVARDObList::GetActNumPos;
    using CVARDObList::RemoveAllObjects;
    using CVARDObList::SetActNumPos;
    using CVARDObList::operator=;
};

void Fill(CVARDObList & list, std::vector<char const *> const & names)
{
    for (char const * name : names)
        list.AddObject(new Load(name, 0));
}
}  // namespace

TEST(ObList, StartsEmptyWithoutActivePosition)
{
    OpenList list;
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetActPos(), nullptr);
    EXPECT_EQ(list.GetActNumPos(), -1);
}

TEST(ObList, AddedObjectStandsAtTheTailAndIsActive)
{
    CVARDObList list;
    POSITION const a = list.AddObject(new Load("a", 0));
    EXPECT_EQ(list.GetActPos(), a);
    POSITION const b = list.AddObject(new Load("b", 0));
    EXPECT_EQ(list.GetActPos(), b);
    EXPECT_EQ(list.GetTailPosition(), b);
    EXPECT_THAT(NamesOf(list), ElementsAre("a", "b"));
}

TEST(ObList, NullObjectIsntAdded)
{
    CVARDObList list;
    Fill(list, {"a"});
    POSITION const active = list.GetActPos();
    EXPECT_EQ(list.AddObject(nullptr), nullptr);
    EXPECT_EQ(list.GetCount(), 1);
    EXPECT_EQ(list.GetActPos(), active);
}

TEST(ObList, DeletingTheActiveNodeMakesTheNextActive)
{
    OpenList list;
    Fill(list, {"a", "b", "c"});
    list.SetActNumPos(1);
    EXPECT_EQ(list.DeleteObject(list.GetActPos()), 1);
    EXPECT_THAT(NamesOf(list), ElementsAre("a", "c"));
    EXPECT_EQ(list.GetActNumPos(), 1);
}

TEST(ObList, DeletingTheActiveLastNodeMakesTheOneBeforeActive)
{
    OpenList list;
    Fill(list, {"a", "b"});
    list.DeleteObject(list.GetActPos());
    EXPECT_EQ(list.GetActNumPos(), 0);
}

TEST(ObList, DeletingTheOnlyNodeLeavesNoneActive)
{
    CVARDObList list;
    Fill(list, {"a"});
    EXPECT_EQ(list.DeleteObject(list.GetActPos()), 1);
    EXPECT_EQ(list.GetActPos(), nullptr);
    EXPECT_TRUE(list.IsEmpty());
}

TEST(ObList, DeletingAnotherNodeLeavesTheActiveOne)
{
    OpenList list;
    Fill(list, {"a", "b", "c"});
    POSITION const active = list.GetActPos();
    list.DeleteObject(list.GetHeadPosition());
    EXPECT_EQ(list.GetActPos(), active);
}

TEST(ObList, NullItemAndNullPositionArentDeleted)
{
    CVARDObList list;
    POSITION const position = list.AddTail(nullptr);
    EXPECT_EQ(list.DeleteObject(position), 0);
    EXPECT_EQ(list.DeleteObject(nullptr), 0);
    EXPECT_EQ(list.GetCount(), 1);
}

TEST(ObList, OwnsItsObjects)
{
    int const before = Load::g_alive;
    {
        OpenList list;
        Fill(list, {"a", "b", "c"});
        list.DeleteObject(list.GetHeadPosition());
        EXPECT_EQ(Load::g_alive, before + 2);
        list.ClearList();
        EXPECT_EQ(Load::g_alive, before);
        EXPECT_TRUE(list.IsEmpty());
        EXPECT_EQ(list.GetActPos(), nullptr);
        Fill(list, {"d"});
        list.RemoveAllObjects();
        EXPECT_EQ(Load::g_alive, before);
        EXPECT_EQ(list.GetActPos(), nullptr);
        Fill(list, {"e"});
    }
    EXPECT_EQ(Load::g_alive, before);
}

TEST(ObList, ActivePositionIsSetUnchecked)
{
    OpenList list;
    Fill(list, {"a", "b"});
    EXPECT_EQ(list.SetActPos(list.GetHeadPosition()), 1);
    EXPECT_EQ(list.GetActNumPos(), 0);
    CVARDObList other;
    Fill(other, {"x"});
    EXPECT_EQ(list.SetActPos(other.GetHeadPosition()), 1);
    EXPECT_EQ(list.GetActNumPos(), -1);
    EXPECT_EQ(list.SetActPos(nullptr), 1);
    EXPECT_EQ(list.GetActPos(), nullptr);
}

TEST(ObList, ActiveIndex)
{
    OpenList list;
    Fill(list, {"a", "b", "c"});
    EXPECT_EQ(list.SetActNumPos(0), 1);
    EXPECT_EQ(list.GetActPos(), list.GetHeadPosition());
    EXPECT_EQ(list.SetActNumPos(2), 1);
    EXPECT_EQ(list.GetActPos(), list.GetTailPosition());
    EXPECT_EQ(list.SetActNumPos(-1), 1);
    EXPECT_EQ(list.GetActPos(), nullptr);
    list.SetActNumPos(1);
    EXPECT_EQ(list.SetActNumPos(3), 0);
    EXPECT_EQ(list.GetActPos(), nullptr);
    EXPECT_EQ(list.SetActNumPos(std::numeric_limits<int>::max()), 0);
    EXPECT_EQ(list.SetActNumPos(std::numeric_limits<int>::min()), 1);
}

TEST(ObListCopy, HasItsOwnObjectsAndTheSameActiveOne)
{
    OpenList from;
    from.AddObject(new Load("a", 1));
    from.AddObject(new Load("b", 2));
    from.AddObject(new Load("c", 3));
    from.SetActNumPos(1);
    OpenList to;
    Fill(to, {"old"});
    EXPECT_EQ(to.CopyList(&from), 1);
    EXPECT_THAT(NamesOf(to), ElementsAre("a", "b", "c"));
    EXPECT_EQ(to.GetActNumPos(), 1);
    EXPECT_NE(to.GetHead(), from.GetHead());
    EXPECT_EQ(dynamic_cast<Load &>(*to.GetTail()).m_value, 3);
}

TEST(ObListCopy, FromAnEmptyListIsEmpty)
{
    CVARDObList from;
    CVARDObList to;
    Fill(to, {"old"});
    EXPECT_EQ(to.CopyList(&from), 1);
    EXPECT_TRUE(to.IsEmpty());
    EXPECT_EQ(to.GetActPos(), nullptr);
}

TEST(ObListCopy, WithoutActiveOneHasNone)
{
    OpenList from;
    Fill(from, {"a"});
    from.SetActPos(nullptr);
    OpenList to;
    to.CopyList(&from);
    EXPECT_EQ(to.GetActPos(), nullptr);
}

TEST(ObListCopy, NullChangesNothing)
{
    CVARDObList list;
    Fill(list, {"a"});
    EXPECT_EQ(list.CopyList(nullptr), 0);
    EXPECT_THAT(NamesOf(list), ElementsAre("a"));
}

TEST(ObListCopy, FromItselfChangesNothing)
{
    OpenList list;
    Fill(list, {"a", "b"});
    list.SetActNumPos(0);
    EXPECT_EQ(list.CopyList(&list), 1);
    EXPECT_THAT(NamesOf(list), ElementsAre("a", "b"));
    EXPECT_EQ(list.GetActNumPos(), 0);
}

TEST(ObListCopy, ItemsThatCantBeMadeAreLeftOut)
{
    OpenList from;
    Fill(from, {"a"});
    from.AddTail(nullptr);
    from.AddObject(new Unmakeable);
    Fill(from, {"b"});
    from.SetActNumPos(2);
    OpenList to;
    EXPECT_EQ(to.CopyList(&from), 1);
    EXPECT_THAT(NamesOf(to), ElementsAre("a", "b"));
    EXPECT_EQ(to.GetActPos(), nullptr);
}

TEST(ObListCopy, AssignmentGoesThroughTheVirtualCopyList)
{
    class Counting : public OpenList
    {
      public:
        using CVARDObList::operator=;
        int CopyList(CVARDObList * from) override
        {
            ++m_copies;
            return CVARDObList::CopyList(from);
        }
        int m_copies = 0;
    };
    CVARDObList from;
    Fill(from, {"a"});
    Counting to;
    to = from;
    EXPECT_EQ(to.m_copies, 1);
    EXPECT_THAT(NamesOf(to), ElementsAre("a"));
}

// Count (16 bits), the object with its class, a second one of the known class, the active index in 32 bits.
TEST(ObListFile, StoredFormToTheByte)
{
    OpenList list;
    list.AddObject(new Load("a", 1));
    list.AddObject(new Load("b", 2));
    list.SetActNumPos(0);
    Bytes const expected{2, 0, 0xFF, 0xFF, 1,    0, 4,   0, 'L', 'o', 'a', 'd', 1, 'a', 1,
                         0, 0, 0,    0x01, 0x80, 1, 'b', 2, 0,   0,   0,   0,   0, 0,   0};
    EXPECT_EQ(Stored(list), expected);
}

TEST(ObListFile, NoActiveObjectIsStoredAsMinusOne)
{
    CVARDObList list;
    EXPECT_EQ(Stored(list), (Bytes{0, 0, 0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST(ObListFile, LoadingReplacesObjectsAndActiveOne)
{
    OpenList from;
    Fill(from, {"a", "b", "c"});
    from.SetActNumPos(1);
    OpenList to;
    Fill(to, {"x", "y"});
    LoadFrom(to, Stored(from));
    EXPECT_THAT(NamesOf(to), ElementsAre("a", "b", "c"));
    EXPECT_EQ(to.GetActNumPos(), 1);
}

TEST(ObListFile, LoadingNoActiveObjectLeavesNone)
{
    OpenList from;
    Fill(from, {"a"});
    from.SetActPos(nullptr);
    OpenList to;
    LoadFrom(to, Stored(from));
    EXPECT_THAT(NamesOf(to), ElementsAre("a"));
    EXPECT_EQ(to.GetActPos(), nullptr);
}

TEST(ObListFile, ActiveIndexThatIsntThereLeavesNone)
{
    for (unsigned char const index : Bytes{1, 77, 127}) {
        OpenList from;
        Fill(from, {"a"});
        Bytes bytes = Stored(from);
        bytes[bytes.size() - 4] = index;
        bytes[bytes.size() - 1] = index;
        OpenList to;
        LoadFrom(to, bytes);
        EXPECT_EQ(to.GetActPos(), nullptr);
        EXPECT_EQ(to.GetCount(), 1);
    }
}

TEST(ObListFile, LoadingKeepsDerivedClasses)
{
    CVARDObList from;
    from.AddObject(new CVARDNamedObject);
    from.AddObject(new Load("b", 1));
    from.AddObject(new CVARDObject);
    CVARDObList to;
    LoadFrom(to, Stored(from));
    POSITION position = to.GetHeadPosition();
    EXPECT_EQ(to.GetNext(position)->GetRuntimeClass(), RUNTIME_CLASS(CVARDNamedObject));
    EXPECT_EQ(to.GetNext(position)->GetRuntimeClass(), RUNTIME_CLASS(Load));
    EXPECT_EQ(to.GetNext(position)->GetRuntimeClass(), RUNTIME_CLASS(CVARDObject));
}

TEST(ObListFile, FailedLoadingKeepsWhatWasReadAndNoActiveObject)
{
    int const before = Load::g_alive;
    {
        CVARDObList from;
        Fill(from, {"a", "b"});
        Bytes const whole = Stored(from);
        from.ClearList();
        for (std::size_t length = 0; length < whole.size(); ++length) {
            CVARDObList to;
            Fill(to, {"old"});
            EXPECT_EQ(CauseOfLoading(to, Bytes(whole.begin(), whole.begin() + static_cast<long>(length))),
                      CArchiveException::endOfFile);
            EXPECT_EQ(to.GetActPos(), nullptr);
            EXPECT_EQ(Load::g_alive, before + to.GetCount());
        }
    }
    EXPECT_EQ(Load::g_alive, before);
}

TEST(ObListFile, ForgedCountAllocatesNothing)
{
    CVARDObList list;
    EXPECT_EQ(CauseOfLoading(list, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F}), CArchiveException::endOfFile);
    EXPECT_TRUE(list.IsEmpty());
}

TEST(ObList, ClassRecordMakesAListWithSchemaOne)
{
    EXPECT_EQ(RUNTIME_CLASS(CVARDObList)->m_wSchema, 1U);
    EXPECT_EQ(RUNTIME_CLASS(CVARDObList)->m_pBaseClass, RUNTIME_CLASS(CObList));
    std::unique_ptr<CObject> const made(RUNTIME_CLASS(CVARDObList)->CreateObject());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CVARDObList)));
}
