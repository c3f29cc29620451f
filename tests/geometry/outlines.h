#ifndef KX7_TESTS_GEOMETRY_OUTLINES_H
#define KX7_TESTS_GEOMETRY_OUTLINES_H

// Outlines of areas as tests, fuzzers and benchmarks write them: a list of vertices and arc markers, in
// closed form once it goes into an area.

#include <cmath>
#include <initializer_list>
#include <memory>
#include <vector>

#include "geometry/mathematics.h"
#include "platform/base/array.h"

namespace outlines {
using Area = CArray<TSPoint2DPlane, TSPoint2DPlane &>;
using Outline = std::vector<TSPoint2DPlane>;
using SetArray = CArray<TSGeneralSet, TSGeneralSet &>;

inline TSPoint2DPlane V(double x, double y)
{
    return {x, y};
}

/// An arc from the vertex before to the vertex behind; the apex is on the left for a positive bulge.
inline TSPoint2DPlane Arc(double bulge)
{
    return {ARC_MARKER, bulge};
}

inline bool IsMarker(TSPoint2DPlane const & record)
{
    return record.x < ARC_MARKER_LIMIT;
}

/// The records with the first one repeated at the end.
inline Outline Closed(Outline outline)
{
    if (!outline.empty())
        outline.push_back(TSPoint2DPlane(outline.front()));
    return outline;
}

inline void Fill(Area & area, Outline const & outline)
{
    area.SetSize(static_cast<int>(outline.size()));
    for (std::size_t i = 0; i < outline.size(); ++i)
        area[static_cast<int>(i)] = outline[i];
}

/// An area made of records.
class MadeArea
{
  public:
    explicit MadeArea(Outline const & outline) { Fill(m_area, outline); }
    Area const * operator&() const { return &m_area; }
    Area const & operator*() const { return m_area; }

  private:
    Area m_area;
};

/// The same outline run the other way: the records reversed, the bulges of the opposite sign.
inline Outline Reversed(Outline const & outline)
{
    Outline reversed(outline.rbegin(), outline.rend());
    for (TSPoint2DPlane & record : reversed)
        if (IsMarker(record))
            record.y = -record.y;
    return reversed;
}

inline Outline Rectangle(double x1, double y1, double x2, double y2)
{
    return Closed({V(x1, y1), V(x2, y1), V(x2, y2), V(x1, y2)});
}

/// A circle of two half circles, counter-clockwise.
inline Outline Circle(double x, double y, double radius)
{
    return Closed({V(x - radius, y), Arc(-1.0), V(x + radius, y), Arc(-1.0)});
}

/// Signed surface of a closed outline, by triangles from its first vertex and circular segments: an oracle
/// that shares nothing with the kernel and works far from the origin too.
inline double OutlineSurface(Outline const & outline)
{
    double sum = 0.0;
    TSPoint2DPlane from{};
    double bulge = 0.0;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        TSPoint2DPlane const to = outline[i];
        if (IsMarker(to)) {
            bulge = to.y;
            continue;
        }
        if (i > 0) {
            double const x = to.x - from.x;
            double const y = to.y - from.y;
            sum += ((from.x - outline[0].x) * y - (from.y - outline[0].y) * x) / 2;
            double const angle = 4 * std::atan(std::fabs(bulge));
            double const radius = std::hypot(x, y) * (1 + bulge * bulge) / 4 / std::fabs(bulge);
            if (bulge != 0.0)
                sum -= std::copysign(radius * radius / 2 * (angle - std::sin(angle)), bulge);
        }
        from = to;
        bulge = 0.0;
    }
    return sum;
}

/// Frees a result of PolygonIntersection.
struct SetsDeleter
{
    void operator()(SetArray * sets) const
    {
        for (TSGeneralSet const & set : *sets)
            delete set.points;
        delete sets;
    }
};
using Sets = std::unique_ptr<SetArray, SetsDeleter>;

/// Code and members of one intersection.
struct Intersection
{
    int code;
    Sets sets;
};

inline Intersection Intersect(CMathematics & math, Outline const & a, Outline const & b)
{
    MadeArea const areaA(a);
    MadeArea const areaB(b);
    SetArray * result = nullptr;
    int const code = math.PolygonIntersection(&areaA, &areaB, result);
    return {code, Sets(result)};
}

/// The records of a member.
inline Outline RecordsOf(TSGeneralSet const & set)
{
    return {set.points->begin(), set.points->end()};
}
}  // namespace outlines

#endif
