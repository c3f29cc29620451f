// CNameArr: entering names and looking for free ones.
#include "foundation/name_array.h"

#include <gmock/gmock.h>

#include <limits>
#include <string>
#include <vector>

#include "tests/foundation/name_array_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
constexpr int kHighest = std::numeric_limits<int>::max();
constexpr int kLowest = std::numeric_limits<int>::min();

std::string FirstFree(CNameArr & names, char const * text, int count)
{
    CString name(text);
    EXPECT_EQ(names.GetFirstFreeNameStr(name, count), 1);
    return std::string(name);
}

}  // namespace

TEST(NameArrayAdd, KeepsTextsThenNumbersSorted)
{
    CNameArr names;
    Add(names, {"B", "A10", "A", "a", "A2"});
    EXPECT_THAT(Texts(names), ElementsAre("A", "A2", "A10", "B", "a"));
}

TEST(NameArrayAdd, BytesAbove127SortBehindLetters)
{
    CNameArr names;
    Add(names, {"\xC8", "Z"});
    EXPECT_THAT(Texts(names), ElementsAre("Z", "\xC8"));
}

TEST(NameArrayAdd, HandlesCountUpInOrderOfAdding)
{
    CNameArr names;
    EXPECT_EQ(Added(names, "C", 1), HandleAndText(0, "C"));
    EXPECT_EQ(Added(names, "A", 1), HandleAndText(1, "A"));
}

// Position of A stays 0, that of C moves from 1 to 2.
TEST(NameArrayAdd, HandlesBehindTheInsertedNameMove)
{
    OpenNameArray names;
    Add(names, {"A", "C", "B"});
    EXPECT_THAT(Handles(names), ElementsAre(0, 2, 1));
    EXPECT_EQ(names.GetNameStrBySort(0), "A");
    EXPECT_EQ(names.GetNameStrBySort(1), "C");
    EXPECT_EQ(names.GetNameStrBySort(2), "B");
}

TEST(NameArrayAdd, TakenNameGetsTheNumberBehindTheLastOfItsText)
{
    CNameArr names;
    Add(names, {"a", "a2", "a7"});
    EXPECT_EQ(Added(names, "a", 1), HandleAndText(3, "a8"));
    EXPECT_EQ(Added(names, "a2", 1), HandleAndText(4, "a9"));
}

TEST(NameArrayAdd, TakenNameWithoutNumberGetsTwo)
{
    CNameArr names;
    Add(names, {"a", "b"});
    EXPECT_EQ(Added(names, "a", 1), HandleAndText(2, "a2"));
    EXPECT_THAT(Texts(names), ElementsAre("a", "a2", "b"));
}

TEST(NameArrayAdd, FreeNumberInAGapIsEnteredAsItIs)
{
    CNameArr names;
    Add(names, {"a", "a7"});
    EXPECT_EQ(Added(names, "a3", 1), HandleAndText(2, "a3"));
}

// The run a3, a4, a5, a6 ends before a7; one more reaches it.
TEST(NameArrayAdd, RunThatReachesALaterNameIsRefused)
{
    CNameArr names;
    Add(names, {"a7"});
    EXPECT_EQ(Added(names, "a3", 5), HandleAndText(-1, "a3"));
    EXPECT_EQ(names.GetActNameStr(), "a7");
    EXPECT_THAT(Texts(names), ElementsAre("a7"));
    EXPECT_EQ(Added(names, "a3", 4), HandleAndText(1, "a3"));
    EXPECT_THAT(Texts(names), ElementsAre("a3", "a7"));
}

TEST(NameArrayAdd, OnlyOneNameIsEnteredWhateverTheCount)
{
    CNameArr names;
    for (int count : {1, 100, kHighest, 0, -1, kLowest}) {
        std::size_t const before = Texts(names).size();
        EXPECT_GE(Added(names, std::string(before + 1, 'x').c_str(), count).first, 0);
        EXPECT_EQ(Texts(names).size(), before + 1);
    }
}

