// The polygon intersection goes through an index; its results must be those of the plain method, member by
// member and bit by bit, on whatever outlines there are.

#include <cstring>
#include <map>
#include <numbers>
#include <random>

#include "geometry/detail_polygon_intersection.h"
#include "gtest/gtest.h"
#include "tests/geometry/polygon_shapes.h"

using namespace outlines;

namespace {
Intersection IntersectPlain(CMathematics & math, Outline const & a, Outline const & b)
{
    MadeArea const areaA(a);
    MadeArea const areaB(b);
    SetArray * result = nullptr;
    int const code = detail::PolygonIntersectionPlain(math, *areaA, *areaB, result);
    return {code, Sets(result)};
}

bool SameBits(Outline const & a, Outline const & b)
{
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(TSPoint2DPlane)) == 0);
}

bool SameMembers(Sets const & a, Sets const & b)
{
    if (!a || !b)
        return !a && !b;
    if (a->GetSize() != b->GetSize())
        return false;
    for (int i = 0; i < a->GetSize(); ++i)
        if ((*a)[i].kind != (*b)[i].kind || !SameBits(RecordsOf((*a)[i]), RecordsOf((*b)[i])))
            return false;
    return true;
}

std::string Text(Outline const & outline)
{
    std::string text;
    for (TSPoint2DPlane const & record : outline) {
        char line[80];
        if (IsMarker(record))
            std::snprintf(line, sizeof line, "arc %a; ", record.y);
        else
            std::snprintf(line, sizeof line, "%a %a; ", record.x, record.y);
        text += line;
    }
    return text;
}

/// How often each code came out, so that a test can see that its cases aren't all of one kind.
using Codes = std::map<int, int>;

void ExpectSame(Outline const & a, Outline const & b, Codes & codes, double tolerance = 1e-6)
{
    CMathematics math;
    math.SetOkoli(tolerance);
    Intersection const indexed = Intersect(math, a, b);
    Intersection const plain = IntersectPlain(math, a, b);
    ++codes[plain.code];
    ASSERT_EQ(indexed.code, plain.code) << "a: " << Text(a) << "\nb: " << Text(b);
    ASSERT_TRUE(SameMembers(indexed.sets, plain.sets)) << "a: " << Text(a) << "\nb: " << Text(b);
}

using Random = std::mt19937;

double Uniform(Random & random, double from, double to)
{
    return std::uniform_real_distribution<double>(from, to)(random);
}

int Whole(Random & random, int from, int to)
{
    return std::uniform_int_distribution<int>(from, to)(random);
}

bool Chance(Random & random, double probability)
{
    return Uniform(random, 0, 1) < probability;
}

/// Bulges of all sizes: usual ones, half circles, nearly flat and flat ones, and more than half circles.
double RandomBulge(Random & random)
{
    static constexpr double kOdd[] = {1.0, 0.0, 9.9e-6, 1.0e-5, 1.1e-5, 1e-4, 3.0, 12.0};
    double const size = Chance(random, 0.7) ? Uniform(random, 0.02, 1.2) : kOdd[Whole(random, 0, 7)];
    return Chance(random, 0.5) ? size : -size;
}

/// An outline round a centre, its vertices at random distances, some of its sides arcs.
Outline RoundOutline(Random & random, int sides, double arcs)
{
    double const x = Uniform(random, -1, 1);
    double const y = Uniform(random, -1, 1);
    Outline outline;
    for (int i = 0; i < sides; ++i) {
        double const angle = 2 * std::numbers::pi * (i + Uniform(random, 0, 0.9)) / sides;
        double const radius = Uniform(random, 0.3, 2);
        outline.push_back(V(x + radius * std::cos(angle), y + radius * std::sin(angle)));
        if (Chance(random, arcs))
            outline.push_back(Arc(RandomBulge(random)));
    }
    return Closed(outline);
}

/// Vertices on a small grid, so that sides touch, cross at vertices and lie on one another; the outline may
/// cross itself.
Outline GridOutline(Random & random, int sides, double arcs)
{
    Outline outline;
    for (int i = 0; i < sides; ++i) {
        outline.push_back(V(Whole(random, 0, 4), Whole(random, 0, 4)));
        if (Chance(random, arcs)) {
            static constexpr double kBulges[] = {1.0, -1.0, 0.41421356237309503, -0.41421356237309503};
            outline.push_back(Arc(kBulges[Whole(random, 0, 3)]));
        }
    }
    return Closed(outline);
}

