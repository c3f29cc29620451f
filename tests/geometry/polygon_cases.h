#ifndef KX7_TESTS_GEOMETRY_POLYGON_CASES_H
#define KX7_TESTS_GEOMETRY_POLYGON_CASES_H

// Reads the pairs of outlines of cases/polygon_cases.txt, which tests, fuzzers and benchmarks share, and
// draws a case for the eye.

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/geometry/outlines.h"

namespace polygon_cases {
using outlines::Outline;

struct Case
{
    std::string name;
    Outline a;  ///< Closed.
    Outline b;
    double area = 0.0;  ///< Of the common part.
    std::string fails;  ///< The reason of a case that isn't always right; else empty.
};

/// "x,y" is a vertex, "(bulge)" an arc.
inline Outline ParseOutline(std::istream & line)
{
    Outline outline;
    for (std::string word; line >> word;) {
        char * end = nullptr;
        if (word.front() == '(') {
            outline.push_back(outlines::Arc(std::strtod(word.c_str() + 1, nullptr)));
        } else {
            double const x = std::strtod(word.c_str(), &end);
            outline.push_back(outlines::V(x, *end == ',' ? std::strtod(end + 1, nullptr) : 0.0));
        }
    }
    return outlines::Closed(outline);
}

inline std::vector<Case> Load(std::string const & sourceDir)
{
    std::vector<Case> cases;
    std::ifstream file(sourceDir + "/tests/geometry/cases/polygon_cases.txt");
    for (std::string text; std::getline(file, text);) {
        std::istringstream line(text.substr(0, text.find('#')));
        std::string word;
        if (!(line >> word))
            continue;
        if (word == "case")
            line >> cases.emplace_back().name;
        else if (word == "a")
            cases.back().a = ParseOutline(line);
        else if (word == "b")
            cases.back().b = ParseOutline(line);
        else if (word == "area")
            line >> cases.back().area;
        else if (word == "fails")
            std::getline(line >> std::ws, cases.back().fails);
    }
    return cases;
}

/// The outline as a path of SVG; y runs upward, as in the plane.
inline std::string SvgPath(Outline const & outline)
{
    std::ostringstream path;
    path.precision(17);
    double bulge = 0.0;
    TSPoint2DPlane from{};
    bool isFirst = true;
    for (TSPoint2DPlane const & record : outline) {
        if (outlines::IsMarker(record)) {
            bulge = record.y;
            continue;
        }
        double const chord = std::hypot(record.x - from.x, record.y - from.y);
        double const radius = bulge != 0.0 ? chord * (std::fabs(bulge) + 1 / std::fabs(bulge)) / 4 : 0.0;
        if (isFirst)
            path << 'M';
        else if (bulge == 0.0)
            path << 'L';
        else
            path << 'A' << radius << ' ' << radius << " 0 " << (std::fabs(bulge) > 1) << ' '
                 << (bulge > 0 ? 1 : 0) << ' ';
        path << record.x << ' ' << -record.y << ' ';
        from = record;
        bulge = 0.0;
        isFirst = false;
    }
    return path.str();
}

/// Draws a in blue, b in red and the outlines found in black into a file.
inline void DumpSvg(std::string const & file, Outline const & a, Outline const & b,
                    std::vector<Outline> const & common)
{
    double low[2] = {1e300, 1e300};
    double high[2] = {-1e300, -1e300};
    for (Outline const * outline : {&a, &b})
        for (TSPoint2DPlane const & record : *outline) {
            if (outlines::IsMarker(record))
                continue;
            low[0] = std::min(low[0], record.x);
            high[0] = std::max(high[0], record.x);
            low[1] = std::min(low[1], -record.y);
            high[1] = std::max(high[1], -record.y);
        }
    double const size = std::max(high[0] - low[0], high[1] - low[1]);
    std::ofstream svg(file);
    svg.precision(17);
    svg << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"800\" height=\"800\" viewBox=\""
        << low[0] - size / 4 << ' ' << low[1] - size / 4 << ' ' << size * 1.5 << ' ' << size * 1.5
        << "\" stroke-width=\"" << size / 300 << "\" fill-opacity=\"0.2\">\n"
        << "<path d=\"" << SvgPath(a) << "\" fill=\"blue\" stroke=\"blue\"/>\n"
        << "<path d=\"" << SvgPath(b) << "\" fill=\"red\" stroke=\"red\"/>\n";
    for (Outline const & outline : common)
        svg << "<path d=\"" << SvgPath(outline) << "\" fill=\"black\" stroke=\"black\"/>\n";
    svg << "</svg>\n";
}
}  // namespace polygon_cases

#endif