TEST(NameArrayAdd, CountDoesntLookAtOtherTexts)
{
    CNameArr names;
    Add(names, {"b"});
    EXPECT_EQ(Added(names, "a1", kHighest), HandleAndText(1, "a1"));
}

TEST(NameArrayAdd, NameWithoutNumberCountsAsMinusOneInARun)
{
    CNameArr names;
    Add(names, {"a1"});
    EXPECT_EQ(Added(names, "a", 3), HandleAndText(-1, "a"));  // -1, 0, 1
    EXPECT_EQ(Added(names, "a", 2), HandleAndText(1, "a"));
}

TEST(NameArrayAdd, RecordComesBackAsEntered)
{
    CNameArr names;
    TSName name = NameRecord("a", -5);
    EXPECT_EQ(names.AddName(name, 1), 0);
    EXPECT_EQ(name.number, -1);
    EXPECT_EQ(names.AddName(name, 1), 1);
    EXPECT_EQ(name.number, 2);
    EXPECT_EQ(names.GetActNameStr(), "a2");
}

TEST(NameArrayAdd, EmptyTextIsRefused)
{
    CNameArr names;
    EXPECT_EQ(Added(names, "", 1), HandleAndText(-1, ""));
    EXPECT_EQ(names.GetActNameStr(), "name");
}

TEST(NameArrayAdd, LongTextIsCut)
{
    CNameArr names;
    EXPECT_EQ(Added(names, "ABCDEFGHIJKLM5", 1), HandleAndText(0, "ABCDEFGHIJ5"));
}

TEST(NameArrayAdd, NoNumberBehindTheHighestIsRefused)
{
    CNameArr names;
    Add(names, {"a2147483647"});
    EXPECT_EQ(Added(names, "a2147483647", 1), HandleAndText(-1, "a2147483647"));
    EXPECT_EQ(Texts(names).size(), 1U);
}

TEST(NameArrayAddDirect, EntersARunAfterTheQuestion)
{
    CNameArr names;
    Add(names, {"b", "d"});
    EXPECT_EQ(names.IsFeeName(NameRecord("c", 5), 3), 1);
    EXPECT_EQ(names.AddNameDirect(), 2);
    EXPECT_EQ(names.AddNameDirect(), 3);
    EXPECT_EQ(names.AddNameDirect(), 4);
    EXPECT_THAT(Texts(names), ElementsAre("b", "c5", "c6", "c7", "d"));
    EXPECT_EQ(names.GetNameStrBySort(1), "d");
    EXPECT_EQ(names.GetNameStrBySort(4), "c7");
    EXPECT_EQ(names.GetActNameStr(), "c8");
}

TEST(NameArrayAddDirect, RunFromANameWithoutNumberGoesOnAtTwo)
{
    CNameArr names;
    names.IsFeeName(NameRecord("c", -1), 3);
    names.AddNameDirect();
    names.AddNameDirect();
    names.AddNameDirect();
    EXPECT_THAT(Texts(names), ElementsAre("c", "c2", "c3"));
}

// AddName leaves the name it entered as the actual one, and that is what comes next.
TEST(NameArrayAddDirect, RightAfterAddNameEntersTheSameNameAgain)
{
    CNameArr names;
    Add(names, {"c"});
    EXPECT_EQ(names.AddNameDirect(), 1);
    EXPECT_THAT(Texts(names), ElementsAre("c", "c"));
    EXPECT_EQ(names.GetActNameStr(), "c2");
}

TEST(NameArrayAddDirect, FreshTableTakesItsActualName)
{
    CNameArr names;
    EXPECT_EQ(names.AddNameDirect(), 0);
    EXPECT_THAT(Texts(names), ElementsAre("name"));
}

