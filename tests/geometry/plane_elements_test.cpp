#include <cmath>
#include <memory>
#include <numbers>

#include "geometry/mathematics.h"
#include "gtest/gtest.h"

namespace {
constexpr double kPi = std::numbers::pi;
constexpr double kTolerance = 1e-6;  // of a fresh kernel

TUVect2D P(double x, double y)
{
    return {{x, y}};
}

TSelem Line(double x1, double y1, double x2, double y2)
{
    return {EDGE_LINE, 0, P(x1, y1), P(x2, y2), 0.0};
}

TSelem ArcElem(double x1, double y1, double x2, double y2, double bulge)
{
    return {EDGE_ARC, 0, P(x1, y1), P(x2, y2), bulge};
}

TSelem Point(double x, double y)
{
    return {EDGE_POINT, 0, P(x, y), P(x, y), 0.0};
}

void ExpectPoint(TUVect2D const & p, double x, double y)
{
    EXPECT_NEAR(p.x, x, 1e-12);
    EXPECT_NEAR(p.y, y, 1e-12);
}

struct ElementMeeting
{
    int met;
    int count;
    int kind;
    std::unique_ptr<TSelem[]> parts;
};

ElementMeeting Meet(TSelem const & a, TSelem const & b)
{
    CMathematics math;
    TSelem * parts = nullptr;
    int count = -1;
    int kind = -1;
    int const met = math.ElemIntersection(a, b, parts, count, kind);
    return {met, count, kind, std::unique_ptr<TSelem[]>(parts)};
}

struct SegmentMeeting
{
    TUVect2D p1{{-9.0, -9.0}};
    TUVect2D p2{{-9.0, -9.0}};
    int kind = -1;
    double t1 = -9.0;
    double t2 = -9.0;
    int shape = -1;
    int met = -1;
};

SegmentMeeting Cross(TUVect2D a, TUVect2D b, TUVect2D c, TUVect2D d)
{
    CMathematics math;
    SegmentMeeting m;
    m.met = math.LineIntersectionParameters(a, b, c, d, m.p1, m.p2, m.kind, m.t1, m.t2, m.shape);
    return m;
}

struct ArcLineMeeting
{
    TUVect2D p1{};
    TUVect2D p2{};
    double arc1 = -9.0;
    double line1 = -9.0;
    double arc2 = -9.0;
    double line2 = -9.0;
    int flags = -1;
    int code = -1;
};

ArcLineMeeting CutArc(TUVect2D a, TUVect2D b, double bulge, TUVect2D l1, TUVect2D l2, int limit)
{
    CMathematics math;
    ArcLineMeeting m;
    m.code = math.ArcLineIntersectionParameters(a, b, bulge, l1, l2, m.p1, m.p2, limit, m.arc1, m.line1,
                                                m.arc2, m.line2, m.flags);
    return m;
}
}  // namespace

TEST(PointOnLineParam, IsTheUnlimitedFraction)
{
    CMathematics math;
    EXPECT_DOUBLE_EQ(math.GetPointOnLineParam(P(1, 5), P(0, 0), P(4, 0)), 0.25);
    EXPECT_DOUBLE_EQ(math.GetPointOnLineParam(P(6, 0), P(0, 0), P(4, 0)), 1.5);
    EXPECT_DOUBLE_EQ(math.GetPointOnLineParam(P(-2, 0), P(0, 0), P(4, 0)), -0.5);
}

TEST(PointOnLineParam, SnapsToTheEndsWithinTheTolerance)
{
    CMathematics math;
    EXPECT_EQ(math.GetPointOnLineParam(P(0.9e-6, 0), P(0, 0), P(4, 0)), 0.0);
    EXPECT_EQ(math.GetPointOnLineParam(P(4, 0.9e-6), P(0, 0), P(4, 0)), 1.0);
    EXPECT_NE(math.GetPointOnLineParam(P(1.1e-6, 0), P(0, 0), P(4, 0)), 0.0);
}

TEST(PointOnLineParam, StartWinsWhereBothEndsAreNear)
{
    CMathematics math;
    EXPECT_EQ(math.GetPointOnLineParam(P(0, 0), P(0, 0), P(0, 0)), 0.0);
}