/// Steps along the axes only: shared sides are the rule.
Outline SteppedOutline(Random & random, int steps)
{
    Outline outline;
    double x = Whole(random, 0, 3);
    for (int i = 0; i < steps; ++i) {
        double const height = Whole(random, 1, 4);
        outline.push_back(V(x, height));
        x += Whole(random, 0, 2);
        outline.push_back(V(x, height));
    }
    outline.push_back(V(x, 0));
    outline.push_back(V(outline.front().x, 0));
    return Closed(outline);
}

Outline Moved(Outline outline, double x, double y)
{
    for (TSPoint2DPlane & record : outline)
        if (!IsMarker(record)) {
            record.x += x;
            record.y += y;
        }
    return outline;
}

Outline Scaled(Outline outline, double factor)
{
    for (TSPoint2DPlane & record : outline)
        if (!IsMarker(record)) {
            record.x *= factor;
            record.y *= factor;
        }
    return outline;
}

/// The outline with every vertex repeated once or again, some a little off.
Outline Stuttered(Random & random, Outline const & outline)
{
    Outline stuttered;
    for (TSPoint2DPlane const & record : outline) {
        stuttered.push_back(record);
        if (!IsMarker(record) && Chance(random, 0.3))
            stuttered.push_back(Chance(random, 0.5) ? record : V(record.x + 0.7e-6, record.y));
    }
    stuttered.back() = stuttered.front();
    return stuttered;
}

Outline MaybeReversed(Random & random, Outline const & outline)
{
    return Chance(random, 0.5) ? Reversed(outline) : outline;
}

/// A sector of a circle whose arc runs from one angle over a sweep.
Outline Sector(double x, double y, double radius, double from, double sweep)
{
    return Closed({V(x, y), V(x + radius * std::cos(from), y + radius * std::sin(from)),
                   Arc(-std::tan(sweep / 4)),
                   V(x + radius * std::cos(from + sweep), y + radius * std::sin(from + sweep))});
}

int CodesAbove(Codes const & codes, int least)
{
    int count = 0;
    for (auto const & [code, times] : codes)
        count += times >= least ? 1 : 0;
    return count;
}
}  // namespace

TEST(IndexedIntersection, NamedShapes)
{
    Codes codes;
    for (auto const & [name, make] : shapes::All()) {
        for (int const n : {8, 12, 40, 100}) {
            auto const & [a, b] = make(n);
            ExpectSame(a, b, codes);
            ExpectSame(Reversed(a), b, codes);
            ExpectSame(b, Reversed(a), codes);
        }
    }
}

TEST(IndexedIntersection, StraightOutlines)
{
    Random random(1);
    Codes codes;
    for (int i = 0; i < 1000; ++i) {
        Outline const a = RoundOutline(random, Whole(random, 3, 40), 0.0);
        Outline const b = Scaled(RoundOutline(random, Whole(random, 3, 40), 0.0), Uniform(random, 0.1, 1.5));
        ExpectSame(MaybeReversed(random, a), MaybeReversed(random, b), codes);
    }
    EXPECT_GE(CodesAbove(codes, 10), 3);
}

TEST(IndexedIntersection, OutlinesWithArcs)
{
    Random random(2);
    Codes codes;
    for (int i = 0; i < 1500; ++i) {
        Outline const a = RoundOutline(random, Whole(random, 2, 20), Uniform(random, 0, 1));
        Outline const b = Scaled(RoundOutline(random, Whole(random, 2, 20), Uniform(random, 0, 1)),
                                 Uniform(random, 0.1, 1.5));
        ExpectSame(MaybeReversed(random, a), MaybeReversed(random, b), codes);
    }
    EXPECT_GE(CodesAbove(codes, 10), 2);
}

TEST(IndexedIntersection, OutlinesOnAGrid)
{
    Random random(3);
    Codes codes;
    for (int i = 0; i < 3000; ++i) {
        double const arcs = i % 2 == 0 ? 0.0 : 0.3;
        Outline const a = GridOutline(random, Whole(random, 3, 10), arcs);
        Outline const b = GridOutline(random, Whole(random, 3, 10), arcs);
        ExpectSame(a, b, codes);
    }
    EXPECT_GE(CodesAbove(codes, 10), 5);
}

TEST(IndexedIntersection, SteppedOutlines)
{
    Random random(4);
    Codes codes;
    for (int i = 0; i < 1500; ++i) {
        Outline const a = SteppedOutline(random, Whole(random, 1, 12));
        Outline b = SteppedOutline(random, Whole(random, 1, 12));
        if (Chance(random, 0.3))
            b = Moved(Scaled(b, -1), Whole(random, 0, 9), 0);
        ExpectSame(MaybeReversed(random, a), MaybeReversed(random, b), codes);
    }
    EXPECT_GE(CodesAbove(codes, 10), 5);
}

