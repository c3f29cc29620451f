// CVARDString: construction, assignment, numbers out of text, padding and trimming.
#include "foundation/vard_string.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>

#include "platform/base/object.h"
#include "tests/support/decimal_comma_locale.h"

namespace {
constexpr int kHighest = std::numeric_limits<int>::max();
constexpr int kLowest = std::numeric_limits<int>::min();

/// Gives the tests a way to the protected fields.
class OpenString : public CVARDString
{
  public:
    using CVARDString::CVARDString;
    using CVARDString::m_localeLanguage;
    using CVARDString::m_time;
};

int Split(char const * text, CString & prefix)
{
    return CVARDString(text).GetNumInString(prefix);
}
}  // namespace

TEST(VardString, IsNoPersistedObjectAndHasAVirtualDestructor)
{
    EXPECT_FALSE((std::is_base_of_v<CObject, CVARDString>));
    EXPECT_TRUE(std::has_virtual_destructor_v<CVARDString>);
}

TEST(VardString, StartsEmptyInTheDefaultLanguage)
{
    OpenString const text;
    EXPECT_STREQ(text, "");
    EXPECT_EQ(text.m_localeLanguage, 0U);
}

TEST(VardString, CopyTakesTheTextAndResetsTheLanguage)
{
    OpenString from("text");
    from.m_localeLanguage = 1029;
    OpenString const copy(from);
    EXPECT_STREQ(copy, "text");
    EXPECT_EQ(copy.m_localeLanguage, 0U);
}

TEST(VardString, CopyKeepsItsTextWhenTheSourceChanges)
{
    CVARDString from("text");
    CVARDString const copy(from);
    from = "other";
    EXPECT_STREQ(copy, "text");
}

TEST(VardString, NullPointersGiveEmptyText)
{
    EXPECT_STREQ(CVARDString(static_cast<char const *>(nullptr)), "");
    EXPECT_STREQ(CVARDString(static_cast<unsigned short const *>(nullptr)), "");
}

TEST(VardString, SmallPointerIsTheIdOfAStringResource)
{
    EXPECT_STREQ(CVARDString(reinterpret_cast<char const *>(std::uintptr_t{55029})),
                 "\xB0"
                 "C");
    EXPECT_STREQ(CVARDString(reinterpret_cast<char const *>(std::uintptr_t{55024})), "rad\ndeg\ngra");
}

TEST(VardString, UnknownResourceIdGivesEmptyText)
{
    EXPECT_STREQ(CVARDString(reinterpret_cast<char const *>(std::uintptr_t{1})), "");
    EXPECT_STREQ(CVARDString(reinterpret_cast<char const *>(std::uintptr_t{0xFFFF})), "");
}

// U+0158 is 0xD8 in code page 1250, U+20AC is 0x80, U+3042 isn't in it.
TEST(VardString, WideTextIsConverted)
{
    unsigned short const wide[] = {'a', 0x0158, 0x20AC, 0x3042, 0};
    EXPECT_STREQ(CVARDString(wide), "a\xD8\x80?");
}

TEST(VardString, AssignmentReplacesTheTextOnly)
{
    OpenString text("old");
    text.m_localeLanguage = 7;
    text.m_time = {};
    text.m_time.tm_year = 102;
    static_cast<CVARDString &>(text) = CVARDString("new");
    EXPECT_STREQ(text, "new");
    EXPECT_EQ(text.m_localeLanguage, 7U);
    EXPECT_EQ(text.m_time.tm_year, 102);
}

TEST(VardString, AssignmentOfCharacterAndPointers)
{
    CVARDString text;
    text = 'x';
    EXPECT_STREQ(text, "x");
    text = "plain";
    EXPECT_STREQ(text, "plain");
    text = reinterpret_cast<unsigned char const *>("\xD8");
    EXPECT_STREQ(text, "\xD8");
    text = static_cast<char const *>(nullptr);
    EXPECT_STREQ(text, "");
    text = "again";
    text = static_cast<unsigned char const *>(nullptr);
    EXPECT_STREQ(text, "");
}

