#include <gtest/gtest.h>

#include "edge_samples.h"

using namespace arc_samples;

namespace {
TS3DBlock Box(TUVect3D const & min, TUVect3D const & max)
{
    return {min, max};
}

void ExpectBox(TS3DBlock const & box, TUVect3D const & min, TUVect3D const & max)
{
    ExpectNear(box.min, min, 1e-12);
    ExpectNear(box.max, max, 1e-12);
}

TEST(CalcBlock3D, SortsEachCoordinate)
{
    CMathematics math;
    TS3DBlock box;
    math.CalcBlock3D(At(3, 1, -2), At(1, 4, -5), &box);
    ExpectBox(box, At(1, 1, -5), At(3, 4, -2));
}

TEST(CalcBlock3DFromEdge, ArcCountsWithItsFullCircle)
{
    CMathematics math;
    TS3DBlock box;
    math.CalcBlock3DFromEdge(UnitArc(0, 90), &box);
    ExpectBox(box, At(-1, -1, -1), At(1, 1, 1));
    math.CalcBlock3DFromEdge(Arc(At(1, 2), At(5, 0), At(0, 1), 0.9e-5), &box);
    ExpectBox(box, At(1, 0), At(5, 2));
    math.CalcBlock3DFromEdge(Line(At(1, 2), At(5, 0)), &box);
    ExpectBox(box, At(1, 0), At(5, 2));
    math.CalcBlock3DFromEdge(Point(At(1, 2, 3)), &box);
    ExpectBox(box, At(1, 2, 3), At(1, 2, 3));
}

TEST(SumBlock3D, IsTheUnion)
{
    CMathematics math;
    TS3DBlock a = Box(At(0, 0, 0), At(2, 2, 2));
    TS3DBlock b = Box(At(1, -1, 5), At(3, 1, 6));
    TS3DBlock box;
    math.SumBlock3D(&a, &b, &box);
    ExpectBox(box, At(0, -1, 0), At(3, 2, 6));
    math.SumBlock3D(&a, &b, &a);
    ExpectBox(a, At(0, -1, 0), At(3, 2, 6));
}

TEST(CutBlock, IsTheOverlap)
{
    CMathematics math;
    TS3DBlock a = Box(At(0, 0, 0), At(2, 2, 2));
    TS3DBlock b = Box(At(1, -1, 1), At(3, 1, 6));
    TS3DBlock box;
    EXPECT_EQ(math.CutBlock(&a, &b, &box), 1);
    ExpectBox(box, At(1, 0, 1), At(2, 1, 2));
}

TEST(CutBlock, MissInXOrYFailsButNotInZ)
{
    CMathematics math;
    TS3DBlock a = Box(At(0, 0, 0), At(2, 2, 2));
    TS3DBlock inX = Box(At(3, 0, 0), At(4, 2, 2));
    TS3DBlock inY = Box(At(0, 3, 0), At(2, 4, 2));
    TS3DBlock inZ = Box(At(0, 0, 3), At(2, 2, 4));
    TS3DBlock box = Box(At(-7, -7, -7), At(-7, -7, -7));
    EXPECT_EQ(math.CutBlock(&a, &inX, &box), 0);
    EXPECT_EQ(box.min.x, 3.0);
    EXPECT_EQ(box.max.x, 2.0);
    EXPECT_EQ(box.min.y, -7.0);
    EXPECT_EQ(math.CutBlock(&a, &inY, &box), 0);
    EXPECT_EQ(box.min.y, 3.0);
    EXPECT_EQ(box.min.z, -7.0);
    EXPECT_EQ(math.CutBlock(&a, &inZ, &box), 1);
    ExpectBox(box, At(0, 0, 3), At(2, 2, 2));
}

TEST(IsIntersectionOfBlock, LooksAtAllThreeAxes)
{
    CMathematics math;
    TS3DBlock a = Box(At(0, 0, 0), At(2, 2, 2));
    TS3DBlock touching = Box(At(2, 2, 2), At(3, 3, 3));
    EXPECT_EQ(math.IsIntersectionOfBlock(&a, &touching), 1);
    for (int axis = 0; axis < 3; ++axis) {
        TS3DBlock beside = touching;
        beside.min.a[axis] = 2.0 + 0.9e-6;
        EXPECT_EQ(math.IsIntersectionOfBlock(&a, &beside), 1);
        beside.min.a[axis] = 2.0 + 1.1e-6;
        EXPECT_EQ(math.IsIntersectionOfBlock(&a, &beside), 0);
        EXPECT_EQ(math.IsIntersectionOfBlock(&beside, &a), 0);
    }
}

TEST(Boxes, HoldEveryPointOfTheirEdge)
{
    CMathematics math;
    std::mt19937 random(1);
    for (int i = 0; i < 300; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random));
        TS3DBlock box;
        math.CalcBlock3DFromEdge(sample.edge, &box);
        for (double share = 0.0; share <= 1.0; share += 0.05)
            for (int axis = 0; axis < 3; ++axis) {
                double const place = sample.Point(share * sample.sweep).a[axis];
                ASSERT_LE(box.min.a[axis], place + 1e-9 * sample.radius);
                ASSERT_GE(box.max.a[axis], place - 1e-9 * sample.radius);
            }
    }
}
}  // namespace
