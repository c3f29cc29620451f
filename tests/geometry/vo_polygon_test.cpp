#include "geometry/vo_polygon.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "gmock/gmock.h"
#include "gtest/gtest.h"
#include "tests/geometry/outlines.h"

using namespace outlines;

namespace {
constexpr double kPi = std::numbers::pi;

/// A polygon with its kernel.
class Prepared
{
  public:
    explicit Prepared(Outline const & outline, int testConvexity = 0) : polygon(&math)
    {
        Area area;
        Fill(area, outline);
        EXPECT_EQ(polygon.Create(area, testConvexity), 1);
    }

    Intersection Meet(Outline const & triangle)
    {
        Area area;
        Fill(area, triangle);
        SetArray * result = nullptr;
        int const code = polygon.LoadPolygonFEMTriangleIntersection(area, result);
        return {code, Sets(result)};
    }

    CMathematics math;
    CVOPolygon polygon;
};

Outline Triangle(double x1, double y1, double x2, double y2, double x3, double y3)
{
    return Closed({V(x1, y1), V(x2, y2), V(x3, y3)});
}

/// A U open to the top, 6 wide and 4 high with a bay from (2, 1) to (4, 4).
Outline U()
{
    return Closed({V(0, 0), V(6, 0), V(6, 4), V(4, 4), V(4, 1), V(2, 1), V(2, 4), V(0, 4)});
}

double SurfaceOf(Outline const & outline)
{
    CMathematics math;
    MadeArea const area(outline);
    return math.GetAreaSurface(&area);
}

/// The single member of result 1.
Outline OutlineOf(Intersection const & common)
{
    EXPECT_EQ(common.code, 1);
    if (!common.sets || common.sets->GetSize() != 1)
        return {};
    EXPECT_EQ((*common.sets)[0].kind, 2);
    return RecordsOf((*common.sets)[0]);
}

/// Result `code` with nothing allocated.
void ExpectCodeAlone(Intersection const & common, int code)
{
    EXPECT_EQ(common.code, code);
    EXPECT_EQ(common.sets, nullptr);
}
}  // namespace

TEST(OutlineBox2D, StartsEmptyAndGrowsByMargins)
{
    CVOutlineBox2D box;
    EXPECT_EQ(box.m_dMaxX, -1e300);
    EXPECT_EQ(box.m_dMinX, 1e300);
    EXPECT_EQ(box.m_dMaxY, -1e300);
    EXPECT_EQ(box.m_dMinY, 1e300);
    box.Add(TUVect2D{{1.0, 2.0}}, 0.5);
    box.Add(TUVect2D{{4.0, 3.0}}, 0.25);
    EXPECT_EQ(box.m_dMinX, 0.5);
    EXPECT_EQ(box.m_dMaxX, 4.25);
    EXPECT_EQ(box.m_dMinY, 1.5);
    EXPECT_EQ(box.m_dMaxY, 3.25);
    box.Reset();
    EXPECT_EQ(box.m_dMaxX, -1e300);
}

TEST(OutlineBox2D, HoldsItsValuesInOrder)
{
    CVOutlineBox2D box;
    double const * values = &box.m_dMaxX;
    box.Add(TUVect2D{{1.0, 2.0}}, 0.5);
    EXPECT_EQ(values[0], 1.5);
    EXPECT_EQ(values[1], 0.5);
    EXPECT_EQ(values[2], 2.5);
    EXPECT_EQ(values[3], 1.5);
    EXPECT_EQ(sizeof(CVOutlineBox2D), 4 * sizeof(double));
}

TEST(OutlineBox2D, LineElementCountsByItsEnds)
{
    CVOutlineBox2D box;
    box.Add(TSelem{EDGE_LINE, 0, {{0.0, 0.0}}, {{2.0, 1.0}}, 0.0}, 0.5);
    EXPECT_EQ(box.m_dMinX, -0.5);
    EXPECT_EQ(box.m_dMaxX, 2.5);
    EXPECT_EQ(box.m_dMaxY, 1.5);
}

TEST(OutlineBox2D, ArcElementWidensBySignedSagitta)
{
    CVOutlineBox2D box;
    box.Add(TSelem{EDGE_ARC, 0, {{0.0, 0.0}}, {{2.0, 0.0}}, 0.5}, 0.1);
    EXPECT_DOUBLE_EQ(box.m_dMaxY, 0.6);
    EXPECT_DOUBLE_EQ(box.m_dMinY, -0.6);
    // Half a chord of 1 times the bulge of -0.5 takes more off than the margin of 0.1 adds: nothing is held.
    box.Reset();
    box.Add(TSelem{EDGE_ARC, 0, {{0.0, 0.0}}, {{2.0, 0.0}}, -0.5}, 0.1);
    EXPECT_DOUBLE_EQ(box.m_dMaxY, -0.4);
    EXPECT_DOUBLE_EQ(box.m_dMinY, 0.4);
}

