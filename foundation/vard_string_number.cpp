// CVARDString: numbers to text and back.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "foundation/detail_number_text.h"
#include "foundation/vard_string.h"
#include "platform/base/number_parse.h"

namespace {
constexpr double kSmallestShown = 1e-14;  // StrPoint takes a smaller magnitude for 0
constexpr int kNotAnInteger = -9999;
constexpr int kNumberOfEmptyText = -1;
constexpr int kDefaultNumber = 1;  // number of a text that doesn't end in one

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The blanks that a text lacks to a length.
CString BlanksUpTo(int length, CString const & text)
{
    return length > text.GetLength() ? CString(' ', length - text.GetLength()) : CString();
}
}  // namespace

CVARDString CVARDString::Str(double value, int width, int decimals, int inPlace)
{
    return Finish(CString(detail::FormatNumber(value, width, decimals).View()), inPlace);
}

CVARDString CVARDString::StrPoint(double value, int width, int decimals, int inPlace)
{
    return Str(std::fabs(value) < kSmallestShown ? 0.0 : value, width, decimals, inPlace);
}

CVARDString CVARDString::Str(int value, int /*width*/, int inPlace)
{
    char digits[std::numeric_limits<int>::digits10 + 2];  // and a first digit of its own, and the sign
    auto const [end, error] = std::to_chars(std::begin(digits), std::end(digits), value);
    return Finish(CString(digits, static_cast<int>(end - digits)), inPlace);
}

int CVARDString::ToInt() const
{
    if (!IsInteger())
        return kNotAnInteger;
    long const value = std::strtol(m_text, nullptr, 10);
    return static_cast<int>(
        std::clamp<long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

long CVARDString::ToLong() const
{
    return std::strtol(m_text, nullptr, 10);
}

double CVARDString::ToDouble() const
{
    return ParseDouble(m_text);
}

int CVARDString::IsInteger() const
{
    return m_text.View().find_first_not_of("0123456789+-") == std::string_view::npos;
}

int CVARDString::GetNumInString(CString & prefix) const
{
    std::string_view const text = m_text.View();
    if (text.empty()) {
        prefix.Empty();
        return kNumberOfEmptyText;
    }
    // The first byte belongs to the prefix even if it is a digit.
    std::size_t first = text.size();
    while (first > 1 && IsDigit(text[first - 1]))
        --first;
    int number = kDefaultNumber;
    std::from_chars(text.data() + first, text.data() + text.size(), number);
    prefix = CString(text.substr(0, first));
    return number;
}

CVARDString CVARDString::FillSpacesLeft(int length, int inPlace)
{
    return Finish(BlanksUpTo(length, m_text) + m_text.Left(length), inPlace);
}

CVARDString CVARDString::FillSpacesRight(int length, int inPlace)
{
    return Finish(m_text.Left(length) + BlanksUpTo(length, m_text), inPlace);
}

void CVARDString::Char(unsigned char character)
{
    m_text = static_cast<char>(character);
}

unsigned char CVARDString::Ord(int position) const
{
    bool const inside = position >= 0 && position < m_text.GetLength();
    return inside ? static_cast<unsigned char>(m_text.GetAt(position)) : static_cast<unsigned char>(0);
}

CString CVARDString::TrimAll(int inPlace)
{
    CString result = m_text;
    result.Remove(' ');
    return Finish(result, inPlace).GetCS();
}
