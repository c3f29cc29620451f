// The small text parsers of the kernel: typed numbers, points, vectors and directions.

#include <algorithm>
#include <string_view>

#include "geometry/mathematics.h"
#include "platform/base/number_parse.h"
#include "platform/base/string.h"

namespace {
// Forms of a typed line. A form of numbers falls by 1 with each number beyond the first.
constexpr int kOneAbsolute = 3;
constexpr int kOneRelative = 6;
constexpr int kAngle = 7;
constexpr int kKeyword = 8;

/// What a line of numbers may always have besides digits.
constexpr char const * kNumberCharacters = " .,+-E";

/// A line of numbers has at most this many commas.
constexpr int kMostCommas = 2;

char const * SkipBlanks(char const * text)
{
    while (*text == ' ' || *text == '\t')
        ++text;
    return text;
}

struct Direction
{
    std::string_view keyword;
    TUVect3D vector;
};

Direction const kDirections[] = {
    {"X", {{1.0, 0.0, 0.0}}}, {"Y", {{0.0, 1.0, 0.0}}},   {"Z", {{0.0, 0.0, 1.0}}},
    {"I", {{1.0, 1.0, 1.0}}}, {"IZO", {{1.0, 1.0, 1.0}}},
};

/// The vector of a keyword line; null if the line is none.
TUVect3D const * FindDirection(CString const & line)
{
    auto const * const found = std::ranges::find(kDirections, line.View(), &Direction::keyword);
    return found == std::end(kDirections) ? nullptr : &found->vector;
}

/// Reads up to three numbers between commas; missing ones are 0. Returns how many commas there were.
int ReadNumbers(CString line, double & a, double & b, double & c)
{
    double * const values[] = {&a, &b, &c};
    int commas = 0;
    for (double * const value : values) {
        *value = 0.0;
        if (line.IsEmpty())
            continue;
        int const comma = line.Find(',');
        *value = ParseDouble(comma < 0 ? line : line.Left(comma));
        line = comma < 0 ? CString() : line.Mid(comma + 1);
        commas += comma < 0 ? 0 : 1;
    }
    return commas;
}
}  // namespace

int CMathematics::SimpleFloatParse(char const * text, double & value)
{
    char const * const first = SkipBlanks(text ? text : "");
    char const * behind = first;
    value = ParseDouble(first, &behind);
    // A zero must begin with its digit, which refuses "-0" and ".0" along with what is no number.
    if (value == 0.0 && *first != '0')
        return 0;
    return *SkipBlanks(behind) == '\0';
}

int CMathematics::CheckInputLine(CString const & line, CString const & allowed)
{
    return std::ranges::all_of(line.View(), [&](char character) {
        return (character >= '0' && character <= '9') ||
               allowed.View().find(character) != std::string_view::npos;
    });
}

int CMathematics::SpacesOutOfString(CString & text)
{
    if (text.IsEmpty())
        return 0;
    text.Remove(' ');
    return 1;
}

int CMathematics::StripString(CString line, CString allowed, double & a, double & b, double & c, int & form)
{
    if (line.IsEmpty())
        return 0;
    line.TrimLeft();
    line.TrimRight();
    line.MakeUpper();
    if (TUVect3D const * const direction = FindDirection(line)) {
        a = direction->x;
        b = direction->y;
        c = direction->z;
        form = kKeyword;
        return 1;
    }
    char const mark = line[0];
    if (mark == '<' || mark == '@')
        line = line.Mid(1);
    allowed.MakeUpper();
    allowed += kNumberCharacters;
    if (!CheckInputLine(line, allowed) || std::ranges::count(line.View(), ',') > kMostCommas)
        return 0;
    if (mark == '<') {
        a = ParseDouble(line);
        form = kAngle;
        return 1;
    }
    form = (mark == '@' ? kOneRelative : kOneAbsolute) - ReadNumbers(line, a, b, c);
    return 1;
}

int CMathematics::StripString(CString line, CString allowed, double * const values, int & form)
{
    return StripString(line, allowed, values[0], values[1], values[2], form);
}
