#ifndef KX7_EXAMPLES_SECTION_DRAWING_FILE_H
#define KX7_EXAMPLES_SECTION_DRAWING_FILE_H

#include <string>
#include <vector>

#include "outlines.h"

/// Writes the outlines as closed polylines with arcs on the layers OUTLINE and HOLE, in drawing units of
/// `unit` metres. Throws Failure, with no file left, if it can't be written.
void WriteDrawing(CMathematics & kernel, std::string const & file,
                  std::vector<outlines::Outline> const & outlines, double unit);

#endif
