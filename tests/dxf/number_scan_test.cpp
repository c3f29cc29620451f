#include "dxf/number_scan.h"

#include <gmock/gmock.h>

#include <array>
#include <bit>
#include <climits>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <random>
#include <string>

#include "test_paths.h"

using namespace std::string_view_literals;

namespace {
constexpr double kUntouched = -7.25;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

double Scanned(std::string_view text)
{
    double value = kUntouched;
    detail::ScanDouble(text, value);
    return value;
}

std::int32_t ScannedInt(std::string_view text)
{
    std::int32_t value = -7;
    detail::ScanInt(text, value);
    return value;
}

TEST(NumberScan, TakesPlainDecimalForms)
{
    EXPECT_EQ(Scanned("12.5"), 12.5);
    EXPECT_EQ(Scanned("0.1"), 0.1);
    EXPECT_EQ(Scanned("-0.001"), -0.001);
    EXPECT_EQ(Scanned("+3"), 3.0);
    EXPECT_EQ(Scanned(".5"), 0.5);
    EXPECT_EQ(Scanned("5."), 5.0);
    EXPECT_EQ(Scanned("123456789012345678"), 123456789012345678.0);
    EXPECT_EQ(Scanned("9007199254740993"), 9007199254740992.0);  // 2^53 + 1 rounds to even
    EXPECT_EQ(Scanned("0.30000000000000000000000000004"), 0.3);
}

TEST(NumberScan, SkipsWhiteSpaceInFrontAndIgnoresWhatFollows)
{
    EXPECT_EQ(Scanned(" \t\v\f\r\n 3.5 mm"), 3.5);
    EXPECT_EQ(Scanned("1,5"), 1.0);
    EXPECT_EQ(Scanned("1.5d3"), 1.5);
    EXPECT_EQ(Scanned("1..5"), 1.0);
    EXPECT_EQ(Scanned("1e5.5"), 1e5);
}

TEST(NumberScan, TakesExponentsAndDropsUnfinishedOnes)
{
    EXPECT_EQ(Scanned("1.25e2"), 125.0);
    EXPECT_EQ(Scanned("1E-3"), 1e-3);
    EXPECT_EQ(Scanned("2e+"), 2.0);
    EXPECT_EQ(Scanned("2e"), 2.0);
}

TEST(NumberScan, TakesHexadecimalForms)
{
    EXPECT_EQ(Scanned("0x1.8p3"), 12.0);
    EXPECT_EQ(Scanned("-0X10"), -16.0);
    EXPECT_EQ(Scanned("0x1p"), 1.0);
    EXPECT_EQ(Scanned("0xg"), kUntouched);
    EXPECT_EQ(Scanned("0x"), kUntouched);
    EXPECT_EQ(Scanned("0x-1"), kUntouched);
}

TEST(NumberScan, TakesInfinityAndNotANumber)
{
    EXPECT_EQ(Scanned("inf"), kInfinity);
    EXPECT_EQ(Scanned("-Infinity"), -kInfinity);
    EXPECT_EQ(Scanned("infx"), kInfinity);
    EXPECT_EQ(Scanned("infinit"), kUntouched);
    EXPECT_TRUE(std::isnan(Scanned("nan")));
    EXPECT_TRUE(std::isnan(Scanned("+NaN(12)")));
}

TEST(NumberScan, TakesValuesBeyondTheRangeAsInfinityOrZero)
{
    EXPECT_EQ(Scanned("1e400"), kInfinity);
    EXPECT_EQ(Scanned("-1e99999999999999999999"), -kInfinity);
    EXPECT_EQ(Scanned("1e-400"), 0.0);
    EXPECT_EQ(Scanned("0." + std::string(400, '0') + "1e50"), 0.0);
    EXPECT_EQ(Scanned("1" + std::string(400, '0') + "e-50"), kInfinity);
    EXPECT_EQ(Scanned("0e99999999999"), 0.0);
    EXPECT_EQ(Scanned("0x1p99999"), kInfinity);
    EXPECT_EQ(Scanned("0x1p-99999"), 0.0);
    EXPECT_EQ(Scanned("4e-324"), 4e-324);
}

TEST(NumberScan, LeavesTheEarlierValueWhenTheTextIsNoNumber)
{
    for (auto text : {"", " ", "-", "+", ".", "-.", "+-5", "- 5", ".e5", "abc", "e5", "x1", "--1"})
        EXPECT_EQ(Scanned(text), kUntouched) << text;
}

TEST(NumberScan, EndsAtANulByte)
{
    EXPECT_EQ(Scanned(std::string_view("1\0002", 3)), 1.0);
    EXPECT_EQ(Scanned(std::string_view("\0001", 2)), kUntouched);
}

TEST(IntegerScan, TakesDigitsWithBlanksAndSign)
{
    EXPECT_EQ(ScannedInt("  10"), 10);
    EXPECT_EQ(ScannedInt("-3"), -3);
    EXPECT_EQ(ScannedInt("+5x"), 5);
    EXPECT_EQ(ScannedInt("010"), 10);
    EXPECT_EQ(ScannedInt("1.9"), 1);
    EXPECT_EQ(ScannedInt("2147483647"), INT_MAX);
    EXPECT_EQ(ScannedInt("-2147483648"), INT_MIN);
}

TEST(IntegerScan, LeavesTheEarlierValueWhenTheTextIsNoInteger)
{
    for (auto text : {"", " ", "-", "+-5", "- 5", "abc", ".5", "inf"})
        EXPECT_EQ(ScannedInt(text), -7) << text;
}

TEST(IntegerScan, TakesTheLowBitsOfTheNearest64BitNumber)
{
    EXPECT_EQ(ScannedInt("2147483648"), INT_MIN);
    EXPECT_EQ(ScannedInt("9223372036854775808"), -1);
    EXPECT_EQ(ScannedInt("-9223372036854775809"), 0);
    EXPECT_EQ(ScannedInt("99999999999999999999999999"), -1);
}

TEST(WordScan, EndsAtTheFirstBlank)
{
    EXPECT_EQ(detail::FirstWord("  Wall outer"), "Wall");
    EXPECT_EQ(detail::FirstWord("\tA\tB"), "A");
    EXPECT_EQ(detail::FirstWord(" "), "");
    EXPECT_EQ(detail::FirstWord(std::string_view("ab\0cd", 5)), "ab");
}

TEST(WordScan, CutsAWordAtTheFieldsSize)
{
    std::array<char, 4> field = {'x', 'x', 'x', 'x'};
    EXPECT_TRUE(detail::ScanWord("abcdef", field));
    EXPECT_STREQ(field.data(), "abc");
}

TEST(WordScan, LeavesTheFieldWhenThereIsNoWord)
{
    std::array<char, 4> field = {'o', 'l', 'd', '\0'};
    EXPECT_FALSE(detail::ScanWord("  ", field));
    EXPECT_STREQ(field.data(), "old");
}

#if defined(__GLIBC__)
// The C library's own scanning is the oracle; other C libraries know fewer forms.

constexpr int kRandomTexts = 200000;

std::string Join(std::mt19937 & random, std::string_view letters, unsigned longest)
{
    std::string text(random() % (longest + 1), ' ');
    for (char & letter : text)
        letter = letters[random() % letters.size()];
    return text;
}

std::string FormattedNumber(std::mt19937 & random)
{
    static constexpr std::array kFormats = {"%.3f", "%.15g", "%.17g", "%g", "%a", "%.0f", "%+.6e", "%.40g"};
    std::uint64_t const bits = (std::uint64_t{random()} << 32) | random();
    std::uniform_real_distribution<double> coordinate(-1e5, 1e5);
    double const value = random() % 2 ? std::bit_cast<double>(bits) : coordinate(random);
    std::array<char, 400> text{};
    std::snprintf(text.data(), text.size(), kFormats[random() % kFormats.size()], value);
    return text.data();
}

// Numbers as programs write them, texts of the letters that numbers are made of, and any bytes.
std::string RandomText(std::mt19937 & random)
{
    switch (random() % 5) {
        case 0:
            return FormattedNumber(random);
        case 1:
            return Join(random, "  \t+-", 2) + FormattedNumber(random) + Join(random, " eE.xp09-", 3);
        case 2:
            return Join(random, "0123456789.eE+-", 24);
        case 3:
            return Join(random, "+-", 1) + Join(random, "0011xXpPaAfFeE.+-infnantyINFTY() ", 12);
        default:
            return Join(random, "\0\x01\t\n\r +-.0123456789eExXpPinfa\xff\x80"sv, 10);
    }
}

// The C library takes "0x." without a digit for a zero, against the language's rules.
bool IsLibraryOddity(std::string const & text)
{
    std::size_t const at = text.find_first_of("xX");
    return at != std::string::npos && text.substr(at + 1, 1) == "." &&
           !std::isxdigit(static_cast<unsigned char>(text.c_str()[at + 2]));
}

TEST(NumberScan, AgreesWithTheLibraryOnRandomText)
{
    ASSERT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    std::mt19937 random(20260401);
    for (int i = 0; i < kRandomTexts; ++i) {
        std::string const text = RandomText(random);
        if (IsLibraryOddity(text))
            continue;
        double expected = kUntouched;
        std::sscanf(text.c_str(), "%lf", &expected);
        double const actual = Scanned(text);
        bool const same = std::isnan(expected) ? std::isnan(actual)
                                               : std::bit_cast<std::uint64_t>(expected) ==
                                                     std::bit_cast<std::uint64_t>(actual);
        ASSERT_TRUE(same) << "'" << text << "' " << expected << " but " << actual;
    }
}

TEST(IntegerScan, AgreesWithTheLibraryOnRandomText)
{
    std::mt19937 random(20260402);
    for (int i = 0; i < kRandomTexts; ++i) {
        std::string const text = RandomText(random);
        int expected = -7;
        std::sscanf(text.c_str(), "%d", &expected);
        ASSERT_EQ(ScannedInt(text), expected) << "'" << text << "'";
    }
}

TEST(WordScan, AgreesWithTheLibraryOnRandomText)
{
    std::mt19937 random(20260403);
    for (int i = 0; i < kRandomTexts; ++i) {
        std::string const text = Join(random, "ab\0 \t\r\n\v\f\xa0\xff"sv, 12);
        std::array<char, 8> expected{};
        std::sscanf(text.c_str(), "%7s", expected.data());
        std::array<char, 8> actual{};
        detail::ScanWord(text, actual);
        ASSERT_STREQ(actual.data(), expected.data());
    }
}

// Compiles the Czech locale, whose decimal sign is a comma, for this build; false without its compiler.
bool UseCzechNumbers()
{
    std::string const folder = std::string(kBuildDir) + "/locales";
    std::string const locale = folder + "/cs_CZ.UTF-8";
    if (!std::filesystem::exists(locale)) {
        std::filesystem::create_directories(folder);
        std::string const command = "localedef -i cs_CZ -f UTF-8 " + locale + " >/dev/null 2>&1";
        if (std::system(command.c_str()) != 0)
            return false;
    }
    return ::setenv("LOCPATH", folder.c_str(), 1) == 0 &&
           std::setlocale(LC_NUMERIC, "cs_CZ.UTF-8") != nullptr;
}

TEST(NumberScan, KeepsThePointUnderALocaleWithAComma)
{
    if (!UseCzechNumbers())
        GTEST_SKIP() << "no localedef on this machine to make a Czech locale";
    std::string const sign = std::localeconv()->decimal_point;
    double const scanned = Scanned("12.5");
    double const scannedInFull = Scanned("1.2500000000000000000000e1");
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(sign, ",");
    EXPECT_EQ(scanned, 12.5);
    EXPECT_EQ(scannedInFull, 12.5);
}

#endif
}  // namespace
