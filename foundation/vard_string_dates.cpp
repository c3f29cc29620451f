// The operations of CVARDString on dates.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "foundation/vard_string.h"
#include "platform/base/code_page.h"
#include "platform/base/time.h"

namespace {
constexpr char const * kMonths =
    "1|Led|Leden|\n2|Úno|Únor|\n3|Bře|Březen|\n4|Dub|Duben|\n5|Kvě|Květen|\n6|Čer|Červen|\n7|Čec|Červenec|\n"
    "8|Srp|Srpen|\n9|Zář|Září|\n10|Říj|Říjen|\n11|Lis|Listopad|\n12|Pro|Prosinec|\n";
constexpr char const * kDays =  // Sunday first
    "NE|Ned|Neděle|\nPO|Pon|Pondělí|\nUT|Úte|Úterý|\nST|Stř|Středa|\nCT|Čtv|Čtvrtek|\nPA|Pát|Pátek|\n"
    "SO|Sob|Sobota|\n";
constexpr char const * kDefaultFormat = "DD.MM.YY hh:mm:ss";
constexpr char const * kTableSeparator = "\n\n";

struct NameTables
{
    CVARDString months;
    CVARDString days;
};

NameTables TablesOf(CString const & tables)
{
    if (tables.IsEmpty())
        return {CVARDString(Text1250FromUtf8(kMonths).c_str()), CVARDString(Text1250FromUtf8(kDays).c_str())};
    CVARDString const both(tables);
    return {both.GetTextBefore(kTableSeparator, 0), both.GetTextAfter(kTableSeparator, 0)};
}

// Field `field`, from 1, of record `record`, from 0.
CString Field(CVARDString & table, int record, int field)
{
    return table.CopyLine(record + 1, 1, 0, "\n").CopyLine(field, 1, 0, "|").GetCS();
}

CString Padded(CString text, char pad, int width)
{
    return text.GetLength() < width ? CString(pad, width - text.GetLength()) + text : text;
}

CString Digits(long long number, int width)
{
    char text[24];
    std::snprintf(text, sizeof(text), "%0*lld", width, number);
    return text;
}

void PutMonth(CVARDString & text, CVARDString & months, int month)
{
    if (month < 0 || month > 11)
        return;
    CString const number = Field(months, month, 1);
    text.Replace(1, "MMM", Padded(number, ' ', 2), -1, 1);
    text.Replace(1, "MM", Padded(number, '0', 2), -1, 1);
    text.Replace(1, "sM", Field(months, month, 2), -1, 1);
    text.Replace(1, "lM", Field(months, month, 3), -1, 1);
    text.Replace(1, "M", number, -1, 1);
}

void PutDay(CVARDString & text, int day)
{
    CString const number = Digits(day, 1);
    text.Replace(1, "DDD", Padded(number, ' ', 2), -1, 1);
    text.Replace(1, "DD", Padded(number, '0', 2), -1, 1);
    text.Replace(1, "D", number, -1, 1);
}

// The token "lw" isn't among these on purpose: its long name was always put in the place of "ww", of which
// none is left by then, so its letters stay for the last step.
void PutWeekday(CVARDString & text, CVARDString & days, int weekday)
{
    if (weekday >= 0 && weekday <= 6) {
        text.Replace(1, "www", Field(days, weekday, 2), -1, 1);
        text.Replace(1, "ww", Field(days, weekday, 1), -1, 1);
    }
    text.Replace(1, "w", Digits(weekday, 1), -1, 1);
}
}  // namespace

void CVARDString::CurrTime()
{
    CTime(std::time(nullptr)).GetLocalTm(&m_time);
}

void CVARDString::SetTime(std::tm const & time)
{
    m_time = time;
}

void CVARDString::SetTime(CVARDString const & other)
{
    m_time = other.m_time;
}

void CVARDString::SetTime(CString, CString) {}

CVARDString CVARDString::StrDate(CString format, CString tables, int inPlace)
{
    NameTables names = TablesOf(tables);
    CVARDString text(format.IsEmpty() ? CString(kDefaultFormat) : format);
    long long const year = m_time.tm_year + 1900LL;
    text.Replace(1, "YYYY", Digits(year, 4), -1, 1);
    text.Replace(1, "YY", Digits(std::llabs(year % 100), 2), -1, 1);
    PutMonth(text, names.months, m_time.tm_mon);
    PutDay(text, m_time.tm_mday);
    text.Replace(1, "hh", Digits(m_time.tm_hour, 2), -1, 1);
    text.Replace(1, "mm", Digits(m_time.tm_min, 2), -1, 1);
    text.Replace(1, "ss", Digits(m_time.tm_sec, 2), -1, 1);
    PutWeekday(text, names.days, m_time.tm_wday);
    return Finish(text.m_text, inPlace);
}