TEST(ArcCentreOfPlaneArc, HalfCircleHasItsCentreOnTheChord)
{
    CMathematics math;
    for (double const bulge : {1.0, -1.0}) {
        TUVect2D centre{};
        TUVect2D toApex{};
        double radius = 0.0;
        double absBulge = 0.0;
        ASSERT_EQ(math.GetArcCentreVectorBulge(P(0, 0), P(2, 0), bulge, centre, radius, toApex, absBulge), 1);
        ExpectPoint(centre, 1, 0);
        EXPECT_EQ(radius, 1.0);
        ExpectPoint(toApex, 0, bulge);
    }
}

TEST(ArcCentreOfPlaneArc, NoArcLeavesTheOutputsAlone)
{
    CMathematics math;
    for (auto const & [b, bulge] : {std::pair{P(2, 0), 0.0}, std::pair{P(0, 0), 0.5}}) {
        TUVect2D centre{{7, 8}};
        TUVect2D toApex{{9, 10}};
        double radius = 11;
        double absBulge = -1;
        EXPECT_EQ(math.GetArcCentreVectorBulge(P(0, 0), b, bulge, centre, radius, toApex, absBulge), 0);
        ExpectPoint(centre, 7, 8);
        ExpectPoint(toApex, 9, 10);
        EXPECT_EQ(radius, 11);
        EXPECT_EQ(absBulge, bulge);
    }
}

TEST(PointOnPlaneArc, FractionFollowsTheAngle)
{
    CMathematics math;
    double fraction = 0.0;
    double length = 0.0;
    // Upper half circle from (0, 0) to (2, 0): 60 degrees from the start is a third of it.
    TUVect2D const p = P(1 - std::cos(kPi / 3), std::sin(kPi / 3));
    EXPECT_EQ(math.IsPointOnArcParams(p, P(0, 0), P(2, 0), 1.0, fraction, length), 1);
    EXPECT_NEAR(fraction, 1.0 / 3.0, 1e-12);
    EXPECT_NEAR(length, kPi, 1e-12);
    TUVect2D const q = P(1 + std::cos(kPi / 3), std::sin(kPi / 3));
    EXPECT_EQ(math.IsPointOnArcParams(q, P(0, 0), P(2, 0), 1.0, fraction, length), 1);
    EXPECT_NEAR(fraction, 2.0 / 3.0, 1e-12);
}

TEST(PointOnPlaneArc, FarSideOfTheChordIsOff)
{
    CMathematics math;
    double fraction = 0.0;
    double length = 0.0;
    EXPECT_EQ(math.IsPointOnArcParams(P(1, -1), P(0, 0), P(2, 0), 1.0, fraction, length), 0);
    EXPECT_EQ(fraction, -1.0);
    EXPECT_NEAR(length, kPi, 1e-12);
    EXPECT_EQ(math.IsPointOnArc(P(1, -1), P(0, 0), P(2, 0), -1.0), 1);
}

TEST(PointOnPlaneArc, NearTheStartIsFractionZeroWhateverTheSide)
{
    CMathematics math;
    double fraction = 0.0;
    double length = 0.0;
    EXPECT_EQ(math.IsPointOnArcParams(P(0, -5e-7), P(0, 0), P(2, 0), 1.0, fraction, length), 1);
    EXPECT_EQ(fraction, 0.0);
    EXPECT_EQ(math.IsPointOnArcParams(P(2, -5e-7), P(0, 0), P(2, 0), 1.0, fraction, length), 1);
    EXPECT_EQ(fraction, 1.0);
}

TEST(PointOnPlaneArc, OffTheCircleByLessThanTheToleranceCounts)
{
    CMathematics math;
    EXPECT_EQ(math.IsPointOnArc(P(1, 1 + 0.9e-6), P(0, 0), P(2, 0), 1.0), 1);
    EXPECT_EQ(math.IsPointOnArc(P(1, 1 + 1.1e-6), P(0, 0), P(2, 0), 1.0), 0);
}

TEST(PointOnPlaneArc, NoArcHasNoPoints)
{
    CMathematics math;
    double fraction = 0.0;
    double length = 5.0;
    EXPECT_EQ(math.IsPointOnArcParams(P(1, 0), P(0, 0), P(2, 0), 0.0, fraction, length), 0);
    EXPECT_EQ(fraction, -1.0);
    EXPECT_EQ(length, 0.0);
}

