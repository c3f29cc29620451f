#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "foundation/vard_string.h"

namespace {
std::string Text(CVARDString const & text)
{
    return text.GetChars();
}

struct PieceRow
{
    char const * text;
    char const * find;
    char const * put;
    char const * expected;
};

TEST(VardStringLeadChar, ReplacesWhatFollowsOneAnotherAtTheStart)
{
    PieceRow const rows[] = {
        {"   12", " ", "0", "00012"}, {"ababc", "ab", "x", "xxc"}, {"  a  ", " ", "", "a  "},
        {"abc", "abc", "", ""},       {"xab", "ab", "-", "xab"},   {"aa", "", "-", "aa"},
        {"aa", "a", "a", "aa"},       {"", "a", "b", ""},          {"ab", "abc", "-", "ab"}};
    for (PieceRow const & row : rows) {
        CVARDString text(row.text);
        EXPECT_EQ(Text(text.LeadChar(0, row.find, row.put)), row.expected) << row.text;
        EXPECT_EQ(Text(text), row.text);
        EXPECT_EQ(Text(text.LeadCharEx(1, row.find, row.put)), row.expected);
        EXPECT_EQ(Text(text), row.expected);
    }
}

TEST(VardStringTrailChar, ReplacesWhatFollowsOneAnotherAtTheEnd)
{
    PieceRow const rows[] = {{"12   ", " ", "0", "12000"}, {"cabab", "ab", "x", "cxx"},
                             {"  a  ", " ", "", "  a"},    {"abx", "ab", "-", "abx"},
                             {"aa", "", "-", "aa"},        {"", "a", "b", ""}};
    for (PieceRow const & row : rows) {
        CVARDString text(row.text);
        EXPECT_EQ(Text(text.TrailChar(0, row.find, row.put)), row.expected) << row.text;
        EXPECT_EQ(Text(text), row.text);
        EXPECT_EQ(Text(text.TrailCharEx(1, row.find, row.put)), row.expected);
        EXPECT_EQ(Text(text), row.expected);
    }
}

TEST(VardStringReplace, ReplacesEveryPlaceFromTheLeft)
{
    CVARDString text("aXbxc");
    EXPECT_EQ(Text(text.Replace(0, "x", "--", -1, 1)), "aXb--c");
    EXPECT_EQ(Text(text.Replace(0, "x", "--", -1, 0)), "a--b--c");
    EXPECT_EQ(Text(CVARDString("aaaa").Replace(0, "aa", "a", -1, 1)), "aa");
    EXPECT_EQ(Text(CVARDString("abc").Replace(0, "", "-", -1, 1)), "abc");
    EXPECT_EQ(Text(text), "aXbxc");
    EXPECT_EQ(Text(text.ReplaceEx(1, "b", "", 0, 1)), "aXxc");
    EXPECT_EQ(Text(text), "aXxc");
}

TEST(VardStringReplace, PadsInFrontBeforeItReplaces)
{
    EXPECT_EQ(Text(CVARDString("7").Replace(0, " ", "0", 3, 1)), "007");
    EXPECT_EQ(Text(CVARDString("7").Replace(0, "", "0", 3, 1)), "  7");
    EXPECT_EQ(Text(CVARDString("1234").Replace(0, " ", "0", 3, 1)), "1234");
    EXPECT_EQ(Text(CVARDString("7").Replace(0, " ", "0", INT_MIN, 1)), "7");
}

TEST(VardStringReplace, CaseOfCzechLettersDoesNotMatterEither)
{
    // r with caron: \xF8 small, \xD8 capital.
    EXPECT_EQ(Text(CVARDString("a\xF8"
                               "b\xD8")
                       .Replace(0, "\xD8", "r", -1, 0)),
              "arbr");
    EXPECT_EQ(Text(CVARDString("a\xF8"
                               "b\xD8")
                       .Replace(0, "\xD8", "r", -1, 1)),
              "a\xF8"
              "br");
}

TEST(VardStringTextBefore, EndsAtTheFirstStop)
{
    CVARDString const text("one=two=three");
    EXPECT_EQ(Text(text.GetTextBefore("=", 0)), "one");
    EXPECT_EQ(Text(text.GetTextBefore("=", 1)), "on");
    EXPECT_EQ(Text(text.GetTextBefore("=", 3)), "");
    EXPECT_EQ(Text(text.GetTextBefore("=", INT_MAX)), "");
    EXPECT_EQ(Text(text.GetTextBefore("=", INT_MIN)), "one=two=three");
    EXPECT_EQ(Text(text.GetTextBefore("?", 5)), "one=two=three");
    EXPECT_EQ(Text(text.GetTextBefore("", 5)), "one=two=three");
}

TEST(VardStringTextAfter, BeginsBehindTheFirstStop)
{
    CVARDString const text("one=two=three");
    EXPECT_EQ(Text(text.GetTextAfter("=", 0)), "two=three");
    EXPECT_EQ(Text(text.GetTextAfter("=", 4)), "three");
    EXPECT_EQ(Text(text.GetTextAfter("=", 9)), "");
    EXPECT_EQ(Text(text.GetTextAfter("=", INT_MAX)), "");
    EXPECT_EQ(Text(text.GetTextAfter("", 5)), "one=two=three");
}

TEST(VardStringTextAfter, StopThatIsNotThereGivesNothing)
{
    EXPECT_EQ(Text(CVARDString("one").GetTextAfter("=", 0)), "");
}

TEST(VardStringTextInChars, LiesBetweenTheFirstAndLastMark)
{
    EXPECT_EQ(Text(CVARDString("a|b|c|d").GetTextInChars('|', 0)), "b|c");
    EXPECT_EQ(Text(CVARDString("a||d").GetTextInChars('|', 0)), "");
    EXPECT_EQ(Text(CVARDString("a|bc").GetTextInChars('|', 0)), "");
    EXPECT_EQ(Text(CVARDString("a|bc").GetTextInChars('|', 2)), "bc");
    EXPECT_EQ(Text(CVARDString("abc").GetTextInChars('|', 1)), "");
    EXPECT_EQ(Text(CVARDString("").GetTextInChars('\0', 1)), "");
}

struct QuoteRow
{
    char const * text;
    int start;
    int first;
    int last;
};

TEST(VardStringTextInQuotes, FindsTheQuotesThatHoldIt)
{
    QuoteRow const rows[] = {{"a \"bc\" d", 0, 2, 5},    {"a \"bc\" d", 3, 5, -1},
                             {"\"a\"\"b\"", 0, 0, 5},  // a doubled quote inside stands for one
                             {"\"a\"\"", 0, 0, -1},      {"\"\"", 0, 0, 1},
                             {"no quotes", 0, -1, -1},   {"", 0, -1, -1},
                             {"\"a\"", INT_MAX, -1, -1}, {"\"a\"", -5, 0, 2}};
    for (QuoteRow const & row : rows) {
        int first = 99, last = 99;
        EXPECT_EQ(CVARDString(row.text).GetTextInQuotes(row.start, &first, &last, 0), 1);
        EXPECT_EQ(first, row.first) << row.text;
        EXPECT_EQ(last, row.last) << row.text;
    }
    EXPECT_EQ(CVARDString("\"a\"").GetTextInQuotes(0, nullptr, nullptr, 0), 1);
}
}  // namespace
