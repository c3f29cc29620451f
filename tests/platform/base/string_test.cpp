#include "platform/base/string.h"

#include <gtest/gtest.h>

#include <utility>

namespace {
std::string_view Text(CString const & text)
{
    return text.View();
}

CString Printed(char const * format, ...) KX7_PRINTF(1, 2);

CString Printed(char const * format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    CString result;
    result.FormatV(format, arguments);
    va_end(arguments);
    return result;
}
}  // namespace

TEST(StringMaking, EmptyOnesAreEmpty)
{
    for (CString const & text : {CString(), CString(""), CString(static_cast<char const *>(nullptr)),
                                 CString('x', 0), CString('x', -1), CString("abc", 0), CString("abc", -2)}) {
        EXPECT_TRUE(text.IsEmpty());
        EXPECT_EQ(text.GetLength(), 0);
        EXPECT_STREQ(text, "");
    }
}

TEST(StringMaking, TakesTextCharactersAndLengths)
{
    EXPECT_EQ(Text("abc"), "abc");
    EXPECT_EQ(Text(CString("abcdef", 3)), "abc");
    EXPECT_EQ(Text(CString('x', 3)), "xxx");
    EXPECT_EQ(CString("a\0b", 3).GetLength(), 3);
}

TEST(StringMaking, AssignsFromItsOwnBytes)
{
    CString text = "abcdef";
    text = static_cast<char const *>(text) + 2;
    EXPECT_EQ(Text(text), "cdef");
    text = 'q';
    EXPECT_EQ(Text(text), "q");
    text = static_cast<char const *>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(StringMaking, AssignsBytesWithoutTouchingACopy)
{
    CString text("first");
    CString const copy = text;
    text.Assign(std::string_view("a\0b", 3));
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(copy, "first");
    text.Assign(text.View().substr(2));
    EXPECT_EQ(text, "b");
    text.Assign({});
    EXPECT_TRUE(text.IsEmpty());
}

TEST(StringCopy, SharesBytesUntilOneChanges)
{
    CString first = "a text that is longer than any small buffer";
    CString second = first;
    EXPECT_EQ(static_cast<char const *>(first), static_cast<char const *>(second));
    second.SetAt(0, 'A');
    EXPECT_EQ(first[0], 'a');
    EXPECT_EQ(second[0], 'A');
}

TEST(StringCopy, BufferOfACopyIsItsOwn)
{
    CString first = "abc";
    CString second = first;
    second.GetBuffer(3)[1] = '!';
    second.ReleaseBuffer();
    EXPECT_EQ(Text(first), "abc");
    EXPECT_EQ(Text(second), "a!c");
}

TEST(StringBytes, OutsideOfTheTextIsNulAndUnchangeable)
{
    CString text = "ab";
    EXPECT_EQ(text.GetAt(1), 'b');
    EXPECT_EQ(text.GetAt(2), '\0');
    EXPECT_EQ(text.GetAt(-1), '\0');
    text.SetAt(2, 'x');
    text.SetAt(-1, 'x');
    EXPECT_EQ(Text(text), "ab");
}

TEST(StringJoin, AddsTextsAndCharacters)
{
    CString const text = "b";
    EXPECT_EQ(Text("a" + text + "c" + 'd' + text), "abcdb");
    EXPECT_EQ(Text('x' + text), "xb");
    CString grown = text;
    grown += grown;
    grown += static_cast<char const *>(grown);
    grown += '.';
    EXPECT_EQ(Text(grown), "bbbb.");
    EXPECT_EQ(Text(text), "b");
}

TEST(StringCompare, OrdersByByteValues)
{
    CString const text = "b";
    EXPECT_EQ(text.Compare("b"), 0);
    EXPECT_LT(text.Compare("ba"), 0);
    EXPECT_GT(text.Compare("a"), 0);
    EXPECT_LT(text.Compare("\xE8"), 0);  // bytes count from 0 to 255
    EXPECT_GT(text.Compare(nullptr), 0);
    EXPECT_TRUE(text == "b" && "b" == text && text != "B" && text < "c" && "a" < text &&
                text >= CString("b"));
}

TEST(StringCompare, WithoutCaseKnowsCzechLetters)
{
    EXPECT_EQ(CString("\xC8"
                      "ERVEN\xDD")
                  .CompareNoCase("\xE8"
                                 "erven\xFD"),
              0);
    EXPECT_LT(CString("a").CompareNoCase("B"), 0);
    EXPECT_GT(CString("AB").CompareNoCase("a"), 0);
}

TEST(StringParts, AreCutToTheText)
{
    CString const text = "abcdef";
    EXPECT_EQ(Text(text.Mid(2)), "cdef");
    EXPECT_EQ(Text(text.Mid(2, 2)), "cd");
    EXPECT_EQ(Text(text.Mid(-3, 2)), "ab");
    EXPECT_EQ(Text(text.Mid(4, 100)), "ef");
    EXPECT_EQ(Text(text.Mid(6)), "");
    EXPECT_EQ(Text(text.Mid(9, 1)), "");
    EXPECT_EQ(Text(text.Mid(1, -1)), "");
    EXPECT_EQ(Text(text.Left(2)), "ab");
    EXPECT_EQ(Text(text.Left(-1)), "");
    EXPECT_EQ(Text(text.Left(7)), "abcdef");
    EXPECT_EQ(Text(text.Right(2)), "ef");
    EXPECT_EQ(Text(text.Right(0)), "");
    EXPECT_EQ(Text(text.Right(-1)), "");
    EXPECT_EQ(Text(text.Right(7)), "abcdef");
}

TEST(StringCase, ChangesLettersOfTheCodePage)
{
    CString text = "P\xF8\xEDli\x9A 1";
    text.MakeUpper();
    EXPECT_EQ(Text(text), "P\xD8\xCDLI\x8A 1");
    text.MakeLower();
    EXPECT_EQ(Text(text), "p\xF8\xEDli\x9A 1");
}

TEST(StringTrim, TakesWhiteSpaceOrGivenCharacters)
{
    CString text = " \t\r\n\v\fa b\f ";
    text.TrimLeft();
    EXPECT_EQ(Text(text), "a b\f ");
    text.TrimRight();
    EXPECT_EQ(Text(text), "a b");
    text.TrimRight('b');
    text.TrimLeft("xa");
    EXPECT_EQ(Text(text), " ");
    text.TrimRight();
    EXPECT_EQ(Text(text), "");
    text = "  ";
    text.TrimLeft();
    EXPECT_EQ(Text(text), "");
}

TEST(StringTrim, KeepsTheHardSpace)
{
    CString text = "\xA0x\xA0";
    text.TrimLeft();
    text.TrimRight();
    EXPECT_EQ(Text(text), "\xA0x\xA0");
}

TEST(StringFind, GivesTheFirstMatchFromAStart)
{
    CString const text = "abcabc";
    EXPECT_EQ(text.Find('b'), 1);
    EXPECT_EQ(text.Find('b', 2), 4);
    EXPECT_EQ(text.Find('b', -5), 1);
    EXPECT_EQ(text.Find('b', 9), -1);
    EXPECT_EQ(text.Find("ca"), 2);
    EXPECT_EQ(text.Find("ca", 3), -1);
    EXPECT_EQ(text.ReverseFind('b'), 4);
    EXPECT_EQ(text.ReverseFind('x'), -1);
    EXPECT_EQ(text.FindOneOf("xcb"), 1);
    EXPECT_EQ(text.FindOneOf("xyz"), -1);
}

TEST(StringEdit, InsertsAtTheIndexOrTheNearestEnd)
{
    CString text = "bd";
    EXPECT_EQ(text.Insert(1, 'c'), 3);
    EXPECT_EQ(text.Insert(-1, "a"), 4);
    EXPECT_EQ(text.Insert(99, "ef"), 6);
    EXPECT_EQ(Text(text), "abcdef");
    EXPECT_EQ(text.Insert(3, static_cast<char const *>(text)), 12);
    EXPECT_EQ(Text(text), "abcabcdefdef");
}

TEST(StringEdit, DeletesWhatIsThere)
{
    CString text = "abcdef";
    EXPECT_EQ(text.Delete(1), 5);
    EXPECT_EQ(text.Delete(3, 100), 3);
    EXPECT_EQ(text.Delete(3), 3);
    EXPECT_EQ(text.Delete(0, -1), 3);
    EXPECT_EQ(Text(text), "acd");
}

TEST(StringEdit, RemovesAndReplacesAll)
{
    CString text = "banana";
    EXPECT_EQ(text.Replace('a', 'o'), 3);
    EXPECT_EQ(text.Replace("on", "[on]"), 2);
    EXPECT_EQ(Text(text), "b[on][on]o");
    EXPECT_EQ(text.Replace("", "x"), 0);
    EXPECT_EQ(text.Replace("[on]", nullptr), 2);
    EXPECT_EQ(text.Remove('o'), 1);
    EXPECT_EQ(text.Remove('o'), 0);
    EXPECT_EQ(Text(text), "b");
}

TEST(StringEdit, ReplacesFromTheLeftWithoutOverlap)
{
    CString text = "aaaaa";
    EXPECT_EQ(text.Replace("aa", "a"), 2);
    EXPECT_EQ(Text(text), "aaa");
}

TEST(StringFormat, PrintsLikePrintf)
{
    CString text;
    text.Format("%s|%05.1f|%d", "ab", 2.25, -7);  // 2.25 is a tie, which goes to even
    EXPECT_EQ(Text(text), "ab|002.2|-7");
    EXPECT_EQ(Text(Printed("%c%%", 'x')), "x%");
    text.Format("[%s]", static_cast<char const *>(text));
    EXPECT_EQ(Text(text), "[ab|002.2|-7]");
    text.Format("%s", "");
    EXPECT_TRUE(text.IsEmpty());
}

TEST(StringBuffer, TakesTheLengthUpToTheNulOrAsGiven)
{
    CString text = "ab";
    char * buffer = text.GetBuffer(10);
    EXPECT_STREQ(buffer, "ab");
    buffer[2] = 'c';
    buffer[3] = '\0';
    text.ReleaseBuffer();
    EXPECT_EQ(Text(text), "abc");
    text.GetBuffer(1)[0] = 'X';
    text.ReleaseBuffer(2);
    EXPECT_EQ(Text(text), "Xb");
    text.GetBufferSetLength(3)[2] = '!';
    EXPECT_EQ(Text(text), "Xb!");
    CString().ReleaseBuffer();
}

TEST(StringCopy, KeepsItsTextWhateverIsDoneToTheOther)
{
    CString const original = "aBc dE";
    auto const expectKept = [&](auto change) {
        CString copy = original;
        change(copy);
        EXPECT_EQ(original, "aBc dE");
        EXPECT_NE(copy, original);
    };
    expectKept([](CString & text) { text.MakeUpper(); });
    expectKept([](CString & text) { text.MakeLower(); });
    expectKept([](CString & text) { text.SetAt(0, 'x'); });
    expectKept([](CString & text) { text += "x"; });
    expectKept([](CString & text) { text.TrimLeft("a"); });
    expectKept([](CString & text) { text.TrimRight("E"); });
    expectKept([](CString & text) { text.Insert(1, 'x'); });
    expectKept([](CString & text) { text.Insert(1, "xy"); });
    expectKept([](CString & text) { text.Delete(0, 2); });
    expectKept([](CString & text) { text.Remove('a'); });
    expectKept([](CString & text) { text.Replace('a', 'x'); });
    expectKept([](CString & text) { text.Replace("a", "xyz"); });
    expectKept([](CString & text) { text.Format("%d", 5); });
    expectKept([](CString & text) { text.GetBuffer(3)[0] = 'x'; });
    expectKept([](CString & text) { text.GetBufferSetLength(2); });
    expectKept([](CString & text) { text.ReleaseBuffer(1); });
    expectKept([](CString & text) { text.Empty(); });
}