TEST(CompareElements, EqualInTheSameDirection)
{
    CMathematics math;
    EXPECT_EQ(math.CompareElem(Line(0, 0, 1, 0), Line(0, 1e-6, 1, 0)), 1);
    EXPECT_EQ(math.CompareElem(Line(0, 0, 1, 0), Line(1, 0, 0, 0)), 0);
    EXPECT_EQ(math.CompareElem(Line(0, 0, 1, 0), ArcElem(0, 0, 1, 0, 0.0)), 0);
    EXPECT_EQ(math.CompareElem(Line(0, 0, 1, 0), Line(0, 2e-6, 1, 0)), 0);
}

TEST(CompareElements, BulgesOfEqualArcsDifferByNoMoreThanTheirOwnMargin)
{
    CMathematics math;
    EXPECT_EQ(math.CompareElem(ArcElem(0, 0, 1, 0, 0.5), ArcElem(0, 0, 1, 0, 0.5 + 0.9e-10)), 1);
    EXPECT_EQ(math.CompareElem(ArcElem(0, 0, 1, 0, 0.5), ArcElem(0, 0, 1, 0, 0.5 + 1.1e-10)), 0);
    EXPECT_EQ(math.CompareElem(Line(0, 0, 1, 0), {EDGE_LINE, 0, P(0, 0), P(1, 0), 3.0}), 1);
}

TEST(CompareElements, EqualInTheOppositeDirection)
{
    CMathematics math;
    EXPECT_EQ(math.CompareAntiElem(Line(0, 0, 1, 0), Line(1, 0, 0, 0)), 1);
    EXPECT_EQ(math.CompareAntiElem(Line(0, 0, 1, 0), Line(0, 0, 1, 0)), 0);
    EXPECT_EQ(math.CompareAntiElem(ArcElem(0, 0, 1, 0, 0.5), ArcElem(1, 0, 0, 0, -0.5)), 1);
    EXPECT_EQ(math.CompareAntiElem(ArcElem(0, 0, 1, 0, 0.5), ArcElem(1, 0, 0, 0, 0.5)), 0);
    EXPECT_EQ(math.CompareAntiElem(Point(2, 3), Point(2, 3)), 1);
}

TEST(ElementsMeet, CrossingLinesGiveAPoint)
{
    ElementMeeting const m = Meet(Line(0, 0, 2, 0), Line(1, -1, 1, 1));
    ASSERT_EQ(m.met, 1);
    ASSERT_EQ(m.count, 1);
    EXPECT_EQ(m.kind, 2);
    EXPECT_EQ(m.parts[0].type, EDGE_POINT);
    ExpectPoint(m.parts[0].start, 1, 0);
    ExpectPoint(m.parts[0].end, 1, 0);
    EXPECT_EQ(m.parts[1].type, 0);  // the second record is there, cleared
    ExpectPoint(m.parts[1].end, 0, 0);
}

TEST(ElementsMeet, SameLineReversedIsTheSameElement)
{
    ElementMeeting const m = Meet(Line(0, 0, 2, 0), Line(2, 0, 0, 0));
    ASSERT_EQ(m.met, 1);
    EXPECT_EQ(m.count, 1);
    EXPECT_EQ(m.kind, 0);
    EXPECT_EQ(m.parts[0].type, EDGE_LINE);
}

TEST(ElementsMeet, LinesAlongEachOtherShareAStretch)
{
    ElementMeeting const m = Meet(Line(0, 0, 2, 0), Line(1, 0, 3, 0));
    ASSERT_EQ(m.met, 1);
    EXPECT_EQ(m.kind, 1);
    ASSERT_EQ(m.count, 1);
    EXPECT_EQ(m.parts[0].type, EDGE_LINE);
    EXPECT_NEAR(std::fabs(m.parts[0].start.x - m.parts[0].end.x), 1.0, 1e-12);
}

