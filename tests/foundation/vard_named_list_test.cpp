// CVARDListWithNamedObject and CVARDSortList: names, combo boxes, order.
#include <gmock/gmock.h>

#include <limits>

#include "foundation/vard_sort_list.h"
#include "tests/foundation/object_fixture.h"
#include "tests/support/list_combo_box.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
std::vector<POSITION> Fill(CVARDListWithNamedObject & list, std::vector<char const *> const & names)
{
    std::vector<POSITION> positions;
    for (char const * name : names)
        positions.push_back(list.AddObject(new Load(name, 0)));
    return positions;
}

std::string NewName(CVARDListWithNamedObject const & list, char const * base, int step)
{
    return std::string(list.GetNewName(base, step));
}
}  // namespace

TEST(NamedList, ClassRecordsMakeListsWithoutSchemaOfTheirOwn)
{
    for (CRuntimeClass const * record :
         {RUNTIME_CLASS(CVARDListWithNamedObject), RUNTIME_CLASS(CVARDSortList)}) {
        std::unique_ptr<CObject> const made(record->CreateObject());
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(made->GetRuntimeClass(), record);
        EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CVARDObList)));
        EXPECT_FALSE(made->IsSerializable());
    }
}

TEST(NamedListFind, FirstFromTheHeadWithoutRegardToCase)
{
    CVARDListWithNamedObject list;
    auto const at = Fill(list, {"Load1", "load2", "LOAD2",
                                "\xF8"
                                "ada"});
    EXPECT_EQ(list.FindName("LOAD1", nullptr), at[0]);
    EXPECT_EQ(list.FindName("Load2", nullptr), at[1]);
    EXPECT_EQ(list.FindName("\xD8"
                            "ADA",
                            nullptr),
              at[3]);
    EXPECT_EQ(list.FindName("Load3", nullptr), nullptr);
    EXPECT_EQ(list.FindName("Load", nullptr), nullptr);
}

TEST(NamedListFind, PositionToSkip)
{
    CVARDListWithNamedObject list;
    auto const at = Fill(list, {"a", "A"});
    EXPECT_EQ(list.FindName("a", at[0]), at[1]);
    EXPECT_EQ(list.FindName("a", at[1]), at[0]);
    list.DeleteObject(at[1]);
    EXPECT_EQ(list.FindName("a", at[0]), nullptr);
}

TEST(NamedListFind, PassesOverObjectsWithoutName)
{
    CVARDListWithNamedObject list;
    list.AddObject(new CVARDSortObject);
    list.AddTail(nullptr);
    auto const at = Fill(list, {""});
    EXPECT_EQ(list.FindName("", nullptr), at[0]);
}

TEST(NamedListNewName, FreeNumberBehindTheBase)
{
    CVARDListWithNamedObject list;
    Fill(list, {"Load4"});
    EXPECT_EQ(NewName(list, "Load4", 1), "Load5");
}

TEST(NamedListNewName, TextWithoutNumberCountsAsOne)
{
    CVARDListWithNamedObject list;
    Fill(list, {"Other"});
    EXPECT_EQ(NewName(list, "Load", 0), "Load1");
    EXPECT_EQ(NewName(list, "Load", 1), "Load2");
}

TEST(NamedListNewName, EmptyListTakesTheCandidate)
{
    CVARDListWithNamedObject const list;
    EXPECT_EQ(NewName(list, "Load4", 0), "Load4");
    EXPECT_EQ(NewName(list, "Load4", -10), "Load-6");
    EXPECT_EQ(NewName(list, "", 1), "0");
}

TEST(NamedListNewName, TakenCandidatesAreStepped)
{
    CVARDListWithNamedObject list;
    Fill(list, {"Load7", "Load5", "Load6"});
    EXPECT_EQ(NewName(list, "Load4", 1), "Load8");
    EXPECT_EQ(NewName(list, "Load2", 0), "Load2");
}

