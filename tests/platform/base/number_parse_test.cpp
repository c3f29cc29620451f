#include "platform/base/number_parse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

#include "tests/support/decimal_comma_locale.h"

namespace {
/// The value, and by `length` how many bytes were read.
double Parse(char const * text, std::size_t & length)
{
    char const * end = nullptr;
    double const value = ParseDouble(text, &end);
    length = static_cast<std::size_t>(end - text);
    return value;
}
}  // namespace

TEST(ParseDouble, EndsBehindTheNumber)
{
    std::size_t length = 0;
    EXPECT_EQ(Parse(" -2.5e1x", length), -25.0);
    EXPECT_EQ(length, 7U);
}

TEST(ParseDouble, NoNumberEndsAtTheStart)
{
    std::size_t length = 9;
    EXPECT_EQ(Parse("x", length), 0.0);
    EXPECT_EQ(length, 0U);
    EXPECT_EQ(Parse("", length), 0.0);
    EXPECT_EQ(length, 0U);
}

TEST(ParseDouble, ValuesBeyondTheRange)
{
    EXPECT_EQ(ParseDouble("1e400"), HUGE_VAL);
    EXPECT_EQ(ParseDouble("-1e400"), -HUGE_VAL);
    EXPECT_EQ(ParseDouble("1e-400"), 0.0);
}

TEST(ParseDouble, DecimalSignIsThePointInEveryLocale)
{
    DecimalCommaLocale const locale;
    ASSERT_TRUE(locale.IsSet());
    std::size_t fraction = 0;
    std::size_t comma = 0;
    std::size_t both = 0;
    double const values[] = {Parse("2.5x", fraction), Parse("2,5", comma), Parse("2.5,5", both)};
    EXPECT_EQ(values[0], 2.5);
    EXPECT_EQ(fraction, 3U);
    EXPECT_EQ(values[1], 2.0);
    EXPECT_EQ(comma, 1U);
    EXPECT_EQ(values[2], 2.5);
    EXPECT_EQ(both, 3U);
}
