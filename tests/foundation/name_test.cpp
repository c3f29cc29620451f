// CName: a name of text and running number.
#include "foundation/name.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace {
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

TSName Record(char const * text, std::int32_t number)
{
    TSName name{};
    std::strncpy(name.text, text, sizeof name.text - 1);
    name.number = number;
    return name;
}

CName Name(char const * text)
{
    CName name;
    name.SetNameStr(text, 1);
    return name;
}

std::string Text(CName const & name)
{
    return name.GetName().text;
}

/// Gives the tests a way to the keys.
class OpenName : public CName
{
  public:
    using CName::GetNameKey;
};
}  // namespace

TEST(Name, RecordHasSixteenBytes)
{
    EXPECT_EQ(sizeof(TSName), 16U);
    EXPECT_EQ(offsetof(TSName, number), 12U);
}

TEST(Name, FreshNameReadsAsZero)
{
    CName const name;
    EXPECT_EQ(name.GetNameStr(), "0");
    EXPECT_EQ(name.GetName().number, 0);
    EXPECT_EQ(Text(name), "");
}

TEST(NameSplit, TextAndNumber)
{
    CName const name = Name("A12");
    EXPECT_EQ(Text(name), "A");
    EXPECT_EQ(name.GetName().number, 12);
}

TEST(NameSplit, DigitsOnlyHaveEmptyText)
{
    CName const name = Name("12");
    EXPECT_EQ(Text(name), "");
    EXPECT_EQ(name.GetName().number, 12);
}

TEST(NameSplit, TextOnlyHasNoNumber)
{
    CName const name = Name("A");
    EXPECT_EQ(Text(name), "A");
    EXPECT_EQ(name.GetName().number, -1);
}

TEST(NameSplit, OnlyTrailingDigitsCount)
{
    CName const name = Name("1A-2B034");
    EXPECT_EQ(Text(name), "1A-2B");
    EXPECT_EQ(name.GetName().number, 34);
}

TEST(NameSplit, EmptyTextFailsAndChangesNothing)
{
    CName name = Name("A12");
    EXPECT_EQ(name.SetNameStr("", 0), 0);
    EXPECT_EQ(name.SetNameStr("", 1), 0);
    EXPECT_EQ(name.GetNameStr(), "A12");
}

TEST(NameSplit, LongTextFailsUncutWithItsNumberTaken)
{
    CName name = Name("A1");
    EXPECT_EQ(name.SetNameStr("ABCDEFGHIJK7", 0), 0);
    EXPECT_EQ(Text(name), "A");
    EXPECT_EQ(name.GetName().number, 7);
}

TEST(NameSplit, LongTextIsCutToTenBytes)
{
    CName name;
    EXPECT_EQ(name.SetNameStr("ABCDEFGHIJK7", 1), 1);
    EXPECT_EQ(name.GetNameStr(), "ABCDEFGHIJ7");
}

TEST(NameSplit, TenBytesFitUncut)
{
    CName name;
    EXPECT_EQ(name.SetNameStr("ABCDEFGHIJ", 0), 1);
    EXPECT_EQ(Text(name), "ABCDEFGHIJ");
    EXPECT_EQ(name.GetName().number, -1);
}

TEST(NameSplit, ShorterTextLeavesNoBytesOfTheOldOne)
{
    CName name = Name("ABCDEF");
    name.SetNameStr("Z", 1);
    TSName const expected = Record("Z", -1);
    TSName const actual = name.GetName();
    EXPECT_EQ(std::memcmp(&actual, &expected, sizeof actual), 0);
}

TEST(NameSplit, NumberBeyondTheRangeCountsAsTheHighest)
{
    EXPECT_EQ(Name("A2147483647").GetName().number, kHighest);
    EXPECT_EQ(Name("A2147483648").GetName().number, kHighest);
    EXPECT_EQ(Name("A99999999999999999999999").GetName().number, kHighest);
}

TEST(NameSplit, LeadingZerosOfTheNumberGoAway)
{
    EXPECT_EQ(Name("A007").GetNameStr(), "A7");
}

TEST(Name, TextWithoutNumberReadsAlone)
{
    EXPECT_EQ(Name("A").GetNameStr(), "A");
}

TEST(Name, NumberZeroIsShown)
{
    EXPECT_EQ(Name("A0").GetNameStr(), "A0");
}

TEST(Name, RecordGoesInAndOut)
{
    CName name;
    EXPECT_EQ(name.SetName(Record("LC", 5)), 1);
    EXPECT_EQ(name.GetNameStr(), "LC5");
    EXPECT_STREQ(name.GetName().text, "LC");
    EXPECT_EQ(name.GetName().number, 5);
}