TEST(OutlineBox2D, TouchingIsOverlap)
{
    CVOutlineBox2D a;
    a.Add(TUVect2D{{0.0, 0.0}}, 1.0);
    for (auto const [x, y, expected] :
         {std::array{2.0, 0.0, 1.0}, std::array{2.001, 0.0, 0.0}, std::array{0.0, -2.0, 1.0},
          std::array{0.0, -2.001, 0.0}, std::array{-2.0, 2.0, 1.0}, std::array{-2.001, 0.0, 0.0},
          std::array{0.0, 2.001, 0.0}}) {
        CVOutlineBox2D b;
        b.Add(TUVect2D{{x, y}}, 1.0);
        EXPECT_EQ(a.Intersects(b), static_cast<int>(expected)) << x << ' ' << y;
    }
    CVOutlineBox2D copy;
    copy = a;
    EXPECT_EQ(copy.m_dMaxX, 1.0);
}

TEST(LoadPolygonCreate, BoxHasTheMargin)
{
    CMathematics math;
    CVOPolygon polygon(&math);
    Area area;
    Fill(area, Rectangle(1, 2, 5, 8));
    polygon.SetOkoli(0.5);
    polygon.Create(area, 0);
    EXPECT_EQ(polygon.GetOutlineBox().m_dMinX, 0.5);
    EXPECT_EQ(polygon.GetOutlineBox().m_dMaxX, 5.5);
    EXPECT_EQ(polygon.GetOutlineBox().m_dMinY, 1.5);
    EXPECT_EQ(polygon.GetOutlineBox().m_dMaxY, 8.5);
}

TEST(LoadPolygonCreate, ArcMarkerMakesTheBoxEndlessOnTheLeft)
{
    Prepared circle(Circle(0, 0, 2));
    CVOutlineBox2D const & box = circle.polygon.GetOutlineBox();
    EXPECT_EQ(box.m_dMinX, -1e100);
    EXPECT_DOUBLE_EQ(box.m_dMaxX, 2.0 + 1e-6);
    // Neither is the sagitta in it: the vertices stand at y = 0, the bulges at -1.
    EXPECT_DOUBLE_EQ(box.m_dMaxY, 1e-6);
    EXPECT_DOUBLE_EQ(box.m_dMinY, -1.0 - 1e-6);
}

TEST(LoadPolygonCreate, ConvexityIsTestedOnRequest)
{
    EXPECT_EQ(Prepared(Rectangle(0, 0, 4, 3), 1).polygon.IsConvex(), 1);
    EXPECT_EQ(Prepared(Rectangle(0, 0, 4, 3), 0).polygon.IsConvex(), 0);
    EXPECT_EQ(Prepared(U(), 1).polygon.IsConvex(), 0);
    // The test takes a clockwise polygon for concave.
    EXPECT_EQ(Prepared(Reversed(Rectangle(0, 0, 4, 3)), 1).polygon.IsConvex(), 0);
}

TEST(LoadPolygonCreate, FirstCornerIsNotLookedAt)
{
    // Concave at (1, 1) alone: with it as the first corner the polygon counts as convex.
    EXPECT_EQ(Prepared(Closed({V(1, 1), V(0, 4), V(0, 0), V(4, 0)}), 1).polygon.IsConvex(), 1);
    EXPECT_EQ(Prepared(Closed({V(0, 4), V(0, 0), V(4, 0), V(1, 1)}), 1).polygon.IsConvex(), 0);
}

TEST(LoadPolygonCreate, CanBeRepeated)
{
    Prepared prepared(Rectangle(0, 0, 4, 3), 1);
    Area area;
    Fill(area, Rectangle(10, 10, 14, 13));
    EXPECT_EQ(prepared.polygon.Create(area, 0), 1);
    ExpectCodeAlone(prepared.Meet(Triangle(1, 1, 2, 1, 1, 2)), 0);
    ExpectCodeAlone(prepared.Meet(Triangle(11, 11, 12, 11, 11, 12)), 2);
}

TEST(LoadPolygonPoint, InsideByItsTurns)
{
    Prepared u(U());
    EXPECT_EQ(u.polygon.IsPointInside({{1.0, 3.0}}), 1);
    EXPECT_EQ(u.polygon.IsPointInside({{3.0, 3.0}}), 0);
    EXPECT_EQ(u.polygon.IsPointInside({{9.0, 0.5}}), 0);
    EXPECT_EQ(Prepared(Reversed(U())).polygon.IsPointInside({{1.0, 3.0}}), 1);
}

