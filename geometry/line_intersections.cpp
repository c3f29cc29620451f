// Two lines in space, and a line against a plane.

#include <cmath>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
// Kinds of LineIntersectionParameters.
constexpr int kOneLine = 10;
constexpr int kParallel = 11;

/// The kind of LineIntersection for an end common to both, also when the two are one line.
constexpr int kEndOfBoth = 9;

/// Directions with a smaller cosine against a plane's normal are parallel to the plane.
constexpr double kParallelToPlane = 1e-10;

/// Two lines with what both branches of their case analysis need; copies, since outputs may be the inputs.
struct LinePair
{
    TUVect3D a1;
    TUVect3D a2;
    TUVect3D b1;
    TUVect3D b2;
    TUVect3D d1;   // a1 to a2
    TUVect3D d2;   // b1 to b2
    TUVect3D gap;  // a1 to b1
    double okoli;
};

/// Whether the distance is at most `okoli`.
bool IsWithin(TUVect3D const & a, TUVect3D const & b, double okoli)
{
    TUVect3D const difference = a - b;
    // Spares the root for most: one coordinate alone is longer than that.
    if (std::fabs(difference.x) > 2.0 * okoli || std::fabs(difference.y) > 2.0 * okoli)
        return false;
    return Length(difference) <= okoli;
}

/// 0 or 1 if `p` is one place with that end of a line, else `parameter`; the far end wins.
double SnappedToEnds(double parameter, TUVect3D const & p, TUVect3D const & first, TUVect3D const & second,
                     double okoli)
{
    if (IsWithin(p, second, okoli))
        return 1.0;
    return IsWithin(p, first, okoli) ? 0.0 : parameter;
}

/// dividend / divisor, 0 for a divisor that is exactly 0.
double GuardedShare(double dividend, double divisor)
{
    return divisor == 0.0 ? 0.0 : dividend / divisor;
}

bool IsInUnitRange(double value)
{
    return value >= 0.0 && value <= 1.0;
}

bool IsInsideUnitRange(double value)
{
    return value > 0.0 && value < 1.0;
}

int IntersectCrossing(LinePair const & pair, TUVect3D const & cross, int mode, TUVect3D & p1, TUVect3D & p2,
                      double & t, double & u, int & hit)
{
    TUVect3D const across1 = Cross(pair.d1, cross);
    u = GuardedShare(-Dot(across1, pair.gap), Dot(across1, pair.d2));
    p2 = pair.b1 + u * pair.d2;
    TUVect3D const across2 = Cross(pair.d2, cross);
    t = GuardedShare(Dot(across2, pair.gap), Dot(across2, pair.d1));
    p1 = pair.a1 + t * pair.d1;
    hit = 1;
    if (!(pair.okoli > Length(p1 - p2)))
        return 0;
    TUVect3D const middle = (p1 + p2) * 0.5;
    t = SnappedToEnds(t, middle, pair.a1, pair.a2, pair.okoli);
    u = SnappedToEnds(u, middle, pair.b1, pair.b2, pair.okoli);
    return mode != 1 || (IsInUnitRange(t) && IsInUnitRange(u));
}

/// The ends of the stretch that the lines share; later rules override earlier ones.
void CommonStretch(LinePair const & pair, double t, double u, TUVect3D & p1, TUVect3D & p2)
{
    auto const set = [&](bool applies, TUVect3D const & first, TUVect3D const & second) {
        if (!applies)
            return;
        p1 = first;
        p2 = second;
    };
    set((t == 0.0 && u < 0.0) || (u == 0.0 && t < 0.0), pair.a1, pair.a1);
    set((t == 1.0 && u > 1.0) || (u == 1.0 && t > 1.0), pair.a2, pair.a2);
    set((t <= 0.0 && u >= 1.0) || (u <= 0.0 && t >= 1.0), pair.a1, pair.a2);
    set(IsInUnitRange(t) && IsInUnitRange(u), pair.b1, pair.b2);
    set(IsInsideUnitRange(t) && u < 0.0, pair.a1, pair.b1);
    set(IsInsideUnitRange(u) && t < 0.0, pair.a1, pair.b2);
    set(IsInsideUnitRange(t) && u > 1.0, pair.a2, pair.b1);
    set(IsInsideUnitRange(u) && t > 1.0, pair.a2, pair.b2);
}

