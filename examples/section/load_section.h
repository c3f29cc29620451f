#ifndef KX7_EXAMPLES_SECTION_LOAD_SECTION_H
#define KX7_EXAMPLES_SECTION_LOAD_SECTION_H

#include <string>
#include <vector>

#include "options.h"
#include "outlines.h"

/// What a drawing comes to.
struct Section
{
    std::vector<outlines::Outline> outlines;  ///< In metres.
    double unit;                              ///< Metres of a drawing unit.
    double bound;                             ///< How far a chord may leave its arc, in metres.
};

/// Reads a drawing and finds its outlines. What is left out, doesn't close or stands twice is told on
/// standard error; throws Failure for a drawing that can't be read, has no closed outline or whose outlines
/// cross.
Section LoadSection(CMathematics & kernel, std::string const & name, Options const & options);

/// Tells on standard output which layers and entities the drawing holds.
void ListDrawing(Options const & options);

#endif
