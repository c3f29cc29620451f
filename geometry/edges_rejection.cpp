#include "geometry/edges_rejection.h"

#include <algorithm>
#include <cmath>

#include "geometry/arcs_course.h"

namespace {
/// Distance in tolerances beyond which elements have nothing in common.
constexpr double kMargin = 8.0;

/// Share of the coordinates that rounding can't reach.
constexpr double kRoundingShare = 1e-12;

// Below these, well above the limits of VectorProduct, an arc may have no centre; the full computation then
// takes its own way.
constexpr double kShortSquare = 1e-13;
constexpr double kParallelSineSquare = 1e-6;

// Plain arithmetic: nothing here is compared with 0.
TUVect3D Minus(TUVect3D const & a, TUVect3D const & b)
{
    return {{a.x - b.x, a.y - b.y, a.z - b.z}};
}

double PlainDot(TUVect3D const & a, TUVect3D const & b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

double SquareOfCross(TUVect3D const & a, TUVect3D const & b)
{
    double const x = a.y * b.z - a.z * b.y;
    double const y = a.z * b.x - a.x * b.z;
    double const z = a.x * b.y - a.y * b.x;
    return x * x + y * y + z * z;
}

double SumOfSizes(TUVect3D const & v)
{
    return std::fabs(v.x) + std::fabs(v.y) + std::fabs(v.z);
}

bool LinesAreApart(double okoli, TSPlaneEdge3D const & a, TSPlaneEdge3D const & b)
{
    for (int i = 0; i < 3; ++i) {
        auto const [lowA, highA] = std::minmax(a.start.a[i], a.end.a[i]);
        auto const [lowB, highB] = std::minmax(b.start.a[i], b.end.a[i]);
        double const gap = std::max(lowB - highA, lowA - highB);
        double const size = std::fabs(lowA) + std::fabs(highA) + std::fabs(lowB) + std::fabs(highB);
        if (gap > kMargin * okoli + kRoundingShare * size)
            return true;
    }
    return false;
}

/// An arc seen from the middle of its chord.
struct Reach
{
    TUVect3D middle;
    double halfChord;
    double bulge;  ///< Not negative.

    /// False for an arc that may count as a line.
    bool Make(TSPlaneEdge3D const & arc)
    {
        bulge = std::fabs(arc.bulge);
        if (detail::IsFlatBulge(bulge))
            return false;
        TUVect3D const chord = Minus(arc.end, arc.start);
        double const chordSquare = PlainDot(chord, chord);
        double const vectorSquare = PlainDot(arc.arcVector, arc.arcVector);
        if (!(chordSquare > kShortSquare) || !(vectorSquare > kShortSquare) ||
            !(SquareOfCross(chord, arc.arcVector) > kParallelSineSquare * chordSquare * vectorSquare))
            return false;
        halfChord = std::sqrt(chordSquare) / 2.0;
        for (int i = 0; i < 3; ++i)
            middle.a[i] = (arc.start.a[i] + arc.end.a[i]) * 0.5;
        return true;
    }

    /// The distance from the middle to the farthest point of the circle: the larger sagitta.
    double OfCircle() const { return halfChord * std::max(bulge, 1.0 / bulge); }

    /// The same for the points on the apex side of the chord, up to `off` beside the circle. For an arc up to
    /// a half circle, with x along and y across the chord and q the distance of the centre below it:
    /// x^2 + y^2 = (R + off)^2 - q^2 - 2 y q, at most c^2 + 2 R off + off^2 since y isn't negative.
    double OfApexSide(double off) const
    {
        if (bulge > 1.0)
            return OfCircle() + off;
        double const radius = halfChord * (1.0 + bulge * bulge) / (2.0 * bulge);
        return std::sqrt(halfChord * halfChord + 2.0 * radius * off + off * off);
    }
};

double SquareToSegment(TUVect3D const & p, TUVect3D const & a, TUVect3D const & b)
{
    TUVect3D const along = Minus(b, a);
    TUVect3D toPoint = Minus(p, a);
    double const t = std::clamp(PlainDot(toPoint, along) / PlainDot(along, along), 0.0, 1.0);
    for (int i = 0; i < 3; ++i)
        toPoint.a[i] -= t * along.a[i];
    return PlainDot(toPoint, toPoint);
}

bool LineIsApartFromArc(double okoli, TSPlaneEdge3D const & line, TSPlaneEdge3D const & arc)
{
    Reach reach;
    if (!reach.Make(arc))
        return false;
    double const slack = kMargin * okoli + kRoundingShare * (SumOfSizes(line.start) + SumOfSizes(line.end) +
                                                             SumOfSizes(reach.middle) + reach.OfCircle());
    double const limit = reach.OfApexSide(slack) + slack;
    return SquareToSegment(reach.middle, line.start, line.end) > limit * limit;
}

/// Arcs are told apart by their full circles: two circles that nearly fall together are taken to meet far
/// from both, on the apex sides of both chords.
bool ArcsAreApart(double okoli, TSPlaneEdge3D const & a, TSPlaneEdge3D const & b)
{
    Reach reachA;
    Reach reachB;
    if (!reachA.Make(a) || !reachB.Make(b))
        return false;
    double const reach = reachA.OfCircle() + reachB.OfCircle();
    double const limit = reach + kMargin * okoli +
                         kRoundingShare * (SumOfSizes(reachA.middle) + SumOfSizes(reachB.middle) + reach);
    TUVect3D const apart = Minus(reachB.middle, reachA.middle);
    return PlainDot(apart, apart) > limit * limit;
}
}  // namespace

bool detail::EdgesAreApart(double okoli, TSPlaneEdge3D const & a, TSPlaneEdge3D const & b)
{
    if (a.type == EDGE_LINE && b.type == EDGE_LINE)
        return LinesAreApart(okoli, a, b);
    if (a.type == EDGE_LINE && b.type == EDGE_ARC)
        return LineIsApartFromArc(okoli, a, b);
    if (a.type == EDGE_ARC && b.type == EDGE_LINE)
        return LineIsApartFromArc(okoli, b, a);
    return a.type == EDGE_ARC && b.type == EDGE_ARC && ArcsAreApart(okoli, a, b);
}

bool detail::PointIsOffLine(double okoli, TUVect3D const & a, TUVect3D const & b, TUVect3D const & p)
{
    TUVect3D const along = Minus(b, a);
    double const limit = kMargin * okoli + kRoundingShare * (SumOfSizes(a) + SumOfSizes(b) + SumOfSizes(p));
    return SquareOfCross(along, Minus(p, a)) > limit * limit * PlainDot(along, along);
}
