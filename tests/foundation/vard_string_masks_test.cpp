#include <gtest/gtest.h>

#include <string>

#include "foundation/vard_string.h"
#include "platform/base/code_page.h"

namespace {
struct MaskRow
{
    char const * text;
    char const * mask;
    char const * options;
    int expected;
};

TEST(VardStringMask, MatchesAnywhereInTheText)
{
    MaskRow const rows[] = {
        {"abcd", "bc", "", 1},    {"abcd", "abcd", "", 1}, {"abcd", "ac", "", 0},  {"abcd", "a?c", "", 1},
        {"abcd", "abcde", "", 0}, {"ab1d", "b@", "", 1},   {"abcd", "b@", "", 0},  {"abcd", "a*d", "", 1},
        {"abcd", "b*", "", 1},    {"abcd", "d*a", "", 0},  {"abcd", "*", "", 1},   {"abcd", "?????", "", 0},
        {"aXaab", "aa*b", "", 1}, {"abcd", "", "", 0},     {"", "a", "", 0},       {"", "*", "", 0},
        {"abcd", "*d", "", 1},    {"ab", "a*b", "", 1},    {"ab", "*a*b*", "", 1}, {"ba", "a*b", "", 0}};
    for (MaskRow const & row : rows)
        EXPECT_EQ(CVARDString(row.text).Equmask(row.mask, row.options), row.expected)
            << row.text << " " << row.mask;
}

TEST(VardStringMask, LiteralWantsTheWholeText)
{
    EXPECT_EQ(CVARDString("abc").Equmask("abc", "L"), 1);
    EXPECT_EQ(CVARDString("abc").Equmask("ab", "l"), 0);
    for (char const * wild : {"a*", "a?", "a@"})
        EXPECT_EQ(CVARDString(wild).Equmask(wild, "L"), 0) << wild;
}

TEST(VardStringMask, WordsAreTriedOneByOne)
{
    CVARDString const text("one,two.three\tfour\nfive six");
    for (char const * word : {"one", "two", "three", "four", "five", "six"})
        EXPECT_EQ(text.Equmask(word, "LW"), 1) << word;
    EXPECT_EQ(text.Equmask("one,two", "W"), 0);
    EXPECT_EQ(text.Equmask("f*e", "W"), 1);
    EXPECT_EQ(text.Equmask("o*t", "W"), 0);
    EXPECT_EQ(CVARDString(" ,,. ").Equmask("*", "W"), 0);
}

TEST(VardStringMask, CaseAndMarksCanBePassedOver)
{
    CVARDString const text(Text1250FromUtf8("Řez Žlab").c_str());
    CString const mask(Text1250FromUtf8("řEZ").c_str());
    EXPECT_EQ(text.Equmask(mask, ""), 0);
    EXPECT_EQ(text.Equmask(mask, "C"), 1);
    EXPECT_EQ(text.Equmask("Zlab", "D"), 1);
    EXPECT_EQ(text.Equmask("zlab", "D"), 0);
    EXPECT_EQ(text.Equmask("zlab", "cd"), 1);
}

TEST(VardStringMask, ListMatchesWithOneOfItsMasks)
{
    CVARDString const text("abc");
    EXPECT_EQ(text.EquMultimask("x;b;y", "", ";"), 1);
    EXPECT_EQ(text.EquMultimask("x;y", "", ";"), 0);
    EXPECT_EQ(text.EquMultimask("b", "", ";"), 1);
    EXPECT_EQ(text.EquMultimask("x;b", "", ""), 0);
    EXPECT_EQ(text.EquMultimask("", "", ";"), 0);
    EXPECT_EQ(text.EquMultimask(";b", "", ";"), 1);
}

TEST(VardStringMask, NumberMaskWantsDigitsInPlace)
{
    EXPECT_EQ(CVARDString("12/34").EquNummask("##/##"), 1);
    EXPECT_EQ(CVARDString("12/345").EquNummask("##/##"), 1);
    EXPECT_EQ(CVARDString("12/3").EquNummask("##/##"), 0);
    EXPECT_EQ(CVARDString("1a/34").EquNummask("##/##"), 0);
    EXPECT_EQ(CVARDString("12-34").EquNummask("##/##"), 0);
    EXPECT_EQ(CVARDString("12").EquNummask(""), 0);
    EXPECT_EQ(CVARDString("").EquNummask("#"), 0);
}

TEST(VardStringMask, HostileMasksEndQuickly)
{
    std::string text(20000, 'a'), mask;
    for (int i = 0; i < 5000; ++i)
        mask += "a*";
    mask += "b";
    EXPECT_EQ(CVARDString(text.c_str()).Equmask(mask.c_str(), ""), 0);
}
}  // namespace
