#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "edge_samples.h"

using namespace arc_samples;

namespace {
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
TSPlaneEdge3D const kOther = {{{-7, -7, -7}}, {{-7, -7, -7}}, {{-7, -7, -7}}, -7.0, -7};

struct Section
{
    TSPlaneEdge3D edge = kOther;
    int result;

    Section(TSPlaneEdge3D const & whole, TUVect3D from, TUVect3D to)
    {
        CMathematics math;
        result = math.GetSectionOfEdge(whole, from, to, &edge);
    }
    Section(TSPlaneEdge3D const & whole, double from, double to)
    {
        CMathematics math;
        result = math.GetSectionOfEdge(whole, from, to, &edge);
    }
};

void ExpectUnitArc(TSPlaneEdge3D const & edge, double from, double to)
{
    ExpectEdge(edge, EDGE_ARC, OnUnitCircle(from), OnUnitCircle(to));
    EXPECT_NEAR(edge.bulge, std::tan(std::fabs(to - from) * kPi / 720.0), 1e-9);
    CMathematics math;
    TUVect3D middle;
    ASSERT_EQ(math.Get3DPointOnEdge3D(edge, 0.5, 1, middle), 1);
    ExpectNear(middle, OnUnitCircle((from + to) / 2.0), 1e-7);
}

// ---- places ---------------------------------------------------------------------------------------------

TEST(Get3DPointOnEdge3D, FollowsTheType)
{
    CMathematics math;
    TUVect3D point;
    EXPECT_EQ(math.Get3DPointOnEdge3D(Point(At(1, 2)), 55.0, 9, point), 1);
    ExpectNear(point, At(1, 2), 0.0);
    EXPECT_EQ(math.Get3DPointOnEdge3D(Line(At(0, 0), At(4, 0)), 25.0, 2, point), 1);
    ExpectNear(point, At(1, 0), 1e-15);
    EXPECT_EQ(math.Get3DPointOnEdge3D(UnitArc(0, 180), 0.5, 1, point), 1);
    ExpectNear(point, At(0, 1), 1e-15);
    TSPlaneEdge3D unknown = Line(At(0, 0), At(4, 0));
    unknown.type = 3;
    EXPECT_EQ(math.Get3DPointOnEdge3D(unknown, 0.5, 1, point), 0);
}

TEST(IsPoint3DInEdge3D, GivesTheDistanceAlongTheEdge)
{
    CMathematics math;
    double distance = -7.0;
    EXPECT_EQ(math.IsPoint3DInEdge3D(Point(At(1, 2)), At(1, 2), distance), 1);
    EXPECT_EQ(distance, 0.0);
    EXPECT_EQ(math.IsPoint3DInEdge3D(Point(At(1, 2)), At(1, 3), distance), 0);
    EXPECT_EQ(math.IsPoint3DInEdge3D(Line(At(0, 0), At(4, 0)), At(3, 0), distance), 1);
    EXPECT_NEAR(distance, 3.0, 1e-15);
    EXPECT_EQ(math.IsPoint3DInEdge3D(UnitArc(0, 270), OnUnitCircle(240), distance), 1);
    EXPECT_NEAR(distance, kPi * 4.0 / 3.0, 1e-12);
    TSPlaneEdge3D unknown = Point(At(1, 2));
    unknown.type = -1;
    EXPECT_EQ(math.IsPoint3DInEdge3D(unknown, At(1, 2), distance), 0);
}

TEST(GetLengthEdge3D, FollowsTheType)
{
    CMathematics math;
    TSPlaneEdge3D edge = UnitArc(0, 270);
    EXPECT_EQ(math.GetLengthEdge3D(nullptr), 0.0);
    EXPECT_NEAR(math.GetLengthEdge3D(&edge), 1.5 * kPi, 1e-14);
    edge = Line(At(0, 0), At(3, 4));
    EXPECT_EQ(math.GetLengthEdge3D(&edge), 5.0);
    edge.type = EDGE_POINT;
    EXPECT_EQ(math.GetLengthEdge3D(&edge), 0.0);
    edge.type = 3;
    EXPECT_EQ(math.GetLengthEdge3D(&edge), 0.0);
}

TEST(GetDerivationVectorOnEdge3D, PointsInTheDirectionOfTravel)
{
    CMathematics math;
    TUVect3D place = OnUnitCircle(120);
    ExpectNear(math.GetDerivationVectorOnEdge3D(UnitArc(0, 270), place), OnUnitCircle(210), 1e-14);
    ExpectNear(math.GetDerivationVectorOnEdge3D(UnitArc(270, 0), place), OnUnitCircle(30), 1e-14);
    ExpectNear(math.GetDerivationVectorOnEdge3D(WithNegativeBulge(UnitArc(0, 270)), place), OnUnitCircle(210),
               1e-14);
    ExpectNear(math.GetDerivationVectorOnEdge3D(UnitArc(0, 180), 0.5, 1), At(-1, 0), 1e-14);
    ExpectNear(math.GetDerivationVectorOnEdge3D(Line(At(0, 0), At(6, 8)), place), At(0.6, 0.8), 1e-15);
    ExpectNear(math.GetDerivationVectorOnEdge3D(Line(At(0, 0), At(6, 8)), 50.0, 2), At(0.6, 0.8), 1e-15);
    ExpectNear(math.GetDerivationVectorOnEdge3D(Arc(At(0, 0), At(6, 8), At(0, 1), 0.9e-5), place),
               At(0.6, 0.8), 1e-15);
}

TEST(GetDerivationVectorOnEdge3D, IsZeroWhereThereIsNone)
{
    CMathematics math;
    TUVect3D place = At(1, 2);
    ExpectNear(math.GetDerivationVectorOnEdge3D(Point(place), place), At(0, 0), 0.0);
    ExpectNear(math.GetDerivationVectorOnEdge3D(Point(place), 0.5, 1), At(0, 0), 0.0);
    ExpectNear(math.GetDerivationVectorOnEdge3D(UnitArc(0, 90), 5.0, 0), At(0, 0), 0.0);
}

TEST(HarmonyEdge, TurnsTheSecondToTheNearerEnd)
{
    CMathematics math;
    TSPlaneEdge3D a = Line(At(0, 0), At(4, 0));
    TSPlaneEdge3D b = Arc(At(5, 1), At(1, 1), At(0, 1), 0.5);
    EXPECT_EQ(math.HarmonyEdge(&a, &b), 1);
    ExpectEdge(b, EDGE_ARC, At(1, 1), At(5, 1));
    EXPECT_EQ(b.bulge, 0.5);
    ExpectNear(b.arcVector, At(0, 1), 0.0);
    EXPECT_EQ(math.HarmonyEdge(&a, &b), 1);
    ExpectEdge(b, EDGE_ARC, At(1, 1), At(5, 1));
}

TEST(HarmonyEdge, EqualDistancesAndPointsChangeNothing)
{
    CMathematics math;
    TSPlaneEdge3D a = Line(At(0, 0), At(4, 0));
    TSPlaneEdge3D b = Line(At(0, 1), At(0, -1));
    EXPECT_EQ(math.HarmonyEdge(&a, &b), 1);
    EXPECT_EQ(b.start.y, 1.0);
    TSPlaneEdge3D point = Point(At(0, 0));
    TSPlaneEdge3D distant = Line(At(5, 0), At(1, 0));
    EXPECT_EQ(math.HarmonyEdge(&point, &distant), 1);
    EXPECT_EQ(distant.start.x, 5.0);
}

// ---- sections -------------------------------------------------------------------------------------------

TEST(GetSectionOfEdge, LineTakesAnyTwoPoints)
{
    Section const section(Line(At(0, 0), At(4, 0)), At(9, 9), At(1, 0));
    EXPECT_EQ(section.result, 1);
    ExpectEdge(section.edge, EDGE_LINE, At(9, 9), At(1, 0));
    EXPECT_EQ(section.edge.bulge, 0.0);
    ExpectNear(section.edge.arcVector, At(0, 0), 0.0);
}

TEST(GetSectionOfEdge, DistancesOfALineMustLieOnIt)
{
    Section const section(Line(At(0, 0), At(4, 0)), 3.0, 1.0);
    EXPECT_EQ(section.result, 1);
    ExpectEdge(section.edge, EDGE_LINE, At(3, 0), At(1, 0));
    Section const beyond(Line(At(0, 0), At(4, 0)), 3.0, 4.1);
    EXPECT_EQ(beyond.result, 0);
    EXPECT_EQ(beyond.edge.type, -7);
}

TEST(GetSectionOfEdge, PointAndUnknownEdgesHaveNone)
{
    TSPlaneEdge3D edge = Point(At(1, 2));
    EXPECT_EQ(Section(edge, At(1, 2), At(1, 2)).result, 0);
    edge.type = 3;
    EXPECT_EQ(Section(edge, At(1, 2), At(1, 2)).result, 0);
    EXPECT_EQ(Section(edge, 0.0, 0.0).result, 0);
}

TEST(GetSectionOfArc, PlacesMustLieOnTheArc)
{
    TSPlaneEdge3D const arc = UnitArc(0, 270);
    EXPECT_EQ(Section(arc, OnUnitCircle(10), OnUnitCircle(280)).result, 0);
    EXPECT_EQ(Section(arc, OnUnitCircle(280), OnUnitCircle(10)).result, 0);
    EXPECT_EQ(Section(arc, At(0, 0), OnUnitCircle(10)).result, 0);
    EXPECT_EQ(Section(arc, At(kNaN, 0), OnUnitCircle(10)).result, 0);
    EXPECT_EQ(Section(arc, 1.0, 5.0).result, 0);
    EXPECT_EQ(Section(arc, -1.0, 1.0).result, 0);
    CMathematics math;
    TUVect3D from = At(0, 0);
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.GetSectionOfArc(Line(At(0, 0), At(1, 0)), from, from, &result), 0);
    EXPECT_EQ(result.type, -7);
}

