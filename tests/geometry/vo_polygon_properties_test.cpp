#include <cmath>
#include <cstring>
#include <functional>

#include "geometry/vo_polygon.h"
#include "gtest/gtest.h"
#include "tests/geometry/mesh_shapes.h"

using namespace mesh_shapes;
using outlines::Area;
using outlines::Fill;
using outlines::Intersection;
using outlines::Reversed;
using outlines::SetArray;
using outlines::Sets;

namespace {
std::string TextOf(Outline const & outline)
{
    std::string text;
    char buffer[80];
    for (TSPoint2DPlane const & record : outline) {
        std::snprintf(buffer, sizeof buffer, "{%.17g, %.17g}, ", record.x, record.y);
        text += buffer;
    }
    return text;
}

bool SameBits(Intersection const & a, Intersection const & b)
{
    if (a.code != b.code || !a.sets != !b.sets || (a.sets && a.sets->GetSize() != b.sets->GetSize()))
        return false;
    for (int i = 0; a.sets && i < a.sets->GetSize(); ++i) {
        Outline const p = outlines::RecordsOf((*a.sets)[i]);
        Outline const q = outlines::RecordsOf((*b.sets)[i]);
        if ((*a.sets)[i].kind != (*b.sets)[i].kind || p.size() != q.size() ||
            (!p.empty() && std::memcmp(p.data(), q.data(), p.size() * sizeof(TSPoint2DPlane)) != 0))
            return false;
    }
    return true;
}

/// One polygon that compares both ways of intersecting triangles.
class Comparison
{
  public:
    Comparison(Outline const & outline, int testConvexity) : m_outline(outline), m_polygon(&m_math)
    {
        Area area;
        Fill(area, outline);
        m_polygon.Create(area, testConvexity);
    }

    Intersection Compare(Outline const & triangle)
    {
        Area area;
        Fill(area, triangle);
        SetArray * fast = nullptr;
        SetArray * plain = nullptr;
        int const fastCode = m_polygon.LoadPolygonFEMTriangleIntersection(area, fast);
        Intersection withIndex{fastCode, Sets(fast)};
        int const plainCode = m_polygon.IntersectTrianglePlainly(area, plain);
        Intersection const without{plainCode, Sets(plain)};
        EXPECT_TRUE(SameBits(withIndex, without))
            << "polygon " << TextOf(m_outline) << "\ntriangle " << TextOf(triangle) << "\nconvex "
            << m_polygon.IsConvex() << " codes " << fastCode << ' ' << plainCode;
        return withIndex;
    }

    CMathematics & Math() { return m_math; }

  private:
    Outline m_outline;
    CMathematics m_math;
    CVOPolygon m_polygon;
};

/// Triangles of all kinds against a polygon of a size of about 2 times `scale` round (dx, dy).
void CompareTriangles(std::mt19937 & random, Outline const & polygon, double scale, double dx, double dy,
                      int triangles)
{
    Comparison comparison(polygon, static_cast<int>(random() % 2));
    auto const anywhere = [&] {
        return V(dx + scale * Uniform(random, -3.5, 3.5), dy + scale * Uniform(random, -3.5, 3.5));
    };
    for (int i = 0; i < triangles && !::testing::Test::HasFailure(); ++i) {
        double const size = scale * std::pow(10.0, Uniform(random, -3.0, 0.7));
        switch (random() % 8) {
            case 0:
                comparison.Compare(TriangleAt(random, VertexOf(random, polygon), size));
                break;
            case 1:
                comparison.Compare(TriangleAt(random, PlaceOnSide(random, polygon), size));
                break;
            case 2:
                comparison.Compare(
                    TriangleOf(VertexOf(random, polygon), PlaceOnSide(random, polygon), anywhere()));
                break;
            case 3:
                comparison.Compare(Placed(TriangleOnGrid(random), scale, dx, dy));
                break;
            case 4:
                comparison.Compare(TriangleAt(random, anywhere(), scale * 1000.0));
                break;
            default:
                comparison.Compare(TriangleAt(random, anywhere(), size));
        }
    }
}

using Maker = std::function<Outline(std::mt19937 &)>;

/// Polygons of one kind both ways round, of several sizes and places.
void ComparePolygons(unsigned seed, int polygons, Maker const & make)
{
    std::mt19937 random(seed);
    struct Place
    {
        double scale, dx, dy;
    };
    Place const places[] = {{1.0, 0.0, 0.0},  {1.0, 0.0, 0.0},  {1000.0, 0.0, 0.0},
                            {0.01, 0.0, 0.0}, {1.0, 1e6, -2e6}, {20.0, 5e6, 5e6}};
    for (int i = 0; i < polygons && !::testing::Test::HasFailure(); ++i) {
        Place const & place = places[random() % std::size(places)];
        Outline const made = make(random);
        Outline const polygon = Placed(random() % 2 ? made : Reversed(made), place.scale, place.dx, place.dy);
        CompareTriangles(random, polygon, place.scale, place.dx, place.dy, 60);
    }
}
}  // namespace