TEST(ElementsMeet, LineAcrossAnArcGivesTwoPoints)
{
    ElementMeeting const m = Meet(ArcElem(0, 0, 2, 0, 1.0), Line(-1, 0.5, 3, 0.5));
    ASSERT_EQ(m.met, 1);
    EXPECT_EQ(m.kind, 2);
    ASSERT_EQ(m.count, 2);
    for (int i = 0; i < 2; ++i)
        EXPECT_NEAR(std::fabs(m.parts[i].start.x - 1.0), std::sqrt(0.75), 1e-12);
}

TEST(ElementsMeet, ArcsOfOneCircleShareAStretchWithItsSignedBulge)
{
    // Lower half circle, clockwise seen from the right end: bulge on the right of its direction.
    double const c = std::sqrt(0.5);
    ElementMeeting const m = Meet(ArcElem(-1, 0, 1, 0, -1.0), ArcElem(-c, -c, c, -c, -std::tan(kPi / 8)));
    ASSERT_EQ(m.met, 1);
    EXPECT_EQ(m.kind, 1);
    ASSERT_EQ(m.count, 1);
    EXPECT_EQ(m.parts[0].type, EDGE_ARC);
    EXPECT_NEAR(std::fabs(m.parts[0].bulge), std::tan(kPi / 8), 1e-9);
    bool const leftToRight = m.parts[0].start.x < m.parts[0].end.x;
    EXPECT_EQ(m.parts[0].bulge < 0.0, leftToRight);
}

TEST(ElementsMeet, ApartLeavesThePartsPointerAlone)
{
    CMathematics math;
    TSelem marker{};
    TSelem * parts = &marker;
    int count = 5;
    int kind = 5;
    EXPECT_EQ(math.ElemIntersection(Line(0, 0, 1, 0), Line(0, 1, 1, 1), parts, count, kind), 0);
    EXPECT_EQ(parts, &marker);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(kind, 0);
}

TEST(SectionOfElement, LineBetweenDistances)
{
    CMathematics math;
    TSelem part{};
    part.mark = 77;
    ASSERT_EQ(math.GetSectionOfElem(Line(0, 0, 4, 0), 1.0, 3.0, &part), 1);
    EXPECT_EQ(part.type, EDGE_LINE);
    ExpectPoint(part.start, 1, 0);
    ExpectPoint(part.end, 3, 0);
    EXPECT_EQ(part.bulge, 0.0);
    EXPECT_EQ(part.mark, 77);
}

TEST(SectionOfElement, ArcKeepsTheSignOfItsBulge)
{
    CMathematics math;
    for (double const sign : {1.0, -1.0}) {
        TSelem part{};
        // A quarter of the half circle's length on each side of the apex.
        ASSERT_EQ(math.GetSectionOfElem(ArcElem(-1, 0, 1, 0, sign), kPi / 4, 3 * kPi / 4, &part), 1);
        EXPECT_EQ(part.type, EDGE_ARC);
        ExpectPoint(part.start, -std::sqrt(0.5), sign * std::sqrt(0.5));
        ExpectPoint(part.end, std::sqrt(0.5), sign * std::sqrt(0.5));
        EXPECT_NEAR(part.bulge, sign * std::tan(kPi / 8), 1e-12);
    }
}

TEST(SectionOfElement, BeyondTheEndFails)
{
    CMathematics math;
    TSelem part{};
    EXPECT_EQ(math.GetSectionOfElem(Line(0, 0, 4, 0), 1.0, 5.0, &part), 0);
}

TEST(PointInElement, PositionIsTheDistanceFromTheStart)
{
    CMathematics math;
    double position = -1.0;
    EXPECT_EQ(math.IsPointInEelem(Line(1, 0, 5, 0), P(4, 0), position), 1);
    EXPECT_NEAR(position, 3.0, 1e-12);
    EXPECT_EQ(math.IsPointInEelem(ArcElem(-1, 0, 1, 0, 1.0), P(0, 1), position), 1);
    EXPECT_NEAR(position, kPi / 2, 1e-12);
    EXPECT_EQ(math.IsPointInEelem(Point(2, 2), P(2, 2 + 5e-7), position), 1);
    EXPECT_EQ(position, 0.0);
}

TEST(PointInElement, OffTheElementGivesPositionZero)
{
    CMathematics math;
    double position = -1.0;
    EXPECT_EQ(math.IsPointInEelem(Line(1, 0, 5, 0), P(4, 1), position), 0);
    EXPECT_EQ(position, 0.0);
}