TEST(VardString, SelfAssignmentKeepsTheText)
{
    CVARDString text("text");
    CVARDString const & same = text;
    text = same;
    EXPECT_STREQ(text, "text");
}

TEST(VardString, RawAccessAndCopyOfTheText)
{
    CVARDString const text("abc");
    char const * const raw = text;
    EXPECT_STREQ(raw, "abc");
    EXPECT_EQ(raw, text.GetChars());
    EXPECT_EQ(text.GetCS(), CString("abc"));
}

TEST(IsInteger, DigitsAndSignsAnywhere)
{
    for (char const * text : {"", "0", "123", "-5", "+5", "1-2", "+-3", "--", "007"})
        EXPECT_EQ(CVARDString(text).IsInteger(), 1) << text;
}

TEST(IsInteger, AnyOtherByteIsNone)
{
    for (char const * text : {"12a", " 1", "1 ", "1.5", "1,5", "1e5", "\xB9", "-1\n"})
        EXPECT_EQ(CVARDString(text).IsInteger(), 0) << text;
}

TEST(ToInt, TextThatIsNoIntegerIsMarked)
{
    EXPECT_EQ(CVARDString("12a").ToInt(), -9999);
}

TEST(ToInt, SignsThatMakeNoNumberAreZero)
{
    EXPECT_EQ(CVARDString("+-3").ToInt(), 0);
    EXPECT_EQ(CVARDString("").ToInt(), 0);
}

TEST(ToInt, ReadsUpToTheFirstMisplacedSign)
{
    EXPECT_EQ(CVARDString("-12").ToInt(), -12);
    EXPECT_EQ(CVARDString("1-2").ToInt(), 1);
}

TEST(ToInt, ValueBeyondTheRangeBecomesItsLimit)
{
    EXPECT_EQ(CVARDString("99999999999999999999").ToInt(), kHighest);
    EXPECT_EQ(CVARDString("-4000000000").ToInt(), kLowest);
}

TEST(ToLong, ReadsTheLeadingNumberUntested)
{
    EXPECT_EQ(CVARDString(" 12a").ToLong(), 12L);
    EXPECT_EQ(CVARDString("abc").ToLong(), 0L);
    EXPECT_EQ(CVARDString("99999999999999999999").ToLong(), std::numeric_limits<long>::max());
}

TEST(ToDouble, ReadsTheLeadingNumberUntested)
{
    EXPECT_EQ(CVARDString("2.5x").ToDouble(), 2.5);
    EXPECT_EQ(CVARDString("  -1e3").ToDouble(), -1000.0);
    EXPECT_EQ(CVARDString("x").ToDouble(), 0.0);
    EXPECT_EQ(CVARDString("").ToDouble(), 0.0);
    EXPECT_EQ(CVARDString("1,5").ToDouble(), 1.0);
}

TEST(ToDouble, DecimalSignIsThePointInEveryLocale)
{
    DecimalCommaLocale const locale;
    ASSERT_TRUE(locale.IsSet());
    EXPECT_EQ(CVARDString("2.5").ToDouble(), 2.5);
}

TEST(GetNumInString, SplitsTrailingDigits)
{
    CString prefix;
    EXPECT_EQ(Split("Text12", prefix), 12);
    EXPECT_EQ(prefix, "Text");
}

TEST(GetNumInString, TextWithoutDigitsCountsAsOne)
{
    CString prefix;
    EXPECT_EQ(Split("Text", prefix), 1);
    EXPECT_EQ(prefix, "Text");
}

TEST(GetNumInString, FirstDigitBelongsToThePrefix)
{
    CString prefix;
    EXPECT_EQ(Split("123", prefix), 23);
    EXPECT_EQ(prefix, "1");
    EXPECT_EQ(Split("5", prefix), 1);
    EXPECT_EQ(prefix, "5");
}

