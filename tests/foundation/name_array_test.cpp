// CNameArr: the sorted table of names with stable handles.
#include "foundation/name_array.h"

#include <gmock/gmock.h>

#include <limits>
#include <string>
#include <vector>

#include "tests/foundation/name_array_fixture.h"
#include "tests/support/list_combo_box.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
constexpr int kHighest = std::numeric_limits<int>::max();
constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kNowhere[] = {-1, 1000, kHighest, kLowest};

}  // namespace

TEST(NameArray, StartsEmptyWithItsActualName)
{
    CNameArr const names;
    EXPECT_THAT(Texts(names), IsEmpty());
    EXPECT_EQ(names.GetActNameStr(), "name");
}

TEST(NameArrayFind, PositionOfAnExactMatch)
{
    CNameArr names;
    Add(names, {"a", "a2", "b"});
    EXPECT_EQ(names.FindName(NameRecord("a", 2)), 1);
    EXPECT_EQ(names.FindName(NameRecord("a", 3)), -1);
    EXPECT_EQ(names.FindName(NameRecord("A", 2)), -1);
    EXPECT_EQ(names.FindName(CString("b")), 2);
    EXPECT_EQ(names.FindName(CString("b0")), -1);
    EXPECT_EQ(names.FindName(CString("")), -1);
}

TEST(NameArrayFind, SearchTellsWhereANameBelongs)
{
    OpenNameArray names;
    Add(names, {"a", "b5", "b9", "d"});
    int position = 99;
    EXPECT_EQ(names.FindName(NameRecord("b", 5), position, 1), 1);
    EXPECT_EQ(position, -1);
    EXPECT_EQ(names.FindName(NameRecord("b", 3), position, 2), -1);
    EXPECT_EQ(position, 1);
    EXPECT_EQ(names.FindName(NameRecord("b", 3), position, 3), -1);
    EXPECT_EQ(position, -101);
    EXPECT_EQ(names.FindName(NameRecord("b", 6), position, 4), -1);
    EXPECT_EQ(position, -102);
    EXPECT_EQ(names.FindName(NameRecord("b", 10), position, 1), -1);
    EXPECT_EQ(position, 3);
    EXPECT_EQ(names.FindName(NameRecord("z", 0), position, 1), -1);
    EXPECT_EQ(position, 4);
}

TEST(NameArrayFind, EmptyTableTakesANameAtItsStart)
{
    OpenNameArray names;
    int position = 99;
    EXPECT_EQ(names.FindName(NameRecord("a", 1), position, 1), -1);
    EXPECT_EQ(position, 0);
}

TEST(NameArrayLookUp, LiveHandleGivesNameAndPosition)
{
    CNameArr names;
    Add(names, {"b", "a4"});
    TSName name = NameRecord("x", 7);
    int position = 99;
    EXPECT_EQ(names.GetNameBySort(1, name), 1);
    EXPECT_STREQ(name.text, "a");
    EXPECT_EQ(name.number, 4);
    EXPECT_EQ(names.GetNameBySort(0, position), 1);
    EXPECT_EQ(position, 1);
}

TEST(NameArrayLookUp, NoLiveHandleGivesAnEmptyName)
{
    CNameArr names;
    Add(names, {"a"});
    for (int handle : kNowhere) {
        TSName name = NameRecord("x", 7);
        int position = 99;
        EXPECT_EQ(names.GetNameBySort(handle, name), 0) << handle;
        EXPECT_STREQ(name.text, "");
        EXPECT_EQ(name.number, -1);
        EXPECT_EQ(names.GetNameBySort(handle, position), 0);
        EXPECT_EQ(position, 99);
        EXPECT_EQ(names.GetNameStrBySort(handle), "");
    }
}

TEST(NameArrayLookUp, ByPosition)
{
    CNameArr names;
    Add(names, {"b", "a4"});
    TSName name = NameRecord("x", 7);
    EXPECT_EQ(names.GetNameByPos(0, name), 1);
    EXPECT_EQ(name.number, 4);
    EXPECT_EQ(names.GetNameStrByPos(1), "b");
}

TEST(NameArrayLookUp, PositionOutsideOfTheTable)
{
    CNameArr names;
    Add(names, {"a"});
    for (int position : kNowhere) {
        TSName name = NameRecord("x", 7);
        EXPECT_EQ(names.GetNameByPos(position, name), 0);
        EXPECT_EQ(name.number, 7);
        EXPECT_EQ(names.GetNameStrByPos(position), "");
    }
}

TEST(NameArrayActualName, IsSetAndCut)
{
    CNameArr names;
    names.SetActNameStr("ABCDEFGHIJK3");
    EXPECT_EQ(names.GetActNameStr(), "ABCDEFGHIJ3");
    names.SetActNameStr("");
    EXPECT_EQ(names.GetActNameStr(), "ABCDEFGHIJ3");
}

