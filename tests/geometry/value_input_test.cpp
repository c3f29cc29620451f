#include <gtest/gtest.h>

#include "geometry/mathematics.h"
#include "platform/base/string.h"

namespace {
struct Parsed
{
    int result;
    double value;
};

Parsed Parse(char const * text)
{
    CMathematics math;
    double value = -77.0;
    int const result = math.SimpleFloatParse(text, value);
    return {result, value};
}

struct Line
{
    int result;
    double a = -77.0;
    double b = -77.0;
    double c = -77.0;
    int form = -77;
};

Line Strip(char const * text, char const * allowed = "")
{
    CMathematics math;
    Line line = {};
    line.a = line.b = line.c = -77.0;
    line.form = -77;
    line.result = math.StripString(text, allowed, line.a, line.b, line.c, line.form);
    return line;
}

void ExpectLine(Line const & line, double a, double b, double c, int form)
{
    EXPECT_EQ(line.result, 1);
    EXPECT_EQ(line.a, a);
    EXPECT_EQ(line.b, b);
    EXPECT_EQ(line.c, c);
    EXPECT_EQ(line.form, form);
}

void ExpectRefused(Line const & line)
{
    EXPECT_EQ(line.result, 0);
    EXPECT_EQ(line.a, -77.0);
    EXPECT_EQ(line.form, -77);
}
}  // namespace

TEST(SimpleFloatParse, ReadsOneNumberBetweenBlanks)
{
    EXPECT_EQ(Parse("1.5").result, 1);
    EXPECT_EQ(Parse(" \t-2.5e3\t ").value, -2500.0);
    EXPECT_EQ(Parse(" \t-2.5e3\t ").result, 1);
    EXPECT_EQ(Parse("  0  ").result, 1);
    EXPECT_EQ(Parse("  0  ").value, 0.0);
    EXPECT_EQ(Parse("0.00").result, 1);
}

TEST(SimpleFloatParse, RefusesAZeroThatDoesNotBeginWithItsDigit)
{
    EXPECT_EQ(Parse("abc").result, 0);
    EXPECT_EQ(Parse("-0").result, 0);
    EXPECT_EQ(Parse(".0").result, 0);
    EXPECT_EQ(Parse("").result, 0);
    EXPECT_EQ(Parse("   ").result, 0);
    EXPECT_EQ(Parse(nullptr).result, 0);
}

TEST(SimpleFloatParse, WritesTheValueThoughMoreFollows)
{
    EXPECT_EQ(Parse("1.5x").result, 0);
    EXPECT_EQ(Parse("1.5x").value, 1.5);
    EXPECT_EQ(Parse("1.5 2").result, 0);
    EXPECT_EQ(Parse("1,5").result, 0);
}

TEST(CheckInputLine, TakesDigitsAndAllowedBytes)
{
    CMathematics math;
    EXPECT_EQ(math.CheckInputLine("1234567890", ""), 1);
    EXPECT_EQ(math.CheckInputLine("12a", "a"), 1);
    EXPECT_EQ(math.CheckInputLine("12A", "a"), 0);
    EXPECT_EQ(math.CheckInputLine("1.2", ""), 0);
    EXPECT_EQ(math.CheckInputLine("", ""), 1);
}

TEST(SpacesOutOfString, RemovesBlanksOnly)
{
    CMathematics math;
    CString text = " a b\tc  ";
    EXPECT_EQ(math.SpacesOutOfString(text), 1);
    EXPECT_EQ(text, "ab\tc");
    CString empty;
    EXPECT_EQ(math.SpacesOutOfString(empty), 0);
    CString blanks = "  ";
    EXPECT_EQ(math.SpacesOutOfString(blanks), 1);
    EXPECT_TRUE(blanks.IsEmpty());
}

TEST(StripString, ReadsAbsoluteNumbers)
{
    ExpectLine(Strip("1.5,2,-3"), 1.5, 2.0, -3.0, 1);
    ExpectLine(Strip("1,2"), 1.0, 2.0, 0.0, 2);
    ExpectLine(Strip("1e2"), 100.0, 0.0, 0.0, 3);
}

TEST(StripString, ReadsRelativeNumbers)
{
    ExpectLine(Strip("@1,2,3"), 1.0, 2.0, 3.0, 4);
    ExpectLine(Strip("  @1, 2 "), 1.0, 2.0, 0.0, 5);
    ExpectLine(Strip("@7"), 7.0, 0.0, 0.0, 6);
}

TEST(StripString, ReadsAnAngleAndLeavesTheRest)
{
    ExpectLine(Strip("<45.5"), 45.5, -77.0, -77.0, 7);
    ExpectLine(Strip(" < -30"), -30.0, -77.0, -77.0, 7);
}

TEST(StripString, KnowsTheDirections)
{
    ExpectLine(Strip("x"), 1.0, 0.0, 0.0, 8);
    ExpectLine(Strip(" Y "), 0.0, 1.0, 0.0, 8);
    ExpectLine(Strip("z"), 0.0, 0.0, 1.0, 8);
    ExpectLine(Strip("I"), 1.0, 1.0, 1.0, 8);
    ExpectLine(Strip("iZo"), 1.0, 1.0, 1.0, 8);
}

TEST(StripString, EmptyPiecesAreZero)
{
    ExpectLine(Strip("1,,3"), 1.0, 0.0, 3.0, 1);
    ExpectLine(Strip(",2"), 0.0, 2.0, 0.0, 2);
    ExpectLine(Strip("1,"), 1.0, 0.0, 0.0, 2);
    ExpectLine(Strip(",,"), 0.0, 0.0, 0.0, 1);
    // Only a line without any byte is empty; blanks are one number, 0.
    ExpectLine(Strip("   "), 0.0, 0.0, 0.0, 3);
}

TEST(StripString, RefusesWhatIsNoInput)
{
    ExpectRefused(Strip(""));
    ExpectRefused(Strip("1,2,3,4"));
    ExpectRefused(Strip("@1,2,3,4"));
    ExpectRefused(Strip("1;2"));
    ExpectRefused(Strip("1m"));
    ExpectRefused(Strip("XY"));
    ExpectRefused(Strip("1@2"));
    ExpectRefused(Strip("@<2"));
}

TEST(StripString, AllowedLettersCountInBothCases)
{
    ExpectLine(Strip("12M", "m"), 12.0, 0.0, 0.0, 3);
    ExpectLine(Strip("12m", "M"), 12.0, 0.0, 0.0, 3);
}

TEST(StripString, FillsAnArray)
{
    CMathematics math;
    double values[3] = {};
    int form = 0;
    EXPECT_EQ(math.StripString("1,2,3", "", values, form), 1);
    EXPECT_EQ(values[0], 1.0);
    EXPECT_EQ(values[1], 2.0);
    EXPECT_EQ(values[2], 3.0);
    EXPECT_EQ(form, 1);
}