TEST(GetSectionOfArc, OnePlaceIsAPoint)
{
    Section const section(UnitArc(0, 270), OnUnitCircle(100), OnUnitCircle(100));
    EXPECT_EQ(section.result, 1);
    ExpectEdge(section.edge, EDGE_POINT, OnUnitCircle(100), OnUnitCircle(100));
    EXPECT_EQ(section.edge.bulge, 0.0);
}

TEST(GetSectionOfArc, WholeArcIsACopy)
{
    TSPlaneEdge3D const arc = Arc(At(0, 0), At(8, 0), At(-3, 2), 2.0);
    for (TSPlaneEdge3D const & edge : {arc, WithNegativeBulge(arc)}) {
        Section const section(edge, edge.start, edge.end);
        EXPECT_EQ(section.result, 1);
        ExpectEdge(section.edge, EDGE_ARC, edge.start, edge.end);
        EXPECT_EQ(section.edge.bulge, edge.bulge);
        EXPECT_EQ(section.edge.arcVector.x, edge.arcVector.x);
    }
}

TEST(GetSectionOfArc, RunsFromTheFirstPlaceToTheSecond)
{
    TSPlaneEdge3D const arc = UnitArc(0, 300);
    double const places[][2] = {{10, 50},  {50, 10},  {0, 200}, {200, 0},
                                {20, 280}, {280, 20}, {300, 0}, {0, 299}};
    for (auto const & [from, to] : places) {
        SCOPED_TRACE(testing::Message() << from << ' ' << to);
        Section const section(arc, OnUnitCircle(from), OnUnitCircle(to));
        ASSERT_EQ(section.result, 1);
        ExpectUnitArc(section.edge, from, to);
    }
}