TEST(LoadPolygonMoments, AddUpWithoutReset)
{
    CVOPolygon polygon;
    Area area;
    Fill(area, Rectangle(1, 2, 4, 4));
    double surface = 100.0;
    double Sx = 100.0;
    double Sy = 100.0;
    polygon.ComputeLinePolygonAreaMoments(area, surface, Sx, Sy, 1);
    EXPECT_DOUBLE_EQ(surface, 6.0);
    EXPECT_DOUBLE_EQ(Sx, 18.0);
    EXPECT_DOUBLE_EQ(Sy, 15.0);
    Fill(area, Reversed(Rectangle(1, 2, 4, 4)));
    polygon.ComputeLinePolygonAreaMoments(area, surface, Sx, Sy, 0);
    EXPECT_DOUBLE_EQ(surface, 0.0);
    EXPECT_DOUBLE_EQ(Sx, 0.0);
    EXPECT_DOUBLE_EQ(Sy, 0.0);
}

TEST(LoadPolygonSeparation, NeverSaysApart)
{
    CVOPolygon polygon;
    Area a;
    Area b;
    Fill(a, Rectangle(0, 0, 1, 1));
    Fill(b, Rectangle(9, 9, 10, 10));
    EXPECT_EQ(polygon.ArePolygonsSeparated(&a, &b), 0);
}

TEST(LoadPolygonTriangle, FarAwayGivesNothing)
{
    for (int const test : {0, 1}) {
        Prepared prepared(Rectangle(0, 0, 4, 3), test);
        ExpectCodeAlone(prepared.Meet(Triangle(10, 0, 11, 0, 10, 1)), 0);
        ExpectCodeAlone(prepared.Meet(Triangle(1e7, 0, 2e7, 0, 1e7, 1e7)), 0);
    }
}

TEST(LoadPolygonTriangle, ResultStaysAsItWasWithoutOutlines)
{
    Prepared prepared(Rectangle(0, 0, 4, 3));
    SetArray other;
    SetArray * result = &other;
    Area area;
    for (Outline const & triangle : {Triangle(10, 0, 11, 0, 10, 1), Triangle(1, 1, 2, 1, 1, 2)}) {
        Fill(area, triangle);
        prepared.polygon.LoadPolygonFEMTriangleIntersection(area, result);
        EXPECT_EQ(result, &other);
    }
}

TEST(LoadPolygonTriangle, WithinThePolygonIsWhole)
{
    for (int const test : {0, 1}) {
        Prepared prepared(Rectangle(0, 0, 4, 3), test);
        ExpectCodeAlone(prepared.Meet(Triangle(1, 1, 2, 1, 1, 2)), 2);
        // With a corner, and with a side, on the polygon's boundary.
        ExpectCodeAlone(prepared.Meet(Triangle(0, 0, 2, 1, 1, 2)), 2);
        ExpectCodeAlone(prepared.Meet(Triangle(1, 0, 2, 0, 1, 2)), 2);
    }
}

TEST(LoadPolygonTriangle, InTheBayOfAConcavePolygonIsOutside)
{
    for (int const test : {0, 1}) {
        Prepared prepared(U(), test);
        ExpectCodeAlone(prepared.Meet(Triangle(2.5, 2, 3.5, 2, 3, 3)), 0);
        ExpectCodeAlone(prepared.Meet(Triangle(0.5, 2, 1.5, 2, 1, 3)), 2);
    }
}

TEST(LoadPolygonTriangle, CrossingASideGivesOneClosedOutline)
{
    // The right half of the triangle hangs over x = 4: what is left is cut at (4, 1) and (4, 1.5).
    Prepared prepared(Rectangle(0, 0, 4, 3));
    Intersection const common = prepared.Meet(Triangle(3, 1, 5, 1, 3, 2));
    Outline const outline = OutlineOf(common);
    ASSERT_EQ(outline.size(), 5u);
    EXPECT_EQ(outline.front().x, outline.back().x);
    EXPECT_EQ(outline.front().y, outline.back().y);
    EXPECT_NEAR(SurfaceOf(outline), 0.75, 1e-9);
}

TEST(LoadPolygonTriangle, SharedSideFromOutsideGivesNothing)
{
    Prepared prepared(Rectangle(0, 0, 4, 3));
    ExpectCodeAlone(prepared.Meet(Triangle(4, 0, 6, 1, 4, 3)), 0);
    ExpectCodeAlone(prepared.Meet(Triangle(4, 1, 6, 1, 4, 2)), 0);  // a part of the side
    ExpectCodeAlone(prepared.Meet(Triangle(4, 3, 6, 3, 5, 5)), 0);  // a corner
}

