// A prepared polygon of n sides asked for triangles outside, inside and on its boundary; counts triangles.
// The triangles lie spread over the polygon's surroundings, a hundredth of its size each. Peer: GEOS's
// prepared geometry (C API), asked for contains and intersects and, where the boundary is met, for the
// intersection of the unprepared geometries, as its prepared form has none. GEOS knows no arcs: it gets each
// arc as 8 segments.
#include <benchmark/benchmark.h>
#include <geos_c.h>

#include <cmath>
#include <cstdarg>
#include <memory>
#include <numbers>
#include <random>
#include <vector>

#include "geometry/vo_polygon.h"

namespace {
using Area = CArray<TSPoint2DPlane, TSPoint2DPlane &>;
using SetArray = CArray<TSGeneralSet, TSGeneralSet &>;

constexpr int kTriangles = 4096;
constexpr int kSegmentsOfArc = 8;

enum Place
{
    kOutsidePlace,
    kInsidePlace,
    kBoundaryPlace
};

// A star round the origin with radii from 1 to 2, concave; with arcs every other side one of them.
std::vector<TSPoint2DPlane> StarRecords(int sides, bool arcs)
{
    std::vector<TSPoint2DPlane> records;
    for (int i = 0; i < sides; ++i) {
        double const angle = 2.0 * std::numbers::pi * i / sides;
        double const radius = 1.5 + 0.5 * std::sin(5.0 * angle);
        records.push_back({radius * std::cos(angle), radius * std::sin(angle)});
        if (arcs && i % 2 == 0)
            records.push_back({ARC_MARKER, 0.2});
    }
    records.push_back(TSPoint2DPlane(records.front()));
    return records;
}

struct Kernel
{
    Kernel(int sides, bool arcs) : polygon(&math)
    {
        Area area;
        for (TSPoint2DPlane record : StarRecords(sides, arcs))
            area.Add(record);
        polygon.Create(area, 0);
    }

    int Ask(Area & triangle)
    {
        SetArray * sets = nullptr;
        int const code = polygon.LoadPolygonFEMTriangleIntersection(triangle, sets);
        if (sets) {
            for (TSGeneralSet const & set : *sets)
                delete set.points;
            delete sets;
        }
        return code;
    }

    CMathematics math;
    CVOPolygon polygon;
};

void SetTriangle(Area & triangle, TSPoint2DPlane at, double size)
{
    triangle.SetSize(4);
    triangle[0] = triangle[3] = at;
    triangle[1] = {at.x + size, at.y + 0.1 * size};
    triangle[2] = {at.x + 0.2 * size, at.y + size};
}

// Triangles of the wanted place: 0 outside, 2 inside, 1 across the boundary.
std::vector<std::unique_ptr<Area>> TrianglesOf(Kernel & kernel, Place place)
{
    int const wanted = place == kOutsidePlace ? 0 : place == kInsidePlace ? 2 : 1;
    std::mt19937 random(4);
    std::uniform_real_distribution<double> coordinate(-2.1, 2.1);
    std::vector<std::unique_ptr<Area>> triangles;
    while (triangles.size() < kTriangles) {
        auto triangle = std::make_unique<Area>();
        SetTriangle(*triangle, {coordinate(random), coordinate(random)}, 0.04);
        if (kernel.Ask(*triangle) == wanted)
            triangles.push_back(std::move(triangle));
    }
    return triangles;
}

void PreparedPolygon(benchmark::State & state)
{
    Kernel kernel(static_cast<int>(state.range(0)), state.range(1) != 0);
    auto const triangles = TrianglesOf(kernel, static_cast<Place>(state.range(2)));
    int sum = 0;
    for (auto _ : state)
        for (auto const & triangle : triangles)
            sum += kernel.Ask(*triangle);
    benchmark::DoNotOptimize(sum);
    state.SetItemsProcessed(state.iterations() * kTriangles);
}

void PlainPolygon(benchmark::State & state)
{
    Kernel kernel(static_cast<int>(state.range(0)), state.range(1) != 0);
    auto const triangles = TrianglesOf(kernel, static_cast<Place>(state.range(2)));
    int sum = 0;
    std::size_t next = 0;
    for (auto _ : state) {
        SetArray * sets = nullptr;
        sum += kernel.polygon.IntersectTrianglePlainly(*triangles[next++ % kTriangles], sets);
        if (sets) {
            for (TSGeneralSet const & set : *sets)
                delete set.points;
            delete sets;
        }
    }
    benchmark::DoNotOptimize(sum);
    state.SetItemsProcessed(state.iterations());
}

void Prepare(benchmark::State & state)
{
    Kernel kernel(static_cast<int>(state.range(0)), state.range(1) != 0);
    Area area;
    for (TSPoint2DPlane record : StarRecords(static_cast<int>(state.range(0)), state.range(1) != 0))
        area.Add(record);
    for (auto _ : state)
        kernel.polygon.Create(area, 0);
}

// The records as a ring of segments.
std::vector<TUVect2D> Flattened(std::vector<TSPoint2DPlane> const & records)
{
    CMathematics math;
    std::vector<TUVect2D> ring;
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (records[i].x > ARC_MARKER_LIMIT) {
            ring.push_back({{records[i].x, records[i].y}});
            continue;
        }
        TUVect3D const from = {{records[i - 1].x, records[i - 1].y, 0.0}};
        TUVect3D const to = {{records[i + 1].x, records[i + 1].y, 0.0}};
        TUVect3D const toApex = {{from.y - to.y, to.x - from.x, 0.0}};
        for (int k = 1; k < kSegmentsOfArc; ++k) {
            TUVect3D p = {};
            math.Get3DPointOnArc(from, to, toApex, records[i].y, static_cast<double>(k) / kSegmentsOfArc, 1,
                                 p);
            ring.push_back({{p.x, p.y}});
        }
    }
    return ring;
}