int IntersectParallel(LinePair const & pair, int mode, TUVect3D & p1, TUVect3D & p2, int & kind, double & t,
                      double & u, int & hit)
{
    if (!(Length(Cross(pair.gap, pair.d1)) / Length(pair.d1) < pair.okoli)) {
        TUVect3D const direction = Unit(pair.d1);
        kind = kParallel;
        p1 = pair.a2;
        p2 = pair.a2 + pair.gap - Dot(pair.gap, direction) * direction;
        return 0;
    }
    kind = kOneLine;
    double const square = Dot(pair.d1, pair.d1);
    t = SnappedToEnds(Dot(pair.gap, pair.d1) / square, pair.b1, pair.a1, pair.a2, pair.okoli);
    u = SnappedToEnds(Dot(pair.b2 - pair.a1, pair.d1) / square, pair.b2, pair.a1, pair.a2, pair.okoli);
    if ((t > 1.0 && u > 1.0) || (t < 0.0 && u < 0.0))
        return mode != 1;
    hit = 1;
    CommonStretch(pair, t, u, p1, p2);
    return 1;
}

/// The kind of a meeting point from the distances of its two parameters from 0.5; 0.5 exactly is an end.
int MeetingKind(double e, double f)
{
    constexpr int kKinds[3][3] = {
        // second line: inside, end, outside
        {2, 6, 4},           // inside the first
        {5, kEndOfBoth, 8},  // end of the first
        {3, 7, 1},           // outside the first
    };
    auto const place = [](double distance) { return distance < 0.5 ? 0 : distance > 0.5 ? 2 : 1; };
    return kKinds[place(e)][place(f)];
}
}  // namespace

int CMathematics::LineIntersectionParameters(TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1,
                                             TUVect3D const & b2, int mode, TUVect3D & p1, TUVect3D & p2,
                                             int & kind, double & t, double & u, int & hit)
{
    LinePair const pair = {a1, a2, b1, b2, a2 - a1, b2 - b1, b1 - a1, m_dOkoli};
    p1 = p2 = {};
    t = u = 0.0;
    kind = hit = 0;
    double const length2 = Length(pair.d2);
    double const product = Length(pair.d1) * length2;
    if (!(product > 0.0) || !std::isfinite(product))
        return 0;
    TUVect3D const cross = Cross(pair.d1, pair.d2);
    // Only the second line's length scales the limit, so the order of the lines matters near it.
    if (Length(cross) / product >= 2.0 * m_dOkoli / length2)
        return IntersectCrossing(pair, cross, mode, p1, p2, t, u, hit);
    return IntersectParallel(pair, mode, p1, p2, kind, t, u, hit);
}

int CMathematics::LineIntersection(TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1,
                                   TUVect3D const & b2, int mode, TUVect3D & p1, TUVect3D & p2, int & kind)
{
    TUVect3D q1;
    TUVect3D q2;
    double t;
    double u;
    int hit;
    int const result = LineIntersectionParameters(a1, a2, b1, b2, mode, q1, q2, kind, t, u, hit);
    if (kind == kOneLine) {
        p1 = q1;
        p2 = q2;
        if (hit == 1 && ComparePoints(p1, p2, 1))
            kind = kEndOfBoth;
        return result;
    }
    if (hit != 1)
        kind = 0;
    if (hit != 1 || result == 0)
        return 0;
    kind = MeetingKind(std::fabs(t - 0.5), std::fabs(u - 0.5));
    p1 = (q1 + q2) * 0.5;
    return result;
}

int CMathematics::LineTSPlaneIntersection(TUVect3D const & a, TUVect3D const & b, TSPlane const & plane,
                                          TUVect3D & point)
{
    TUVect3D const normal = Unit(plane.normal);
    TUVect3D const along = b - a;
    double const heightA = Dot(a - plane.origin, normal);
    double const heightB = Dot(b - plane.origin, normal);
    if (!std::isfinite(heightA) || !std::isfinite(heightB))
        return 0;
    if (std::fabs(heightA) <= m_dOkoli && std::fabs(heightB) <= m_dOkoli)
        return 2;
    bool const onOneSide =
        (heightA > m_dOkoli && heightB > m_dOkoli) || (heightA < -m_dOkoli && heightB < -m_dOkoli);
    double const rise = Dot(along, normal);
    if (rise == 0.0 || (onOneSide && std::fabs(Dot(Unit(along), normal)) < kParallelToPlane))
        return std::fabs(heightA) < m_dOkoli ? 2 : 0;
    point = a + (Dot(plane.origin - a, normal) / rise) * along;
    return 1;
}
