#ifndef KX7_EXAMPLES_SECTION_REPORT_H
#define KX7_EXAMPLES_SECTION_REPORT_H

#include <string>
#include <vector>

#include "KX7Utlt.h"
#include "section_values.h"

/// One computed section of the report: a body, or all together.
struct ReportPart
{
    int body;      ///< From 1; 0 for all together.
    int outlines;  ///< How many outlines it has, holes included.
    SectionValues values;
};

/// What the report says beside the values; lengths in metres.
struct ReportExtras
{
    bool hasCommon = false;  ///< There was another drawing.
    std::string otherName;
    double commonArea = 0;  ///< Area of the common part.
    bool hasMesh = false;
    int triangles = 0;    ///< Triangles of the mesh that overlap the section.
    double meshArea = 0;  ///< Sum of the overlaps.
};

struct Report
{
    std::string drawing;
    double bound;  ///< Flattening bound in metres.
    std::vector<ReportPart> parts;
    ReportExtras extras;
};

/// The report as a table in UTF-8, in the chosen units and language.
std::string TableText(Report const & report, CVARDUnits const & units, ELanguages language);

/// The report as JSON, lengths in the chosen unit.
std::string JsonText(Report const & report, CVARDUnits const & units);

#endif
