#ifndef KX7_GEOMETRY_TRIANGLE_INTERSECTION_H
#define KX7_GEOMETRY_TRIANGLE_INTERSECTION_H

// The intersection of one triangle with a prepared polygon, from the pieces of both boundaries to the
// outlines.

#include <array>
#include <vector>

#include "geometry/detail_plain_pieces.h"
#include "geometry/detail_polygon_stages.h"
#include "geometry/polygon_index.h"

namespace detail {
// Results for a triangle.
inline constexpr int kNoCommonArea = 0;
inline constexpr int kPartOfTriangle = 1;
inline constexpr int kWholeTriangle = 2;

/// Memory that serves one triangle after the other.
struct TriangleWork
{
    explicit TriangleWork(CMathematics & math) : trianglePieces(math), polygonPieces(math) {}

    PlainPieces trianglePieces;
    PlainPieces polygonPieces;
    IntervalArray intervals;
    std::vector<TSInterval> contacts;
    std::vector<std::size_t> nearSides;  ///< Ordinals of the polygon's sides that may touch the triangle.
};

/// A side of the triangle.
struct TriangleSide
{
    AreaSide side;
    SegmentFigure figure;
    double length;
};

using TriangleSides = std::array<TriangleSide, 3>;

class TriangleIntersection
{
  public:
    /// `elements` are the sides of `points` with the interior on their left. With an `index` only the sides
    /// that `work.nearSides` lists are put to the triangle, without one every side.
    TriangleIntersection(CMathematics & math, Area const & points, CArray<TSelem, TSelem &> const & elements,
                         PolygonIndex const * index, TriangleWork & work)
        : m_math(math), m_points(points), m_elements(elements), m_index(index), m_work(work)
    {
    }

    /// One of the results above; `result` is written with kPartOfTriangle only.
    int Run(Area const & triangle, GeneralSetArray *& result);

  private:
    void ReadTriangle(Area const & triangle);
    bool CutTriangle(ContactFlags & flags);
    bool CutPolygon(ContactFlags & flags);
    bool CutPolygonPlainly(Area const & triangle, ContactFlags & flags);
    int CutSide(TSelem const & e, SegmentFigure const & figure);
    int CutElement(TSelem const & e, std::size_t ordinal);
    bool AddPolygonPieces(TSelem const & e, int cut, ContactFlags & flags);
    bool IsInside(TUVect2D const & p) const;
    int Assemble(GeneralSetArray *& result);

    CMathematics & m_math;
    Area const & m_points;
    CArray<TSelem, TSelem &> const & m_elements;
    PolygonIndex const * m_index;
    TriangleWork & m_work;
    TriangleSides m_sides{};
};
}  // namespace detail

#endif
