#include <gtest/gtest.h>

#include <climits>

#include "foundation/vard_string.h"

namespace {
TEST(VardStringCopy, TakesBytesFromAPositionOn)
{
    CVARDString text("abcdef");
    EXPECT_EQ(text.Copy(1, 3, 0).GetCS(), "bcd");
    EXPECT_EQ(text.Copy(4, 10, 0).GetCS(), "ef");
    EXPECT_EQ(text.Copy(2, -1, 0).GetCS(), "cdef");
    EXPECT_EQ(text.Copy(0, 0, 0).GetCS(), "");
    EXPECT_EQ(text.Copy(0, INT_MAX, 0).GetCS(), "abcdef");
}

TEST(VardStringCopy, PositionOutsideTheTextGivesNothing)
{
    CVARDString text("abc");
    EXPECT_EQ(text.Copy(3, 1, 0).GetCS(), "");
    EXPECT_EQ(text.Copy(-1, 2, 0).GetCS(), "");
    EXPECT_EQ(text.Copy(INT_MAX, INT_MAX, 0).GetCS(), "");
    EXPECT_EQ(CVARDString().Copy(0, -1, 0).GetCS(), "");
}

TEST(VardStringCopy, AnyFlagButZeroChangesTheObject)
{
    CVARDString kept("abc"), changed("abc");
    kept.Copy(1, 1, 0);
    EXPECT_EQ(kept.GetCS(), "abc");
    changed.Copy(1, 1, 7);
    EXPECT_EQ(changed.GetCS(), "b");
}

TEST(VardStringRecords, AreCountedByTheirSeparators)
{
    EXPECT_EQ(CVARDString("").LineCnt("|"), 1);
    EXPECT_EQ(CVARDString("a").LineCnt("|"), 1);
    EXPECT_EQ(CVARDString("a|b").LineCnt("|"), 2);
    EXPECT_EQ(CVARDString("a|b|").LineCnt("|"), 2);
    EXPECT_EQ(CVARDString("|").LineCnt("|"), 1);
    EXPECT_EQ(CVARDString("||").LineCnt("|"), 2);
    EXPECT_EQ(CVARDString("a--b--c").LineCnt("--"), 3);
    EXPECT_EQ(CVARDString("a|b").LineCnt(""), 1);
}

TEST(VardStringRecords, AreCopiedWithTheSeparatorsBetweenThem)
{
    CVARDString text("one\ntwo\nthree\n");
    EXPECT_EQ(text.CopyLine(1, 1, 0, "\n").GetCS(), "one");
    EXPECT_EQ(text.CopyLine(2, 2, 0, "\n").GetCS(), "two\nthree");
    EXPECT_EQ(text.CopyLine(2, INT_MAX, 0, "\n").GetCS(), "two\nthree\n");
    EXPECT_EQ(text.CopyLine(3, 1, 0, "\n").GetCS(), "three");
    EXPECT_EQ(CVARDString("a|b").CopyLine(2, 1, 0, "|").GetCS(), "b");
    EXPECT_EQ(CVARDString("a|b").CopyLine(1, 1, 0, "").GetCS(), "a|b");
}

TEST(VardStringRecords, RecordThatIsNotThereIsEmpty)
{
    CVARDString text("one\ntwo");
    for (int first : {0, -1, INT_MIN, 3, INT_MAX})
        EXPECT_EQ(text.CopyLine(first, 1, 0, "\n").GetCS(), "") << first;
    EXPECT_EQ(text.CopyLine(1, 0, 0, "\n").GetCS(), "");
    EXPECT_EQ(text.CopyLine(1, -1, 0, "\n").GetCS(), "");
}

TEST(VardStringRecords, AnyFlagButZeroChangesTheObject)
{
    CVARDString text("one\ntwo");
    text.CopyLine(2, 1, 0, "\n");
    EXPECT_EQ(text.GetCS(), "one\ntwo");
    text.CopyLine(2, 1, 2, "\n");
    EXPECT_EQ(text.GetCS(), "two");
}

TEST(VardStringSubString, IsOneRecord)
{
    CVARDString const text("one\ntwo\n");
    EXPECT_EQ(text.GetSubString(2, "\n"), "two");
    EXPECT_EQ(text.GetSubString(3, "\n"), "");
    EXPECT_EQ(CVARDString("").GetSubString(1, "\n"), "");
    EXPECT_EQ(CVARDString("").GetSubString(2, "\n"), "");
}

TEST(VardStringSubString, NumberOfRecordsIsThatOfTheLinesForEverySeparator)
{
    // Two fields but one line: only the first field is within reach.
    CVARDString const oneLine("first|second");
    EXPECT_EQ(oneLine.GetSubString(1, "|"), "first");
    EXPECT_EQ(oneLine.GetSubString(2, "|"), "");
    CVARDString const twoLines("first|sec\nond");
    EXPECT_EQ(twoLines.GetSubString(2, "|"), "sec\nond");
}
}  // namespace