TEST(LoadPolygonTriangle, SmallPolygonWithinATriangleIsNotLookedFor)
{
    Prepared prepared(Rectangle(1, 1, 1.5, 1.5));
    ExpectCodeAlone(prepared.Meet(Triangle(0, 0, 10, 0, 0, 10)), 0);
}

TEST(LoadPolygonTriangle, PolygonWithinTouchingASideIsCopied)
{
    // One corner of the diamond stands on the triangle's lower side.
    Outline const diamond = Closed({V(2, 0), V(3, 1), V(2, 2), V(1, 1)});
    Prepared prepared(diamond);
    Outline const outline = OutlineOf(prepared.Meet(Triangle(-5, 0, 10, 0, 2, 10)));
    ASSERT_EQ(outline.size(), diamond.size());
    for (std::size_t i = 0; i < diamond.size(); ++i) {
        EXPECT_EQ(outline[i].x, diamond[i].x);
        EXPECT_EQ(outline[i].y, diamond[i].y);
    }
}

TEST(LoadPolygonTriangle, TwoPartsOfTheUGiveTwoOutlines)
{
    Prepared prepared(U());
    Intersection const common = prepared.Meet(Triangle(-1, 3, 7, 3, 3, 3.8));
    ASSERT_EQ(common.code, 1);
    ASSERT_EQ(common.sets->GetSize(), 2);
    double sum = 0.0;
    for (TSGeneralSet const & set : *common.sets)
        sum += SurfaceOf(RecordsOf(set));
    // Each arm is 2 wide; at x the triangle is 0.2 (x + 1) high: 0.2 to 0.6, on both sides.
    EXPECT_NEAR(sum, 2.0 * (0.2 + 0.6) / 2.0 * 2.0, 1e-9);
}

TEST(LoadPolygonTriangle, ArcStaysInTheOutline)
{
    // A quarter of the circle of radius 2.
    for (Outline const & circle : {Circle(0, 0, 2), Reversed(Circle(0, 0, 2))}) {
        Prepared prepared(circle);
        Outline const outline = OutlineOf(prepared.Meet(Triangle(0, 0, 0, -10, 10, 0)));
        EXPECT_NEAR(std::fabs(SurfaceOf(outline)), kPi, 1e-6);
        EXPECT_TRUE(std::any_of(outline.begin(), outline.end(), IsMarker));
    }
}

TEST(LoadPolygonTriangle, BoxOfAPolygonWithArcsCutsOffParts)
{
    // The vertices of the circle stand at y = 0 and its bulges at -1, so a triangle above is dismissed.
    Prepared prepared(Circle(0, 0, 2));
    ExpectCodeAlone(prepared.Meet(Triangle(-0.5, 0.5, 0.5, 0.5, 0, 1)), 0);
    ExpectCodeAlone(prepared.Meet(Triangle(-0.5, -0.5, 0.5, -0.5, 0, 0.5)), 2);
    // To the left the box is endless: the full test says outside.
    ExpectCodeAlone(prepared.Meet(Triangle(-9, -0.5, -8, -0.5, -8, 0.5)), 0);
}

TEST(LoadPolygonTriangle, TooFewRecordsOrNoNumbersGiveNoPart)
{
    Prepared prepared(Rectangle(0, 0, 4, 3));
    ExpectCodeAlone(prepared.Meet({V(1, 1), V(2, 1), V(1, 2)}), 0);
    ExpectCodeAlone(prepared.Meet({}), 0);
    double const none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_NE(prepared.Meet(Closed({V(1, 1), V(2, none), V(1, 2)})).code, 1);
    double const endless = std::numeric_limits<double>::infinity();
    EXPECT_NE(prepared.Meet(Closed({V(endless, 1), V(2, 1), V(1, 2)})).code, 1);
}

TEST(LoadPolygonTriangle, PolygonWithoutSidesTakesNoTriangle)
{
    for (Outline const & outline : {Outline{}, Outline{V(1, 1)}, Closed({V(1, 1)}), Outline{Arc(0.5)},
                                    Outline{Arc(0.5), Arc(0.5), V(1, 1)}, Closed({V(1, 1), Arc(0.5)})})
        EXPECT_EQ(Prepared(outline).Meet(Triangle(0, 0, 3, 0, 0, 3)).code, 0);
}

TEST(LoadPolygonTriangle, ToleranceMayChangeAfterCreate)
{
    Prepared prepared(Rectangle(0, 0, 4, 3));
    for (double const okoli : {1e-3, 1e-9}) {
        prepared.math.SetOkoli(okoli);
        ExpectCodeAlone(prepared.Meet(Triangle(1, 1, 2, 1, 1, 2)), 2);
        EXPECT_NEAR(SurfaceOf(OutlineOf(prepared.Meet(Triangle(3, 1, 5, 1, 3, 2)))), 0.75, 1e-9);
    }
}
