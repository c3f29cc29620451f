// How a number becomes text. The digits come from std::to_chars, which rounds exactly (ties to even, as the C
// library's formatted output does) and knows no locale.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include "foundation/detail_number_text.h"

namespace detail {
namespace {
constexpr int kFree = -1;           // argument value for "free width" and "default decimals"
constexpr int kDefaultLength = 15;  // longest text in bytes with free width
constexpr int kDefaultDecimals = 3;
constexpr int kExponentReserve = 6;      // bytes of a text in exponent form that its decimals can't have
constexpr int kPrecisionOfNegative = 6;  // decimals that formatted output takes for a negative precision
constexpr int kFixedFrame = 3;           // sign, zero and point of a fixed form below 1

/// What the arguments of one call ask for.
struct Layout
{
    bool freeWidth;
    int maximumLength;
    int decimals;
};

// Limits of the buffer: a larger width or number of decimals counts as the largest one that fits into it, and
// no text fits into a width below 0.
Layout MakeLayout(int width, int decimals)
{
    return {width == kFree, width == kFree ? kDefaultLength : std::clamp(width, 0, kLongestNumberText),
            decimals == kFree ? kDefaultDecimals : std::min(decimals, kLongestNumberText - kFixedFrame)};
}

/// Writes the value with a sign in front; false, and a text longer than any width, if the buffer is too
/// short.
bool Write(NumberText & text, double value, std::chars_format form, int precision)
{
    text.bytes[0] = std::signbit(value) ? '-' : '+';
    auto const [end, error] = std::to_chars(text.bytes + 1, std::end(text.bytes), std::fabs(value), form,
                                            precision < 0 ? kPrecisionOfNegative : precision);
    text.length = error == std::errc() ? static_cast<int>(end - text.bytes) : kLongestNumberText + 1;
    return error == std::errc();
}

void FillWithAsterisks(NumberText & text, int count)
{
    std::memset(text.bytes, '*', static_cast<std::size_t>(count));
    text.length = count;
}

/// Whether the value, not 0 and below 1 in magnitude, shows at least one digit of its own among its decimals.
bool ReachesLastDecimal(double magnitude, int decimals)
{
    for (int i = 0; i < decimals; ++i)
        magnitude *= 10.0;
    return magnitude >= 1.0;
}

/// Whether a value below 1 may keep its fixed form: its first digit that isn't 0 has to stand at the first or
/// second decimal (for one decimal and more, the bound is position 4 of sign, zero, point, decimals).
bool KeepsFixedForm(NumberText const & text, double magnitude, Layout const & layout)
{
    if (magnitude == 0.0)
        return true;
    if (!ReachesLastDecimal(magnitude, layout.decimals))
        return false;
    auto const digit = static_cast<int>(text.View().find_first_of("123456789"));
    return digit <= text.length + 1 - layout.decimals;
}

bool NeedsExponentForm(NumberText const & text, double value, Layout const & layout)
{
    double const magnitude = std::fabs(value);
    if (magnitude < 1.0)
        return !KeepsFixedForm(text, magnitude, layout);
    // The sign counts here although a plus sign goes away later.
    return magnitude >= 1.0 && text.length > layout.maximumLength;
}

/// Writes the value with an exponent of two digits; asterisks if it needs three.
void WriteExponentForm(NumberText & text, double value, Layout const & layout)
{
    int const reserve = std::min(kExponentReserve, layout.maximumLength);
    Write(text, value, std::chars_format::scientific, std::max(layout.maximumLength - reserve - 1, 0));
    std::size_t const exponent = text.View().find('e');
    constexpr std::size_t kLongestExponent = 4;  // "e+05"
    if (exponent != std::string_view::npos && text.View().size() - exponent > kLongestExponent)
        FillWithAsterisks(text, layout.maximumLength);
}

void RemovePlusSign(NumberText & text)
{
    if (text.length == 0 || text.bytes[0] != '+')
        return;
    --text.length;
    std::memmove(text.bytes, text.bytes + 1, static_cast<std::size_t>(text.length));
}

/// Takes the zeros off the end of an exponent form's mantissa. The byte right in front of the exponent always
/// goes, zero or not and without rounding; a mantissa of zeros keeps one behind its point.
void ShortenMantissa(NumberText & text)
{
    std::size_t const exponent = text.View().find('e');
    if (exponent == std::string_view::npos)
        return;
    std::size_t keep = exponent - 1;
    while (keep > 1 && text.bytes[keep - 1] == '0')
        --keep;
    if (text.bytes[keep - 1] == '.')
        ++keep;
    std::size_t const rest = text.View().size() - exponent;
    std::memmove(text.bytes + keep, text.bytes + exponent, rest);
    text.length = static_cast<int>(keep + rest);
}
}  // namespace

NumberText FormatNumber(double value, int width, int decimals)
{
    Layout const layout = MakeLayout(width, decimals);
    NumberText text;
    Write(text, value, std::chars_format::fixed, layout.decimals);
    if (NeedsExponentForm(text, value, layout))
        WriteExponentForm(text, value, layout);
    RemovePlusSign(text);
    if (layout.freeWidth)
        ShortenMantissa(text);
    else if (text.length > layout.maximumLength)
        FillWithAsterisks(text, layout.maximumLength);
    return text;
}
}  // namespace detail
