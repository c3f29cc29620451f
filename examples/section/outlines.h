#ifndef KX7_EXAMPLES_SECTION_OUTLINES_H
#define KX7_EXAMPLES_SECTION_OUTLINES_H

// From loose lines and arcs to closed outlines with their holes. These two files (outlines.h, outlines.cpp)
// use only the kernel of the library: a host that reads drawings can take them as they are.

#include <optional>
#include <vector>

#include "KX7Utlt.h"

namespace outlines {
/// An area of the kernel: a closed outline with arcs as markers.
using Area = CArray<TSPoint2DPlane, TSPoint2DPlane &>;

/// Sides in one direction, each starting where the one before it ends.
using Path = std::vector<TSPlaneEdge2D>;

/// A loose end that no other end meets.
struct Gap
{
    TUVect2D at;       ///< The loose end.
    TUVect2D nearest;  ///< The nearest other loose end; `at` itself if there is none.
    double distance;   ///< Between the two.
};

/// A closed outline, counter-clockwise.
struct Outline
{
    Path sides;
    double area;  ///< With its arcs, always positive.
    int parent;   ///< Index of the smallest outline around it, -1 for none.
    int depth;    ///< How many outlines lie around it.

    /// An outline within a body is a hole, one within a hole a body again.
    bool IsHole() const { return depth % 2 != 0; }
};

/// What BuildOutlines makes of a drawing.
struct OutlineSet
{
    std::vector<Outline>
        outlines;           ///< From the largest to the smallest, so a parent stands before its children.
    std::vector<Gap> gaps;  ///< Where paths were left over that don't close.
    int duplicates = 0;     ///< Paths and outlines that lay on others and were dropped.
};

/// Chains paths into closed outlines and sorts them into bodies and holes.
///
/// Ends within `tolerance` are one point, and sides shorter than it are dropped. Where more than two ends
/// meet, the outline that closes with the least area is taken, so outlines that touch in a point stay apart.
OutlineSet BuildOutlines(CMathematics & kernel, std::vector<Path> const & paths, double tolerance);

/// A point where sides of the outlines cross each other away from their ends; none if they only touch.
std::optional<TUVect2D> FindCrossing(CMathematics & kernel, std::vector<Outline> const & outlines);

/// Writes the outline as an area of the kernel, in closed form.
void FillArea(Path const & sides, Area & area);

/// Signed area of closed sides, arcs included.
double SignedArea(CMathematics & kernel, Path const & sides);

/// The path in the other direction.
Path Reversed(Path const & path);

/// Smallest box around the sides, arcs included.
struct Box
{
    TUVect2D min;
    TUVect2D max;
};
Box BoxOf(Path const & sides);

/// Length of a side, along its arc.
double LengthOf(TSPlaneEdge2D const & side);

/// Appends the side, an arc cut where it turns in x or y, so that the ends of the pieces span its extents.
void AppendSplit(TSPlaneEdge2D const & side, Path & pieces);

/// Appends the points of a side behind its start: its end for a straight side; for an arc the ends of chords
/// that stay within `bound` of it, and the points where it turns in x or y, so that extents come out exactly.
void AppendFlattened(TSPlaneEdge2D const & side, double bound, std::vector<TUVect2D> & points);
}  // namespace outlines

#endif
