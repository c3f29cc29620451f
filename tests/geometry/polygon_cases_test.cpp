// Intersections that are hard for arithmetic of finite precision, with areas known in closed form; see
// cases/polygon_cases.txt. A failing case is drawn into the build's folder.

#include "tests/geometry/polygon_cases.h"

#include "gtest/gtest.h"
#include "test_paths.h"

using namespace outlines;
using polygon_cases::Case;

namespace {
std::vector<Case> const & AllCases()
{
    static std::vector<Case> const cases = polygon_cases::Load(kSourceDir);
    return cases;
}

/// A position in which a case is run: turned, after being mirrored or not.
struct Position
{
    double cosine;
    double sine;
    bool mirrored;
};

Outline Placed(Outline outline, Position const & position)
{
    for (TSPoint2DPlane & record : outline) {
        if (IsMarker(record)) {
            record.y *= position.mirrored ? -1 : 1;
            continue;
        }
        double const x = position.mirrored ? -record.x : record.x;
        double const y = record.y;
        record.x = x * position.cosine - y * position.sine;
        record.y = x * position.sine + y * position.cosine;
    }
    return outline;
}

/// The same outline from each of its vertices on.
std::vector<Outline> FromEachVertex(Outline const & closed)
{
    Outline const open(closed.begin(), closed.end() - 1);
    std::vector<Outline> all;
    for (std::size_t i = 0; i < open.size(); ++i) {
        if (IsMarker(open[i]))
            continue;
        Outline turned(open.begin() + static_cast<std::ptrdiff_t>(i), open.end());
        turned.insert(turned.end(), open.begin(), open.begin() + static_cast<std::ptrdiff_t>(i));
        all.push_back(Closed(turned));
    }
    return all;
}

double CommonSurface(Intersection const & common)
{
    double sum = 0.0;
    if (common.sets)
        for (TSGeneralSet const & set : *common.sets)
            sum += set.kind == 2 ? std::fabs(OutlineSurface(RecordsOf(set))) : 0.0;
    return sum;
}

/// The length of an outline, as a measure of what a tolerance can do to its area.
double LengthOf(Outline const & outline)
{
    double length = 0.0;
    for (std::size_t i = 1; i < outline.size(); ++i)
        if (!IsMarker(outline[i]) && !IsMarker(outline[i - 1]))
            length += std::hypot(outline[i].x - outline[i - 1].x, outline[i].y - outline[i - 1].y);
        else if (i > 1 && !IsMarker(outline[i]))
            length += 5 * std::hypot(outline[i].x - outline[i - 2].x, outline[i].y - outline[i - 2].y);
    return length;
}

/// Every common outline has to close.
bool AreClosed(Intersection const & common)
{
    if (common.sets)
        for (TSGeneralSet const & set : *common.sets) {
            Outline const records = RecordsOf(set);
            if (set.kind == 2 &&
                std::hypot(records.front().x - records.back().x, records.front().y - records.back().y) > 2e-6)
                return false;
        }
    return true;
}

void Draw(Case const & c, Outline const & a, Outline const & b, Intersection const & common)
{
    std::vector<Outline> found;
    if (common.sets)
        for (TSGeneralSet const & set : *common.sets)
            found.push_back(RecordsOf(set));
    polygon_cases::DumpSvg(std::string(kBuildDir) + "/polygon_case_" + c.name + ".svg", a, b, found);
}

/// Runs one case in one arrangement; returns whether it comes out right.
bool IsRight(Case const & c, Outline const & a, Outline const & b)
{
    CMathematics math;
    Intersection const common = Intersect(math, a, b);
    double const margin = 2e-6 * (LengthOf(a) + LengthOf(b)) + 1e-12 * c.area;
    bool const right = std::fabs(CommonSurface(common) - c.area) <= margin && AreClosed(common);
    if (!right && c.fails.empty())
        Draw(c, a, b, common);
    return right;
}

/// Counts the arrangements that go wrong: each direction and start vertex, both orders.
int WrongArrangements(Case const & c, Position const & position)
{
    int wrong = 0;
    auto const run = [&](Outline const & a, Outline const & b) {
        wrong += IsRight(c, a, b) ? 0 : 1;
        wrong += IsRight(c, b, a) ? 0 : 1;
    };
    Outline const a = Placed(c.a, position);
    Outline const b = Placed(c.b, position);
    for (Outline const & start : FromEachVertex(a)) {
        run(start, b);
        run(Reversed(start), b);
    }
    for (Outline const & start : FromEachVertex(b)) {
        run(a, start);
        run(a, Reversed(start));
        run(Reversed(a), Reversed(start));
    }
    return wrong;
}

class PolygonCase : public testing::TestWithParam<Case>
{
};

TEST_P(PolygonCase, ComesOutRightInEveryPosition)
{
    Case const & c = GetParam();
    int wrong = 0;
    for (auto const & [cosine, sine] : {std::pair(1.0, 0.0), std::pair(0.0, 1.0), std::pair(0.8, 0.6),
                                        std::pair(-0.28, 0.96), std::pair(-5.0 / 13, -12.0 / 13)})
        for (bool const mirrored : {false, true}) {
            int const now = WrongArrangements(c, {cosine, sine, mirrored});
            wrong += now;
            EXPECT_TRUE(now == 0 || !c.fails.empty())
                << now << " arrangements wrong, turned by " << std::atan2(sine, cosine)
                << (mirrored ? ", mirrored" : "");
        }
    if (!c.fails.empty()) {
        EXPECT_GT(wrong, 0) << "comes out right everywhere now: take the reason out of the file";
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, PolygonCase, testing::ValuesIn(AllCases()),
                         [](auto const & each) { return each.param.name; });
}  // namespace

TEST(PolygonCases, AreReadFromTheFile)
{
    ASSERT_GT(AllCases().size(), 60u);
    for (Case const & c : AllCases()) {
        EXPECT_GE(c.a.size(), 4u) << c.name;
        EXPECT_GE(c.b.size(), 4u) << c.name;
    }
}

TEST(PolygonCases, DrawingShowsAllOutlines)
{
    EXPECT_EQ(polygon_cases::SvgPath(Rectangle(0, 0, 2, 1)), "M0 -0 L2 -0 L2 -1 L0 -1 L0 -0 ");
    // The lower half circle first, counter-clockwise in the plane.
    EXPECT_EQ(polygon_cases::SvgPath(Circle(0, 0, 1)), "M-1 -0 A1 1 0 0 0 1 -0 A1 1 0 0 0 -1 -0 ");
}
