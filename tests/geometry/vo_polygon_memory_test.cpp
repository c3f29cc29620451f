#include <gtest/gtest.h>

#if !defined(_WIN32)

#include <new>

#include "allocation_counter.h"
#include "geometry/vo_polygon.h"
#include "mesh_shapes.h"

using namespace mesh_shapes;
using outlines::Area;
using outlines::Fill;
using outlines::SetArray;
using outlines::Sets;

namespace {
/// A polygon asked for triangles many times over.
struct Prepared
{
    explicit Prepared(Outline const & outline, int testConvexity = 0) : polygon(&math)
    {
        Area area;
        Fill(area, outline);
        polygon.Create(area, testConvexity);
    }

    CMathematics math;
    CVOPolygon polygon;
};

/// The most allocations made for a triangle outside or inside a polygon, over a mesh all round and within it.
/// No triangle touches the polygon.
long AllocationsClearOfTheBoundary(Outline const & outline, int testConvexity)
{
    Prepared prepared(outline, testConvexity);
    Area triangle;
    long most = 0;
    for (double x = -3.0137; x < 3.0; x += 0.1103)
        for (double y = -3.0219; y < 3.0; y += 0.1107) {
            Fill(triangle, TriangleOf(V(x, y), V(x + 0.1, y), V(x, y + 0.0971)));
            SetArray * result = nullptr;
            int code = 0;
            long const made = AllocationsOf(
                [&] { code = prepared.polygon.LoadPolygonFEMTriangleIntersection(triangle, result); });
            Sets const owner(result);
            if (code != 1)
                most = std::max(most, made);
        }
    return most;
}
}  // namespace

TEST(LoadPolygonMemory, TrianglesClearOfTheBoundaryAllocateNothing)
{
    std::mt19937 random(1);
    for (int const testConvexity : {0, 1}) {
        EXPECT_EQ(AllocationsClearOfTheBoundary(Star(random, 100, false), testConvexity), 0);
        EXPECT_EQ(AllocationsClearOfTheBoundary(outlines::Rectangle(-1.23, -1.7, 2.1, 1.33), testConvexity),
                  0);
    }
    EXPECT_EQ(AllocationsClearOfTheBoundary(Spiral(2), 0), 0);
}

TEST(LoadPolygonMemory, NothingLeaksWhereverMemoryRunsOut)
{
    std::mt19937 random(2);
    Prepared prepared(Star(random, 12, true));
    Area triangle;
    Fill(triangle, TriangleOf(V(-3, -3), V(2.5, -2), V(-1, 2.5)));
    auto const ask = [&] {
        SetArray * result = nullptr;
        int const code = prepared.polygon.LoadPolygonFEMTriangleIntersection(triangle, result);
        return std::pair(code, Sets(result));
    };
    ASSERT_EQ(ask().first, 1);
    long const live = LiveAllocations();
    long const needed = AllocationsOf([&] { ask(); });
    ASSERT_GT(needed, 10);
    for (long allowed = 0; allowed < needed; ++allowed) {
        AllowAllocations(allowed);
        try {
            ask();
        } catch (std::bad_alloc const &) {
        }
        AllowAllocations(-1);
        EXPECT_EQ(LiveAllocations(), live) << allowed;
    }
    EXPECT_EQ(ask().first, 1);
}

TEST(LoadPolygonMemory, NothingLeaksWhereCreateRunsOutOfMemory)
{
    std::mt19937 random(3);
    Area area;
    Fill(area, Star(random, 12, true));
    long const live = LiveAllocations();
    long const needed = AllocationsOf([&] {
        CMathematics math;
        CVOPolygon polygon(&math);
        polygon.Create(area, 0);
    });
    for (long allowed = 0; allowed < needed; ++allowed) {
        AllowAllocations(allowed);
        try {
            CMathematics math;
            CVOPolygon polygon(&math);
            polygon.Create(area, 0);
        } catch (std::bad_alloc const &) {
        }
        AllowAllocations(-1);
        EXPECT_EQ(LiveAllocations(), live) << allowed;
    }
}

#endif
