#include <memory>

#include "geometry/mathematics.h"
#include "space_samples.h"

using namespace space;

namespace {
struct Cut
{
    int result;
    std::unique_ptr<TSPlaneEdge3D[]> pieces;
    int count;
};

Cut CutEdge(TSPlaneEdge3D edge, TSPlane const & plane)
{
    CMathematics math;
    TSPlaneEdge3D * pieces = nullptr;
    Cut cut;
    cut.count = -77;
    cut.result = math.EdgeTSPlaneIntersection(&edge, plane, pieces, cut.count);
    cut.pieces.reset(pieces);
    return cut;
}

TSPlane const kGround = {P(0, 0, 0), P(0, 0, 1)};

TSPlaneEdge3D Point(TUVect3D const & p)
{
    return {p, p, {}, 0.0, EDGE_POINT};
}

TSPlaneEdge3D Segment(TUVect3D const & a, TUVect3D const & b)
{
    return {a, b, {}, 0.0, EDGE_LINE};
}

/// The upper half circle of radius 1 in the plane y = 0, about (1, 0, height).
TSPlaneEdge3D Arch(double height)
{
    return {P(0, 0, height), P(2, 0, height), P(0, 0, 1), 1.0, EDGE_ARC};
}

void ExpectPointEdge(TSPlaneEdge3D const & edge, TUVect3D const & p)
{
    EXPECT_EQ(edge.type, EDGE_POINT);
    ExpectPoint(edge.start, p, 1e-9);
    ExpectPoint(edge.end, p, 1e-9);
    EXPECT_EQ(edge.bulge, 0.0);
}
}  // namespace

TEST(EdgeAgainstPlane, PointInThePlaneIsCopied)
{
    Cut const cut = CutEdge(Point(P(1, 2, 0.9e-6)), kGround);
    ASSERT_EQ(cut.result, 1);
    ASSERT_EQ(cut.count, 1);
    ExpectPointEdge(cut.pieces[0], P(1, 2, 0.9e-6));
}

TEST(EdgeAgainstPlane, NothingLeavesNull)
{
    for (TSPlaneEdge3D const & edge :
         {Point(P(1, 2, 2e-6)), Segment(P(0, 0, 1), P(1, 0, 1)), Arch(1.0), Arch(-3.0)}) {
        Cut const cut = CutEdge(edge, kGround);
        EXPECT_EQ(cut.result, 0);
        EXPECT_EQ(cut.count, 0);
        EXPECT_EQ(cut.pieces, nullptr);
    }
}

TEST(EdgeAgainstPlane, LineIsTakenAsInfinite)
{
    Cut const cut = CutEdge(Segment(P(0, 0, 2), P(1, 0, 1)), kGround);
    ASSERT_EQ(cut.result, 1);
    ASSERT_EQ(cut.count, 1);
    ExpectPointEdge(cut.pieces[0], P(2, 0, 0));
}

TEST(EdgeAgainstPlane, LineInThePlaneIsCopied)
{
    Cut const cut = CutEdge(Segment(P(0, 0, 0), P(1, 5, 0)), kGround);
    ASSERT_EQ(cut.result, 2);
    ASSERT_EQ(cut.count, 1);
    EXPECT_EQ(cut.pieces[0].type, EDGE_LINE);
    ExpectPoint(cut.pieces[0].end, P(1, 5, 0), 0.0);
}

TEST(EdgeAgainstPlane, ArcGivesItsPoints)
{
    // The arch over z = -0.6 has a height of 1; z = 0 cuts it at x = 1 -+ 0.8.
    Cut const cut = CutEdge(Arch(-0.6), kGround);
    ASSERT_EQ(cut.result, 1);
    ASSERT_EQ(cut.count, 2);
    bool const leftFirst = cut.pieces[0].start.x < 1.0;
    ExpectPointEdge(cut.pieces[leftFirst ? 0 : 1], P(0.2, 0, 0));
    ExpectPointEdge(cut.pieces[leftFirst ? 1 : 0], P(1.8, 0, 0));
}

TEST(EdgeAgainstPlane, ArcMayHaveOnePoint)
{
    // The plane x = 1 cuts the circle at its top and bottom, the arch at its top alone.
    Cut const cut = CutEdge(Arch(0.0), {P(1, 0, 0), P(1, 0, 0)});
    ASSERT_EQ(cut.result, 1);
    ASSERT_EQ(cut.count, 1);
    ExpectPointEdge(cut.pieces[0], P(1, 0, 1));
}

TEST(EdgeAgainstPlane, ArcInThePlaneIsCopied)
{
    Cut const cut = CutEdge({P(0, 0, 0), P(2, 0, 0), P(0, 1, 0), 0.5, EDGE_ARC}, kGround);
    ASSERT_EQ(cut.result, 2);
    ASSERT_EQ(cut.count, 1);
    EXPECT_EQ(cut.pieces[0].type, EDGE_ARC);
    EXPECT_EQ(cut.pieces[0].bulge, 0.5);
}

TEST(EdgeAgainstPlane, FlatArcAcrossThePlaneKeepsNoPoint)
{
    // Its chord crosses, but a point of a chord is no point of an arc: the result is 1 without a piece.
    Cut const cut = CutEdge({P(0, 0, -1), P(0, 0, 1), P(0, 1, 0), 1e-6, EDGE_ARC}, kGround);
    EXPECT_EQ(cut.result, 1);
    EXPECT_EQ(cut.count, 0);
    EXPECT_NE(cut.pieces, nullptr);
}

TEST(EdgeAgainstPlane, UnknownTypeFails)
{
    TSPlaneEdge3D edge = Segment(P(0, 0, -1), P(0, 0, 1));
    edge.type = 7;
    EXPECT_EQ(CutEdge(edge, kGround).result, 0);
}
