#include "platform/base/string.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <utility>

#include "platform/base/code_page.h"

namespace {
constexpr std::uintptr_t kFirstPointer = 0x10000;  // a smaller value in place of a pointer is a resource id

std::string_view ViewOf(char const * text)
{
    return text ? std::string_view(text) : std::string_view();
}

std::size_t CountOf(int count)
{
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

int IndexOf(std::size_t position)
{
    return position == std::string_view::npos ? -1 : static_cast<int>(position);
}

int SignOf(std::strong_ordering order)
{
    return std::is_lt(order) ? -1 : std::is_gt(order) ? 1 : 0;
}
}  // namespace

CString::CString(char const * text)
{
    auto const value = reinterpret_cast<std::uintptr_t>(text);
    if (value >= kFirstPointer)
        *this = CString(ViewOf(text));
    else if (text)
        LoadString(static_cast<UINT>(value));
}

CString::CString(char const * text, int length) : CString(std::string_view(text, text ? CountOf(length) : 0))
{
}

CString::CString(char character, int repeat)
{
    if (repeat > 0)
        m_text = std::make_shared<std::string>(CountOf(repeat), character);
}

CString::CString(std::string_view text)
{
    if (!text.empty())
        m_text = std::make_shared<std::string>(text);
}

CString & CString::operator=(char const * text)
{
    // A new text first: the source may be a part of this one.
    return *this = CString(text);
}

CString & CString::operator=(char character)
{
    return *this = CString(character);
}

std::string & CString::Own()
{
    if (!m_text)
        m_text = std::make_shared<std::string>();
    else if (m_text.use_count() > 1)
        m_text = std::make_shared<std::string>(*m_text);
    return *m_text;
}

char CString::GetAt(int index) const noexcept
{
    return index >= 0 && index < GetLength() ? View()[CountOf(index)] : '\0';
}

void CString::SetAt(int index, char character)
{
    if (index >= 0 && index < GetLength())
        Own()[CountOf(index)] = character;
}

CString & CString::operator+=(char const * text)
{
    return Append(ViewOf(text));
}

CString & CString::Append(std::string_view text)
{
    // The bytes may be this text's own: they stay alive in the copy that shares them, or are handled by
    // append.
    if (!text.empty())
        Own().append(text);
    return *this;
}

int CString::Compare(char const * other) const noexcept
{
    return SignOf(View() <=> ViewOf(other));
}

int CString::CompareNoCase(char const * other) const noexcept
{
    std::string_view const theirs = ViewOf(other);
    auto const compare = [](char a, char b) {
        return static_cast<unsigned char>(LowerCase1250(a)) <=> static_cast<unsigned char>(LowerCase1250(b));
    };
    std::string_view const ours = View();
    return SignOf(std::lexicographical_compare_three_way(ours.begin(), ours.end(), theirs.begin(),
                                                         theirs.end(), compare));
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    std::size_t const start = CountOf(first);
    if (start == 0 && count >= GetLength())
        return *this;
    return start < View().size() ? CString(View().substr(start, CountOf(count))) : CString();
}

CString CString::Left(int count) const
{
    return Mid(0, count);
}

CString CString::Right(int count) const
{
    return Mid(GetLength() - std::min(GetLength(), std::max(count, 0)));
}

void CString::MakeUpper()
{
    if (IsEmpty())
        return;
    // The own copy has to be made before its place is taken.
    std::string & own = Own();
    std::ranges::transform(own, own.begin(), UpperCase1250);
}

void CString::MakeLower()
{
    if (IsEmpty())
        return;
    // The own copy has to be made before its place is taken.
    std::string & own = Own();
    std::ranges::transform(own, own.begin(), LowerCase1250);
}

void CString::TrimLeft(char const * characters)
{
    TrimLeftOf(ViewOf(characters));
}

void CString::TrimRight(char const * characters)
{
    TrimRightOf(ViewOf(characters));
}

void CString::TrimLeftOf(std::string_view characters)
{
    *this = Mid(static_cast<int>(std::min(View().find_first_not_of(characters), View().size())));
}

void CString::TrimRightOf(std::string_view characters)
{
    *this = Left(static_cast<int>(View().find_last_not_of(characters) + 1));
}

int CString::Find(char character, int start) const noexcept
{
    return IndexOf(View().find(character, CountOf(start)));
}

int CString::Find(char const * part, int start) const noexcept
{
    return IndexOf(View().find(ViewOf(part), CountOf(start)));
}

int CString::ReverseFind(char character) const noexcept
{
    return IndexOf(View().rfind(character));
}

int CString::FindOneOf(char const * characters) const noexcept
{
    return IndexOf(View().find_first_of(ViewOf(characters)));
}

int CString::Insert(int index, char character)
{
    Own().insert(std::min(CountOf(index), View().size()), 1, character);
    return GetLength();
}

int CString::Insert(int index, char const * text)
{
    Own().insert(std::min(CountOf(index), View().size()), ViewOf(text));
    return GetLength();
}

int CString::Delete(int index, int count)
{
    if (count > 0 && CountOf(index) < View().size())
        Own().erase(CountOf(index), CountOf(count));
    return GetLength();
}

int CString::Remove(char character)
{
    return Find(character) < 0 ? 0 : static_cast<int>(std::erase(Own(), character));
}

int CString::Replace(char find, char put)
{
    auto const found = static_cast<int>(std::ranges::count(View(), find));
    if (found > 0)
        std::ranges::replace(Own(), find, put);
    return found;
}

int CString::Replace(char const * find, char const * put)
{
    std::string_view const part = ViewOf(find);
    std::string_view const text = View();
    if (part.empty())
        return 0;
    std::string result;
    int found = 0;
    std::size_t from = 0;
    for (std::size_t at; (at = text.find(part, from)) != std::string_view::npos;
         from = at + part.size(), ++found)
        result.append(text, from, at - from).append(ViewOf(put));
    if (found > 0)
        *this = CString(result.append(text, from));
    return found;
}

void CString::Format(char const * format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CString::FormatV(char const * format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    int const length = std::vsnprintf(nullptr, 0, format, arguments);
    CString result;
    if (length > 0)
        std::vsnprintf(result.GetBufferSetLength(length), static_cast<std::size_t>(length) + 1, format,
                       again);
    va_end(again);
    *this = std::move(result);
}

char * CString::GetBuffer(int minimumLength)
{
    std::string & own = Own();
    own.resize(std::max(own.size(), CountOf(minimumLength)));
    return own.data();
}

char * CString::GetBufferSetLength(int length)
{
    std::string & own = Own();
    own.resize(CountOf(length));
    return own.data();
}

void CString::ReleaseBuffer(int length)
{
    if (!m_text)
        return;
    std::string & own = Own();
    own.resize(std::min(own.size(), length < 0 ? std::strlen(own.c_str()) : CountOf(length)));
}