TEST(IndexedTriangles, AsPlainForStarsOfLines)
{
    ComparePolygons(1, 120, [](std::mt19937 & random) {
        return Star(random, static_cast<int>(3 + random() % 60), false);
    });
}

TEST(IndexedTriangles, AsPlainForStarsWithArcs)
{
    ComparePolygons(2, 120, [](std::mt19937 & random) {
        return Star(random, static_cast<int>(3 + random() % 40), true);
    });
}

TEST(IndexedTriangles, AsPlainForPolygonsOnAGrid)
{
    ComparePolygons(3, 200, [](std::mt19937 & random) { return OnGrid(random, false); });
}

TEST(IndexedTriangles, AsPlainForHalfCirclesOnAGrid)
{
    ComparePolygons(4, 200, [](std::mt19937 & random) { return OnGrid(random, true); });
}

TEST(IndexedTriangles, AsPlainForConvexPolygons)
{
    ComparePolygons(5, 100, [](std::mt19937 & random) {
        Outline outline;
        int const count = static_cast<int>(3 + random() % 30);
        for (int i = 0; i < count; ++i) {
            double const angle = 2.0 * std::numbers::pi * i / count;
            outline.push_back(V(2.0 * std::cos(angle), 2.0 * std::sin(angle)));
        }
        return Closed(outline);
    });
}

TEST(IndexedTriangles, AsPlainForGearsSpiralsAndSlits)
{
    ComparePolygons(6, 60, [](std::mt19937 & random) {
        switch (random() % 3) {
            case 0:
                return Gear(static_cast<int>(8 + 4 * (random() % 20)));
            case 1:
                return Spiral(static_cast<int>(1 + random() % 4));
            default:
                return Slit();
        }
    });
}

TEST(IndexedTriangles, AsPlainForArcsOfAllBulges)
{
    // Nearly flat ones, about the limits of a line, full ones, and those that nearly close.
    ComparePolygons(7, 200, [](std::mt19937 & random) {
        Outline outline;
        for (int i = 0; i < 4; ++i) {
            outline.push_back(V(Uniform(random, -2, 2), Uniform(random, -2, 2)));
            if (random() % 2 == 0)
                outline.push_back(
                    Arc((random() % 2 ? 1.0 : -1.0) * std::pow(10.0, Uniform(random, -7.0, 2.0))));
        }
        return Closed(outline);
    });
}

TEST(IndexedTriangles, AsPlainForRecordsOutOfForm)
{
    // Open outlines, markers first, last and in pairs, repeated vertices.
    ComparePolygons(8, 150, [](std::mt19937 & random) {
        Outline outline = random() % 2 ? OnGrid(random, true) : Star(random, 6, true);
        if (random() % 2 == 0)
            outline.pop_back();
        std::size_t const at = random() % outline.size();
        outline.insert(outline.begin() + static_cast<std::ptrdiff_t>(at),
                       random() % 2 ? Arc(0.5) : TSPoint2DPlane(outline[at]));
        outline.push_back(VertexOf(random, outline));
        return outline;
    });
}