TEST(GetSectionOfArc, ExactlyHalfACircleWorks)
{
    Section const section(UnitArc(0, 300), OnUnitCircle(30), OnUnitCircle(210));
    ASSERT_EQ(section.result, 1);
    ExpectUnitArc(section.edge, 30, 210);
    Section const straight(Arc(At(-1, 0), At(0, -1), At(1, 1), std::tan(1.5 * kPi / 4.0)), At(-1, 0),
                           At(1, 0));
    ASSERT_EQ(straight.result, 1);
    EXPECT_NEAR(straight.edge.bulge, 1.0, 1e-15);
    ExpectNear(straight.edge.arcVector, At(0, 1), 1e-12);
}

TEST(GetSectionOfArc, FlatArcCountsAsItsChord)
{
    Section const section(Arc(At(0, 0), At(4, 0), At(0, 1), 8e-6), At(1, 0), At(2, 0));
    ASSERT_EQ(section.result, 1);
    ExpectEdge(section.edge, EDGE_ARC, At(1, 0), At(2, 0));
    EXPECT_NEAR(section.edge.bulge, 2e-6, 1e-20);
}

TEST(GetSectionOfArc, EndsALittleOffTheCircleDontSpoilTheBulge)
{
    // The ends are within the tolerance of the circle; a bulge from their distances to the centre would be
    // off by the root of that.
    TUVect3D const from = At(-1 - 9e-7, 0);
    TUVect3D const to = At(1, 0);
    Section const section(Arc(At(-1, 0), At(0, -1), At(1, 1), std::tan(1.5 * kPi / 4.0)), from, to);
    ASSERT_EQ(section.result, 1);
    EXPECT_NEAR(section.edge.bulge, 1.0, 1e-9);
}

