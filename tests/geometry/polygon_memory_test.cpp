// When memory runs out at any place of an intersection, the exception passes through, the result is as it was
// and everything is released.
#if !defined(_WIN32)  // the allocations of the library can't be made to fail there

#include <new>

#include "allocation_counter.h"
#include "geometry/detail_polygon_intersection.h"
#include "gtest/gtest.h"
#include "tests/geometry/polygon_shapes.h"

using namespace outlines;

namespace {
/// Runs an operation with memory for 0, 1, 2 ... allocations until it has enough; returns how often it threw.
template <class Operation>
int FailAtEachAllocation(Operation const & operation)
{
    int failures = 0;
    bool threw = true;
    for (long allowed = 0; threw; ++allowed) {
        SetArray untouched;
        SetArray * result = &untouched;
        long const before = LiveAllocations();
        threw = false;
        AllowAllocations(allowed);
        try {
            operation(result);
        } catch (std::bad_alloc const &) {
            threw = true;
        }
        AllowAllocations(-1);
        failures += threw ? 1 : 0;
        EXPECT_TRUE(!threw || result == &untouched);
        if (result != &untouched)
            detail::FreeGeneralSets(result);
        EXPECT_EQ(LiveAllocations(), before) << "with " << allowed << " allocations";
    }
    return failures;
}

void ExpectNothingLeaks(Outline const & outlineA, Outline const & outlineB)
{
    CMathematics math;
    MadeArea const a(outlineA);
    MadeArea const b(outlineB);
    EXPECT_GT(FailAtEachAllocation([&](SetArray *& result) { math.PolygonIntersection(&a, &b, result); }), 2);
}
}  // namespace

TEST(OutOfMemory, IntersectionOfLargeOutlinesReleasesEverything)
{
    auto const & [a, b] = shapes::Star(200);
    ExpectNothingLeaks(a, b);
}

TEST(OutOfMemory, IntersectionOfSmallOutlinesReleasesEverything)
{
    ExpectNothingLeaks(Rectangle(0, 0, 4, 4), Circle(4, 4, 2));
    ExpectNothingLeaks(Rectangle(0, 0, 4, 4), Rectangle(4, 1, 6, 3));
    ExpectNothingLeaks(Rectangle(0, 0, 4, 4), Rectangle(1, 1, 2, 2));
}

TEST(OutOfMemory, CutOfAnElementReleasesEverything)
{
    CMathematics math;
    MadeArea const area(shapes::Star(40).a);
    TSelem const e{EDGE_LINE, 0, {{-2, 0.1}}, {{2, 0.2}}, 0.0};
    auto const cut = [&](SetArray *&) {
        CArray<TSInterval, TSInterval &> intervals;
        math.EdgeAreaIntersection(e, *area, 0, intervals);
    };
    EXPECT_GT(FailAtEachAllocation(cut), 2);
}

#endif
