#include <gtest/gtest.h>

#include "edge_samples.h"

using namespace arc_samples;

namespace {
TSPlaneEdge3D const kOther = {{{-7, -7, -7}}, {{-7, -7, -7}}, {{-7, -7, -7}}, -7.0, -7};

struct Rest : Edges
{
    Rest(TSPlaneEdge3D a, TSPlaneEdge3D b)
    {
        CMathematics math;
        array = new TSPlaneEdge3D[4]{};
        result = math.EdgeExtractEdge(&a, &b, array, count);
    }
};

void ExpectNoRest(TSPlaneEdge3D const & a, TSPlaneEdge3D const & b)
{
    Rest const rest(a, b);
    EXPECT_EQ(rest.result, 0);
    EXPECT_EQ(rest.count, 0);
    EXPECT_EQ(rest.array, nullptr);
}

// ---- extraction -----------------------------------------------------------------------------------------

TEST(EdgeExtractEdge, InnerPartLeavesTwoPiecesInTheFirstEdgesDirection)
{
    for (bool const backward : {false, true}) {
        TSPlaneEdge3D const part = Line(At(1, 0), At(2, 0));
        Rest line(Line(At(0, 0), At(4, 0)), backward ? Reversed(part) : part);
        ASSERT_EQ(line.result, 1);
        ASSERT_EQ(line.count, 2);
        ExpectEdge(line[0], EDGE_LINE, At(0, 0), At(1, 0));
        ExpectEdge(line[1], EDGE_LINE, At(2, 0), At(4, 0));
        Rest arc(UnitArc(0, 270), backward ? UnitArc(200, 30) : UnitArc(30, 200));
        ASSERT_EQ(arc.result, 1);
        ASSERT_EQ(arc.count, 2);
        ExpectEdge(arc[0], EDGE_ARC, OnUnitCircle(0), OnUnitCircle(30));
        ExpectEdge(arc[1], EDGE_ARC, OnUnitCircle(200), OnUnitCircle(270));
    }
}

TEST(EdgeExtractEdge, PartAtAnEndLeavesOnePiece)
{
    Rest front(Line(At(0, 0), At(4, 0)), Line(At(1, 0), At(0, 0)));
    ASSERT_EQ(front.count, 1);
    ExpectEdge(front[0], EDGE_LINE, At(1, 0), At(4, 0));
    Rest back(UnitArc(0, 270), UnitArc(200, 270));
    ASSERT_EQ(back.count, 1);
    ExpectEdge(back[0], EDGE_ARC, OnUnitCircle(0), OnUnitCircle(200));
}

TEST(EdgeExtractEdge, EdgeFromItselfLeavesNothing)
{
    ExpectNoRest(Line(At(0, 0), At(4, 0)), Line(At(0, 0), At(4, 0)));
    ExpectNoRest(Line(At(0, 0), At(4, 0)), Line(At(4, 0), At(0, 0)));
    ExpectNoRest(UnitArc(0, 270), UnitArc(0, 270));
}

TEST(EdgeExtractEdge, PartMustLieOnTheEdge)
{
    ExpectNoRest(Line(At(0, 0), At(4, 0)), Line(At(1, 0), At(5, 0)));
    ExpectNoRest(Line(At(0, 0), At(4, 0)), Line(At(1, 1), At(2, 1)));
    ExpectNoRest(UnitArc(0, 270), UnitArc(200, 300));
    ExpectNoRest(UnitArc(0, 270), UnitArc(260, 370));
}

TEST(EdgeExtractEdge, NeedsTwoEdgesOfOneTypeWithLength)
{
    TSPlaneEdge3D const line = Line(At(0, 0), At(4, 0));
    ExpectNoRest(line, Point(At(1, 0)));
    ExpectNoRest(Point(At(1, 0)), Point(At(1, 0)));
    ExpectNoRest(line, UnitArc(0, 90));
    ExpectNoRest(UnitArc(0, 90), line);
    CMathematics math;
    TSPlaneEdge3D edge = line;
    Edges edges;
    edges.array = new TSPlaneEdge3D[2]{};
    EXPECT_EQ(math.EdgeExtractEdge(&edge, nullptr, edges.array, edges.count), 0);
    EXPECT_EQ(edges.array, nullptr);
    EXPECT_EQ(math.EdgeExtractEdge(nullptr, &edge, edges.array, edges.count), 0);
    EXPECT_EQ(edges.count, 0);
}

TEST(EdgeExtractEdge, SingleFormsOnlyWriteTheResult)
{
    CMathematics math;
    TSPlaneEdge3D line = Line(At(0, 0), At(4, 0));
    TSPlaneEdge3D part = Line(At(0, 0), At(3, 0));
    TSPlaneEdge3D arc = UnitArc(0, 90);
    TSPlaneEdge3D * anything = &line;
    int count;
    EXPECT_EQ(math.LineExtractLine(&line, &arc, anything, count), 0);
    EXPECT_EQ(anything, nullptr);
    EXPECT_EQ(math.ArcExtractArc(&line, &part, anything, count), 0);
    Edges edges;
    EXPECT_EQ(math.LineExtractLine(&line, &part, edges.array, edges.count), 1);
    ASSERT_EQ(edges.count, 1);
    ExpectEdge(edges[0], EDGE_LINE, At(3, 0), At(4, 0));
}

TEST(EdgeExtractEdge, SectionAndRestAreComplementsForAnyBulgeInAnyPlane)
{
    CMathematics math;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    for (int i = 0; i < 2000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random, 1e-3, 50.0));
        TSPlaneEdge3D edge = i % 3 ? sample.edge : Line(sample.edge.start, sample.edge.end);
        double const length = math.GetLengthEdge3D(&edge);
        double const from = share(random) * length;
        double const to = share(random) * length;
        if (std::fabs(to - from) < 0.01 || std::min(from, to) < 0.01 || std::max(from, to) > length - 0.01)
            continue;
        TSPlaneEdge3D section;
        ASSERT_EQ(math.GetSectionOfEdge(edge, from, to, &section), 1);
        if (edge.type == EDGE_ARC && section.bulge < 2e-5)
            continue;  // so flat that it counts as a line and lies on no arc
        Rest rest(edge, section);
        ASSERT_EQ(rest.count, 2) << sample.edge.bulge << ' ' << from << ' ' << to << ' ' << length;
        ASSERT_NEAR(math.GetLengthEdge3D(&rest[0]), std::min(from, to), 2e-6);
        ASSERT_NEAR(math.GetLengthEdge3D(&rest[1]), length - std::max(from, to), 2e-6);
        // Taking out a rest at an end leaves the section and the other rest.
        Rest front(edge, rest[1]);
        ASSERT_EQ(front.count, 1);
        ASSERT_NEAR(math.GetLengthEdge3D(&front[0]), std::max(from, to), 2e-6);
    }
}