TEST(NamedListNewName, CaseCounts)
{
    CVARDListWithNamedObject list;
    Fill(list, {"LOAD5"});
    EXPECT_EQ(NewName(list, "Load4", 1), "Load5");
    EXPECT_NE(list.FindName("Load5", nullptr), nullptr);
}

// "Load-1" splits into "Load-" and 1.
TEST(NamedListNewName, NegativeCandidateIsSplitAnew)
{
    CVARDListWithNamedObject list;
    Fill(list, {"Load-1"});
    EXPECT_EQ(NewName(list, "Load1", -2), "Load-2");
}

TEST(NamedListNewName, ExtremesDontOverflow)
{
    CVARDListWithNamedObject list;
    Fill(list, {"Load2147483647"});
    EXPECT_EQ(NewName(list, "Load2147483647", 0), "Load2147483648");
    EXPECT_EQ(NewName(list, "Load1", std::numeric_limits<int>::max()), "Load2147483648");
    EXPECT_EQ(NewName(list, "Load", std::numeric_limits<int>::min()), "Load-2147483647");
}

TEST(NamedListComboBox, ShowsNamesWithTheirPositionsAndSelects)
{
    CVARDListWithNamedObject list;
    auto const at = Fill(list, {"b", "a"});
    ListComboBox box;
    box.AddString("old");
    EXPECT_EQ(list.NameToComboBox(box, at[1]), 1);
    EXPECT_THAT(box.Labels(), ElementsAre("b", "a"));
    EXPECT_EQ(box.GetItemData(0), reinterpret_cast<std::uintptr_t>(at[0]));
    EXPECT_EQ(box.GetCurSel(), 1);
}

TEST(NamedListComboBox, SortedBoxIsSelectedByData)
{
    CVARDListWithNamedObject list;
    auto const at = Fill(list, {"c", "a", "b"});
    SortingListComboBox box;
    EXPECT_EQ(list.NameToComboBox(box, at[0]), 1);
    EXPECT_THAT(box.Labels(), ElementsAre("a", "b", "c"));
    EXPECT_EQ(box.GetCurSel(), 2);
    EXPECT_EQ(list.GetObjectFromComboBox(box), list.GetAt(at[0]));
}

TEST(NamedListComboBox, NothingToSelectSelectsNone)
{
    CVARDListWithNamedObject list;
    Fill(list, {"a"});
    ListComboBox box;
    EXPECT_EQ(list.NameToComboBox(box, static_cast<POSITION>(nullptr)), 1);
    EXPECT_EQ(box.GetCurSel(), -1);
}

TEST(NamedListComboBox, SelectsByName)
{
    CVARDListWithNamedObject list;
    Fill(list, {"a", "b"});
    ListComboBox box;
    EXPECT_EQ(list.NameToComboBox(box, CString("B")), 1);
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(list.NameToComboBox(box, CString("z")), 1);
    EXPECT_EQ(box.GetCurSel(), -1);
}

TEST(NamedListComboBox, FailedAdditionEmptiesTheBox)
{
    for (int error : {-1, -2}) {
        CVARDListWithNamedObject list;
        auto const at = Fill(list, {"a", "b"});
        ListComboBox box;
        box.FailAfter(1, error);
        EXPECT_EQ(list.NameToComboBox(box, at[0]), 0);
        EXPECT_THAT(box.Labels(), IsEmpty());
    }
}

TEST(NamedListComboBox, ObjectsWithoutNameArentShown)
{
    CVARDListWithNamedObject list;
    list.AddObject(new CVARDSortObject);
    list.AddTail(nullptr);
    auto const at = Fill(list, {"a"});
    ListComboBox box;
    EXPECT_EQ(list.NameToComboBox(box, at[0]), 1);
    EXPECT_THAT(box.Labels(), ElementsAre("a"));
    EXPECT_EQ(box.GetCurSel(), 0);
}

