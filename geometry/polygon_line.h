#ifndef KX7_GEOMETRY_POLYGON_LINE_H
#define KX7_GEOMETRY_POLYGON_LINE_H

// A straight element of the plane with what its points and positions are computed from, in hand once for all.
// Digit for digit the operations in space (IsPoint3DInLine, GetPoint3DOnLine), whose third coordinate adds
// only zeros here.

#include "geometry/polygon_sides.h"
#include "geometry/snapped_vectors.h"

namespace detail {
class PlaneLine
{
  public:
    explicit PlaneLine(TSelem const & e)
        : m_start(e.start),
          m_end(e.end),
          m_length(Length(e.end - e.start)),
          m_direction(Unit(e.end - e.start))
    {
    }

    double GetLength() const { return m_length; }

    /// The point at a distance from the start.
    TUVect2D At(double distance) const { return m_start + distance * m_direction; }

    /// The same, as CMathematics::GetPoint3DOnLine: false beyond the ends.
    bool PointAt(double distance, double tolerance, TUVect2D & p) const
    {
        p = At(distance);
        double const along = Dot(p - m_start, m_direction);
        return along >= -tolerance && along <= m_length + tolerance;
    }

    /// As CMathematics::IsPoint3DInLine; 0 for a point that doesn't lie on the line.
    double PositionOf(TUVect2D const & p, double tolerance) const
    {
        if (IsSpacePlace(p, m_start, tolerance))
            return 0.0;
        if (IsSpacePlace(p, m_end, tolerance))
            return m_length;
        TUVect2D const trial = At(Length(m_start - p));
        return IsSpacePlace(trial, p, tolerance) ? Length(m_start - trial) : 0.0;
    }

  private:
    /// One place as CMathematics::ComparePoints in space takes it: in a sphere too, not only in a box.
    static bool IsSpacePlace(TUVect2D const & a, TUVect2D const & b, double tolerance)
    {
        double const x = a.x - b.x;
        double const y = a.y - b.y;
        return IsOnePlace(a, b, tolerance) && x * x + y * y <= tolerance * tolerance;
    }

    TUVect2D m_start;
    TUVect2D m_end;
    double m_length;
    TUVect2D m_direction;
};
}  // namespace detail

#endif
