// The operations of CVARDString that replace and cut out pieces of a text.
#include <algorithm>
#include <string>
#include <string_view>

#include "foundation/vard_string.h"

namespace {
// `count` bytes from `first`, both limited to the text.
std::string_view Piece(std::string_view text, long long first, long long count)
{
    auto const size = static_cast<long long>(text.size());
    long long const begin = std::clamp(first, 0LL, size);
    long long const end = std::clamp(first + count, begin, size);
    return text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
}
}  // namespace

CVARDString CVARDString::LeadChar(int inPlace, CString find, CString put)
{
    return LeadCharEx(inPlace, find, put);
}

CVARDString CVARDString::LeadCharEx(int inPlace, CString const & find, CString const & put)
{
    if (find.IsEmpty() || find == put)
        return Finish(m_text, inPlace);
    std::string_view rest = m_text.View();
    std::string result;
    while (rest.starts_with(find.View())) {
        result += put.View();
        rest.remove_prefix(find.View().size());
    }
    return Finish(CString(result.append(rest)), inPlace);
}

CVARDString CVARDString::TrailChar(int inPlace, CString find, CString put)
{
    return TrailCharEx(inPlace, find, put);
}

CVARDString CVARDString::TrailCharEx(int inPlace, CString const & find, CString const & put)
{
    if (find.IsEmpty() || find == put)
        return Finish(m_text, inPlace);
    std::string_view rest = m_text.View();
    std::string replaced;
    while (rest.ends_with(find.View())) {
        replaced += put.View();
        rest.remove_suffix(find.View().size());
    }
    return Finish(CString(std::string(rest) + replaced), inPlace);
}

CVARDString CVARDString::Replace(int inPlace, CString find, CString put, int width, int caseMatters)
{
    return ReplaceEx(inPlace, find, put, width, caseMatters);
}

CVARDString CVARDString::ReplaceEx(int inPlace, CString const & find, CString const & put, int width,
                                   int caseMatters)
{
    CString text = m_text;
    if (width > text.GetLength())
        text = CString(' ', width - text.GetLength()) + text;
    if (find.IsEmpty())
        return Finish(text, inPlace);
    // The search runs on copies, while the text that is changed keeps its case.
    CString searched = text, sought = find;
    if (caseMatters == 0) {
        searched.MakeUpper();
        sought.MakeUpper();
    }
    std::string result;
    std::size_t from = 0;
    for (std::size_t at; (at = searched.View().find(sought.View(), from)) != std::string_view::npos;
         from = at + sought.View().size())
        result.append(text.View().substr(from, at - from)).append(put.View());
    return Finish(CString(result.append(text.View().substr(from))), inPlace);
}

CVARDString CVARDString::GetTextBefore(CVARDString stop, int offset) const
{
    int const at = stop.m_text.IsEmpty() ? -1 : m_text.Find(stop.m_text);
    CVARDString result;
    result.m_text = at < 0 ? m_text : CString(Piece(m_text.View(), 0, static_cast<long long>(at) - offset));
    return result;
}

CVARDString CVARDString::GetTextAfter(CVARDString stop, int offset) const
{
    CVARDString result;
    if (stop.m_text.IsEmpty()) {
        result.m_text = m_text;
        return result;
    }
    int const at = m_text.Find(stop.m_text);
    if (at >= 0)
        result.m_text =
            CString(Piece(m_text.View(), static_cast<long long>(at) + stop.m_text.GetLength() + offset,
                          m_text.GetLength()));
    return result;
}

CVARDString CVARDString::GetTextInChars(char mark, int toEnd) const
{
    std::string_view const text = m_text.View();
    std::size_t const first = text.find(mark);
    CVARDString result;
    if (first == std::string_view::npos)
        return result;
    std::size_t const last = text.rfind(mark);
    if (last > first)
        result.m_text = CString(text.substr(first + 1, last - first - 1));
    else if (toEnd != 0)
        result.m_text = CString(text.substr(first + 1));
    return result;
}

int CVARDString::GetTextInQuotes(int start, int * first, int * last, int) const
{
    std::string_view const text = m_text.View();
    std::size_t const opening = text.find('"', static_cast<std::size_t>(std::max(start, 0)));
    std::size_t closing = std::string_view::npos;
    if (opening != std::string_view::npos) {
        closing = text.find('"', opening + 1);
        while (closing != std::string_view::npos && text.substr(closing).starts_with("\"\""))
            closing = text.find('"', closing + 2);
    }
    auto const position = [](std::size_t at) {
        return at == std::string_view::npos ? -1 : static_cast<int>(at);
    };
    if (first)
        *first = position(opening);
    if (last)
        *last = position(closing);
    return 1;
}
