#include "platform/base/number_parse.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <string>

namespace {
/// Reads a text in a locale whose decimal sign isn't the point: the first point is written as that sign, and
/// the text is cut in front of a sign of its own, which ends a number here.
double ParseWithForeignSign(char const * text, std::string const & sign, std::size_t & length)
{
    std::string copy = text;
    copy.resize(std::min(copy.find(sign), copy.size()));
    std::size_t const point = copy.find('.');
    if (point != std::string::npos)
        copy.replace(point, 1, sign);
    char * end = nullptr;
    double const value = std::strtod(copy.c_str(), &end);
    length = static_cast<std::size_t>(end - copy.c_str());
    if (point != std::string::npos && length > point)
        length -= sign.size() - 1;
    return value;
}
}  // namespace

double ParseDouble(char const * text, char const ** end)
{
    std::string const sign = std::localeconv()->decimal_point;
    std::size_t length = 0;
    double value = 0.0;
    if (sign == ".") {
        char * stop = nullptr;
        value = std::strtod(text, &stop);
        length = static_cast<std::size_t>(stop - text);
    } else
        value = ParseWithForeignSign(text, sign, length);
    if (end)
        *end = text + length;
    return value;
}