TEST(NamedListComboBox, SelectedObjectOrNull)
{
    CVARDListWithNamedObject list;
    auto const at = Fill(list, {"a", "b"});
    ListComboBox box;
    EXPECT_EQ(list.GetObjectFromComboBox(box), nullptr);
    list.NameToComboBox(box, at[1]);
    EXPECT_EQ(list.GetObjectFromComboBox(box), list.GetAt(at[1]));
    box.SetCurSel(-1);
    EXPECT_EQ(list.GetObjectFromComboBox(box), nullptr);
}

TEST(NamedListComboBox, ItemOfAnotherListGivesNull)
{
    CVARDListWithNamedObject list;
    CVARDListWithNamedObject other;
    Fill(list, {"a"});
    auto const at = Fill(other, {"b"});
    ListComboBox box;
    other.NameToComboBox(box, at[0]);
    EXPECT_EQ(list.GetObjectFromComboBox(box), nullptr);
}

TEST(SortList, KeepsTheOrderOfIsLess)
{
    CVARDSortList list;
    for (int value : {5, 1, 3, 4, 2})
        list.AddSortObject(new Load(std::to_string(value).c_str(), value), 0);
    EXPECT_THAT(NamesOf(list), ElementsAre("1", "2", "3", "4", "5"));
}

TEST(SortList, EqualObjectsKeepTheirOrderOfArrival)
{
    CVARDSortList list;
    list.AddSortObject(new Load("first", 1), 0);
    list.AddSortObject(new Load("other", 2), 0);
    list.AddSortObject(new Load("second", 1), 0);
    EXPECT_THAT(NamesOf(list), ElementsAre("first", "second", "other"));
}

TEST(SortList, ObjectsWithoutOrderAreAppended)
{
    CVARDSortList list;
    for (char const * name : {"b", "a", "c"}) {
        auto * const object = new CVARDNamedObject;
        object->SetName(name);
        list.AddSortObject(object, 0);
    }
    EXPECT_THAT(NamesOf(list), ElementsAre("b", "a", "c"));
}

TEST(SortList, MakesActiveOnlyWhenAsked)
{
    CVARDSortList list;
    POSITION const first = list.AddSortObject(new Load("a", 1), 0);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(list.GetActPos(), nullptr);
    POSITION const second = list.AddSortObject(new Load("b", 0), 7);
    EXPECT_EQ(list.GetActPos(), second);
    list.AddSortObject(new Load("c", 5), 0);
    EXPECT_EQ(list.GetActPos(), second);
}

TEST(SortList, NullIsRefused)
{
    CVARDSortList list;
    EXPECT_EQ(list.AddSortObject(nullptr, 1), nullptr);
    EXPECT_TRUE(list.IsEmpty());
}

TEST(SortList, PassesOverNullItemsAndObjectsWithoutOrder)
{
    CVARDSortList list;
    list.AddTail(nullptr);
    list.AddTail(new CVARDObject);
    list.AddSortObject(new Load("b", 2), 0);
    list.AddSortObject(new Load("a", 1), 0);
    EXPECT_THAT(NamesOf(list), ElementsAre("-", "?", "a", "b"));
}

TEST(SortList, AssignmentCopiesObjectsAndActiveOne)
{
    CVARDSortList from;
    from.AddSortObject(new Load("b", 2), 0);
    from.AddSortObject(new Load("a", 1), 1);
    CVARDSortList to;
    to = from;
    EXPECT_THAT(NamesOf(to), ElementsAre("a", "b"));
    EXPECT_EQ(to.GetActPos(), to.GetHeadPosition());
    EXPECT_NE(to.GetHead(), from.GetHead());
}

TEST(SortList, IsStoredAsAPlainList)
{
    CVARDSortList list;
    list.AddSortObject(new Load("a", 1), 1);
    CVARDObList plain;
    plain.AddObject(new Load("a", 1));
    EXPECT_EQ(Stored(list), Stored(plain));
}
