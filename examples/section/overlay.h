#ifndef KX7_EXAMPLES_SECTION_OVERLAY_H
#define KX7_EXAMPLES_SECTION_OVERLAY_H

#include <vector>

#include "outlines.h"

/// Area of what two sections have in common, with their arcs. Bodies and holes are intersected outline by
/// outline: an area counts negative where one of the two outlines is a hole.
double CommonArea(CMathematics & kernel, std::vector<outlines::Outline> const & a,
                  std::vector<outlines::Outline> const & b);

/// What a mesh of triangles sees of a section.
struct MeshOverlap
{
    int triangles;  ///< Triangles that overlap it.
    double area;    ///< Sum of the overlaps.
};

/// How many triangles MeshArea would lay over the outlines.
double TriangleCount(std::vector<outlines::Outline> const & section, double size);

/// Lays a mesh of right-angled triangles with legs of `size` over the section and adds up the overlaps.
MeshOverlap MeshArea(CMathematics & kernel, std::vector<outlines::Outline> const & section, double size);

#endif