// ---- joining --------------------------------------------------------------------------------------------

TEST(JointEdge3D, OverlappingLinesBecomeOneInTheFirstOnesDirection)
{
    CMathematics math;
    struct
    {
        double a1, a2, b1, b2, start, end;
    } const rows[] = {{0, 5, 3, 9, 0, 9}, {0, 5, 9, 3, 0, 9}, {5, 0, 3, 9, 9, 0}, {0, 5, -4, 2, -4, 5},
                      {0, 5, 1, 2, 0, 5}, {1, 2, 0, 5, 0, 5}, {0, 5, 5, 9, 0, 9}, {0, 5, 0, 5, 0, 5}};
    for (auto const & row : rows) {
        TSPlaneEdge3D a = Line(At(row.a1, 0), At(row.a2, 0));
        TSPlaneEdge3D b = Line(At(row.b1, 0), At(row.b2, 0));
        TSPlaneEdge3D result = kOther;
        EXPECT_EQ(math.JointEdge3D(&a, &b, &result), 1);
        ExpectEdge(result, EDGE_LINE, At(row.start, 0), At(row.end, 0));
        EXPECT_EQ(result.bulge, 0.0);
    }
}

TEST(JointEdge3D, LinesApartOrOfOtherDirectionFail)
{
    CMathematics math;
    TSPlaneEdge3D a = Line(At(0, 0), At(5, 0));
    TSPlaneEdge3D result = kOther;
    for (TSPlaneEdge3D b : {Line(At(6, 0), At(9, 0)), Line(At(0, 1), At(5, 1)), Line(At(5, 0), At(9, 1)),
                            Line(At(5, 0), At(5, 0)), Point(At(2, 0)), UnitArc(0, 90)})
        EXPECT_EQ(math.JointEdge3D(&a, &b, &result), 0);
    EXPECT_EQ(result.type, -7);
}

TEST(JointEdge3D, TheToleranceActsOnTheDirections)
{
    CMathematics math;
    TSPlaneEdge3D a = Line(At(0, 0), At(5, 0));
    TSPlaneEdge3D result = kOther;
    TSPlaneEdge3D leaning = Line(At(5, 0), At(1005, 0.0009));
    EXPECT_EQ(math.JointEdge3D(&a, &leaning, &result), 1);
    leaning.end.y = 0.0011;
    EXPECT_EQ(math.JointEdge3D(&a, &leaning, &result), 0);
}

TEST(JointEdge3D, ArcsAreNeverJoined)
{
    CMathematics math;
    TSPlaneEdge3D a = UnitArc(0, 100);
    TSPlaneEdge3D b = UnitArc(50, 200);
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.JointEdge3D(&a, &b, &result), 0);
    EXPECT_EQ(math.JointArc3D(&a, &a, &result), 0);
    EXPECT_EQ(math.JointLine3D(&a, &b, &result), 0);
    EXPECT_EQ(result.type, -7);
}

TEST(JointEdge3D, PointsAndMissingPointersFail)
{
    CMathematics math;
    TSPlaneEdge3D line = Line(At(0, 0), At(5, 0));
    TSPlaneEdge3D point = Point(At(0, 0));
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.JointEdge3D(&point, &point, &result), 0);
    EXPECT_EQ(math.JointEdge3D(&point, &line, &result), 0);
    EXPECT_EQ(math.JointEdge3D(nullptr, &line, &result), 0);
    EXPECT_EQ(math.JointEdge3D(&line, nullptr, &result), 0);
    EXPECT_EQ(math.JointEdge3D(&line, &line, nullptr), 0);
}
}  // namespace
