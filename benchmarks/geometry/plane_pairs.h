#ifndef KX7_BENCHMARKS_GEOMETRY_PLANE_PAIRS_H
#define KX7_BENCHMARKS_GEOMETRY_PLANE_PAIRS_H

// Input and peers of the intersection benchmarks: 512 pairs of edges in one plane, with places in a square of
// 10 by 10 and lengths of about 3, of which some meet; Boost.Geometry's segment intersection and CGAL's
// circular kernel over double on the same pairs.

#include <CGAL/Algebraic_kernel_for_circles_2_2.h>
#include <CGAL/Cartesian.h>
#include <CGAL/Circular_kernel_2.h>
#include <CGAL/Circular_kernel_intersections.h>
#include <benchmark/benchmark.h>

#include <boost/geometry/algorithms/intersection.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/segment.hpp>
#include <cmath>
#include <iterator>
#include <numbers>
#include <random>
#include <utility>
#include <vector>

#include "geometry/mathematics.h"

namespace plane_pairs {
inline constexpr int kPairs = 512;

struct Pair
{
    TSPlaneEdge3D a, b;
};

inline TSPlaneEdge3D MakeEdge(std::mt19937 & random, int type)
{
    std::uniform_real_distribution<double> place(0.0, 10.0);
    std::uniform_real_distribution<double> angle(0.0, 2.0 * std::numbers::pi);
    std::uniform_real_distribution<double> bulge(0.2, 2.0);
    TSPlaneEdge3D edge{};
    double const direction = angle(random);
    edge.start = {{place(random), place(random), 0.0}};
    edge.end = {{edge.start.x + 3.0 * std::cos(direction), edge.start.y + 3.0 * std::sin(direction), 0.0}};
    edge.type = type;
    if (type == EDGE_ARC) {
        edge.arcVector = {{-std::sin(direction), std::cos(direction), 0.0}};
        edge.bulge = bulge(random);
    }
    return edge;
}

inline std::vector<Pair> MakePairs(int typeA, int typeB)
{
    std::mt19937 random(1);
    std::vector<Pair> pairs(kPairs);
    for (Pair & pair : pairs)
        pair = {MakeEdge(random, typeA), MakeEdge(random, typeB)};
    return pairs;
}

/// Runs `call` over the pairs round and round, one pair an iteration.
template <typename Items, typename Call>
void RunOver(benchmark::State & state, Items & items, Call call)
{
    std::size_t next = 0;
    for (auto _ : state) {
        call(items[next]);
        next = (next + 1) % items.size();
    }
    state.SetItemsProcessed(state.iterations());
}

// ---- peers ----------------------------------------------------------------------------------------------

inline void BoostSegments(benchmark::State & state)
{
    using Place = boost::geometry::model::d2::point_xy<double>;
    using Segment = boost::geometry::model::segment<Place>;
    std::vector<std::pair<Segment, Segment>> pairs;
    auto const segment = [](TSPlaneEdge3D const & edge) {
        return Segment(Place(edge.start.x, edge.start.y), Place(edge.end.x, edge.end.y));
    };
    for (Pair const & pair : MakePairs(EDGE_LINE, EDGE_LINE))
        pairs.emplace_back(segment(pair.a), segment(pair.b));
    std::vector<Place> found;
    RunOver(state, pairs, [&](auto const & pair) {
        found.clear();
        boost::geometry::intersection(pair.first, pair.second, found);
        benchmark::DoNotOptimize(found.data());
    });
}

using LinearKernel = CGAL::Cartesian<double>;
using CircularKernel = CGAL::Circular_kernel_2<LinearKernel, CGAL::Algebraic_kernel_for_circles_2_2<double>>;
using CgalPoint = CircularKernel::Point_2;
using CgalArc = CircularKernel::Circular_arc_2;
using CgalLine = CircularKernel::Line_arc_2;

inline CgalPoint PlacePoint(TUVect3D const & p)
{
    return {p.x, p.y};
}

inline CgalLine CgalEdge(TSPlaneEdge3D const & edge, CgalLine const *)
{
    return {PlacePoint(edge.start), PlacePoint(edge.end)};
}

inline CgalArc CgalEdge(TSPlaneEdge3D const & edge, CgalArc const *)
{
    CMathematics math;
    TUVect3D middle{};
    math.Get3DPointOnEdge3D(edge, 0.5, 1, middle);
    return {PlacePoint(edge.start), PlacePoint(middle), PlacePoint(edge.end)};
}

template <typename A, typename B>
void Cgal(benchmark::State & state, int typeA, int typeB)
{
    using Found = CGAL::CK2_Intersection_traits<CircularKernel, A, B>::type;
    std::vector<std::pair<A, B>> pairs;
    for (Pair const & pair : MakePairs(typeA, typeB))
        pairs.emplace_back(CgalEdge(pair.a, static_cast<A const *>(nullptr)),
                           CgalEdge(pair.b, static_cast<B const *>(nullptr)));
    std::vector<Found> found;
    RunOver(state, pairs, [&](auto const & pair) {
        found.clear();
        CGAL::intersection(pair.first, pair.second, std::back_inserter(found));
        benchmark::DoNotOptimize(found.data());
    });
}

}  // namespace plane_pairs

#endif
