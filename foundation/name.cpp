#include "foundation/name.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "foundation/detail_name_record.h"
#include "foundation/vard_string.h"

namespace {
constexpr int kKeyNumberWidth = 10;  // characters of the number in a key
constexpr char const * kForbiddenCharacters = "*\",'!\\";

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Position of the first of the digits at the end of a text; its length if there are none.
std::size_t StartOfNumber(std::string_view text)
{
    std::size_t first = text.size();
    while (first > 0 && IsDigit(text[first - 1]))
        --first;
    return first;
}

std::int32_t NumberOf(std::string_view digits)
{
    if (digits.empty())
        return detail::kNoNumber;
    std::int32_t number = 0;
    auto const [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() ? number : detail::kHighestNumber;
}
}  // namespace

CString detail::NameText(std::string_view text, std::int64_t number)
{
    CString result(text);
    if (number >= 0)
        result += std::to_string(number).c_str();
    return result;
}

CString CName::GetNameStr() const
{
    return detail::NameText(detail::TextOf(m_name), m_name.number);
}

int CName::SetNameStr(CString text, int cut)
{
    if (text.IsEmpty())
        return 0;
    std::string_view const whole = text.View();
    std::size_t const start = StartOfNumber(whole);
    // The number is taken over first: a text part that is too long is refused only then.
    m_name.number = NumberOf(whole.substr(start));
    auto const limit = static_cast<std::size_t>(m_maximumLength);
    if (start > limit && cut == 0)
        return 0;
    std::fill(std::begin(m_name.text), std::end(m_name.text), '\0');
    whole.substr(0, std::min(start, limit)).copy(m_name.text, limit);
    return 1;
}

int CName::SetName(TSName name)
{
    m_name = name;
    m_name.number = std::max(name.number, detail::kNoNumber);
    return 1;
}

TSName CName::GetNextName()
{
    m_name.number = detail::NextNumber(m_name.number);
    return m_name;
}

TSName CName::GetNextName(TSName name)
{
    SetName(name);
    return GetNextName();
}

CString CName::GetNextNameStr()
{
    GetNextName();
    return GetNameStr();
}

CString CName::GetNextNameStr(CString text, int cut)
{
    return SetNameStr(text, cut) ? GetNextNameStr() : CString();
}

int CName::IsNameValid() const
{
    std::string_view const text = detail::TextOf(m_name);
    bool const hasText = text.find_first_not_of(' ') != std::string_view::npos;
    return hasText && text.find_first_of(kForbiddenCharacters) == std::string_view::npos;
}

int CName::IsNameValid(CString text)
{
    return SetNameStr(text, 1) ? IsNameValid() : 0;
}

CString CName::GetNameKey() const
{
    CString text(detail::TextOf(m_name));
    if (m_name.number < 0)
        return text;
    return text + CVARDString().Str(m_name.number, -1, 0).FillSpacesLeft(kKeyNumberWidth, 0).GetCS();
}

CString CName::GetNameKey(CString text, int cut)
{
    return SetNameStr(text, cut) ? GetNameKey() : CString();
}

CString CName::GetNameKey(TSName name)
{
    SetName(name);
    return CString();
}