TEST(GetSectionOfArc, LiesOnTheArcWithTheLengthBetweenItsPlacesForAnyBulgeInAnyPlane)
{
    CMathematics math;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    for (int i = 0; i < 2000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random, 1e-3, 50.0));
        double const from = share(random) * sample.sweep;
        double const to = share(random) * sample.sweep;
        double const length = std::fabs(to - from) * sample.radius;
        if (length < 0.01)
            continue;
        TSPlaneEdge3D const edge = i % 2 ? sample.edge : WithNegativeBulge(sample.edge);
        Section section(edge, sample.Point(from), sample.Point(to));
        ASSERT_EQ(section.result, 1);
        ASSERT_NEAR(math.GetLengthEdge3D(&section.edge), length, 1e-6);
        TUVect3D middle;
        ASSERT_EQ(math.Get3DPointOnEdge3D(section.edge, 0.5, 1, middle), 1);
        ASSERT_LT(Distance(middle, sample.Point((from + to) / 2.0)), 1e-6);
    }
}

// ---- division -------------------------------------------------------------------------------------------

struct Division : Edges
{
    Division(TSPlaneEdge3D const & edge, std::vector<TUVect3D> const & points)
    {
        CMathematics math;
        array = new TSPlaneEdge3D[4]{};
        result = math.DivideEdge3D(edge, points.data(), static_cast<int>(points.size()), array, count);
        EXPECT_EQ(result == 1, array != nullptr);
        EXPECT_EQ(result == 1, count > 0);
    }
};

TEST(DivideEdge3D, OneInnerPointMakesTwoPieces)
{
    Division line(Line(At(0, 0), At(4, 0)), {At(1, 0)});
    ASSERT_EQ(line.count, 2);
    ExpectEdge(line[0], EDGE_LINE, At(0, 0), At(1, 0));
    ExpectEdge(line[1], EDGE_LINE, At(1, 0), At(4, 0));
    Division arc(UnitArc(0, 270), {OnUnitCircle(200)});
    ASSERT_EQ(arc.count, 2);
    ExpectUnitArc(arc[0], 0, 200);
    ExpectUnitArc(arc[1], 200, 270);
}

TEST(DivideEdge3D, RepeatedPointsAndEndsMakeNoPieces)
{
    Division line(Line(At(0, 0), At(4, 0)), {At(0, 0), At(1, 0), At(1, 0), At(4, 0)});
    ASSERT_EQ(line.count, 2);
    ExpectEdge(line[1], EDGE_LINE, At(1, 0), At(4, 0));
    Division arc(UnitArc(0, 270), {OnUnitCircle(0), OnUnitCircle(200), OnUnitCircle(200)});
    EXPECT_EQ(arc.count, 2);
}

TEST(DivideEdge3D, OnePieceIsNoDivision)
{
    EXPECT_EQ(Division(Line(At(0, 0), At(4, 0)), {At(0, 0), At(4, 0)}).result, 0);
    EXPECT_EQ(Division(UnitArc(0, 90), {OnUnitCircle(0)}).result, 0);
}

TEST(DivideEdge3D, PointsOffTheEdgeFail)
{
    EXPECT_EQ(Division(Line(At(0, 0), At(4, 0)), {At(1, 1)}).result, 0);
    EXPECT_EQ(Division(Line(At(0, 0), At(4, 0)), {At(1, 0), At(5, 0)}).result, 0);
    EXPECT_EQ(Division(UnitArc(0, 90), {OnUnitCircle(100)}).result, 0);
    EXPECT_EQ(Division(UnitArc(0, 90), {At(kNaN, 0)}).result, 0);
}

TEST(DivideEdge3D, NeedsAnEdgeWithLengthAndPoints)
{
    CMathematics math;
    TUVect3D const point = At(1, 0);
    TSPlaneEdge3D const line = Line(At(0, 0), At(4, 0));
    struct
    {
        TSPlaneEdge3D edge;
        TUVect3D const * points;
        int count;
    } const cases[] = {
        {Point(At(1, 0)), &point, 1}, {line, nullptr, 1}, {line, &point, 0}, {line, &point, -5}};
    for (auto const & row : cases) {
        Edges edges;
        edges.array = new TSPlaneEdge3D[3]{};
        EXPECT_EQ(math.DivideEdge3D(row.edge, row.points, row.count, edges.array, edges.count), 0);
        EXPECT_EQ(edges.array, nullptr);
        EXPECT_EQ(edges.count, 0);
    }
}

