// CVARDString::Str and its like: numbers as text.
#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <string>

#include "foundation/vard_string.h"
#include "tests/support/decimal_comma_locale.h"

namespace {
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string Str(double value, int width = -1, int decimals = -1)
{
    return CVARDString().Str(value, width, decimals, 0).GetChars();
}

std::string StrPoint(double value, int width = -1, int decimals = -1)
{
    return CVARDString().StrPoint(value, width, decimals, 0).GetChars();
}
}  // namespace

TEST(Str, ZeroShowsItsDecimals)
{
    EXPECT_EQ(Str(0.0), "0.000");
}

TEST(Str, LongValueThatFitsKeepsFixedForm)
{
    EXPECT_EQ(Str(1234567890.5), "1234567890.500");
}

// "+12345678901.500" has 16 bytes; the last decimal of the nine of the exponent form goes away.
TEST(Str, ValueLongerThanFreeWidthTakesExponentForm)
{
    EXPECT_EQ(Str(12345678901.5), "1.2345678e+10");
}

TEST(Str, FirstDigitAtSecondDecimalKeepsFixedForm)
{
    EXPECT_EQ(Str(0.0123), "0.012");
}

TEST(Str, FirstDigitAtThirdDecimalTakesExponentForm)
{
    EXPECT_EQ(Str(0.00123), "1.23e-03");
    EXPECT_EQ(Str(-0.00123), "-1.23e-03");
}

TEST(Str, MantissaOfZerosKeepsOne)
{
    EXPECT_EQ(Str(1e12), "1.0e+12");
}

TEST(Str, ExponentOfThreeDigitsBecomesAsterisks)
{
    EXPECT_EQ(Str(1e150), "***************");
    EXPECT_EQ(Str(1e150, 7), "*******");
}

TEST(Str, GivenDecimalsWithinGivenWidth)
{
    EXPECT_EQ(Str(3.14159, 8, 2), "3.14");
}

TEST(Str, TooNarrowWidthBecomesAsterisks)
{
    EXPECT_EQ(Str(1234, 3), "***");
}

TEST(Str, NarrowExponentFormHasNoDecimals)
{
    EXPECT_EQ(Str(1234567, 6), "1e+06");
}

TEST(Str, FixedFormKeepsTrailingZeros)
{
    EXPECT_EQ(Str(2.5), "2.500");
}

TEST(Str, TextIsNeverPaddedToTheWidth)
{
    EXPECT_EQ(Str(2.5, 12, 1), "2.5");
}

// "+1.500" has six bytes with its sign.
TEST(Str, HiddenPlusSignCountsInTheWidth)
{
    EXPECT_EQ(Str(1.5, 5, 3), "2e+00");
    EXPECT_EQ(Str(1.5, 6, 3), "1.500");
}

TEST(Str, ValueThatRoundsUpToOneKeepsFixedForm)
{
    EXPECT_EQ(Str(0.9999, -1, 3), "1.000");
}

TEST(Str, ValueBelowLastDecimalNeverShowsAsZero)
{
    EXPECT_EQ(Str(0.0001, -1, 3), "1.0e-04");
}

// 0.0009 rounds up to "0.001", yet its own digit lies behind the last decimal.
TEST(Str, ValueThatRoundsUpToLastDecimalTakesExponentForm)
{
    EXPECT_EQ(Str(0.0009, -1, 3), "9.0e-04");
}

TEST(Str, GivenWidthKeepsZerosOfTheMantissa)
{
    EXPECT_EQ(Str(1e12, 12), "1.00000e+12");
}

// The byte in front of the exponent goes even when it isn't a zero.
TEST(Str, FreeWidthDropsLastDecimalUnrounded)
{
    EXPECT_EQ(Str(123456.789, -1, 10), "1.2345678e+05");
}

TEST(Str, MinusSignStays)
{
    EXPECT_EQ(Str(-2.5), "-2.500");
}

TEST(Str, MinusZeroKeepsItsSign)
{
    EXPECT_EQ(Str(-0.0), "-0.000");
}

// 0.125, 0.375 and 2.5 lie exactly between two texts.
TEST(Str, ExactTiesGoToTheEvenDigit)
{
    EXPECT_EQ(Str(0.125, -1, 2), "0.12");
    EXPECT_EQ(Str(0.375, -1, 2), "0.38");
    EXPECT_EQ(Str(2.5, -1, 0), "2");
    EXPECT_EQ(Str(3.5, -1, 0), "4");
}

TEST(Str, WithoutDecimalsEveryFractionTakesExponentForm)
{
    EXPECT_EQ(Str(0.5, -1, 0), "5.0e-01");
    EXPECT_EQ(Str(0.0, -1, 0), "0");
}

// With one decimal the bound is the same place: the first decimal.
TEST(Str, OneDecimal)
{
    EXPECT_EQ(Str(0.25, -1, 1), "0.2");
    EXPECT_EQ(Str(0.05, -1, 1), "5.0e-02");
}

