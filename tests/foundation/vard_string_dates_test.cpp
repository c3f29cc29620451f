#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "foundation/vard_string.h"
#include "platform/base/code_page.h"

namespace {
// Tuesday, 5 March 2002, 7:08:09.
std::tm SomeTime()
{
    std::tm time{};
    time.tm_year = 102;
    time.tm_mon = 2;
    time.tm_mday = 5;
    time.tm_hour = 7;
    time.tm_min = 8;
    time.tm_sec = 9;
    time.tm_wday = 2;
    return time;
}

std::string Date(std::tm const & time, char const * format, char const * tables = "")
{
    CVARDString text;
    text.SetTime(time);
    return Utf8From1250(text.StrDate(format, tables, 0).GetCS().View());
}

TEST(VardStringDate, EmptyFormatIsDateAndTime)
{
    EXPECT_EQ(Date(SomeTime(), ""), "05.03.02 07:08:09");
}

struct TokenRow
{
    char const * format;
    char const * expected;
};

TEST(VardStringDate, EveryTokenIsReplaced)
{
    TokenRow const rows[] = {
        {"YYYY", "2002"}, {"YY", "02"},   {"MMM", " 3"}, {"MM", "03"}, {"sM", "Bře"},      {"lM", "Březen"},
        {"M", "3"},       {"DDD", " 5"},  {"DD", "05"},  {"D", "5"},   {"hh", "07"},       {"mm", "08"},
        {"ss", "09"},     {"www", "Úte"}, {"ww", "UT"},  {"w", "2"},   {"YY-YY", "02-02"}, {"xyz", "xyz"}};
    for (TokenRow const & row : rows)
        EXPECT_EQ(Date(SomeTime(), row.format), row.expected) << row.format;
}

TEST(VardStringDate, LongWeekdayTokenDoesNotWork)
{
    std::tm monday = SomeTime();
    monday.tm_wday = 1;
    EXPECT_EQ(Date(monday, "lw"), "l1");
}

TEST(VardStringDate, LettersOfANameCanBeTakenForALaterToken)
{
    // The short name of the day table is put in after the day: the "w" in it becomes the number.
    EXPECT_EQ(Date(SomeTime(), "sM", "1|a|a|\n2|b|b|\n3|Day|x|\n\nS|w|x|\n"), "5ay");
}

TEST(VardStringDate, EveryMonthAndDayHasItsNames)
{
    char const * const months[] = {"Led Leden",  "Úno Únor",   "Bře Březen",   "5ub 5uben",
                                   "Kvě Květen", "Čer Červen", "Čec Červenec", "Srp Srpen",
                                   "Zář Září",   "Říj Říjen",  "Lis Listopad", "Pro Prosinec"};
    // The D of April's names is taken for the day.
    std::tm time = SomeTime();
    for (int month = 0; month < 12; ++month) {
        time.tm_mon = month;
        EXPECT_EQ(Date(time, "sM lM"), months[month]);
        EXPECT_EQ(Date(time, "M"), std::to_string(month + 1));
    }
    char const * const days[] = {"NE Ned", "PO Pon", "UT Úte", "ST Stř", "CT Čtv", "PA Pát", "SO Sob"};
    for (int day = 0; day < 7; ++day) {
        time.tm_wday = day;
        EXPECT_EQ(Date(time, "ww www"), days[day]);
    }
}

TEST(VardStringDate, TablesOfTheHostReplaceTheCzechOnes)
{
    char const * const tables =
        "1|Jan|January|\n2|Feb|February|\n3|mar|march|\n\nSU|Sun|Sunday|\nMO|Mon|x|\nTU|Tue|x|\n";
    EXPECT_EQ(Date(SomeTime(), "DD sM YYYY www", tables), "05 mar 2002 Tue");
}

TEST(VardStringDate, TimesThatAreNoneAreHarmless)
{
    for (int value : {-1, 12, 99, INT_MAX, INT_MIN}) {
        std::tm time{};
        time.tm_year = time.tm_mon = time.tm_mday = time.tm_hour = time.tm_min = time.tm_sec = time.tm_wday =
            value;
        EXPECT_FALSE(Date(time, "YYYY YY MMM MM sM lM M DDD DD D hh mm ss www ww lw w").empty());
    }
    std::tm noMonth = SomeTime();
    noMonth.tm_mon = 12;
    EXPECT_EQ(Date(noMonth, "D.M."), "5.M.");
}

TEST(VardStringDate, InPlaceFlagIsObeyed)
{
    CVARDString text("before");
    text.SetTime(SomeTime());
    text.StrDate("YYYY", "", 2);
    EXPECT_EQ(text.GetCS(), "before");
    text.StrDate("YYYY", "", 1);
    EXPECT_EQ(text.GetCS(), "2002");
}

TEST(VardStringTime, ComesFromAnotherObjectOrTheClock)
{
    CVARDString one, other;
    one.SetTime(SomeTime());
    other.SetTime(one);
    EXPECT_EQ(other.StrDate("", "", 0).GetCS(), "05.03.02 07:08:09");
    other.SetTime(CString("1.1.1999"), CString("1:00"));
    EXPECT_EQ(other.StrDate("", "", 0).GetCS(), "05.03.02 07:08:09");
    std::time_t const now = std::time(nullptr);
    other.CurrTime();
    std::tm const local = *std::localtime(&now);
    EXPECT_EQ(other.StrDate("YYYY", "", 0).GetCS(), CString(std::to_string(local.tm_year + 1900).c_str()));
}
}  // namespace