class Geos
{
  public:
    Geos() : m_context(GEOS_init_r()) {}
    ~Geos()
    {
        GEOSPreparedGeom_destroy_r(m_context, m_prepared);
        GEOSGeom_destroy_r(m_context, m_polygon);
        for (GEOSGeometry * triangle : m_triangles)
            GEOSGeom_destroy_r(m_context, triangle);
        GEOS_finish_r(m_context);
    }
    Geos(Geos const &) = delete;
    Geos & operator=(Geos const &) = delete;

    void SetPolygon(std::vector<TUVect2D> const & ring)
    {
        m_polygon = Polygon(ring);
        m_prepared = GEOSPrepare_r(m_context, m_polygon);
    }

    void AddTriangle(Area const & triangle)
    {
        std::vector<TUVect2D> ring;
        for (TSPoint2DPlane const & record : triangle)
            ring.push_back({{record.x, record.y}});
        m_triangles.push_back(Polygon(ring));
    }

    int Ask(std::size_t i)
    {
        GEOSGeometry * triangle = m_triangles[i];
        if (!GEOSPreparedIntersects_r(m_context, m_prepared, triangle))
            return 0;
        if (GEOSPreparedContains_r(m_context, m_prepared, triangle))
            return 2;
        GEOSGeometry * common = GEOSIntersection_r(m_context, m_polygon, triangle);
        GEOSGeom_destroy_r(m_context, common);
        return 1;
    }

  private:
    GEOSGeometry * Polygon(std::vector<TUVect2D> const & ring)
    {
        auto const size = static_cast<unsigned int>(ring.size());
        GEOSCoordSequence * sequence = GEOSCoordSeq_create_r(m_context, size, 2);
        for (unsigned int i = 0; i < size; ++i) {
            GEOSCoordSeq_setX_r(m_context, sequence, i, ring[i].x);
            GEOSCoordSeq_setY_r(m_context, sequence, i, ring[i].y);
        }
        return GEOSGeom_createPolygon_r(m_context, GEOSGeom_createLinearRing_r(m_context, sequence), nullptr,
                                        0);
    }

    GEOSContextHandle_t m_context;
    GEOSGeometry * m_polygon = nullptr;
    GEOSPreparedGeometry const * m_prepared = nullptr;
    std::vector<GEOSGeometry *> m_triangles;
};

void GeosPrepared(benchmark::State & state)
{
    int const sides = static_cast<int>(state.range(0));
    bool const arcs = state.range(1) != 0;
    Kernel kernel(sides, arcs);
    Geos geos;
    geos.SetPolygon(Flattened(StarRecords(sides, arcs)));
    for (auto const & triangle : TrianglesOf(kernel, static_cast<Place>(state.range(2))))
        geos.AddTriangle(*triangle);
    int sum = 0;
    for (auto _ : state)
        for (std::size_t i = 0; i < kTriangles; ++i)
            sum += geos.Ask(i);
    benchmark::DoNotOptimize(sum);
    state.SetItemsProcessed(state.iterations() * kTriangles);
}
}  // namespace

BENCHMARK(PreparedPolygon)
    ->ArgsProduct({{10, 100, 1000}, {0, 1}, {0, 1, 2}})
    ->ArgNames({"sides", "arcs", "place"});
BENCHMARK(GeosPrepared)
    ->ArgsProduct({{10, 100, 1000}, {0, 1}, {0, 1, 2}})
    ->ArgNames({"sides", "arcs", "place"});
BENCHMARK(PlainPolygon)
    ->ArgsProduct({{10, 100, 1000}, {0, 1}, {0, 1, 2}})
    ->ArgNames({"sides", "arcs", "place"});
BENCHMARK(Prepare)
    ->ArgsProduct({{10, 100, 1000}, {0, 1}})
    ->ArgNames({"sides", "arcs"})
    ->Unit(benchmark::kMicrosecond);
