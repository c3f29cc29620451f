// Compares CVARDString::Str with a second way to the same text: the C library's formatted output, std::string
// and the rules step by step.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

#include "foundation/vard_string.h"

namespace {
std::string Print(char const * format, int precision, double value)
{
    char buffer[512];  // 1e308 with 127 decimals has 437 bytes
    std::snprintf(buffer, sizeof buffer, format, precision, value);
    return buffer;
}

bool BelowOneNeedsExponent(std::string const & text, double magnitude, int decimals)
{
    std::size_t position = text.find_first_of("123456789");
    double shifted = magnitude;
    for (int i = 0; i < decimals; ++i)
        shifted *= 10;
    if (std::floor(shifted) == 0)
        position = std::string::npos;
    if (magnitude == 0)
        return false;
    bool const keep = position != std::string::npos &&
                      static_cast<long>(position) <= static_cast<long>(text.size()) + 1 - decimals;
    return !keep;
}

/// Removes the hundreds digit of an exponent where one is written; false if it isn't 0.
bool ReduceExponent(std::string & text)
{
    std::size_t const e = text.find('e');
    if (e == std::string::npos || text.size() - e < 5)
        return true;
    bool const zero = text[e + 2] == '0';
    text.erase(e + 2, 1);
    return zero;
}

void ShortenMantissa(std::string & text)
{
    std::size_t const p = text.find('e');
    if (p == std::string::npos)
        return;
    std::size_t k = p - 1;
    while (k > 1 && text[k - 1] == '0')
        --k;
    if (text[k - 1] == '.')
        ++k;
    text.erase(k, p - k);
}

std::string SlowStr(double value, int width, int decimals)
{
    int const maximum = width == -1 ? 15 : width;
    int const wanted = decimals == -1 ? 3 : decimals;
    int const reserve = std::min(6, maximum);
    std::string text = Print("%+0.*f", wanted, value);
    bool exponent = false;
    if (std::fabs(value) < 1)
        exponent = BelowOneNeedsExponent(text, std::fabs(value), wanted);
    else if (static_cast<int>(text.size()) > maximum)
        exponent = true;
    if (exponent)
        text = Print("%+0.*e", maximum == reserve ? 0 : maximum - reserve - 1, value);
    if (!ReduceExponent(text))
        text = std::string(static_cast<std::size_t>(maximum), '*');
    if (!text.empty() && text[0] == '+')
        text.erase(0, 1);
    if (width != -1 && static_cast<int>(text.size()) > maximum)
        text = std::string(static_cast<std::size_t>(maximum), '*');
    if (width == -1)
        ShortenMantissa(text);
    return text;
}

/// Checks one value with widths and decimals drawn at random.
void ExpectSame(double value, std::mt19937_64 & random)
{
    int const width = static_cast<int>(random() % 40) - 1;
    int const decimals = static_cast<int>(random() % 22) - 1;
    ASSERT_EQ(SlowStr(value, width, decimals), CVARDString().Str(value, width, decimals, 0).GetChars())
        << value << " width " << width << " decimals " << decimals;
    ASSERT_EQ(SlowStr(value, -1, -1), CVARDString().Str(value, -1, -1, 0).GetChars()) << value;
}
}  // namespace

TEST(StrProperty, AnyBitsAsStepByStep)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        auto const value = std::bit_cast<double>(random());
        if (std::isfinite(value))
            ExpectSame(value, random);
    }
}

TEST(StrProperty, EverydayMagnitudesAsStepByStep)
{
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    for (int i = 0; i < 40000; ++i)
        ExpectSame(mantissa(random) * std::pow(10.0, static_cast<double>(random() % 24) - 10), random);
}

// Eighths and decimal fractions: exact ties, and values whose digits end.
TEST(StrProperty, ShortFractionsAsStepByStep)
{
    std::mt19937_64 random(3);
    for (int i = 0; i < 40000; ++i) {
        double const divisor = i % 2 ? 1024.0 : 1000.0;
        ExpectSame((static_cast<double>(random() % 4000001) - 2000000) / divisor, random);
    }
}

// The largest widths and decimals that the buffer has room for.
TEST(StrProperty, WideTextsAsStepByStep)
{
    std::mt19937_64 random(4);
    for (int i = 0; i < 10000; ++i) {
        double const value = std::bit_cast<double>(random());
        int const width = 100 + static_cast<int>(random() % 28);
        int const decimals = static_cast<int>(random() % 125);
        if (!std::isfinite(value))
            continue;
        ASSERT_EQ(SlowStr(value, width, decimals), CVARDString().Str(value, width, decimals, 0).GetChars())
            << value << " width " << width << " decimals " << decimals;
    }
}
