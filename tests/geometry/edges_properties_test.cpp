#include <gtest/gtest.h>

#include <cstring>

#include "edge_samples.h"
#include "geometry/edges_set.h"

using namespace arc_samples;

// Random scenes: edges between places of a small grid, so that ends, stretches and circles often coincide,
// and edges anywhere, so that they often don't.

namespace {
constexpr double kBulges[] = {0.1, 0.41421356237309503, 0.5, 1.0, 2.0, 5.0};

TUVect3D GridPlace(std::mt19937 & random, bool plane)
{
    auto const coordinate = [&] { return static_cast<double>(random() % 4); };
    return At(coordinate(), coordinate(), plane ? 0.0 : static_cast<double>(random() % 2));
}

TSPlaneEdge3D GridEdge(std::mt19937 & random)
{
    bool const plane = random() % 4 != 0;
    TUVect3D const start = GridPlace(random, plane);
    TUVect3D const end = GridPlace(random, plane);
    if (random() % 12 == 0)
        return Point(start);
    if (random() % 2 == 0)
        return Line(start, end);
    TUVect3D const chord = Minus(end, start);
    TUVect3D const side = plane ? At(-chord.y, chord.x) : At(-chord.y, chord.x, 1.0);
    TSPlaneEdge3D const arc = Arc(start, end, side, kBulges[random() % 6]);
    return random() % 2 ? arc : WithNegativeBulge(arc);
}

TSPlaneEdge3D FreeEdge(std::mt19937 & random)
{
    std::uniform_real_distribution<double> place(-3.0, 3.0);
    bool const plane = random() % 2 != 0;
    auto const z = [&] { return plane ? 0.0 : place(random); };
    TUVect3D const start = At(place(random), place(random), z());
    TUVect3D const end = At(place(random), place(random), z());
    if (random() % 2 == 0)
        return Line(start, end);
    TUVect3D const chord = Minus(end, start);
    return Arc(start, end, At(-chord.y, chord.x, plane ? 0.0 : place(random)),
               RandomBulge(random, 1e-3, 50.0));
}

TSPlaneEdge3D AnyEdge(std::mt19937 & random, int i)
{
    return i % 3 ? GridEdge(random) : FreeEdge(random);
}

bool SameRecords(TSPlaneEdge3D const & a, TSPlaneEdge3D const & b)
{
    auto const same = [](TUVect3D const & p, TUVect3D const & q) {
        return std::memcmp(&p, &q, sizeof p) == 0;
    };
    return a.type == b.type && same(a.start, b.start) && same(a.end, b.end) &&
           same(a.arcVector, b.arcVector) && std::memcmp(&a.bulge, &b.bulge, sizeof a.bulge) == 0;
}

bool SameResults(Edges & found, detail::EdgeSet const & set)
{
    if (found.count != set.count)
        return false;
    for (int i = 0; i < set.count; ++i)
        if (!SameRecords(found[i], set.edges[i]))
            return false;
    return true;
}

/// Whether the point lies on the edge, by its distance from the edge and with a wider tolerance.
double DistanceFrom(TSPlaneEdge3D const & edge, TUVect3D const & point)
{
    CMathematics math;
    double nearest = std::min(Distance(point, edge.start), Distance(point, edge.end));
    TUVect3D centre;
    if (edge.type == EDGE_LINE) {
        TUVect3D const along = Minus(edge.end, edge.start);
        double const t = PlainDot(Minus(point, edge.start), along) / PlainDot(along, along);
        if (t > 0.0 && t < 1.0)
            nearest = std::min(nearest, Distance(point, Combined(edge.start, t, along, 0.0, along)));
    }
    if (edge.type == EDGE_ARC &&
        math.Get3DArcCenter(edge.start, edge.end, edge.arcVector, edge.bulge, centre)) {
        // The nearest point of the circle counts if it lies on the apex side of the chord.
        TUVect3D const axis = PlainCross(edge.arcVector, Minus(edge.end, edge.start));
        TUVect3D out = Minus(point, centre);
        out = Combined(out, -PlainDot(out, axis) / PlainDot(axis, axis), axis, 0.0, axis);
        double const radius = Distance(edge.start, centre);
        TUVect3D const on = Combined(centre, radius / Size(out), out, 0.0, out);
        TUVect3D const middle = Combined(At(0, 0), 0.5, edge.start, 0.5, edge.end);
        TUVect3D const across = PlainCross(Minus(edge.end, edge.start), axis);
        if (PlainDot(Minus(on, middle), across) * edge.bulge > 0.0)
            nearest = std::min(nearest, Distance(point, on));
    }
    return nearest;
}

TEST(EdgeIntersectionProperty, QuickRejectionsChangeNoResult)
{
    CMathematics math;
    std::mt19937 random(1);
    int hits = 0;
    for (int i = 0; i < 60000; ++i) {
        if (i % 5000 == 0)
            math.SetOkoli(i % 10000 ? 1e-3 : 1e-6);
        TSPlaneEdge3D a = AnyEdge(random, i);
        TSPlaneEdge3D b = AnyEdge(random, i);
        Edges quick;
        quick.result = math.EdgeIntersection(&a, &b, quick.array, quick.count, quick.how);
        detail::EdgeSet plain;
        int how;
        int const result = detail::IntersectEdgesPlainly(math, a, b, plain, how);
        if (!result)
            plain.count = 0;
        ASSERT_EQ(quick.result, result) << i;
        ASSERT_EQ(quick.how, how) << i;
        ASSERT_TRUE(SameResults(quick, plain)) << i;
        hits += result;
    }
    EXPECT_GT(hits, 5000);
}

TEST(EdgeIntersectionProperty, QuickRejectionsChangeNoResultBesideTheTolerance)
{
    // Edges that miss each other by up to some tolerances, at places far from the origin too.
    CMathematics math;
    std::mt19937 random(2);
    std::uniform_real_distribution<double> share(-20.0, 20.0);
    int hits = 0;
    int misses = 0;
    for (int i = 0; i < 60000; ++i) {
        double const away = i % 2 ? 0.0 : 1e4;
        TSPlaneEdge3D a = FreeEdge(random);
        TSPlaneEdge3D b = FreeEdge(random);
        TUVect3D touch;
        if (!math.Get3DPointOnEdge3D(a, 0.5 + share(random) / 40.0, 1, touch))
            continue;
        // Moves b so that its start lies beside a.
        TUVect3D const move =
            Combined(touch, -1.0, b.start, share(random) * 1e-7, At(1, 1, i % 3 ? 0.0 : 1.0));
        for (TUVect3D * point : {&b.start, &b.end})
            *point = Combined(*point, 1.0, move, away, At(1, 0, 0));
        for (TUVect3D * point : {&a.start, &a.end})
            point->x += away;
        Edges quick;
        quick.result = math.EdgeIntersection(&a, &b, quick.array, quick.count, quick.how);
        detail::EdgeSet plain;
        int how;
        int const result = detail::IntersectEdgesPlainly(math, a, b, plain, how);
        if (!result)
            plain.count = 0;
        ASSERT_EQ(quick.result, result) << i;
        ASSERT_TRUE(SameResults(quick, plain)) << i;
        (result ? hits : misses)++;
    }
    EXPECT_GT(hits, 5000);
    EXPECT_GT(misses, 5000);
}

TEST(EdgeIntersectionProperty, ResultsLieOnBothEdges)
{
    CMathematics math;
    std::mt19937 random(3);
    for (int i = 0; i < 20000; ++i) {
        TSPlaneEdge3D a = AnyEdge(random, i);
        TSPlaneEdge3D b = AnyEdge(random, i);
        Edges found;
        math.EdgeIntersection(&a, &b, found.array, found.count, found.how);
        for (int k = 0; k < found.count; ++k)
            for (TUVect3D const & point : {found[k].start, found[k].end}) {
                ASSERT_LT(DistanceFrom(a, point), 1.01e-6) << i;
                ASSERT_LT(DistanceFrom(b, point), 1.01e-6) << i;
            }
    }
}

TEST(EdgeIntersectionProperty, OrderOfArgumentsDoesntMatter)
{
    CMathematics math;
    std::mt19937 random(4);
    for (int i = 0; i < 20000; ++i) {
        TSPlaneEdge3D a = AnyEdge(random, i);
        TSPlaneEdge3D b = AnyEdge(random, i);
        Edges one;
        Edges other;
        ASSERT_EQ(math.EdgeIntersection(&a, &b, one.array, one.count, one.how),
                  math.EdgeIntersection(&b, &a, other.array, other.count, other.how))
            << i;
        ASSERT_EQ(one.count, other.count) << i;
        ASSERT_EQ(one.how, other.how) << i;
        // The records may come in another order and direction.
        for (int k = 0; k < one.count; ++k) {
            bool found = false;
            for (int m = 0; m < other.count; ++m)
                found = found || math.CompareEdge(&one[k], &other[m]);
            ASSERT_TRUE(found) << i;
        }
    }
}

/// The edge moved rigidly: turned into the frame and shifted.
TSPlaneEdge3D Moved(TSPlaneEdge3D edge, Frame const & frame, TUVect3D const & shift)
{
    auto const turn = [&](TUVect3D const & p) {
        return Combined(Combined(At(0, 0), p.x, frame.e1, p.y, frame.e2), p.z, frame.e3, 0.0, frame.e3);
    };
    edge.start = Combined(turn(edge.start), 1.0, shift, 0.0, shift);
    edge.end = Combined(turn(edge.end), 1.0, shift, 0.0, shift);
    edge.arcVector = turn(edge.arcVector);
    return edge;
}

TEST(EdgeIntersectionProperty, RigidMotionMovesTheResult)
{
    CMathematics math;
    std::mt19937 random(5);
    for (int i = 0; i < 20000; ++i) {
        // Anywhere in one plane or crossing in space: what meets does so clearly.
        TSPlaneEdge3D a = FreeEdge(random);
        TSPlaneEdge3D b = FreeEdge(random);
        a.bulge = std::min(a.bulge, 10.0);
        b.bulge = std::min(b.bulge, 10.0);
        Frame const frame = RandomFrame(random);
        TSPlaneEdge3D movedA = Moved(a, frame, At(1, -2, 3));
        TSPlaneEdge3D movedB = Moved(b, frame, At(1, -2, 3));
        Edges before;
        Edges after;
        ASSERT_EQ(math.EdgeIntersection(&a, &b, before.array, before.count, before.how),
                  math.EdgeIntersection(&movedA, &movedB, after.array, after.count, after.how))
            << i;
        ASSERT_EQ(before.count, after.count) << i;
        ASSERT_EQ(before.how, after.how) << i;
        for (int k = 0; k < before.count; ++k) {
            TSPlaneEdge3D expected = Moved(before[k], frame, At(1, -2, 3));
            bool found = false;
            for (int m = 0; m < after.count; ++m)
                found = found || Distance(expected.start, after[m].start) < 1e-6;
            ASSERT_TRUE(found) << i;
        }
    }
}

TEST(LineLiesOnLineProperty, QuickRejectionChangesNoResult)
{
    CMathematics math;
    std::mt19937 random(6);
    std::uniform_real_distribution<double> off(-2e-6, 2e-6);
    auto const on = [&](TUVect3D const & a, TUVect3D const & b, TUVect3D const & p) {
        double distance;
        return math.IsPoint3DInLine(a, b, p, distance) != 0;
    };
    for (int i = 0; i < 30000; ++i) {
        TUVect3D ends[4];
        for (TUVect3D & end : ends) {
            end = GridPlace(random, true);
            end.y = i % 2 ? end.y : 0.0;
            end.y += off(random);
        }
        int const onFirst = on(ends[0], ends[1], ends[2]) + on(ends[0], ends[1], ends[3]);
        int const onSecond = on(ends[2], ends[3], ends[0]) + on(ends[2], ends[3], ends[1]);
        bool const same = math.CompareLine(ends[0], ends[1], ends[2], ends[3], 1) != 0;
        bool const expected = same || onFirst == 2 || onSecond == 2 || (onFirst > 0 && onSecond > 0);
        TUVect3D p1;
        TUVect3D p2;
        ASSERT_EQ(math.LineLiesOnLine(ends[0], ends[1], ends[2], ends[3], p1, p2), expected ? 1 : 0) << i;
    }
}
}  // namespace