TEST(PointOnElement, ByDistanceFractionAndPercentage)
{
    CMathematics math;
    TUVect2D p{};
    TSelem const line = Line(0, 0, 4, 0);
    EXPECT_EQ(math.GetPointOnEelem(line, 1.0, 0, p), 1);
    ExpectPoint(p, 1, 0);
    EXPECT_EQ(math.GetPointOnEelem(line, 0.5, 1, p), 1);
    ExpectPoint(p, 2, 0);
    EXPECT_EQ(math.GetPointOnEelem(line, 75.0, 2, p), 1);
    ExpectPoint(p, 3, 0);
    EXPECT_EQ(math.GetPointOnEelem(line, 5.0, 0, p), 0);
}

TEST(PointOnElement, ElementWithoutLengthIsItsPoint)
{
    CMathematics math;
    TUVect2D p{};
    EXPECT_EQ(math.GetPointOnEelem(Line(3, 4, 3, 4 + 5e-7), 0.3, 0, p), 1);
    EXPECT_EQ(p.x, 3.0);
    EXPECT_EQ(p.y, 4.0);
}

TEST(SegmentParameters, CrossingGivesFractionsOnBoth)
{
    SegmentMeeting const m = Cross(P(0, 0), P(4, 0), P(1, -1), P(1, 3));
    EXPECT_EQ(m.met, 1);
    EXPECT_EQ(m.kind, 1);
    EXPECT_EQ(m.shape, 1);
    EXPECT_DOUBLE_EQ(m.t1, 0.25);
    EXPECT_DOUBLE_EQ(m.t2, 0.25);
    ExpectPoint(m.p1, 1, 0);
    ExpectPoint(m.p2, 1, 0);
}

TEST(SegmentParameters, CrossingOfTheInfiniteLinesIsWrittenWithResultZero)
{
    SegmentMeeting const m = Cross(P(0, 0), P(1, 0), P(3, 1), P(3, 2));
    EXPECT_EQ(m.met, 0);
    EXPECT_EQ(m.kind, 1);
    EXPECT_DOUBLE_EQ(m.t1, 3.0);
    EXPECT_DOUBLE_EQ(m.t2, -1.0);
    ExpectPoint(m.p1, 3, 0);
}

TEST(SegmentParameters, EndsSnapWithinTheTolerance)
{
    SegmentMeeting const m = Cross(P(5e-7, 0), P(4, 0), P(0, 0), P(0, 3));
    EXPECT_EQ(m.met, 1);
    EXPECT_EQ(m.t1, 0.0);
    EXPECT_EQ(m.t2, 0.0);
}

TEST(SegmentParameters, TwoSegmentsWithoutLength)
{
    SegmentMeeting const m = Cross(P(1, 1), P(1, 1), P(1, 1), P(1, 1));
    EXPECT_EQ(m.met, 0);
    EXPECT_EQ(m.kind, 255);
    EXPECT_EQ(m.shape, 0);
}

TEST(SegmentParameters, ParallelApartGivesTheUnscaledProjection)
{
    // w = (1, 3), d1 = (2, 0): P2 = P1 + w - (w . unit d1) d1 = (2, 0) + (1, 3) - 1 * (2, 0).
    SegmentMeeting const m = Cross(P(0, 0), P(2, 0), P(1, 3), P(5, 3));
    EXPECT_EQ(m.met, 0);
    EXPECT_EQ(m.kind, 0);
    EXPECT_EQ(m.shape, 0);
    ExpectPoint(m.p1, 2, 0);
    ExpectPoint(m.p2, 1, 3);
}

TEST(SegmentParameters, ParallelAtTheToleranceIsOneLine)
{
    EXPECT_EQ(Cross(P(0, 0), P(2, 0), P(0, kTolerance), P(2, kTolerance)).kind, 10);
    EXPECT_EQ(Cross(P(0, 0), P(2, 0), P(0, 1.1e-6), P(2, 1.1e-6)).kind, 0);
}

