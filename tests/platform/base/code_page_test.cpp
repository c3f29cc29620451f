#include "platform/base/code_page.h"

#include <gtest/gtest.h>

namespace {
// Every letter of code page 1250 outside ASCII that has two cases, as bytes and as UTF-8.
constexpr std::string_view kCapitals =
    "\x8A\x8C\x8D\x8E\x8F\xA3\xA5\xAA\xAF\xBC\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF"
    "\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE";
constexpr std::string_view kSmalls =
    "\x9A\x9C\x9D\x9E\x9F\xB3\xB9\xBA\xBF\xBE\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF"
    "\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE";
constexpr std::string_view kCapitalsUtf8 = "ŠŚŤŽŹŁĄŞŻĽŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖŘŮÚŰÜÝŢ";
constexpr std::string_view kSmallsUtf8 = "šśťžźłąşżľŕáâăäĺćçčéęëěíîďđńňóôőöřůúűüýţ";

std::string Changed(std::string_view text, char (*change)(char))
{
    std::string result(text);
    for (char & character : result)
        character = change(character);
    return result;
}
}  // namespace

TEST(CodePage1250, CapitalsAndSmallsOfEveryLetterMatch)
{
    EXPECT_EQ(Changed(kSmalls, UpperCase1250), kCapitals);
    EXPECT_EQ(Changed(kCapitals, LowerCase1250), kSmalls);
    EXPECT_EQ(Changed("azAZ", UpperCase1250), "AZAZ");
    EXPECT_EQ(Changed("azAZ", LowerCase1250), "azaz");
}

TEST(CodePage1250, BytesWithoutCaseStay)
{
    // Multiplication and division signs and sharp s stand among the letters; micro is a letter without
    // capital.
    EXPECT_EQ(Changed("09[`{\xD7\xF7\xDF\xFF\xB5\x80", UpperCase1250), "09[`{\xD7\xF7\xDF\xFF\xB5\x80");
    EXPECT_EQ(Changed("09[`{\xD7\xF7\xDF\xFF\xB5\x80", LowerCase1250), "09[`{\xD7\xF7\xDF\xFF\xB5\x80");
}

TEST(CodePage1250, LettersConvertToUtf8AndBack)
{
    EXPECT_EQ(Utf8From1250(kCapitals), kCapitalsUtf8);
    EXPECT_EQ(Utf8From1250(kSmalls), kSmallsUtf8);
    EXPECT_EQ(Text1250FromUtf8(kCapitalsUtf8), kCapitals);
    EXPECT_EQ(Text1250FromUtf8(kSmallsUtf8), kSmalls);
    EXPECT_EQ(Utf8From1250("\x80 \xA0\x99"), "€ \u00A0™");
}

TEST(CodePage1250, EveryByteSurvivesTheWayThroughUtf8)
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(Text1250FromUtf8(Utf8From1250(all)), all);
}

TEST(CodePage1250, WhatItCannotSayBecomesAQuestionMark)
{
    EXPECT_EQ(Text1250FromUtf8("aΩb"), "a?b");
    EXPECT_EQ(Text1250FromUtf8("😀!"), "?!");
    EXPECT_EQ(Text1250FromUtf16(u"\u010Dñ"), "\xE8?");
}

TEST(CodePage1250, BrokenUtf8BecomesQuestionMarks)
{
    EXPECT_EQ(Text1250FromUtf8("\x80"
                               "a"),
              "?a");  // no lead byte
    EXPECT_EQ(Text1250FromUtf8("\xC4"
                               "a"),
              "?a");                                 // no byte follows the lead
    EXPECT_EQ(Text1250FromUtf8("a\xE2\x82"), "a?");  // ends inside the euro sign
    EXPECT_EQ(Text1250FromUtf8("\xFF\xC1"
                               "z"),
              "??z");  // bytes that never occur
}
