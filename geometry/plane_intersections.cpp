// Line against line and arc against line in the plane, with the parameters of the points found.

#include <utility>

#include "geometry/detail_plane_elements.h"
#include "geometry/mathematics.h"

using namespace detail;

namespace {
/// Segments whose directions have a sine below this are parallel.
constexpr double kParallelSine = 1e-10;

// Values of `kind` of LineIntersectionParameters.
constexpr int kApartParallel = 0;
constexpr int kCrossing = 1;
constexpr int kApartOnOneLine = 2;
constexpr int kOneLine = 10;
constexpr int kNoLength = 255;

// Values and bits of ArcLineIntersectionParameters.
constexpr int kTangent = 17;
constexpr int kHitCountMask = 15;
constexpr int kFirstParameters = 1;
constexpr int kFirstPoint = 2;
constexpr int kSecondParameters = 4;
constexpr int kSecondPoint = 8;

bool Within(TUVect2D const & p, TUVect2D const & q, double tolerance)
{
    return Length(p - q) <= tolerance;
}

bool Near(TUVect2D const & p, TUVect2D const & q, double tolerance)
{
    return Length(p - q) < tolerance;
}

bool IsFraction(double t)
{
    return t >= 0.0 && t <= 1.0;
}

bool IsInnerFraction(double t)
{
    return t > 0.0 && t < 1.0;
}

/// Two segments and what is known of their crossing; the second one's ends lie at t1 and t2 of the first if
/// both are on one line.
struct SegmentPair
{
    TUVect2D a, b, c, d;
    TUVect2D d1, d2;
    double t1, t2;
};

/// Puts t1 and t2 to exactly 0 or 1 where an end of the second segment is an end of the first.
void SnapToFirstSegment(SegmentPair & s, double tolerance)
{
    if (Within(s.a, s.c, tolerance))
        s.t1 = 0.0;
    if (Within(s.b, s.c, tolerance))
        s.t1 = 1.0;
    if (Within(s.a, s.d, tolerance))
        s.t2 = 0.0;
    if (Within(s.b, s.d, tolerance))
        s.t2 = 1.0;
}

/// The ends of the stretch that two segments of one line have in common, in p1 and p2. Later cases overwrite
/// what earlier ones wrote, so identical segments give c, d.
void CommonStretch(SegmentPair const & s, TUVect2D & p1, TUVect2D & p2)
{
    double const t1 = s.t1;
    double const t2 = s.t2;
    auto const when = [&](bool holds, TUVect2D const & first, TUVect2D const & second) {
        if (holds) {
            p1 = first;
            p2 = second;
        }
    };
    when((t1 == 0.0 && t2 < 0.0) || (t2 == 0.0 && t1 < 0.0), s.a, s.a);
    when((t1 == 1.0 && t2 > 1.0) || (t2 == 1.0 && t1 > 1.0), s.b, s.b);
    when((t1 <= 0.0 && t2 >= 1.0) || (t2 <= 0.0 && t1 >= 1.0), s.a, s.b);
    when(IsFraction(t1) && IsFraction(t2), s.c, s.d);
    when(IsInnerFraction(t1) && t2 < 0.0, s.a, s.c);
    when(IsInnerFraction(t2) && t1 < 0.0, s.a, s.d);
    when(IsInnerFraction(t1) && t2 > 1.0, s.b, s.c);
    when(IsInnerFraction(t2) && t1 > 1.0, s.b, s.d);
}

/// Parallel segments: apart, or on one line with or without a common stretch.
int ParallelSegments(SegmentPair & s, double tolerance, TUVect2D & p1, TUVect2D & p2, int & kind, int & shape)
{
    TUVect2D const w = s.c - s.a;
    if (std::fabs(Dot(w, Unit(TUVect2D{{s.d1.y, -s.d1.x}}))) > tolerance) {
        kind = kApartParallel;
        p1 = s.b;
        p2 = p1 + w - Dot(w, Unit(s.d1)) * s.d1;  // scaled by d1 itself, not by its unit, on purpose
        return 0;
    }
    kind = kOneLine;
    s.t1 = Dot(w, s.d1) / Dot(s.d1, s.d1);
    s.t2 = Dot(s.d - s.a, s.d1) / Dot(s.d1, s.d1);
    SnapToFirstSegment(s, tolerance);
    if ((s.t1 > 1.0 && s.t2 > 1.0) || (s.t1 < 0.0 && s.t2 < 0.0)) {
        kind = kApartOnOneLine;
        return 0;
    }
    CommonStretch(s, p1, p2);
    shape = 3;
    return 1;
}

/// The crossing of two lines that aren't parallel; 1 if it lies on both segments.
int CrossingSegments(SegmentPair & s, double tolerance, TUVect2D & p1, TUVect2D & p2)
{
    TUVect2D const q1{{s.d1.y, -s.d1.x}};
    TUVect2D const q2{{s.d2.y, -s.d2.x}};
    s.t2 = Dot(s.a - s.c, q1) / Dot(s.d2, q1);
    s.t1 = Dot(s.c - s.a, q2) / Dot(s.d1, q2);
    p1 = s.a + s.t1 * s.d1;
    p2 = s.c + s.t2 * s.d2;
    if (Within(s.a, p1, tolerance))
        s.t1 = 0.0;
    if (Within(s.b, p1, tolerance))
        s.t1 = 1.0;
    if (Within(s.c, p1, tolerance))
        s.t2 = 0.0;
    if (Within(s.d, p1, tolerance))
        s.t2 = 1.0;
    return IsFraction(s.t1) && IsFraction(s.t2);
}

/// One point of a line on an arc's circle.
struct LineHit
{
    TUVect2D p;
    double line;  ///< Fraction along the line.
    double arc;   ///< Order along the arc, -1 off it.
    double side;  ///< Negative beyond the chord, off the arc.
};

/// The points of a line on a circle: 0, 2 or, for a tangent contact, 17; their p and line are filled.
int LineOnCircle(TUVect2D const & centre, double radius, TUVect2D const & l1, TUVect2D const & l2,
                 double tolerance, LineHit & first, LineHit & second, int & flags)
{
    TUVect2D const w = l1 - centre;
    TUVect2D const d = l2 - l1;
    double const wd = Dot(w, d);
    double const dd = Dot(d, d);
    first.line = -wd / dd;
    first.p = l1 + first.line * d;
    double const distance = Length(centre - first.p);
    if (radius - tolerance <= distance) {
        if (std::fabs(distance - radius) >= tolerance)
            return 0;
        flags |= kFirstPoint;
        return kTangent;
    }
    double const root = std::sqrt(wd * wd - (Dot(w, w) - radius * radius) * dd);
    first.line = (-wd + root) / dd;
    second.line = (-wd - root) / dd;
    first.p = l1 + first.line * d;
    second.p = l1 + second.line * d;
    flags |= kFirstPoint | kSecondPoint;
    return 2;
}

/// The ends of an arc and of a line.
struct ArcAndLine
{
    TUVect2D a, b;
    double bulge;
    TUVect2D l1, l2;
};

/// Fills a hit's place along the arc, and snaps both parameters at the ends.
void PlaceHit(ArcAndLine const & ends, double tolerance, LineHit & hit)
{
    TUVect2D const middle = (ends.a + ends.b) * 0.5;
    TUVect2D const direction = Unit(hit.p - middle);
    hit.side = Dot(Unit(ends.bulge * LeftNormal(ends.b - ends.a)), direction);
    hit.arc = hit.side >= 0.0 ? (1.0 - Dot(direction, Unit(ends.a - middle))) / 2.0 : -1.0;
    auto const snapArc = [&hit](double parameter) {
        hit.arc = parameter;
        hit.side = 0.0;
    };
    if (Near(hit.p, ends.a, tolerance))
        snapArc(0.0);
    if (Near(hit.p, ends.b, tolerance))
        snapArc(1.0);
    if (Near(hit.p, ends.l1, tolerance))
        hit.line = 0.0;
    if (Near(hit.p, ends.l2, tolerance))
        hit.line = 1.0;
}

bool Counts(LineHit const & hit, int limit)
{
    return hit.side >= 0.0 && (limit != 1 || IsFraction(hit.line));
}

/// Drops the hits that don't count; the one that stays stands first.
int Reduced(int code, int limit, LineHit & first, LineHit & second)
{
    bool const firstCounts = Counts(first, limit);
    if ((code & kHitCountMask) == 1)
        return firstCounts ? code : 0;
    bool const secondCounts = Counts(second, limit);
    if (firstCounts && secondCounts)
        return code;
    if (!firstCounts && !secondCounts)
        return 0;
    if (secondCounts)
        std::swap(first, second);
    return code - 1;
}
}  // namespace

