// Points and segments against rectangles of the view plane.

#include <algorithm>
#include <cmath>

#include "geometry/mathematics.h"
#include "geometry/view_projection.h"

using namespace detail;

namespace {
/// A range of one coordinate.
struct Span
{
    double low;
    double high;

    bool Contains(double value) const { return value >= low && value <= high; }
    bool ContainsInside(double value) const { return value > low && value < high; }
    bool Contains(Span const & other) const { return other.low >= low && other.high <= high; }
    bool Overlaps(Span const & other) const { return low <= other.high && high >= other.low; }
    Span Widened(double margin) const { return {low - margin, high + margin}; }
    double Clamped(double value) const { return std::min(std::max(value, low), high); }
};

/// The range between two values in any order.
Span Between(double a, double b)
{
    return {std::min(a, b), std::max(a, b)};
}

/// Whether the coordinate is within `okoli` of either end of the range.
bool IsAtBorder(Span const & span, double value, double okoli)
{
    return std::fabs(value - span.low) <= okoli || std::fabs(value - span.high) <= okoli;
}

/// A vertical segment meets the rectangle at an end or, spanning it, at the rectangle's middle height.
bool VerticalMeets(double x, Span const & segment, Span const & width, Span const & height)
{
    return width.Contains(x) && (height.Contains(segment.low) || height.Contains(segment.high) ||
                                 segment.Contains((height.low + height.high) / 2.0));
}
}  // namespace

int CMathematics::LineRectIntersection(TUVect3D const & a, TUVect3D const & b, double const & left,
                                       double const & top, double const & right, double const & bottom,
                                       double const (*matrix)[3])
{
    if (LineInRectangle(a, b, left, top, right, bottom, matrix) == 1)
        return 1;
    return LineIntersectsRectangle(a, b, left, top, right, bottom, matrix) == 1 ? 2 : 0;
}

int CMathematics::LineInRectangle(TUVect3D const & a, TUVect3D const & b, double const & left,
                                  double const & top, double const & right, double const & bottom,
                                  double const (*matrix)[3])
{
    TUVect2D const pa = Projected(matrix, a);
    TUVect2D const pb = Projected(matrix, b);
    return LineInRectangle(pa.x, pa.y, pb.x, pb.y, left, top, right, bottom);
}

int CMathematics::LineInRectangle(double const & x1, double const & y1, double const & x2, double const & y2,
                                  double const & left, double const & top, double const & right,
                                  double const & bottom)
{
    Span const width = Between(left, right);
    Span const height = Between(top, bottom);
    return width.Contains(x1) && width.Contains(x2) && height.Contains(y1) && height.Contains(y2);
}

int CMathematics::LineIntersectsRectangle(TUVect3D const & a, TUVect3D const & b, double const & left,
                                          double const & top, double const & right, double const & bottom,
                                          double const (*matrix)[3])
{
    TUVect2D const pa = Projected(matrix, a);
    TUVect2D const pb = Projected(matrix, b);
    return LineIntersectsRectangle(pa.x, pa.y, pb.x, pb.y, left, top, right, bottom);
}

int CMathematics::LineIntersectsRectangle(double const & x1, double const & y1, double const & x2,
                                          double const & y2, double const & left, double const & top,
                                          double const & right, double const & bottom)
{
    Span const width = Between(left, right);
    Span const height = Between(top, bottom);
    if (x1 == x2)
        return VerticalMeets(x1, Between(y1, y2), width, height);
    Span const reach = Between(x1, x2);
    if (!width.ContainsInside(x1) && !width.ContainsInside(x2) && !reach.Contains(width))
        return 0;
    // The height at a border beyond the segment's end is the height of that end.
    double const slope = (y2 - y1) / (x2 - x1);
    double const atLow = reach.Contains(width.low) ? y1 + slope * (width.low - x1) : (x1 < x2 ? y1 : y2);
    double const atHigh = reach.Contains(width.high) ? y1 + slope * (width.high - x1) : (x1 < x2 ? y2 : y1);
    return height.Overlaps(Between(atLow, atHigh));
}

int CMathematics::IsPointInRectangle(TUVect3D const & p, double const & left, double const & top,
                                     double const & right, double const & bottom, double const (*matrix)[3])
{
    return PointInRectangle(Projected(matrix, p), TUVect2D{{left, top}}, TUVect2D{{right, bottom}});
}

int CMathematics::PointInRectangle(TUVect2D const & p, TUVect2D const & c1, TUVect2D const & c2)
{
    double const margin = m_dOkoli / 2.0;
    return Between(c1.x, c2.x).Widened(margin).Contains(p.x) &&
           Between(c1.y, c2.y).Widened(margin).Contains(p.y);
}

char CMathematics::PointInRectangle(double const & x, double const & y, double const & x1, double const & y1,
                                    double const & x2, double const & y2)
{
    Span const width = Between(x1, x2);
    Span const height = Between(y1, y2);
    if (!width.Widened(m_dOkoli).Contains(x) || !height.Widened(m_dOkoli).Contains(y))
        return 'O';
    return IsAtBorder(width, x, m_dOkoli) || IsAtBorder(height, y, m_dOkoli) ? 'B' : 'I';
}
