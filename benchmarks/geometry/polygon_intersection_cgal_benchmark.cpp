// CGAL's general polygon set of circle segments on the named shapes, beside polygon_intersection_benchmark:
// the making of both sets and their intersection apart.

#include <CGAL/Exact_predicates_exact_constructions_kernel.h>
#include <CGAL/General_polygon_set_2.h>
#include <CGAL/Gps_circle_segment_traits_2.h>

#include "benchmark/benchmark.h"
#include "tests/geometry/polygon_shapes.h"

namespace {
using namespace outlines;
using Kernel = CGAL::Exact_predicates_exact_constructions_kernel;
using Traits = CGAL::Gps_circle_segment_traits_2<Kernel>;
using CurvedPolygon = Traits::Polygon_2;
using Point = Kernel::Point_2;
using PolygonSet = CGAL::General_polygon_set_2<Traits>;

/// The point on the arc's middle; an arc through three points keeps its numbers rational.
Point Apex(TSPoint2DPlane const & from, TSPoint2DPlane const & to, double bulge)
{
    double const x = to.x - from.x;
    double const y = to.y - from.y;
    return {(from.x + to.x) / 2 - bulge * y / 2, (from.y + to.y) / 2 + bulge * x / 2};
}

CurvedPolygon CgalOf(Outline const & outline)
{
    Traits const traits;
    CurvedPolygon polygon;
    auto const add = [&](Traits::Curve_2 const & curve) {
        std::vector<CGAL::Object> parts;
        traits.make_x_monotone_2_object()(curve, std::back_inserter(parts));
        for (CGAL::Object const & part : parts) {
            Traits::X_monotone_curve_2 piece;
            CGAL::assign(piece, part);
            polygon.push_back(piece);
        }
    };
    for (std::size_t i = 0; i + 1 < outline.size(); ++i) {
        TSPoint2DPlane const from = outline[i];
        bool const isArc = IsMarker(outline[i + 1]);
        double const bulge = isArc ? outline[++i].y : 0.0;
        TSPoint2DPlane const to = outline[i + 1];
        Point const start(from.x, from.y);
        Point const end(to.x, to.y);
        if (isArc)
            add(Traits::Curve_2(start, Apex(from, to, bulge), end));
        else
            add(Traits::Curve_2(start, end));
    }
    return polygon;
}

shapes::Pair ShapeOf(benchmark::State const & state, int index)
{
    return shapes::All()[static_cast<std::size_t>(index)].make(static_cast<int>(state.range(0)));
}

void CgalMaking(benchmark::State & state, int shape)
{
    shapes::Pair const pair = ShapeOf(state, shape);
    for (auto _ : state) {
        PolygonSet a(CgalOf(pair.a));
        PolygonSet b(CgalOf(pair.b));
        benchmark::DoNotOptimize(&a);
        benchmark::DoNotOptimize(&b);
    }
}

void Cgal(benchmark::State & state, int shape)
{
    shapes::Pair const pair = ShapeOf(state, shape);
    for (auto _ : state) {
        state.PauseTiming();
        PolygonSet a(CgalOf(pair.a));
        PolygonSet const b(CgalOf(pair.b));
        state.ResumeTiming();
        a.intersection(b);
        benchmark::DoNotOptimize(&a);
    }
}

#define KX7_CGAL_SIZES ->Arg(12)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond)
BENCHMARK_CAPTURE(CgalMaking, rounded, 2) KX7_CGAL_SIZES;
BENCHMARK_CAPTURE(Cgal, rounded, 2) KX7_CGAL_SIZES;
BENCHMARK_CAPTURE(CgalMaking, gear, 3) KX7_CGAL_SIZES;
BENCHMARK_CAPTURE(Cgal, gear, 3) KX7_CGAL_SIZES;
}  // namespace
