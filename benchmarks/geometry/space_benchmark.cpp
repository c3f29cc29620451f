// Vectors, lines and arcs in space. Counted are calls, so that the time shown is per call. Intersections run
// over the pairs of plane_pairs.h; their peers are Boost.Geometry's segment intersection and CGAL's circular
// kernel over double, which work in the plane and without a tolerance. Vector arithmetic runs over 1024
// random vectors; its peer is the same formula without snapping, in CGAL's simple Cartesian kernel over
// double.
#include <CGAL/Simple_cartesian.h>

#include <random>
#include <vector>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"
#include "plane_pairs.h"

using namespace plane_pairs;

namespace {
constexpr int kVectors = 1024;

std::vector<TUVect3D> MakeVectors()
{
    std::mt19937 random(2);
    std::uniform_real_distribution<double> coordinate(-10.0, 10.0);
    std::vector<TUVect3D> vectors(kVectors);
    for (TUVect3D & vector : vectors)
        for (double & value : vector.a)
            value = coordinate(random);
    return vectors;
}

// ---- vectors --------------------------------------------------------------------------------------------

/// One step of what the kernel does most: (a - b) x c . a.
void SnappedVectors(benchmark::State & state)
{
    using namespace detail;
    auto const vectors = MakeVectors();
    std::size_t i = 0;
    for (auto _ : state) {
        TUVect3D const & a = vectors[i % kVectors];
        TUVect3D const & b = vectors[(i + 1) % kVectors];
        TUVect3D const & c = vectors[(i + 2) % kVectors];
        benchmark::DoNotOptimize(Dot(Cross(a - b, c), a));
        ++i;
    }
    state.SetItemsProcessed(state.iterations());
}

void CgalVectors(benchmark::State & state)
{
    using Vector = CGAL::Simple_cartesian<double>::Vector_3;
    std::vector<Vector> vectors;
    for (TUVect3D const & v : MakeVectors())
        vectors.emplace_back(v.x, v.y, v.z);
    std::size_t i = 0;
    for (auto _ : state) {
        Vector const & a = vectors[i % kVectors];
        Vector const & b = vectors[(i + 1) % kVectors];
        Vector const & c = vectors[(i + 2) % kVectors];
        benchmark::DoNotOptimize(CGAL::cross_product(a - b, c) * a);
        ++i;
    }
    state.SetItemsProcessed(state.iterations());
}

void VectorProduct(benchmark::State & state)
{
    CMathematics math;
    auto const vectors = MakeVectors();
    std::size_t i = 0;
    for (auto _ : state) {
        TUVect3D a = vectors[i % kVectors];
        TUVect3D b = vectors[(i + 1) % kVectors];
        TUVect3D result;
        benchmark::DoNotOptimize(math.VectorProduct(&a, &b, &result));
        benchmark::DoNotOptimize(result);
        ++i;
    }
    state.SetItemsProcessed(state.iterations());
}

// ---- intersections --------------------------------------------------------------------------------------

void LineLine(benchmark::State & state)
{
    CMathematics math;
    auto pairs = MakePairs(EDGE_LINE, EDGE_LINE);
    RunOver(state, pairs, [&](Pair const & pair) {
        TUVect3D p1;
        TUVect3D p2;
        int kind;
        benchmark::DoNotOptimize(
            math.LineIntersection(pair.a.start, pair.a.end, pair.b.start, pair.b.end, 1, p1, p2, kind));
    });
}

void ArcLine(benchmark::State & state)
{
    CMathematics math;
    auto pairs = MakePairs(EDGE_LINE, EDGE_ARC);
    RunOver(state, pairs, [&](Pair const & pair) {
        TUVect3D p1;
        TUVect3D p2;
        benchmark::DoNotOptimize(math.ArcLineIntersectionPlus(
            pair.b.start, pair.b.end, pair.b.arcVector, pair.b.bulge, pair.a.start, pair.a.end, p1, p2, 1));
    });
}

void ArcArc(benchmark::State & state)
{
    CMathematics math;
    auto pairs = MakePairs(EDGE_ARC, EDGE_ARC);
    RunOver(state, pairs, [&](Pair const & pair) {
        TUVect3D p1;
        TUVect3D p2;
        benchmark::DoNotOptimize(math.ArcIntersection(pair.a.start, pair.a.end, pair.a.arcVector,
                                                      pair.a.bulge, pair.b.start, pair.b.end,
                                                      pair.b.arcVector, pair.b.bulge, p1, p2));
    });
}

void CgalLineAgainstArc(benchmark::State & state)
{
    Cgal<CgalLine, CgalArc>(state, EDGE_LINE, EDGE_ARC);
}

void CgalArcAgainstArc(benchmark::State & state)
{
    Cgal<CgalArc, CgalArc>(state, EDGE_ARC, EDGE_ARC);
}

BENCHMARK(SnappedVectors);
BENCHMARK(CgalVectors);
BENCHMARK(VectorProduct);
BENCHMARK(LineLine);
BENCHMARK(BoostSegments)->Name("LineLine/boost");
BENCHMARK(ArcLine);
BENCHMARK(CgalLineAgainstArc)->Name("ArcLine/cgal");
BENCHMARK(ArcArc);
BENCHMARK(CgalArcAgainstArc)->Name("ArcArc/cgal");
}  // namespace