TEST(NameArrayDelete, MarkedNameStaysInTheTable)
{
    OpenNameArray names;
    Add(names, {"a", "b"});
    EXPECT_EQ(names.DeleteNameBySort(1), 1);
    EXPECT_THAT(Handles(names), ElementsAre(0, -101));
    EXPECT_EQ(names.FindName(CString("b")), 1);
    EXPECT_EQ(names.GetNameStrBySort(1), "");
}

TEST(NameArrayDelete, MarkAtPositionZero)
{
    OpenNameArray names;
    Add(names, {"a"});
    names.DeleteNameBySort(0);
    EXPECT_THAT(Handles(names), ElementsAre(-100));
}

TEST(NameArrayDelete, SecondDeletionIsRefused)
{
    CNameArr names;
    Add(names, {"a"});
    EXPECT_EQ(names.DeleteNameBySort(0), 1);
    EXPECT_EQ(names.DeleteNameBySort(0), 0);
}

TEST(NameArrayDelete, UndeletingTakesTheMarkOff)
{
    CNameArr names;
    Add(names, {"a", "b"});
    names.DeleteNameBySort(1);
    EXPECT_EQ(names.UnDeleteNameBySort(1), 1);
    EXPECT_EQ(names.GetNameStrBySort(1), "b");
    EXPECT_EQ(names.UnDeleteNameBySort(1), 0);
}

TEST(NameArrayDelete, UndeletingBeyondTheTableIsRefused)
{
    CNameArr names;
    Add(names, {"a", "b"});
    names.DeleteNameBySort(1);
    names.DeleteNameByPos(1);
    EXPECT_EQ(names.UnDeleteNameBySort(1), 0);
}

TEST(NameArrayDelete, HandlesThatArentThere)
{
    CNameArr names;
    Add(names, {"a"});
    for (int handle : kNowhere) {
        EXPECT_EQ(names.DeleteNameBySort(handle), 0);
        EXPECT_EQ(names.UnDeleteNameBySort(handle), 0);
        EXPECT_EQ(names.DeleteNameByPos(handle), 0);
    }
    EXPECT_THAT(Texts(names), ElementsAre("a"));
}

TEST(NameArrayDelete, ByPositionLeavesTheHandles)
{
    OpenNameArray names;
    Add(names, {"a", "b", "c"});
    EXPECT_EQ(names.DeleteNameByPos(1), 1);
    EXPECT_THAT(Texts(names), ElementsAre("a", "c"));
    EXPECT_THAT(Handles(names), ElementsAre(0, 1, 2));
    EXPECT_EQ(names.GetNameStrBySort(1), "c");
    TSName name{};
    EXPECT_EQ(names.GetNameBySort(2, name), 0);
}

TEST(NameArrayCompress, RemovesMarkedNamesAndMovesTheOthersHandles)
{
    OpenNameArray names;
    Add(names, {"a", "b", "c", "d"});
    names.DeleteNameBySort(1);
    names.DeleteNameBySort(2);
    EXPECT_EQ(names.NameArrayCompress(), 1);
    EXPECT_THAT(Texts(names), ElementsAre("a", "d"));
    EXPECT_THAT(Handles(names), ElementsAre(0, -1500000, -1500000, 1));
}

TEST(NameArrayCompress, DeadHandlesStayDead)
{
    OpenNameArray names;
    Add(names, {"a", "b"});
    names.DeleteNameBySort(0);
    names.NameArrayCompress();
    EXPECT_EQ(names.UnDeleteNameBySort(0), 0);
    EXPECT_EQ(names.DeleteNameBySort(0), 0);
    EXPECT_EQ(names.NameArrayCompress(), 1);
    EXPECT_THAT(Texts(names), ElementsAre("b"));
    EXPECT_THAT(Handles(names), ElementsAre(-1500000, 0));
}

TEST(NameArrayCompress, NewNamesGetNewHandles)
{
    CNameArr names;
    Add(names, {"a", "b"});
    names.DeleteNameBySort(0);
    names.NameArrayCompress();
    EXPECT_EQ(Added(names, "a", 1), HandleAndText(2, "a"));
    EXPECT_EQ(names.GetNameStrBySort(1), "b");
}

TEST(NameArrayCompress, EmptyTableAndTableWithoutMarks)
{
    CNameArr names;
    EXPECT_EQ(names.NameArrayCompress(), 1);
    Add(names, {"a"});
    EXPECT_EQ(names.NameArrayCompress(), 1);
    EXPECT_THAT(Texts(names), ElementsAre("a"));
}