TEST(GetNumInString, EmptyTextHasNoNumber)
{
    CString prefix("old");
    EXPECT_EQ(Split("", prefix), -1);
    EXPECT_EQ(prefix, "");
}

TEST(GetNumInString, OnlyTheLastRunOfDigitsCounts)
{
    CString prefix;
    EXPECT_EQ(Split("A1-007", prefix), 7);
    EXPECT_EQ(prefix, "A1-");
}

TEST(GetNumInString, NumberBeyondTheRangeCountsAsOne)
{
    CString prefix;
    EXPECT_EQ(Split("A2147483647", prefix), kHighest);
    EXPECT_EQ(Split("A2147483648", prefix), 1);
    EXPECT_EQ(prefix, "A");
}

TEST(GetNumInString, LeavesTheObjectAlone)
{
    CVARDString const text("Text12");
    CString prefix;
    text.GetNumInString(prefix);
    EXPECT_STREQ(text, "Text12");
}

TEST(FillSpaces, ShorterTextGetsBlanks)
{
    EXPECT_STREQ(CVARDString("ab").FillSpacesLeft(5, 0), "   ab");
    EXPECT_STREQ(CVARDString("ab").FillSpacesRight(5, 0), "ab   ");
}

TEST(FillSpaces, LongerTextKeepsItsFirstBytes)
{
    EXPECT_STREQ(CVARDString("abcd").FillSpacesLeft(3, 0), "abc");
    EXPECT_STREQ(CVARDString("abcd").FillSpacesRight(3, 0), "abc");
}

TEST(FillSpaces, ExactLengthStays)
{
    EXPECT_STREQ(CVARDString("abc").FillSpacesLeft(3, 0), "abc");
    EXPECT_STREQ(CVARDString("abc").FillSpacesRight(3, 0), "abc");
}

TEST(FillSpaces, NoLengthGivesNoText)
{
    for (int length : {0, -1, kLowest}) {
        EXPECT_STREQ(CVARDString("abc").FillSpacesLeft(length, 0), "");
        EXPECT_STREQ(CVARDString("abc").FillSpacesRight(length, 0), "");
    }
}

TEST(FillSpaces, TakesTheTextInPlace)
{
    CVARDString text("ab");
    text.FillSpacesLeft(3, 0);
    EXPECT_STREQ(text, "ab");
    text.FillSpacesLeft(3, 1);
    EXPECT_STREQ(text, " ab");
    text.FillSpacesRight(5, 2);
    EXPECT_STREQ(text, " ab");
    text.FillSpacesRight(5, 1);
    EXPECT_STREQ(text, " ab  ");
}

TEST(Char, MakesTheTextOneCharacter)
{
    CVARDString text("long");
    text.Char(0xD8);
    EXPECT_STREQ(text, "\xD8");
}

TEST(Ord, ByteAtPositionOrZero)
{
    CVARDString const text("a\xD8");
    EXPECT_EQ(text.Ord(0), 'a');
    EXPECT_EQ(text.Ord(1), 0xD8);
    for (int position : {2, -1, kHighest, kLowest})
        EXPECT_EQ(text.Ord(position), 0) << position;
}

TEST(CharAndOrd, EveryByteGoesThere)
{
    for (int code = 0; code < 256; ++code) {
        CVARDString text;
        text.Char(static_cast<unsigned char>(code));
        EXPECT_EQ(text.Ord(0), code);
    }
}

TEST(TrimAll, RemovesEveryBlankAndNothingElse)
{
    EXPECT_EQ(CVARDString("  a b\t c \n").TrimAll(0), "ab\tc\n");
    EXPECT_EQ(CVARDString("   ").TrimAll(0), "");
    EXPECT_EQ(CVARDString("").TrimAll(0), "");
}

TEST(TrimAll, TakesTheTextInPlace)
{
    CVARDString text(" a b ");
    text.TrimAll(0);
    EXPECT_STREQ(text, " a b ");
    text.TrimAll(1);
    EXPECT_STREQ(text, "ab");
}
