#ifndef KX7_GEOMETRY_TRIANGLE_INTERSECTION_H
#define KX7_GEOMETRY_TRIANGLE_INTERSECTION_H

// The intersection of one triangle with a prepared polygon, from the pieces of both boundaries to the
// outlines.

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
    std::vector<std::size_t> nearElements;  // polygon elements that may touch the triangle
};

class TriangleIntersection
{
  public:
    /// `elements` are the sides of `points` with the interior on their left. Without an `index` every side is
    /// put to every other.
    TriangleIntersection(CMathematics & math, Area const & points, CArray<TSelem, TSelem &> const & elements,
                         PolygonIndex const * index, TriangleWork & work)
        : m_math(math), m_points(points), m_elements(elements), m_index(index), m_work(work)
    {
    }

    /// One of the results above; `result` is written with kPartOfTriangle only.
    int Run(Area const & triangle, GeneralSetArray *& result);

  private:
    bool CutTriangle(ContactFlags & flags);
    bool CutPolygon(ContactFlags & flags);
    int CutSide(TSelem const & side);
    void FindNearElements();
    bool IsInside(TUVect2D const & p) const;
    int Assemble(GeneralSetArray *& result);

    CMathematics & m_math;
    Area const & m_points;
    CArray<TSelem, TSelem &> const & m_elements;
    PolygonIndex const * m_index;
    TriangleWork & m_work;
    Area const * m_triangle = nullptr;
};
}  // namespace detail

#endif