TEST(IndexedIntersection, NearlyEqualOutlines)
{
    Random random(5);
    Codes codes;
    for (int i = 0; i < 1000; ++i) {
        Outline const a = RoundOutline(random, Whole(random, 3, 12), i % 2 == 0 ? 0.0 : 0.5);
        double const shift = std::pow(10.0, Uniform(random, -10, -4));
        double const angle = Uniform(random, 0, 7);
        ExpectSame(a, MaybeReversed(random, Moved(a, shift * std::cos(angle), shift * std::sin(angle))),
                   codes);
    }
    EXPECT_GE(CodesAbove(codes, 10), 2);
}

TEST(IndexedIntersection, SectorsOfOneCircle)
{
    Random random(6);
    Codes codes;
    for (int i = 0; i < 1000; ++i) {
        double const step = std::numbers::pi / 12;
        auto const sector = [&] {
            return Sector(0, 0, Chance(random, 0.8) ? 1.0 : 1.5, step * Whole(random, 0, 23),
                          step * Whole(random, 1, 22));
        };
        Outline const a = sector();
        ExpectSame(a, MaybeReversed(random, sector()), codes);
    }
    EXPECT_GE(CodesAbove(codes, 10), 4);
}

TEST(IndexedIntersection, CirclesThatNearlyFallTogether)
{
    // Circles touching from inside, with their centres from less than a tolerance to a tenth apart, cut into
    // arcs: the plain method finds their contact well beside them.
    Random random(7);
    Codes codes;
    for (int i = 0; i < 1000; ++i) {
        double const distance = std::pow(10.0, Uniform(random, -6.5, -1));
        double const angle = Uniform(random, 0, 7);
        double const radius = 1 + distance + Uniform(random, -1.2e-6, 1.2e-6);
        double const from = Uniform(random, 0, 7);
        auto const fan = [&](double x, double y, double r, int sectors) {
            Outline outline{V(x, y)};
            double const sweep = Uniform(random, 0.05, 0.3);
            outline.push_back(V(x + r * std::cos(from), y + r * std::sin(from)));
            for (int k = 1; k <= sectors; ++k) {
                outline.push_back(Arc(-std::tan(sweep / 4)));
                outline.push_back(V(x + r * std::cos(from + k * sweep), y + r * std::sin(from + k * sweep)));
            }
            return Closed(outline);
        };
        Outline const a = fan(0, 0, 1, Whole(random, 1, 10));
        ExpectSame(a,
                   fan(distance * std::cos(angle), distance * std::sin(angle), radius, Whole(random, 1, 10)),
                   codes);
    }
    EXPECT_GE(CodesAbove(codes, 5), 2);
}

TEST(IndexedIntersection, RepeatedVerticesAndSidesOfNoLength)
{
    Random random(8);
    Codes codes;
    for (int i = 0; i < 1500; ++i) {
        Outline const a = i % 2 == 0 ? SteppedOutline(random, 4) : RoundOutline(random, 8, 0.4);
        Outline const b = i % 3 == 0 ? SteppedOutline(random, 4) : RoundOutline(random, 8, 0.4);
        ExpectSame(Stuttered(random, a), Stuttered(random, b), codes);
    }
    EXPECT_GE(CodesAbove(codes, 10), 3);
}

TEST(IndexedIntersection, AllSizesAndPlaces)
{
    Random random(9);
    Codes codes;
    for (int i = 0; i < 1500; ++i) {
        double const factor = std::pow(10.0, Uniform(random, -4, 6));
        double const offset = Chance(random, 0.5) ? 5e6 : 0.0;
        auto const outline = [&] {
            Outline const made = i % 2 == 0 ? GridOutline(random, 6, 0.2) : RoundOutline(random, 10, 0.4);
            return Moved(Scaled(made, factor), offset, -offset);
        };
        Outline const a = outline();
        ExpectSame(a, outline(), codes);
    }
    EXPECT_GE(CodesAbove(codes, 10), 2);
}

