// The intersection of two outlines of n sides, for the four named shapes. Counted is one whole intersection
// from outlines that stand ready in each library's own form to the released result. Peers: Boost.Geometry
// (polygons of doubles), GEOS (C interface), CGAL (general polygon set of circle segments, exact numbers; the
// making of the sets, which a host has to pay too, is counted apart). For shapes with arcs the straight
// libraries have no peer.

#include <geos_c.h>

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/multi_polygon.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>

#include "benchmark/benchmark.h"
#include "geometry/detail_polygon_intersection.h"
#include "tests/geometry/polygon_shapes.h"

namespace {
using namespace outlines;
namespace bg = boost::geometry;
using BoostPolygon = bg::model::polygon<bg::model::d2::point_xy<double>, false, true>;
using BoostPolygons = bg::model::multi_polygon<BoostPolygon>;

shapes::Pair ShapeOf(benchmark::State const & state, int index)
{
    return shapes::All()[static_cast<std::size_t>(index)].make(static_cast<int>(state.range(0)));
}

/// Reports time over n log n too, so that the growth is seen at a glance.
void SetCounters(benchmark::State & state)
{
    double const n = static_cast<double>(state.range(0));
    state.counters["per n log n"] = benchmark::Counter(
        n * std::log2(n), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Own(benchmark::State & state, int shape)
{
    shapes::Pair const pair = ShapeOf(state, shape);
    MadeArea const a(pair.a);
    MadeArea const b(pair.b);
    CMathematics math;
    for (auto _ : state) {
        SetArray * result = nullptr;
        benchmark::DoNotOptimize(math.PolygonIntersection(&a, &b, result));
        detail::FreeGeneralSets(result);
    }
    SetCounters(state);
}

void Plain(benchmark::State & state, int shape)
{
    shapes::Pair const pair = ShapeOf(state, shape);
    MadeArea const a(pair.a);
    MadeArea const b(pair.b);
    CMathematics math;
    for (auto _ : state) {
        SetArray * result = nullptr;
        benchmark::DoNotOptimize(detail::PolygonIntersectionPlain(math, *a, *b, result));
        detail::FreeGeneralSets(result);
    }
}

BoostPolygon BoostOf(Outline const & outline)
{
    BoostPolygon polygon;
    for (TSPoint2DPlane const & v : outline)
        bg::append(polygon.outer(), bg::model::d2::point_xy<double>(v.x, v.y));
    return polygon;
}

void Boost(benchmark::State & state, int shape)
{
    shapes::Pair const pair = ShapeOf(state, shape);
    BoostPolygon const a = BoostOf(pair.a);
    BoostPolygon const b = BoostOf(pair.b);
    for (auto _ : state) {
        BoostPolygons common;
        bg::intersection(a, b, common);
        benchmark::DoNotOptimize(common.data());
    }
    SetCounters(state);
}

GEOSGeometry * GeosOf(GEOSContextHandle_t geos, Outline const & outline)
{
    GEOSCoordSequence * const points = GEOSCoordSeq_create_r(geos, static_cast<unsigned>(outline.size()), 2);
    for (unsigned i = 0; i < outline.size(); ++i)
        GEOSCoordSeq_setXY_r(geos, points, i, outline[i].x, outline[i].y);
    return GEOSGeom_createPolygon_r(geos, GEOSGeom_createLinearRing_r(geos, points), nullptr, 0);
}

void Geos(benchmark::State & state, int shape)
{
    shapes::Pair const pair = ShapeOf(state, shape);
    GEOSContextHandle_t const geos = GEOS_init_r();
    GEOSGeometry * const a = GeosOf(geos, pair.a);
    GEOSGeometry * const b = GeosOf(geos, pair.b);
    for (auto _ : state)
        GEOSGeom_destroy_r(geos, GEOSIntersection_r(geos, a, b));
    GEOSGeom_destroy_r(geos, a);
    GEOSGeom_destroy_r(geos, b);
    GEOS_finish_r(geos);
    SetCounters(state);
}

constexpr int kWavy = 0;
constexpr int kStar = 1;
constexpr int kRounded = 2;
constexpr int kGear = 3;

#define KX7_SIZES ->Arg(12)->Arg(100)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond)
#define KX7_SMALL ->Arg(12)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond)
BENCHMARK_CAPTURE(Own, wavy, kWavy) KX7_SIZES;
BENCHMARK_CAPTURE(Boost, wavy, kWavy) KX7_SIZES;
BENCHMARK_CAPTURE(Geos, wavy, kWavy) KX7_SIZES;
BENCHMARK_CAPTURE(Plain, wavy, kWavy) KX7_SMALL;
BENCHMARK_CAPTURE(Own, star, kStar) KX7_SIZES;
BENCHMARK_CAPTURE(Boost, star, kStar) KX7_SIZES;
BENCHMARK_CAPTURE(Geos, star, kStar) KX7_SIZES;
BENCHMARK_CAPTURE(Plain, star, kStar) KX7_SMALL;
BENCHMARK_CAPTURE(Own, rounded, kRounded) KX7_SIZES;
BENCHMARK_CAPTURE(Plain, rounded, kRounded) KX7_SMALL;
BENCHMARK_CAPTURE(Own, gear, kGear) KX7_SIZES;
BENCHMARK_CAPTURE(Plain, gear, kGear) KX7_SMALL;
}  // namespace
