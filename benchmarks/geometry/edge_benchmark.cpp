// Edges in space: what two of them have in common, and a section of one. Counted are calls, so that the time
// shown is per call; each runs over 512 pairs of edges with places in a square of 10 by 10 and lengths of
// about 3, of which some meet. Peers on the same input: Boost.Geometry's segment intersection, CGAL's
// circular kernel over double for arcs (both in the plane, both without overlaps within a tolerance), and the
// kernel's own intersection without quick rejections.
#include <vector>

#include "geometry/edges_set.h"
#include "geometry/mathematics.h"
#include "plane_pairs.h"

using namespace plane_pairs;

namespace {
void Intersection(benchmark::State & state, int typeA, int typeB)
{
    CMathematics math;
    auto pairs = MakePairs(typeA, typeB);
    TSPlaneEdge3D * result = nullptr;
    RunOver(state, pairs, [&](Pair & pair) {
        int count;
        int how;
        benchmark::DoNotOptimize(math.EdgeIntersection(&pair.a, &pair.b, result, count, how));
    });
    delete[] result;
}

void IntersectionWithoutRejections(benchmark::State & state, int typeA, int typeB)
{
    CMathematics math;
    auto pairs = MakePairs(typeA, typeB);
    RunOver(state, pairs, [&](Pair & pair) {
        detail::EdgeSet set;
        int how;
        benchmark::DoNotOptimize(detail::IntersectEdgesPlainly(math, pair.a, pair.b, set, how));
    });
}

void CgalLineArc(benchmark::State & state)
{
    Cgal<CgalLine, CgalArc>(state, EDGE_LINE, EDGE_ARC);
}

void CgalArcArc(benchmark::State & state)
{
    Cgal<CgalArc, CgalArc>(state, EDGE_ARC, EDGE_ARC);
}

// ---- sections -------------------------------------------------------------------------------------------

void Section(benchmark::State & state, int type)
{
    CMathematics math;
    auto pairs = MakePairs(type, type);
    TSPlaneEdge3D result{};
    RunOver(state, pairs,
            [&](Pair & pair) { benchmark::DoNotOptimize(math.GetSectionOfEdge(pair.a, 1.0, 2.0, &result)); });
}

void Division(benchmark::State & state, int type)
{
    CMathematics math;
    auto pairs = MakePairs(type, type);
    std::vector<TUVect3D> places(pairs.size());
    std::vector<std::size_t> indexes(pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        math.Get3DPointOnEdge3D(pairs[i].a, 0.4, 1, places[i]);
        indexes[i] = i;
    }
    TSPlaneEdge3D * pieces = nullptr;
    RunOver(state, indexes, [&](std::size_t i) {
        int count;
        benchmark::DoNotOptimize(math.DivideEdge3D(pairs[i].a, &places[i], 1, pieces, count));
    });
    delete[] pieces;
}

BENCHMARK_CAPTURE(Intersection, line_line, EDGE_LINE, EDGE_LINE);
BENCHMARK_CAPTURE(IntersectionWithoutRejections, line_line, EDGE_LINE, EDGE_LINE);
BENCHMARK(BoostSegments);
BENCHMARK_CAPTURE(Intersection, line_arc, EDGE_LINE, EDGE_ARC);
BENCHMARK_CAPTURE(IntersectionWithoutRejections, line_arc, EDGE_LINE, EDGE_ARC);
BENCHMARK(CgalLineArc);
BENCHMARK_CAPTURE(Intersection, arc_arc, EDGE_ARC, EDGE_ARC);
BENCHMARK_CAPTURE(IntersectionWithoutRejections, arc_arc, EDGE_ARC, EDGE_ARC);
BENCHMARK(CgalArcArc);
BENCHMARK_CAPTURE(Section, line, EDGE_LINE);
BENCHMARK_CAPTURE(Section, arc, EDGE_ARC);
BENCHMARK_CAPTURE(Division, line_in_two, EDGE_LINE);
BENCHMARK_CAPTURE(Division, arc_in_two, EDGE_ARC);
}  // namespace
