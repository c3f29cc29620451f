#ifndef KX7_GEOMETRY_ARC_FRAME_H
#define KX7_GEOMETRY_ARC_FRAME_H

// An arc in space taken apart once: chord, apex side, circle and travel axis; and what the arc intersection
// routines share.

#include "geometry/records.h"
#include "geometry/snapped_vectors.h"

class CMathematics;

namespace detail {
/// The low bits of an intersection code hold the number of points.
inline constexpr int kPointCountBits = 15;

// Codes of the intersection routines besides the plain numbers of points.
inline constexpr int kCommonStretch = 3;  ///< Two arcs of one circle with a stretch in common.
inline constexpr int kPositiveSide = 16;  ///< The element is wholly on the plane's positive side.
inline constexpr int kTangent = 17;       ///< One point, where a line touches the arc.
inline constexpr int kArcInPlane = 33;    ///< The arc lies in the plane.

// Classes of a point against an unlimited element.
inline constexpr int kOnElement = 2;
inline constexpr int kOffElement = 1;
inline constexpr int kBeforeLine = -1;

/// Directions with a smaller sine or cosine between them count as parallel, or perpendicular.
inline constexpr double kDirectionLimit = 1e-10;

/// The parameter of a point across the chord from the arc.
inline constexpr double kOffArc = -1.0;

struct ArcFrame
{
    TUVect3D start;
    TUVect3D end;
    TUVect3D middle;  ///< Of the chord.
    TUVect3D chord;   ///< Unit vector from start to end.
    TUVect3D side;    ///< Unit vector in the plane, perpendicular to the chord, toward the apex.
    TUVect3D axis;    ///< Unit axis about which the arc turns positively from start to end.
    TUVect3D centre;  ///< The coordinate origin for a flat arc.
    double radius;    ///< Distance of the start from `centre`.
    double bulge;
    bool isFlat;  ///< The arc has no centre and counts as its chord.

    /// How far a point stands from the chord toward the apex.
    double SideOf(TUVect3D const & p) const { return Dot(p - middle, side); }

    /// How far a point stands above the arc's plane, along the axis.
    double HeightOf(TUVect3D const & p) const { return Dot(p - start, axis); }
};

ArcFrame MakeArcFrame(CMathematics & math, TUVect3D const & start, TUVect3D const & end,
                      TUVect3D const & arcVector, double bulge);

/// The parameter of a point of the circle: (1 - cosine of the angle at the chord's middle between start and
/// point) / 2, exactly 0 and 1 for one place with start and end, kOffArc across the chord.
double ArcParameter(CMathematics & math, ArcFrame const & arc, TUVect3D const & p);

inline bool IsInUnitRange(double value)
{
    return value >= 0.0 && value <= 1.0;
}

/// The class of a point of the circle by its parameter.
inline int ArcClass(double parameter)
{
    return IsInUnitRange(parameter) ? kOnElement : kOffElement;
}

/// Whether an end of the first element is one place with an end of the second.
bool ShareAnEnd(CMathematics & math, TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1,
                TUVect3D const & b2);

/// A line by a point and a unit direction.
struct Line
{
    TUVect3D point;
    TUVect3D direction;
};

/// The line in which the arc's plane meets another one; its point is the one nearest to the arc's centre.
/// False for parallel planes.
bool MeetingLine(ArcFrame const & arc, TUVect3D const & origin, TUVect3D const & unitNormal, Line & line);

/// What an arc and another element have in common: up to two points, with a parameter of each on both.
struct ArcHits
{
    int code = 0;   ///< Result code; Reduce turns it from the unlimited elements to the limited ones.
    int found = 0;  ///< Number of points of the unlimited elements.
    int flags = 0;
    TUVect3D points[2] = {};
    double onArc[2] = {};    ///< On the arc; for two arcs on the first.
    double onOther[2] = {};  ///< On the line, or on the second arc.

    /// Takes off the points that don't count, so that the survivor of two stands first.
    void Reduce(bool firstCounts, bool secondCounts);
};

/// The arc's whole circle against the infinite line l1-l2. The code isn't reduced.
ArcHits IntersectCircleLine(CMathematics & math, ArcFrame const & arc, TUVect3D const & l1,
                            TUVect3D const & l2);

/// Takes off the points off the arc and, if `limitLine`, off the segment.
void LimitToArc(ArcHits & hits, bool limitLine);
}  // namespace detail

#endif
