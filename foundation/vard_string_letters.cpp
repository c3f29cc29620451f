// The operations of CVARDString on letters: case, marks, hot keys.
#include <array>
#include <string>
#include <string_view>

#include "foundation/vard_string.h"
#include "platform/base/code_page.h"

namespace {
// Rows of a plain letter and the letters that become it without their marks.
constexpr char const * kLetterRows[] = {"AÁÄ", "CĆČ", "DDĎ", "EÉĚ", "EËĚ", "IÍI", "LĹĽ", "NŃŇ", "OÓÔ",
                                        "OŐÖ", "RŔŘ", "SŚŠ", "TTŤ", "UÚŮ", "UŰÜ", "YÝY", "ZŹŽ"};

using LetterTable = std::array<char, 256>;

std::size_t Index(char letter)
{
    return static_cast<unsigned char>(letter);
}

LetterTable MakePlainLetters()
{
    LetterTable table;
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<char>(i);
    for (char const * row : kLetterRows) {
        std::string const letters = Text1250FromUtf8(row);
        for (char letter : letters) {
            table[Index(letter)] = letters[0];
            table[Index(LowerCase1250(letter))] = LowerCase1250(letters[0]);
        }
    }
    return table;
}

// The part of a caption between the first "<" and the first ">" behind it; empty without such a pair.
std::string_view BracketPart(std::string_view text)
{
    std::size_t const open = text.find('<');
    std::size_t const close = open == std::string_view::npos ? open : text.find('>', open);
    return close == std::string_view::npos ? std::string_view() : text.substr(open + 1, close - open - 1);
}
}  // namespace

CVARDString CVARDString::UpCase(int inPlace)
{
    CString result = m_text;
    result.MakeUpper();
    return Finish(result, inPlace);
}

CVARDString CVARDString::LowCase(int inPlace)
{
    CString result = m_text;
    result.MakeLower();
    return Finish(result, inPlace);
}

CVARDString CVARDString::NoDiacritic(int inPlace)
{
    static LetterTable const plainLetters = MakePlainLetters();
    std::string result(m_text.View());
    for (char & letter : result)
        letter = plainLetters[Index(letter)];
    return Finish(CString(result), inPlace);
}

CString CVARDString::GetCommand(unsigned int id, int inPlace)
{
    CVARDString command;
    command.m_text.LoadString(id);
    command.m_text.TrimLeft();
    command.m_text.TrimRight();
    command.UpCase(1);
    command.NoDiacritic(1);
    Finish(command.m_text, inPlace);
    return command.m_text;
}

CString CVARDString::GetStrWithoutHotKey(int inPlace)
{
    std::string_view const text = m_text.View();
    std::string_view const part = BracketPart(text);
    std::string keyless;
    bool isMarked = false;
    for (char letter : part) {
        if (letter == '&') {
            isMarked = true;
            continue;
        }
        keyless += isMarked ? UpperCase1250(letter) : LowerCase1250(letter);
        isMarked = false;
    }
    std::string result(text);
    if (!part.empty())
        result.replace(static_cast<std::size_t>(part.data() - text.data()), part.size(), keyless);
    return Finish(CString(result), inPlace).m_text;
}

int CVARDString::GetHotKeyNumber(char key) const
{
    char const sought = UpperCase1250(key);
    std::string_view const part = BracketPart(m_text.View());
    int number = 0;
    for (std::size_t i = 0; i + 1 < part.size(); ++i) {
        if (part[i] != '&' || part[i + 1] == '&')
            continue;
        ++number;
        if (UpperCase1250(part[i + 1]) == sought)
            return number;
    }
    return -1;
}