TEST(IndexedIntersection, OtherTolerances)
{
    Random random(10);
    Codes codes;
    for (int i = 0; i < 1000; ++i) {
        double const tolerance = std::pow(10.0, Uniform(random, -12, -1));
        Outline const a = i % 2 == 0 ? GridOutline(random, 6, 0.2) : RoundOutline(random, 10, 0.4);
        Outline const b = i % 2 == 0 ? GridOutline(random, 6, 0.2) : RoundOutline(random, 10, 0.4);
        ExpectSame(a, b, codes, tolerance);
    }
    ExpectSame(Rectangle(0, 0, 1, 1), Rectangle(0, 0, 1, 1), codes, 0.0);
}

TEST(IndexedIntersection, VerticesOnTheChordOfAnArcButForRounding)
{
    // The plain method takes such a vertex for either side of the arc.
    Codes codes;
    Outline const bowl = Closed({V(-1, 0), Arc(-1), V(1, 0), V(-3.5625, 5.1875)});
    ExpectSame(bowl, Closed({V(0, 0), V(-0.0625, 1.7e-103), V(-2.125, 5.375), V(-0.5, 0.86602540378443871)}),
               codes);
    Outline const disc =
        Closed({V(-1.8369701987210297e-16, -1), Arc(-1), V(3.0616169978683831e-16, 1), Arc(-1)});
    ExpectSame(disc, Closed({V(0, 0), V(0.25, 0.25), V(-3, 0.5)}), codes);
    ExpectSame(disc, Rectangle(0, -0.25, 3, 0.25), codes);
}

TEST(IndexedIntersection, ArcsOfNearlyNoBulge)
{
    Random random(11);
    Codes codes;
    for (int i = 0; i < 1000; ++i) {
        auto const outline = [&] {
            Outline made = i % 2 == 0 ? GridOutline(random, 6, 0.3) : RoundOutline(random, 8, 0.3);
            for (TSPoint2DPlane & record : made)
                if (IsMarker(record))
                    record.y = std::copysign(
                        std::pow(10.0, -Uniform(random, 3, Chance(random, 0.3) ? 300 : 12)), record.y);
            return made;
        };
        Outline const a = outline();
        ExpectSame(a, outline(), codes);
    }
    EXPECT_GE(CodesAbove(codes, 10), 2);
}

TEST(IndexedIntersection, OutlinesThatNoIndexSuits)
{
    Codes codes;
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const inf = std::numeric_limits<double>::infinity();
    Outline const square = Rectangle(0, 0, 4, 4);
    for (Outline const & odd :
         {Outline{}, Outline{V(1, 1)}, Outline{Arc(1.0)}, Outline{V(1, 1), V(5, 1), V(1, 5)},
          Outline{Arc(1.0), V(1, 1), V(5, 1), V(1, 5)}, Outline{V(1, 1), V(5, 1), V(1, 5), V(1, 1), Arc(1.0)},
          Closed({V(1, 1), Arc(1.0), Arc(-1.0), V(5, 1)}), Closed({V(nan, 1), V(5, 1), V(1, 5)}),
          Closed({V(1, 1), V(inf, 1), V(1, 5)}), Closed({V(1, 1), Arc(nan), V(5, 1), V(1, 5)}),
          Closed({V(1, 1), Arc(1e300), V(5, 1), V(1, 5)}), Closed({V(1, 1), V(1e300, 1), V(1, 5)})}) {
        ExpectSame(square, odd, codes);
        ExpectSame(odd, square, codes);
        ExpectSame(odd, odd, codes);
    }
}

TEST(IndexedIntersection, ManyOutlinesInAnOrderOfTheirOwn)
{
    // A comb over a zigzag: the common part falls into many outlines, which the two boundaries pass in
    // different orders, so that the pieces are searched far.
    Outline comb;
    int const teeth = 120;
    for (int i = 0; i < teeth; ++i) {
        comb.push_back(V(2 * i, 10));
        comb.push_back(V(2 * i + 1, 10));
        comb.push_back(V(2 * i + 1, 1));
        comb.push_back(V(2 * i + 2, 1));
    }
    comb.push_back(V(2 * teeth, 0));
    comb.push_back(V(0, 0));
    Outline snake;  // three bars over all teeth, joined at their ends
    for (TSPoint2DPlane const & v :
         {V(-1, 2), V(300, 2), V(300, 6), V(-1, 6), V(-1, 7), V(301, 7), V(301, 3), V(-1, 3)})
        snake.push_back(v);
    Codes codes;
    ExpectSame(Closed(comb), Closed(snake), codes);
    ExpectSame(Closed(snake), Closed(comb), codes);
    ExpectSame(Reversed(Closed(snake)), Closed(comb), codes);
    EXPECT_EQ(codes[6], 3);
}