TEST(SegmentParameters, OneLineApart)
{
    SegmentMeeting const beyond = Cross(P(0, 0), P(2, 0), P(3, 0), P(4, 0));
    EXPECT_EQ(beyond.met, 0);
    EXPECT_EQ(beyond.kind, 2);
    EXPECT_EQ(beyond.shape, 0);
    SegmentMeeting const before = Cross(P(0, 0), P(2, 0), P(-3, 0), P(-1, 0));
    EXPECT_EQ(before.met, 0);
    EXPECT_EQ(before.kind, 2);
}

TEST(SegmentParameters, CollinearTouchAtTheStart)
{
    SegmentMeeting const m = Cross(P(0, 0), P(2, 0), P(-1, 0), P(0, 0));
    EXPECT_EQ(m.met, 1);
    EXPECT_EQ(m.kind, 10);
    EXPECT_EQ(m.shape, 3);
    ExpectPoint(m.p1, 0, 0);
    ExpectPoint(m.p2, 0, 0);
}

TEST(SegmentParameters, CollinearTouchAtTheEnd)
{
    SegmentMeeting const m = Cross(P(0, 0), P(2, 0), P(2, 0), P(5, 0));
    EXPECT_EQ(m.met, 1);
    EXPECT_EQ(m.shape, 3);
    ExpectPoint(m.p1, 2, 0);
    ExpectPoint(m.p2, 2, 0);
}

TEST(SegmentParameters, IdenticalSegmentsGiveTheSecondOne)
{
    SegmentMeeting const m = Cross(P(0, 0), P(2, 0), P(5e-7, 5e-7), P(2, 5e-7));
    EXPECT_EQ(m.met, 1);
    EXPECT_EQ(m.kind, 10);
    EXPECT_EQ(m.t1, 0.0);
    EXPECT_EQ(m.t2, 1.0);
    EXPECT_EQ(m.p1.x, 5e-7);
    EXPECT_EQ(m.p2.y, 5e-7);
}

TEST(SegmentParameters, CommonStretchOfEachOverlap)
{
    TUVect2D const a = P(0, 0);
    TUVect2D const b = P(4, 0);
    struct Row
    {
        double c, d, p1, p2;
    };
    for (Row const & row : {Row{-1, 5, 0, 4}, Row{5, -1, 0, 4}, Row{1, 3, 1, 3}, Row{3, 1, 3, 1},
                            Row{1, -2, 0, 1}, Row{-2, 1, 0, 1}, Row{1, 6, 4, 1}, Row{6, 1, 4, 1}}) {
        SegmentMeeting const m = Cross(a, b, P(row.c, 0), P(row.d, 0));
        EXPECT_EQ(m.met, 1);
        ExpectPoint(m.p1, row.p1, 0);
        ExpectPoint(m.p2, row.p2, 0);
        EXPECT_DOUBLE_EQ(m.t1, row.c / 4);
        EXPECT_DOUBLE_EQ(m.t2, row.d / 4);
    }
}

TEST(ArcLineParameters, SecantThroughBothSidesOfAHalfCircle)
{
    // y = 0.5 against the upper half circle of (1, 0): x = 1 -+ sqrt(0.75), the larger line parameter first.
    ArcLineMeeting const m = CutArc(P(0, 0), P(2, 0), 1.0, P(-1, 0.5), P(3, 0.5), 1);
    EXPECT_EQ(m.code, 2);
    EXPECT_EQ(m.flags, 15);
    ExpectPoint(m.p1, 1 + std::sqrt(0.75), 0.5);
    ExpectPoint(m.p2, 1 - std::sqrt(0.75), 0.5);
    EXPECT_GT(m.line1, m.line2);
    // The point at 30 degrees: (1 - cos 150) / 2 and (1 - cos 30) / 2.
    EXPECT_NEAR(m.arc1, (1 + std::sqrt(0.75)) / 2, 1e-12);
    EXPECT_NEAR(m.arc2, (1 - std::sqrt(0.75)) / 2, 1e-12);
}

TEST(ArcLineParameters, OnlyThePointOnTheArcIsLeftAndStandsFirst)
{
    // x = 1 cuts the circle at (1, 1) and (1, -1); the line parameter is larger at (1, -1) here.
    ArcLineMeeting const m = CutArc(P(0, 0), P(2, 0), 1.0, P(1, 2), P(1, -2), 1);
    EXPECT_EQ(m.code, 1);
    ExpectPoint(m.p1, 1, 1);
    EXPECT_NEAR(m.line1, 0.25, 1e-12);
    EXPECT_NEAR(m.arc1, 0.5, 1e-12);
    EXPECT_NEAR(m.line2, 0.75, 1e-12);
    EXPECT_EQ(m.arc2, -1.0);
}