TEST(Str, ManyDecimalsKeepFixedFormWithFirstDigitInFront)
{
    EXPECT_EQ(Str(0.5, -1, 20), "0.50000000000000000000");
    EXPECT_EQ(Str(0.001, -1, 20), "1.0e-03");
}

// The hundreds digit of the exponent decides, after rounding.
TEST(Str, AsterisksGoByTheExponentsHundredsDigit)
{
    EXPECT_EQ(Str(9.9e-99), "9.9e-99");
    EXPECT_EQ(Str(5e-100), "***************");
    EXPECT_EQ(Str(1e99), "1.0e+99");
    EXPECT_EQ(Str(9.99999999999e99), "***************");
}

TEST(Str, WidthOfAllFixedDigitsShowsThem)
{
    std::string const text = Str(1e22, 127, 0);
    EXPECT_EQ(text, "10000000000000000000000");  // 1e22 is a double exactly
}

TEST(Str, NoTextFitsIntoNoWidth)
{
    EXPECT_EQ(Str(1.5, 0), "");
    EXPECT_EQ(Str(1.5, -7), "");
    EXPECT_EQ(Str(0.0, std::numeric_limits<int>::min()), "");
}

TEST(Str, WidthBeyondTheBufferCountsAsItsLength)
{
    EXPECT_EQ(Str(1e300, 128, 3), Str(1e300, 127, 3));
    EXPECT_EQ(Str(1e300, std::numeric_limits<int>::max()), std::string(127, '*'));
    EXPECT_EQ(Str(1e99, 127, 120).size(), 126U);  // 120 decimals in exponent form: "1." + 120 + "e+99"
}

TEST(Str, DecimalsBeyondTheBufferCountAsItsRoom)
{
    EXPECT_EQ(Str(0.5, -1, std::numeric_limits<int>::max()), "0.5" + std::string(123, '0'));
    EXPECT_EQ(Str(0.5, -1, 124), Str(0.5, -1, 125));
}

TEST(Str, NegativeDecimalsOtherThanTheDefaultCountAsSix)
{
    EXPECT_EQ(Str(2.5, -1, -2), "2.500000");
    EXPECT_EQ(Str(0.5, -1, std::numeric_limits<int>::min()), "5.0e-01");
}

TEST(Str, NotANumberAndInfiniteValuesAreWords)
{
    EXPECT_EQ(Str(std::nan("")), "nan");
    EXPECT_EQ(Str(kInfinity), "inf");
    EXPECT_EQ(Str(-kInfinity), "-inf");
    EXPECT_EQ(Str(-kInfinity, 3), "***");
    EXPECT_EQ(Str(kInfinity, 3), "inf");
}

TEST(Str, DecimalSignIsThePointInEveryLocale)
{
    DecimalCommaLocale const locale;
    ASSERT_TRUE(locale.IsSet());
    EXPECT_EQ(Str(2.5), "2.500");
}

TEST(Str, LeavesTheObjectAloneUnlessTheFlagIsOne)
{
    CVARDString text("kept");
    text.Str(2.5, -1, -1, 0);
    text.Str(2.5, -1, -1, 2);
    text.Str(2.5, -1, -1, -1);
    EXPECT_STREQ(text, "kept");
    EXPECT_STREQ(text.Str(2.5, -1, -1, 1), "2.500");
    EXPECT_STREQ(text, "2.500");
}

TEST(StrPoint, TinyMagnitudeCountsAsZero)
{
    EXPECT_EQ(StrPoint(1e-15), "0.000");
    EXPECT_EQ(StrPoint(-1e-15), "0.000");
    EXPECT_EQ(Str(1e-15), "1.0e-15");
}

TEST(StrPoint, LimitItselfStays)
{
    EXPECT_EQ(StrPoint(1e-14), "1.0e-14");
}

TEST(StrPoint, OtherValuesAsStr)
{
    EXPECT_EQ(StrPoint(3.14159, 8, 2), "3.14");
    EXPECT_EQ(StrPoint(0.00123), "1.23e-03");
}

TEST(StrPoint, TakesTheTextInPlace)
{
    CVARDString text;
    text.StrPoint(2.5, -1, 1, 1);
    EXPECT_STREQ(text, "2.5");
}

TEST(StrOfInteger, WidthChangesNothing)
{
    CVARDString text;
    for (int width : {-1, 0, 1, 40, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_STREQ(text.Str(-12345, width, 0), "-12345");
}

TEST(StrOfInteger, ExtremesShowAllDigits)
{
    EXPECT_STREQ(CVARDString().Str(std::numeric_limits<int>::min(), -1, 0), "-2147483648");
    EXPECT_STREQ(CVARDString().Str(std::numeric_limits<int>::max(), -1, 0), "2147483647");
    EXPECT_STREQ(CVARDString().Str(0, -1, 0), "0");
}

TEST(StrOfInteger, TakesTheTextInPlace)
{
    CVARDString text("old");
    text.Str(7, -1, 0);
    EXPECT_STREQ(text, "old");
    text.Str(7, -1, 1);
    EXPECT_STREQ(text, "7");
}
