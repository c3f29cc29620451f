#include "dxf/number_scan.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <limits>
#include <system_error>

namespace {
constexpr std::int64_t kLargestExactInteger = std::int64_t{1} << 53;  // each integer up to it is a double
constexpr std::ptrdiff_t kMostPlainDigits = 18;                       // always fit 64 bits

// The powers of ten that are exact doubles.
constexpr std::array<double, 23> kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

constexpr bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

constexpr bool IsHexadecimalDigit(char c)
{
    return IsDigit(c) || (Lower(c) >= 'a' && Lower(c) <= 'f');
}

char const * SkipBlanks(char const * at, char const * end)
{
    while (at != end && IsBlank(*at))
        ++at;
    return at;
}

// Takes a sign; true for a minus.
bool TakeSign(char const *& at, char const * end)
{
    if (at == end || (*at != '-' && *at != '+'))
        return false;
    return *at++ == '-';
}

bool StartsWith(char const * at, char const * end, std::string_view word)
{
    return static_cast<std::size_t>(end - at) >= word.size() &&
           std::equal(word.begin(), word.end(), at, [](char a, char b) { return a == Lower(b); });
}

// The common case: few enough digits with at most one point and no exponent. Both the digits as an integer
// and the power of ten are exact, so their quotient is the correctly rounded value.
bool ScanPlainDecimal(char const * at, char const * end, double & value)
{
    std::int64_t digits = 0;
    char const * const first = at;
    char const * const last = end - at > kMostPlainDigits ? at + kMostPlainDigits : end;
    for (; at != last && IsDigit(*at); ++at)
        digits = digits * 10 + (*at - '0');
    std::ptrdiff_t count = at - first;
    std::ptrdiff_t decimals = 0;
    if (at != last && *at == '.') {
        char const * const point = at++;
        for (; at != last && IsDigit(*at); ++at)
            digits = digits * 10 + (*at - '0');
        decimals = at - point - 1;
        count += decimals;
    }
    bool const moreMayFollow = at != end && (at == last || Lower(*at) == 'e' || Lower(*at) == 'x');
    if (count == 0 || moreMayFollow || digits > kLargestExactInteger)
        return false;
    value = static_cast<double>(digits) / kPowersOfTen[static_cast<std::size_t>(decimals)];
    return true;
}

// The explicit exponent at the end of a number's text, held within limits that no number can come back from.
std::int64_t ExponentValue(char const * at, char const * end)
{
    constexpr std::int64_t kLimit = std::numeric_limits<std::int64_t>::max() / 16;
    bool const negative = TakeSign(at, end);
    std::int64_t exponent = 0;
    for (; at != end && IsDigit(*at); ++at)
        exponent = std::min(kLimit, exponent * 10 + (*at - '0'));
    return negative ? -exponent : exponent;
}

// Whether a number that is out of range is so because it is too large: by the place of its first digit other
// than zero, counted in digits from the point, and its exponent.
bool IsTooLarge(char const * at, char const * end, bool hexadecimal)
{
    char const mark = hexadecimal ? 'p' : 'e';
    char const * const exponent = std::find_if(at, end, [mark](char c) { return Lower(c) == mark; });
    char const * const point = std::find(at, exponent, '.');
    char const * const first = std::find_if(at, exponent, [](char c) { return c != '0' && c != '.'; });
    std::int64_t const place = (point - first) * (hexadecimal ? 4 : 1);
    return place + (exponent == end ? 0 : ExponentValue(exponent + 1, end)) > 0;
}

// Digits in either base, without sign and without the mark of the hexadecimal form.
bool ScanDigits(char const * at, char const * end, bool hexadecimal, double & value)
{
    // The conversion would also take a sign and the words, which have no place here.
    bool const begins = at != end && (*at == '.' || (hexadecimal ? IsHexadecimalDigit(*at) : IsDigit(*at)));
    if (!begins)
        return false;
    double result = 0;
    auto const format = hexadecimal ? std::chars_format::hex : std::chars_format::general;
    auto const [next, error] = std::from_chars(at, end, result, format);
    if (error == std::errc::invalid_argument)
        return false;
    if (error == std::errc::result_out_of_range)
        result = IsTooLarge(at, next, hexadecimal) ? std::numeric_limits<double>::infinity() : 0.0;
    value = result;
    return true;
}

// "inf" may go on to "infinity", but having begun that word it has to end it.
bool IsInfinity(char const * at, char const * end)
{
    if (!StartsWith(at, end, "inf"))
        return false;
    return StartsWith(at, end, "infinity") || !StartsWith(at, end, "infi");
}

bool ScanAnyForm(char const * at, char const * end, double & value)
{
    if (StartsWith(at, end, "nan")) {
        value = std::numeric_limits<double>::quiet_NaN();
        return true;
    }
    if (IsInfinity(at, end)) {
        value = std::numeric_limits<double>::infinity();
        return true;
    }
    bool const hexadecimal = StartsWith(at, end, "0x");
    return ScanDigits(hexadecimal ? at + 2 : at, end, hexadecimal, value);
}

// The integer that the digits spell, or the nearest one of 64 bits.
std::int64_t DigitsWithin64Bits(char const * at, char const * end, bool negative)
{
    std::int64_t number = 0;
    for (; at != end && IsDigit(*at); ++at)
        if (__builtin_mul_overflow(number, 10, &number) || __builtin_add_overflow(number, *at - '0', &number))
            return negative ? std::numeric_limits<std::int64_t>::min()
                            : std::numeric_limits<std::int64_t>::max();
    return negative ? -number : number;
}
}  // namespace

namespace detail {
bool ScanDouble(std::string_view text, double & value)
{
    char const * const end = text.data() + text.size();
    char const * at = SkipBlanks(text.data(), end);
    bool const negative = TakeSign(at, end);
    double magnitude = 0;
    if (!ScanPlainDecimal(at, end, magnitude) && !ScanAnyForm(at, end, magnitude))
        return false;
    value = negative ? -magnitude : magnitude;
    return true;
}

bool ScanInt(std::string_view text, std::int32_t & value)
{
    char const * const end = text.data() + text.size();
    char const * at = SkipBlanks(text.data(), end);
    bool const negative = TakeSign(at, end);
    if (at == end || !IsDigit(*at))
        return false;
    std::int64_t const result = DigitsWithin64Bits(at, end, negative);
    value = static_cast<std::int32_t>(static_cast<std::uint32_t>(result));
    return true;
}

std::string_view FirstWord(std::string_view text)
{
    auto const begin = std::find_if_not(text.begin(), text.end(), IsBlank);
    auto const end = std::find_if(begin, text.end(), [](char c) { return IsBlank(c) || c == '\0'; });
    return {begin, end};
}

bool ScanWord(std::string_view text, std::span<char> field)
{
    std::string_view const word = FirstWord(text).substr(0, field.size() - 1);
    if (word.empty())
        return false;
    std::memcpy(field.data(), word.data(), word.size());
    field[word.size()] = '\0';
    return true;
}
}  // namespace detail