// The mark of "c" stands for position 1 and doesn't move when "b" comes there, so the compression takes "b".
TEST(NameArrayCompress, MarksArentShiftedByAdditions)
{
    OpenNameArray names;
    Add(names, {"a", "c"});
    names.DeleteNameBySort(1);
    Add(names, {"b"});
    EXPECT_THAT(Handles(names), ElementsAre(0, -101, 1));
    names.NameArrayCompress();
    EXPECT_THAT(Texts(names), ElementsAre("a", "c"));
    EXPECT_THAT(Handles(names), ElementsAre(0, -1500000, 1));
}

TEST(NameArrayCompress, MarkBeyondTheTableRemovesNothing)
{
    OpenNameArray names;
    Add(names, {"a", "b"});
    names.DeleteNameBySort(1);
    names.DeleteNameByPos(1);
    names.NameArrayCompress();
    EXPECT_THAT(Texts(names), ElementsAre("a"));
    EXPECT_THAT(Handles(names), ElementsAre(0, -1500000));
}

TEST(NameArrayCompress, FullCompressionEmptiesAll)
{
    OpenNameArray names;
    Add(names, {"a", "b"});
    EXPECT_EQ(names.NameFullCompress(), 1);
    EXPECT_THAT(Texts(names), IsEmpty());
    EXPECT_THAT(Handles(names), IsEmpty());
}

TEST(NameArrayBoxes, ListBoxShowsTheTableInOrder)
{
    CNameArr names;
    Add(names, {"b", "a"});
    ListListBox box;
    box.AddString("old");
    EXPECT_EQ(names.SetListBox(box), 1);
    EXPECT_THAT(box.Labels(), ElementsAre("a", "b"));
}

TEST(NameArrayBoxes, EmptyTableEmptiesTheBox)
{
    CNameArr const names;
    ListListBox list;
    ListComboBox combo;
    list.AddString("old");
    combo.AddString("old");
    EXPECT_EQ(names.SetListBox(list), 0);
    EXPECT_EQ(names.SetComboBox(combo), 0);
    EXPECT_THAT(list.Labels(), IsEmpty());
    EXPECT_THAT(combo.Labels(), IsEmpty());
}

TEST(NameArrayBoxes, ComboBoxItemsCarryTheirHandles)
{
    CNameArr names;
    Add(names, {"c", "a", "b"});
    ListComboBox box;
    EXPECT_EQ(names.SetComboBox(box), 1);
    EXPECT_THAT(box.Labels(), ElementsAre("a", "b", "c"));
    EXPECT_EQ(box.GetItemData(0), 1U);
    EXPECT_EQ(box.GetItemData(1), 2U);
    EXPECT_EQ(box.GetItemData(2), 0U);
}

// Only handles below the number of names are looked at: handle 2 of "c" is beyond after the removal of "b".
TEST(NameArrayBoxes, ComboBoxLooksAtAsManyHandlesAsNames)
{
    CNameArr names;
    Add(names, {"a", "b", "c"});
    names.DeleteNameBySort(1);
    names.NameArrayCompress();
    ListComboBox box;
    names.SetComboBox(box);
    EXPECT_THAT(box.Labels(), ElementsAre("a", "c"));
    EXPECT_EQ(box.GetItemData(0), 0U);
    EXPECT_EQ(box.GetItemData(1), 0U);  // not set
}

TEST(NameArrayCopy, TakesNamesAndHandlesFromAnother)
{
    CNameArr from;
    OpenNameArray to;
    Add(from, {"b", "a"});
    Add(to, {"x"});
    EXPECT_EQ(to.SetNameArr(static_cast<CNameArr *>(&from)), 1);
    EXPECT_THAT(Texts(to), ElementsAre("a", "b"));
    EXPECT_THAT(Handles(to), ElementsAre(1, 0));
    EXPECT_EQ(to.GetActNameStr(), "x");
}

TEST(NameArrayCopy, GivesNamesAndHandlesToAnother)
{
    CNameArr from;
    CNameArr to;
    Add(from, {"b", "a"});
    EXPECT_EQ(from.GetNameArr(&to), 1);
    EXPECT_THAT(Texts(to), ElementsAre("a", "b"));
    EXPECT_EQ(to.GetNameStrBySort(0), "b");
}

TEST(NameArrayCopy, NullIsRefused)
{
    CNameArr names;
    EXPECT_EQ(names.SetNameArr(nullptr), 0);
    EXPECT_EQ(names.GetNameArr(nullptr), 0);
}

TEST(NameArrayCopy, CopyFromItselfChangesNothing)
{
    CNameArr names;
    Add(names, {"b", "a"});
    EXPECT_EQ(names.SetNameArr(&names), 1);
    EXPECT_THAT(Texts(names), ElementsAre("a", "b"));
}

TEST(NameArray, SetAtGrowDoesNothing)
{
    CNameArr names;
    Add(names, {"a"});
    names.SetAtGrow(5, NameRecord("b", 1));
    names.SetAtGrow(0, NameRecord("b", 1));
    EXPECT_THAT(Texts(names), ElementsAre("a"));
}