TEST(IndexedTriangles, AsPlainWhenTheToleranceChanges)
{
    std::mt19937 random(9);
    for (int run = 0; run < 20; ++run) {
        Comparison comparison(Star(random, 12, true), 0);
        for (double const okoli : {1e-6, 1e-3, 1e-8, 0.1}) {
            comparison.Math().SetOkoli(okoli);
            for (int i = 0; i < 40; ++i)
                comparison.Compare(
                    TriangleAt(random, V(Uniform(random, -3, 3), Uniform(random, -3, 3)), 1.0));
        }
    }
}

namespace {
/// The surface of a polygon in a mesh of `cells` by `cells` squares from (x, y) on with sides of `step`, each
/// of two counter-clockwise triangles.
double MeshedSurface(Comparison & comparison, double x, double y, double step, int cells)
{
    double sum = 0.0;
    auto const add = [&](Outline const & triangle) {
        Intersection const common = comparison.Compare(triangle);
        if (common.code == 2)
            sum += step * step / 2.0;
        Area area;
        for (int i = 0; common.sets && i < common.sets->GetSize(); ++i) {
            Fill(area, outlines::RecordsOf((*common.sets)[i]));
            sum += comparison.Math().GetAreaSurface(&area);
        }
    };
    for (int i = 0; i < cells; ++i)
        for (int j = 0; j < cells; ++j) {
            double const left = x + i * step;
            double const low = y + j * step;
            add(TriangleOf(V(left, low), V(left + step, low), V(left, low + step)));
            add(TriangleOf(V(left + step, low + step), V(left, low + step), V(left + step, low)));
        }
    return sum;
}

void ExpectMeshHoldsThePolygon(Outline const & unit, double scale, double dx, double dy)
{
    for (Outline const & polygon : {Placed(unit, scale, dx, dy), Placed(Reversed(unit), scale, dx, dy)}) {
        Comparison comparison(polygon, 1);
        Area area;
        Fill(area, polygon);
        double const surface = std::fabs(comparison.Math().GetAreaSurface(&area)) / (scale * scale);
        // A mesh from -3.3 to 3.3 that no side of the polygon falls into line with.
        double const meshed =
            MeshedSurface(comparison, dx - 3.3 * scale, dy - 3.37 * scale, 0.2 * scale, 34) / (scale * scale);
        EXPECT_NEAR(meshed, surface, 1e-4 * surface) << TextOf(polygon);
    }
}
}  // namespace

TEST(TriangleMesh, PartsAddUpToThePolygonsSurface)
{
    std::mt19937 random(21);
    for (int run = 0; run < 4; ++run)
        ExpectMeshHoldsThePolygon(Star(random, 9, false), 1.0, 0.0, 0.0);
    ExpectMeshHoldsThePolygon(Slit(), 1.0, 0.0, 0.0);
    ExpectMeshHoldsThePolygon(Spiral(2), 1.0, 0.0, 0.0);
}

TEST(TriangleMesh, PartsAddUpForArcsWithinTheBox)
{
    // Arcs that reach inward; one that reached out would leave the box that dismisses triangles.
    ExpectMeshHoldsThePolygon(Closed({V(-2, -2), V(2, -2), Arc(0.3), V(2, 2), V(-2, 2), Arc(0.7)}), 1.0, 0.0,
                              0.0);
    ExpectMeshHoldsThePolygon(Closed({V(-2, -2), V(2, -2), Arc(0.3), V(2, 2), V(-2, 2), Arc(0.7)}), 1000.0,
                              0.0, 0.0);
}

TEST(TriangleMesh, PartsAddUpInMillimetresAndKilometresAndFarAway)
{
    std::mt19937 random(22);
    Outline const star = Star(random, 9, false);
    ExpectMeshHoldsThePolygon(star, 1000.0, 0.0, 0.0);
    ExpectMeshHoldsThePolygon(star, 0.001, 0.0, 0.0);
    ExpectMeshHoldsThePolygon(star, 1.0, 1e6, -1e6);
}

TEST(TriangleMesh, PartsThatAreWholeOrNoneFollowTheLinesOfTheMesh)
{
    // Sides of the polygon along sides of the mesh: every triangle is whole or outside.
    Comparison comparison(outlines::Rectangle(-1, -1, 2, 1), 1);
    EXPECT_NEAR(MeshedSurface(comparison, -3.0, -3.0, 0.5, 12), 6.0, 1e-9);
}