TEST(ArcLineParameters, TangentContact)
{
    ArcLineMeeting const m = CutArc(P(0, 0), P(2, 0), 1.0, P(0, 1), P(2, 1), 1);
    EXPECT_EQ(m.code, 17);
    EXPECT_EQ(m.flags, 3);
    ExpectPoint(m.p1, 1, 1);
    EXPECT_NEAR(m.line1, 0.5, 1e-12);
}

TEST(ArcLineParameters, TangentFootOffTheSegmentCountsOnlyWithoutLimit)
{
    EXPECT_EQ(CutArc(P(0, 0), P(2, 0), 1.0, P(5, 1), P(6, 1), 1).code, 0);
    EXPECT_EQ(CutArc(P(0, 0), P(2, 0), 1.0, P(5, 1), P(6, 1), 0).code, 17);
    EXPECT_EQ(CutArc(P(0, 0), P(2, 0), 1.0, P(5, 1), P(6, 1), 2).code, 17);
}

TEST(ArcLineParameters, TangentOnTheFarSideOfTheChord)
{
    EXPECT_EQ(CutArc(P(0, 0), P(2, 0), 1.0, P(0, -1), P(2, -1), 1).code, 0);
}

TEST(ArcLineParameters, LinePastTheCircle)
{
    ArcLineMeeting const m = CutArc(P(0, 0), P(2, 0), 1.0, P(0, 1.1), P(2, 1.1), 1);
    EXPECT_EQ(m.code, 0);
    EXPECT_EQ(m.flags, 0);
}

TEST(ArcLineParameters, EndsSnap)
{
    ArcLineMeeting const m = CutArc(P(0, 0), P(2, 0), 1.0, P(0, 0), P(0, -3), 1);
    EXPECT_EQ(m.code, 17);  // the tangent at the start
    EXPECT_EQ(m.arc1, 0.0);
    EXPECT_EQ(m.line1, 0.0);
}

TEST(ArcLineParameters, SegmentEndingInsideTheCircle)
{
    EXPECT_EQ(CutArc(P(0, 0), P(2, 0), 1.0, P(1, 0.5), P(5, 0.5), 1).code, 1);
    EXPECT_EQ(CutArc(P(0, 0), P(2, 0), 1.0, P(1, 0.5), P(1.2, 0.5), 1).code, 0);
    EXPECT_EQ(CutArc(P(0, 0), P(2, 0), 1.0, P(1, 0.5), P(1.2, 0.5), 0).code, 2);
}

TEST(ArcLineParameters, NoArcMeetsNothing)
{
    EXPECT_EQ(CutArc(P(0, 0), P(2, 0), 0.0, P(1, -1), P(1, 1), 1).code, 0);
}

TEST(ArcLineLimited, IsTheCallWithLimitOne)
{
    CMathematics math;
    TUVect2D p1{};
    TUVect2D p2{};
    int flags = 0;
    EXPECT_EQ(math.ArcLineIntersection(P(0, 0), P(2, 0), 1.0, P(5, 1), P(6, 1), p1, p2, flags), 0);
    EXPECT_EQ(math.ArcLineIntersection(P(0, 0), P(2, 0), 1.0, P(-1, 0.5), P(3, 0.5), p1, p2, flags), 2);
    ExpectPoint(p1, 1 + std::sqrt(0.75), 0.5);
    EXPECT_EQ(flags, 15);
}

TEST(ArcTangents, BothTurnTowardTheApex)
{
    CMathematics math;
    TUVect2D t1{};
    TUVect2D t2{};
    ASSERT_EQ(math.GetArcTangentVectors(P(0, 0), P(2, 0), 1.0, t1, t2), 1);
    ExpectPoint(t1, 0, 1);
    ExpectPoint(t2, 0, 1);
    ASSERT_EQ(math.GetArcTangentVectors(P(0, 0), P(2, 0), -1.0, t1, t2), 1);
    ExpectPoint(t1, 0, -1);
    ExpectPoint(t2, 0, -1);
}
