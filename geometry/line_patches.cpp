// A line in space against a rectangle and against a bilinear patch.

#include <algorithm>
#include <cmath>
#include <limits>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// Directions with a smaller cosine or sine count as parallel.
constexpr double kParallel = 1e-10;

/// The code of a line that lies in the patch.
constexpr int kInPatch = 16;

/// The stretch of a line, in its own parameter, that passes one strip of a rectangle.
struct Stretch
{
    double low = -std::numeric_limits<double>::infinity();
    double high = std::numeric_limits<double>::infinity();
};

/// Whether a share of a side lies in 0 to 1, within `okoli` as a length.
bool IsOnSide(double share, double sideLength, double okoli)
{
    double const margin = sideLength > 0.0 ? okoli / sideLength : 0.0;
    return share >= -margin && share <= 1.0 + margin;
}

double ShareAlong(TUVect3D const & vector, TUVect3D const & side)
{
    return Dot(vector, side) / Dot(side, side);
}

/// Narrows the stretch to where the line passes between the ends of `side`. A line that keeps its place along
/// the side isn't narrowed; it must lie between the ends. Returns whether it does.
bool Narrow(Stretch & stretch, TUVect3D const & fromCorner, TUVect3D const & direction, TUVect3D const & side,
            double okoli)
{
    double const share = ShareAlong(fromCorner, side);
    double const slope = ShareAlong(direction, side);
    if (slope == 0.0)
        return IsOnSide(share, Length(side), okoli);
    double const first = -share / slope;
    double const second = (1.0 - share) / slope;
    stretch.low = std::max(stretch.low, std::min(first, second));
    stretch.high = std::min(stretch.high, std::max(first, second));
    return true;
}

/// A bilinear patch against a line: p(s) + w q(s), s along q0-q1, w across, with p = corner + s side and
/// q = across + s twist.
struct PatchLine
{
    TUVect3D corner;     // q0
    TUVect3D side;       // q0 to q1
    TUVect3D across;     // q0 to q3
    TUVect3D twist;      // what the crossing side gains from s = 0 to s = 1
    TUVect3D point;      // of the line
    TUVect3D direction;  // of the line
};

double Triple(TUVect3D const & a, TUVect3D const & b, TUVect3D const & c)
{
    return Dot(Cross(a, b), c);
}

/// The parameter w of the line's crossing with the patch's crossing side at `s`; false if it misses the side
/// or runs along it.
bool CrossSide(PatchLine const & patch, double s, double okoli, TUVect3D & crossing, double & w)
{
    TUVect3D const from = patch.corner + s * patch.side;
    TUVect3D const span = patch.across + s * patch.twist;
    TUVect3D const direction = Unit(patch.direction);
    TUVect3D const normal = Cross(Unit(span), direction);
    if (!(Length(normal) >= kParallel))
        return false;
    w = Triple(patch.point - from, direction, normal) / Dot(normal, normal) / Length(span);
    crossing = from + w * span;
    return IsOnSide(w, Length(patch.across), okoli);
}

/// The roots of A r^2 - B r + C = 0 in the order in which they are tried: their number, -1 if every r is one.
/// The limits follow the degree of the coefficients in lengths.
int Roots(double a, double b, double c, double okoli, double (&roots)[2])
{
    double const limit = okoli * okoli * okoli;
    if (std::fabs(a) < limit && std::fabs(b) < limit)
        return std::fabs(c) < limit ? -1 : 0;
    if (std::fabs(a) < limit) {
        roots[0] = c / b;
        return 1;
    }
    double const discriminant = b * b - 4.0 * a * c;
    if (!(discriminant >= -limit * limit))
        return 0;
    roots[0] = roots[1] = 0.5 * b / a;
    if (discriminant <= limit * limit)
        return 1;
    double const root = std::sqrt(discriminant);
    roots[0] = (b - root) * 0.5 / a;
    roots[1] = (b + root) * 0.5 / a;
    return 2;
}
}  // namespace

int CMathematics::LineRectangleIntersection(TUVect3D const & point, TUVect3D const & direction,
                                            TUVect3D const & corner, TUVect3D const & side1,
                                            TUVect3D const & side2, TUVect3D & result)
{
    TUVect3D const normal = Cross(side1, side2);
    TUVect3D const fromCorner = point - corner;
    double const product = Dot(side1, side1) * Dot(side2, side2);
    if (!(product > 0.0) || !std::isfinite(product))
        return 0;
    double const rise = Dot(direction, normal);
    if (std::fabs(rise) / std::sqrt(product) >= kParallel) {
        TUVect3D const crossing = point - Dot(fromCorner, normal) / rise * direction;
        if (!IsOnSide(ShareAlong(crossing - corner, side1), Length(side1), m_dOkoli) ||
            !IsOnSide(ShareAlong(crossing - corner, side2), Length(side2), m_dOkoli))
            return 0;
        result = crossing;
        return 1;
    }
    double const margin = 2.0 * m_dOkoli / Length(direction);
    Stretch common;
    if (!(std::fabs(Dot(fromCorner, normal)) / Length(normal) < m_dOkoli) ||
        !Narrow(common, fromCorner, direction, side1, m_dOkoli) ||
        !Narrow(common, fromCorner, direction, side2, m_dOkoli) || !(common.low <= common.high + margin) ||
        !std::isfinite(common.low) || !std::isfinite(common.high))
        return 0;
    result = point + (common.low + common.high) / 2.0 * direction;
    return 1;
}

int CMathematics::GetLineQuadIntersectionParameters(TUVect3D const & q0, TUVect3D const & q1,
                                                    TUVect3D const & q2, TUVect3D const & q3,
                                                    TUVect3D const & point, TUVect3D const & direction,
                                                    TUVect3D & p1, TUVect3D & p2, double & r1, double & s1,
                                                    double & r2, double & s2)
{
    PatchLine const patch = {q0, q1 - q0, q3 - q0, (q2 - q3) - (q1 - q0), point, direction};
    TUVect3D const toCorner = q0 - point;
    // The line meets the crossing side at s where (corner + s side - point), (across + s twist) and the
    // direction lie in one plane: a s^2 + b s + c = 0. The roots are taken for -s.
    double const a = Triple(patch.side, patch.twist, direction);
    double const b = Triple(toCorner, patch.twist, direction) + Triple(patch.side, patch.across, direction);
    double const c = Triple(toCorner, patch.across, direction);
    double roots[2];
    int const rootCount = Roots(a, b, c, m_dOkoli, roots);
    if (rootCount < 0)
        return kInPatch;
    TUVect3D * const points[] = {&p1, &p2};
    double * const along[] = {&r1, &r2};
    double * const across[] = {&s1, &s2};
    int count = 0;
    for (int i = 0; i < rootCount; ++i) {
        double const s = -roots[i];
        TUVect3D crossing;
        double w;
        if (!IsOnSide(s, Length(patch.side), m_dOkoli) || !CrossSide(patch, s, m_dOkoli, crossing, w))
            continue;
        *points[count] = crossing;
        *along[count] = s;
        *across[count] = w;
        ++count;
    }
    return count;
}

int CMathematics::GetLineQuadIntersection(TUVect3D const & q0, TUVect3D const & q1, TUVect3D const & q2,
                                          TUVect3D const & q3, TUVect3D const & point,
                                          TUVect3D const & direction, TUVect3D & p1, TUVect3D & p2)
{
    double r1;
    double s1;
    double r2;
    double s2;
    return GetLineQuadIntersectionParameters(q0, q1, q2, q3, point, direction, p1, p2, r1, s1, r2, s2);
}