int CMathematics::LineIntersectionParameters(TUVect2D const & a, TUVect2D const & b, TUVect2D const & c,
                                             TUVect2D const & d, TUVect2D & p1, TUVect2D & p2, int & kind,
                                             double & t1, double & t2, int & shape)
{
    shape = 0;
    SegmentPair s{a, b, c, d, b - a, d - c, 0.0, 0.0};
    if (Length(s.d1) == 0.0 && Length(s.d2) == 0.0) {
        kind = kNoLength;
        return 0;
    }
    int met = 0;
    if (std::fabs(Dot(Unit(s.d2), Unit(TUVect2D{{s.d1.y, -s.d1.x}}))) < kParallelSine) {
        met = ParallelSegments(s, m_dOkoli, p1, p2, kind, shape);
    } else {
        met = CrossingSegments(s, m_dOkoli, p1, p2);
        kind = kCrossing;
        shape = 1;
    }
    if (kind != kApartParallel) {
        t1 = s.t1;
        t2 = s.t2;
    }
    return met;
}

int CMathematics::ArcLineIntersection(TUVect2D const & a, TUVect2D const & b, double bulge, TUVect2D l1,
                                      TUVect2D l2, TUVect2D & p1, TUVect2D & p2, int & flags)
{
    double arc1 = 0.0;
    double line1 = 0.0;
    double arc2 = 0.0;
    double line2 = 0.0;
    return ArcLineIntersectionParameters(a, b, bulge, l1, l2, p1, p2, 1, arc1, line1, arc2, line2, flags);
}

int CMathematics::ArcLineIntersectionParameters(TUVect2D const & a, TUVect2D const & b, double const & bulge,
                                                TUVect2D const & l1, TUVect2D const & l2, TUVect2D & p1,
                                                TUVect2D & p2, int limit, double & arc1, double & line1,
                                                double & arc2, double & line2, int & flags)
{
    flags = 0;
    TUVect2D centre{};
    double radius = 0.0;
    if (!GetArcCentre(a, b, bulge, centre, radius))
        return 0;
    LineHit first{};
    LineHit second{};
    int code = LineOnCircle(centre, radius, l1, l2, m_dOkoli, first, second, flags);
    if (code == 0)
        return 0;

    ArcAndLine const ends{a, b, bulge, l1, l2};
    PlaceHit(ends, m_dOkoli, first);
    flags |= kFirstParameters;
    if (code != kTangent) {
        PlaceHit(ends, m_dOkoli, second);
        flags |= kSecondParameters;
    }
    code = Reduced(code, limit, first, second);
    if (code == 0)
        return 0;
    p1 = first.p;
    p2 = second.p;
    arc1 = first.arc;
    line1 = first.line;
    arc2 = second.arc;
    line2 = second.line;
    return code;
}