TEST(DivideEdge3D, PiecesAddUpToTheEdgeForAnyBulgeInAnyPlane)
{
    CMathematics math;
    std::mt19937 random(2);
    std::uniform_real_distribution<double> share(0.05, 0.2);
    for (int i = 0; i < 500; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random, 1e-3, 50.0));
        TSPlaneEdge3D const edge = i % 3 ? sample.edge : Line(sample.edge.start, sample.edge.end);
        std::vector<TUVect3D> points;
        TUVect3D point;
        for (double at = share(random); at < 1.0; at += share(random)) {
            ASSERT_EQ(math.Get3DPointOnEdge3D(edge, at, 1, point), 1);
            points.push_back(point);
        }
        Division division(edge, points);
        ASSERT_EQ(division.count, static_cast<int>(points.size()) + 1);
        double length = 0.0;
        for (int k = 0; k < division.count; ++k)
            length += math.GetLengthEdge3D(&division[k]);
        TSPlaneEdge3D whole = edge;
        ASSERT_NEAR(length, math.GetLengthEdge3D(&whole), 1e-6);
    }
}

// ---- transfer -------------------------------------------------------------------------------------------

TEST(TransformSubArc, TakesThePartByTheRatioOfLengths)
{
    CMathematics math;
    TSPlaneEdge3D b = UnitArc(0, 180);
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.TransformSubArc(Line(At(0, 0), At(4, 0)), Line(At(1, 0), At(3, 0)), b, result), 1);
    ExpectUnitArc(result, 45, 135);
    b = Line(At(0, 0), At(0, 8));
    EXPECT_EQ(math.TransformSubArc(UnitArc(0, 180), UnitArc(90, 45), b, result), 1);
    ExpectEdge(result, EDGE_LINE, At(0, 4), At(0, 2));
}

TEST(TransformSubArc, PartOffItsEdgeFails)
{
    CMathematics math;
    TSPlaneEdge3D b = UnitArc(0, 180);
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.TransformSubArc(Line(At(0, 0), At(4, 0)), Line(At(1, 0), At(5, 0)), b, result), 0);
    EXPECT_EQ(math.TransformSubArc(Line(At(0, 0), At(4, 0)), Line(At(1, 1), At(2, 0)), b, result), 0);
    EXPECT_EQ(math.TransformSubArc(Line(At(0, 0), At(0, 0)), Line(At(0, 0), At(0, 0)), b, result), 0);
    EXPECT_EQ(result.type, -7);
}

TEST(DivideEdgeFromEdge, TransfersEachPart)
{
    CMathematics math;
    TSPlaneEdge3D a = Line(At(0, 0), At(4, 0));
    TSPlaneEdge3D b = UnitArc(0, 180);
    TSPlaneEdge3D subs[] = {Line(At(0, 0), At(1, 0)), Line(At(1, 0), At(4, 0))};
    TSPlaneEdge3D results[] = {kOther, kOther};
    EXPECT_EQ(math.DivideEdgeFromEdge(&a, subs, &b, results, 2), 1);
    ExpectUnitArc(results[0], 0, 45);
    ExpectUnitArc(results[1], 45, 180);
}

TEST(DivideEdgeFromEdge, NeedsPartsAndLengths)
{
    CMathematics math;
    TSPlaneEdge3D line = Line(At(0, 0), At(4, 0));
    TSPlaneEdge3D point = Point(At(0, 0));
    TSPlaneEdge3D sub = Line(At(0, 0), At(1, 0));
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.DivideEdgeFromEdge(&line, &sub, &line, &result, 0), 0);
    EXPECT_EQ(math.DivideEdgeFromEdge(&line, &sub, &line, &result, -1), 0);
    EXPECT_EQ(math.DivideEdgeFromEdge(&point, &sub, &line, &result, 1), 0);
    EXPECT_EQ(math.DivideEdgeFromEdge(&line, &sub, &point, &result, 1), 0);
    EXPECT_EQ(result.type, -7);
    sub.end = At(5, 0);
    EXPECT_EQ(math.DivideEdgeFromEdge(&line, &sub, &line, &result, 1), 0);
}
}  // namespace
