#include <gtest/gtest.h>

#if !defined(_WIN32)

#include "allocation_counter.h"
#include "edge_samples.h"

using namespace arc_samples;

namespace {
TEST(Allocations, EdgeIntersectionAllocatesItsResultOnly)
{
    CMathematics math;
    TSPlaneEdge3D edges[] = {Point(At(0, 1)),           Line(At(-2, 0.5), At(2, 0.5)),
                             Line(At(0, -2), At(0, 2)), UnitArc(0, 180),
                             UnitArc(90, 270),          PlaneSample(At(1, 0), 1.0, 1.5, 3.0).edge};
    for (TSPlaneEdge3D & a : edges)
        for (TSPlaneEdge3D & b : edges) {
            Edges found;
            int result = 0;
            long const made = AllocationsOf(
                [&] { result = math.EdgeIntersection(&a, &b, found.array, found.count, found.how); });
            EXPECT_EQ(made, result);
        }
}

TEST(Allocations, OperationsThatHandOutNoArrayAllocateNothing)
{
    CMathematics math;
    TSPlaneEdge3D arc = UnitArc(0, 270);
    TSPlaneEdge3D part = UnitArc(90, 30);
    TSPlaneEdge3D line = Line(At(0, 0), At(4, 0));
    TSPlaneEdge3D result;
    TUVect3D point;
    TS3DBlock box;
    double number;
    long const made = AllocationsOf([&] {
        math.CompareEdge(&arc, &part);
        math.IsEdgeInEdge(&arc, &part);
        math.IsPoint3DInEdge3D(arc, part.start, number);
        math.Get3DPointOnEdge3D(arc, 0.3, 1, point);
        math.GetDerivationVectorOnEdge3D(arc, 0.3, 1);
        math.GetLengthEdge3D(&arc);
        math.GetSectionOfEdge(arc, 1.0, 2.0, &result);
        math.GetSectionOfEdge(line, 1.0, 2.0, &result);
        math.JointEdge3D(&line, &line, &result);
        math.HarmonyEdge(&arc, &part);
        math.TransformSubArc(line, line, arc, result);
        math.DivideEdgeFromEdge(&arc, &part, &line, &result, 1);
        math.CalcBlock3DFromEdge(arc, &box);
        math.PointOnCircle(arc.start, arc.end, arc.arcVector, arc.bulge, part.start);
        math.MovePointAlongArc(arc.start, arc.end, arc.arcVector, arc.bulge, part.start, 1.0, point);
        math.StretchEdge3D(arc, 2.0, result);
        math.CalcBulgeOf3DArc3Points(arc.start, arc.end, part.start, &point, number);
    });
    EXPECT_EQ(made, 0);
}
}  // namespace

#endif