// The names behind a4 are entered in front of "b" though they belong behind it, so the search for "c1" ends
// at "z8".
TEST(NameArrayAddDirect, NameAtAWrongPlaceIsntLookedBehind)
{
    OpenNameArray names;
    Add(names, {"a", "b", "c1"});
    names.IsFeeName(NameRecord("a", 4), 1);
    names.SetActNameStr("z8");
    EXPECT_EQ(names.AddNameDirect(), 3);
    EXPECT_THAT(Texts(names), ElementsAre("a", "z8", "b", "c1"));
    int position = 99;
    EXPECT_EQ(names.FindName(NameRecord("c", 1), position, 1), -1);
    EXPECT_EQ(position, 1);
    EXPECT_EQ(names.FindName(NameRecord("c", 1)), 3);
    EXPECT_EQ(FirstFree(names, "c1", 1), "c1");
    EXPECT_EQ(names.DeleteNameByPos(1), 1);
    EXPECT_EQ(names.FindName(CString("c1")), 2);
}

TEST(NameArrayAddDirect, NextPositionBeyondTheTableIsRefused)
{
    CNameArr names;
    Add(names, {"a", "b", "c"});
    names.NameFullCompress();
    EXPECT_EQ(names.AddNameDirect(), -1);
    EXPECT_THAT(Texts(names), IsEmpty());
}

TEST(NameArrayIsFee, TellsPositionTakenOrInTheWay)
{
    CNameArr names;
    Add(names, {"a", "b3", "c"});
    EXPECT_EQ(names.IsFeeName(NameRecord("b", 1), 2), 1);
    EXPECT_EQ(names.IsFeeName(NameRecord("b", 3), 1), -1);
    EXPECT_EQ(names.IsFeeName(NameRecord("b", 1), 3), -101);  // b3 stands at position 1
    EXPECT_EQ(names.IsFeeName(NameRecord("z", 1), 1), 3);
}

TEST(NameArrayIsFee, OnlyAFreeNameBecomesTheActualOne)
{
    CNameArr names;
    Add(names, {"a", "b3"});
    names.IsFeeName(NameRecord("a", -1), 1);
    names.IsFeeName(NameRecord("b", 1), 3);
    EXPECT_EQ(names.GetActNameStr(), "b3");
    names.IsFeeName(NameRecord("b", 1), 2);
    EXPECT_EQ(names.GetActNameStr(), "b1");
}

TEST(NameArrayFirstFree, EmptyTableLeavesTheText)
{
    CNameArr names;
    EXPECT_EQ(FirstFree(names, "a5", 1), "a5");
}

TEST(NameArrayFirstFree, TextThatTheTableDoesntHaveStays)
{
    CNameArr names;
    Add(names, {"a", "c"});
    EXPECT_EQ(FirstFree(names, "b007", 1), "b007");
    EXPECT_EQ(FirstFree(names, "z", 1), "z");
    EXPECT_EQ(FirstFree(names, "", 1), "");
}

TEST(NameArrayFirstFree, GoesBehindTakenNumbers)
{
    CNameArr names;
    Add(names, {"a3", "a4", "a6"});
    EXPECT_EQ(FirstFree(names, "a3", 1), "a5");
    EXPECT_EQ(FirstFree(names, "a3", 2), "a7");
    EXPECT_EQ(FirstFree(names, "a1", 2), "a1");
    EXPECT_EQ(FirstFree(names, "a1", 3), "a7");
    EXPECT_EQ(FirstFree(names, "a9", 5), "a9");
}

TEST(NameArrayFirstFree, CountBelowOneCountsAsOne)
{
    CNameArr names;
    Add(names, {"a3"});
    for (int count : {0, -1, kLowest})
        EXPECT_EQ(FirstFree(names, "a3", count), "a4");
    EXPECT_EQ(FirstFree(names, "a1", kHighest), "a4");
}

TEST(NameArrayFirstFree, EntryWithoutNumberGivesZero)
{
    CNameArr names;
    Add(names, {"a"});
    EXPECT_EQ(FirstFree(names, "a", 1), "a0");
}

TEST(NameArrayFirstFree, FreeNameWithoutNumberStaysWithoutOne)
{
    CNameArr names;
    Add(names, {"a5"});
    EXPECT_EQ(FirstFree(names, "a", 1), "a");
}

TEST(NameArrayFirstFree, CutsALongText)
{
    CNameArr names;
    Add(names, {"ABCDEFGHIJ1"});
    EXPECT_EQ(FirstFree(names, "ABCDEFGHIJKL1", 1), "ABCDEFGHIJ2");
}
