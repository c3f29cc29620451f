// The operations of CVARDString that compare a text with masks.
#include <algorithm>
#include <string_view>

#include "foundation/vard_string.h"

namespace {
constexpr std::string_view kWildCards = "?@*";
constexpr std::string_view kWordSeparators = " ,.\t\n";

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool MatchesByte(char byte, char mask)
{
    return mask == '?' || (mask == '@' ? IsDigit(byte) : byte == mask);
}

// Where in `text`, from `from` on, a piece of a mask without "*" first matches; npos if it doesn't.
std::size_t FindPiece(std::string_view text, std::string_view piece, std::size_t from)
{
    for (; from + piece.size() <= text.size(); ++from)
        if (std::equal(piece.begin(), piece.end(), text.begin() + static_cast<std::ptrdiff_t>(from),
                       [](char mask, char byte) { return MatchesByte(byte, mask); }))
            return from;
    return std::string_view::npos;
}

// The pieces between the "*" are looked for one behind the other. As the mask may begin anywhere and needn't
// reach the end, the first place of each piece leaves the most room for the next.
bool MatchesWithin(std::string_view word, std::string_view mask)
{
    std::size_t from = 0;
    while (!mask.empty()) {
        std::size_t const star = std::min(mask.find('*'), mask.size());
        std::string_view const piece = mask.substr(0, star);
        std::size_t const at = FindPiece(word, piece, from);
        if (at == std::string_view::npos)
            return false;
        from = at + piece.size();
        mask.remove_prefix(std::min(star + 1, mask.size()));
    }
    return true;
}
}  // namespace

int CVARDString::EqumaskWord(CString const & word, CString const & mask, int literal) const
{
    if (word.IsEmpty() || mask.IsEmpty())
        return 0;
    return literal != 0 ? word == mask : MatchesWithin(word.View(), mask.View());
}

int CVARDString::Equmask(CString mask, CString options) const
{
    options.MakeUpper();
    auto const has = [&](char option) { return options.Find(option) >= 0; };
    bool const isLiteral = has('L');
    if (mask.IsEmpty() || (isLiteral && mask.View().find_first_of(kWildCards) != std::string_view::npos))
        return 0;
    CVARDString text(*this), sought;
    sought.m_text = mask;
    for (CVARDString * side : {&text, &sought}) {
        if (has('C'))
            side->UpCase(1);
        if (has('D'))
            side->NoDiacritic(1);
    }
    if (!has('W'))
        return EqumaskWord(text.m_text, sought.m_text, isLiteral);
    std::string_view const view = text.m_text.View();
    for (std::size_t begin = 0; begin < view.size();) {
        std::size_t const end = std::min(view.find_first_of(kWordSeparators, begin), view.size());
        if (EqumaskWord(CString(view.substr(begin, end - begin)), sought.m_text, isLiteral))
            return 1;
        begin = end + 1;
    }
    return 0;
}

int CVARDString::EquMultimask(CString masks, CString options, CString separator) const
{
    CVARDString list;
    list.m_text = masks;
    int const count = list.LineCnt(separator);
    for (int i = 1; i <= count; ++i)
        if (Equmask(list.CopyLine(i, 1, 0, separator).m_text, options))
            return 1;
    return 0;
}

int CVARDString::EquNummask(CString mask) const
{
    std::string_view const text = m_text.View();
    if (mask.IsEmpty() || text.size() < mask.View().size())
        return 0;
    return std::equal(mask.View().begin(), mask.View().end(), text.begin(),
                      [](char wanted, char byte) { return wanted == '#' ? IsDigit(byte) : byte == wanted; });
}
