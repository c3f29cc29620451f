#include <gtest/gtest.h>

#include <string>

#include "foundation/vard_string.h"
#include "platform/base/code_page.h"

namespace {
CVARDString Czech(char const * utf8)
{
    return CVARDString(Text1250FromUtf8(utf8).c_str());
}

std::string Utf8(CString const & text)
{
    return Utf8From1250(text.View());
}

TEST(VardStringCase, ChangesTheLettersOfTheCodePage)
{
    CVARDString text = Czech("Příliš žluťoučký kůň 12");
    EXPECT_EQ(Utf8(text.UpCase(0).GetCS()), "PŘÍLIŠ ŽLUŤOUČKÝ KŮŇ 12");
    EXPECT_EQ(Utf8(text.GetCS()), "Příliš žluťoučký kůň 12");
    EXPECT_EQ(Utf8(text.UpCase(1).LowCase(0).GetCS()), "příliš žluťoučký kůň 12");
    EXPECT_EQ(Utf8(text.GetCS()), "PŘÍLIŠ ŽLUŤOUČKÝ KŮŇ 12");
}

TEST(VardStringNoDiacritic, EveryLetterOfTheTableBecomesPlain)
{
    struct Row
    {
        char const * marked;
        char const * plain;
    };
    Row const rows[] = {{"ÁÄáä", "AAaa"}, {"ĆČćč", "CCcc"}, {"Ďď", "Dd"},     {"ÉĚËéěë", "EEEeee"},
                        {"Íí", "Ii"},     {"ĹĽĺľ", "LLll"}, {"ŃŇńň", "NNnn"}, {"ÓÔŐÖóôőö", "OOOOoooo"},
                        {"ŔŘŕř", "RRrr"}, {"ŚŠśš", "SSss"}, {"Ťť", "Tt"},     {"ÚŮŰÜúůűü", "UUUUuuuu"},
                        {"Ýý", "Yy"},     {"ŹŽźž", "ZZzz"}, {"Łłß", "Łłß"},   {"Ab 1", "Ab 1"}};
    for (Row const & row : rows)
        EXPECT_EQ(Utf8(Czech(row.marked).NoDiacritic(0).GetCS()), row.plain);
}

TEST(VardStringNoDiacritic, EveryByteIsHarmless)
{
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    CVARDString text(bytes.c_str());
    EXPECT_EQ(text.NoDiacritic(0).GetCS().GetLength(), 255);
    EXPECT_EQ(text.UpCase(0).GetCS().GetLength(), 255);
}

TEST(VardStringCommand, IsTheResourceMadeComparable)
{
    CVARDString text;
    EXPECT_EQ(text.GetCommand(55019, 0), "STREDNIK");
    EXPECT_EQ(text.GetCS(), "");
    EXPECT_EQ(text.GetCommand(55047, 1), "KB");
    EXPECT_EQ(text.GetCS(), "KB");
    EXPECT_EQ(text.GetCommand(1, 0), "");
}

TEST(VardStringHotKeys, MarksGoAndTheirLettersBecomeCapitals)
{
    EXPECT_EQ(CVARDString("File <&OPEN &save> X").GetStrWithoutHotKey(0), "File <Open Save> X");
    EXPECT_EQ(CVARDString("No & brackets").GetStrWithoutHotKey(0), "No & brackets");
    EXPECT_EQ(CVARDString("> before <").GetStrWithoutHotKey(0), "> before <");
    EXPECT_EQ(CVARDString("<>").GetStrWithoutHotKey(0), "<>");
    EXPECT_EQ(CVARDString("<a&>").GetStrWithoutHotKey(0), "<a>");
    CVARDString text("<&a>");
    text.GetStrWithoutHotKey(1);
    EXPECT_EQ(text.GetCS(), "<A>");
}

TEST(VardStringHotKeys, LetterHasItsNumberAmongTheMarked)
{
    CVARDString const text("&X <&open &save>");
    EXPECT_EQ(text.GetHotKeyNumber('o'), 1);
    EXPECT_EQ(text.GetHotKeyNumber('S'), 2);
    EXPECT_EQ(text.GetHotKeyNumber('x'), -1);
    EXPECT_EQ(text.GetHotKeyNumber('p'), -1);
    EXPECT_EQ(CVARDString("&a").GetHotKeyNumber('a'), -1);
    EXPECT_EQ(CVARDString("<&").GetHotKeyNumber('a'), -1);
    EXPECT_EQ(CVARDString("<&>").GetHotKeyNumber('\0'), -1);
}
}  // namespace
