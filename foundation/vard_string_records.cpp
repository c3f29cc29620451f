// The operations of CVARDString on records divided by a separator.
#include <algorithm>
#include <string_view>

#include "foundation/vard_string.h"

namespace {
constexpr std::string_view kLineEnd = "\n";

// Position right behind the next separator from `from` on; npos if there is none.
std::size_t BehindNext(std::string_view text, std::string_view separator, std::size_t from)
{
    if (separator.empty())
        return std::string_view::npos;
    std::size_t const found = text.find(separator, from);
    return found == std::string_view::npos ? found : found + separator.size();
}

int CountRecords(std::string_view text, std::string_view separator)
{
    int records = 0;
    std::size_t from = 0;
    for (std::size_t behind; (behind = BehindNext(text, separator, from)) != std::string_view::npos;
         from = behind)
        ++records;
    // What follows the last separator is a record too, unless the text ends there.
    return from < text.size() || records == 0 ? records + 1 : records;
}

std::string_view Records(std::string_view text, std::string_view separator, int first, int count)
{
    if (first < 1 || count < 1 || first > CountRecords(text, separator))
        return {};
    std::size_t begin = 0;
    for (int record = 1; record < first; ++record)
        begin = BehindNext(text, separator, begin);
    std::size_t end = begin;
    for (int record = 0; record < count; ++record) {
        std::size_t const behind = BehindNext(text, separator, end);
        if (behind == std::string_view::npos)
            return text.substr(begin);
        end = behind;
    }
    return text.substr(begin, end - separator.size() - begin);
}
}  // namespace

CVARDString CVARDString::Copy(int first, int count, int inPlace)
{
    std::string_view const text = m_text.View();
    std::string_view part;
    if (first >= 0 && static_cast<std::size_t>(first) < text.size())
        part = text.substr(static_cast<std::size_t>(first),
                           count < 0 ? std::string_view::npos : static_cast<std::size_t>(count));
    return Finish(CString(part), inPlace != 0 ? 1 : 0);
}

CVARDString CVARDString::CopyLine(int first, int count, int inPlace, CString separator)
{
    return Finish(CString(Records(m_text.View(), separator.View(), first, count)), inPlace != 0 ? 1 : 0);
}

int CVARDString::LineCnt(CString separator) const
{
    return CountRecords(m_text.View(), separator.View());
}

CString CVARDString::GetSubString(int n, CString const & separator) const
{
    if (n > CountRecords(m_text.View(), kLineEnd))
        return CString();
    return CString(Records(m_text.View(), separator.View(), n, 1));
}