TEST(Name, NumberBelowNoneCountsAsNone)
{
    CName name;
    EXPECT_EQ(name.SetName(Record("LC", -7)), 1);
    EXPECT_EQ(name.GetName().number, -1);
}

TEST(Name, RecordWithoutTerminatorReadsItsTwelveBytes)
{
    TSName record{};
    std::memset(record.text, 'x', sizeof record.text);
    record.number = 3;
    CName name;
    name.SetName(record);
    EXPECT_EQ(name.GetNameStr(), "xxxxxxxxxxxx3");
    EXPECT_EQ(name.IsNameValid(), 1);
}

TEST(NextName, NoNumberBecomesTwo)
{
    EXPECT_EQ(Name("A").GetNextNameStr(), "A2");
}

TEST(NextName, NumberGrowsByOne)
{
    EXPECT_EQ(Name("A0").GetNextNameStr(), "A1");
    EXPECT_EQ(Name("A9").GetNextNameStr(), "A10");
}

TEST(NextName, HighestNumberStays)
{
    EXPECT_EQ(Name("A2147483647").GetNextNameStr(), "A2147483647");
}

TEST(NextName, MovesTheObjectOn)
{
    CName name = Name("A1");
    EXPECT_EQ(name.GetNextName().number, 2);
    EXPECT_EQ(name.GetNameStr(), "A2");
}

TEST(NextName, OfARecord)
{
    CName name;
    TSName const next = name.GetNextName(Record("B", 4));
    EXPECT_STREQ(next.text, "B");
    EXPECT_EQ(next.number, 5);
    EXPECT_EQ(name.GetNameStr(), "B5");
}

TEST(NextName, OfAText)
{
    CName name;
    EXPECT_EQ(name.GetNextNameStr("C7", 0), "C8");
    EXPECT_EQ(name.GetNameStr(), "C8");
}

TEST(NextName, OfATextThatCantBeSetIsEmpty)
{
    CName name = Name("A1");
    EXPECT_EQ(name.GetNextNameStr("", 1), "");
    EXPECT_EQ(name.GetNextNameStr("ABCDEFGHIJK", 0), "");
}

TEST(NameValid, NeedsATextThatIsntBlank)
{
    EXPECT_EQ(Name("A").IsNameValid(), 1);
    EXPECT_EQ(Name("12").IsNameValid(), 0);
    EXPECT_EQ(Name("   ").IsNameValid(), 0);
    EXPECT_EQ(Name("  7").IsNameValid(), 0);
    EXPECT_EQ(Name(" A ").IsNameValid(), 1);
}

TEST(NameValid, SixCharactersAreForbidden)
{
    for (char const * text : {"A*", "\"A", "A,B", "A'", "A!", "A\\B"})
        EXPECT_EQ(Name(text).IsNameValid(), 0) << text;
    for (char const * text : {"A.B", "A-1", "A/B", "A;B", "A?", "\xD8"})
        EXPECT_EQ(Name(text).IsNameValid(), 1) << text;
}

TEST(NameValid, TextOverloadSetsTheName)
{
    CName name;
    EXPECT_EQ(name.IsNameValid(CString("B2")), 1);
    EXPECT_EQ(name.GetNameStr(), "B2");
    EXPECT_EQ(name.IsNameValid(CString("")), 0);
    EXPECT_EQ(name.GetNameStr(), "B2");
    EXPECT_EQ(name.IsNameValid(CString("ABCDEFGHIJ*")), 1);  // the star is cut off before it is looked for
}

TEST(NameKey, NumberIsPaddedToTenCharacters)
{
    OpenName name;
    name.SetNameStr("A12", 1);
    EXPECT_EQ(name.GetNameKey(), "A        12");
    name.SetNameStr("A", 1);
    EXPECT_EQ(name.GetNameKey(), "A");
    name.SetNameStr("A2147483647", 1);
    EXPECT_EQ(name.GetNameKey(), "A2147483647");
}

TEST(NameKey, KeysSortByNumber)
{
    OpenName name;
    CString const two = name.GetNameKey(CString("A2"), 0);
    CString const ten = name.GetNameKey(CString("A10"), 0);
    EXPECT_LT(two.Compare(ten), 0);
}

TEST(NameKey, TextOverloadIsEmptyOnFailure)
{
    OpenName name;
    EXPECT_EQ(name.GetNameKey(CString("B3"), 0), "B         3");
    EXPECT_EQ(name.GetNameKey(CString("ABCDEFGHIJK"), 0), "");
}

TEST(NameKey, RecordOverloadIsAlwaysEmpty)
{
    OpenName name;
    EXPECT_EQ(name.GetNameKey(Record("B", 3)), "");
    EXPECT_EQ(name.GetNameStr(), "B3");
}
