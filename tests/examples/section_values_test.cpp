// The numbers of the sample drawings against tables made by other means.
#include "section_values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "load_section.h"
#include "test_paths.h"

namespace {
using Row = std::map<std::string, std::string>;

std::vector<std::string> Fields(std::string const & line)
{
    std::vector<std::string> fields;
    std::istringstream stream(line);
    for (std::string field; std::getline(stream, field, '\t');)
        fields.push_back(field);
    return fields;
}

// The rows of a tab-separated table by the names of its head.
std::vector<Row> ReadTable(std::filesystem::path const & path)
{
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    std::vector<std::string> const names = Fields(line);
    std::vector<Row> rows;
    while (std::getline(file, line)) {
        std::vector<std::string> const fields = Fields(line);
        Row row;
        for (std::size_t i = 0; i < names.size() && i < fields.size(); ++i)
            row[names[i]] = fields[i];
        rows.push_back(row);
    }
    return rows;
}

SectionValues Compute(std::filesystem::path const & drawing, double boundShare)
{
    CMathematics kernel;
    Options options;
    Section const section = LoadSection(kernel, drawing.string(), options);
    return ComputeSection(kernel, section.outlines, section.bound * boundShare);
}

std::map<std::string, double> Quantities(SectionValues const & v)
{
    return {{"area", v.exactArea},
            {"perimeter", v.perimeter},
            {"xc", v.xc},
            {"yc", v.yc},
            {"Ix", v.Ixc},
            {"Iy", v.Iyc},
            {"Ixy", v.Ixyc},
            {"Imax", std::max(v.I1, v.I2)},
            {"Imin", std::min(v.I1, v.I2)},
            {"Wx_top", v.WxTop},
            {"Wpl_x", v.WplX},
            {"Wpl_y", v.WplY}};
}

// What a value of nothing may be off by, beside values of the same kind.
double SizeOf(SectionValues const & v, std::string const & quantity)
{
    double const length = std::sqrt(v.exactArea);
    if (quantity == "xc" || quantity == "yc")
        return length;
    return quantity == "Ixy" ? v.Ixc + v.Iyc : 0.0;
}

TEST(SampleDrawings, AgreeWithTheTableOfValues)
{
    std::filesystem::path const folder = std::filesystem::path(kSourceDir) / "examples/data";
    std::map<std::string, SectionValues> computed;
    std::vector<Row> const rows = ReadTable(folder / "values.tsv");
    ASSERT_GE(rows.size(), 60U);
    for (Row const & row : rows) {
        std::string const & drawing = row.at("drawing");
        if (!computed.count(drawing))
            computed[drawing] = Compute(folder / drawing, 0.05);
        SectionValues const & values = computed[drawing];
        std::string const & quantity = row.at("quantity");
        double const expected = std::stod(row.at("value"));
        double const bound = std::stod(row.at("bound")) * (std::fabs(expected) + SizeOf(values, quantity));
        EXPECT_NEAR(Quantities(values).at(quantity), expected, bound)
            << drawing << " " << quantity << " (" << row.at("source") << ")";
    }
    EXPECT_GE(computed.size(), 8U);
}

TEST(RealDrawings, AgreeWithExactIntegration)
{
    std::filesystem::path const folder = std::filesystem::path(kSharedDir) / "data/sections";
    if (!std::filesystem::exists(folder / "sections.tsv"))
        GTEST_SKIP() << "the folder of real drawings, " << folder << ", isn't here";
    for (Row const & row : ReadTable(folder / "sections.tsv")) {
        SectionValues const values = Compute(folder / row.at("file"), 0.01);
        double const relative = 1e-6;
        auto const expect = [&](char const * name, double value, double unit, double size) {
            double const expected = std::stod(row.at(name)) * unit;
            EXPECT_NEAR(value, expected, relative * (std::fabs(expected) + size))
                << row.at("file") << " " << name;
        };
        constexpr double kMm = 0.001;
        double const length = std::sqrt(values.exactArea);
        expect("A", values.exactArea, kMm * kMm, 0.0);
        expect("A", values.area, kMm * kMm, 0.0);
        expect("xc", values.xc, kMm, length);
        expect("yc", values.yc, kMm, length);
        expect("Ix", values.Ixc, std::pow(kMm, 4), 0.0);
        expect("Iy", values.Iyc, std::pow(kMm, 4), 0.0);
        expect("Ixy", values.Ixyc, std::pow(kMm, 4), values.Ixc + values.Iyc);
    }
}

outlines::Outline Rectangle(double x1, double y1, double x2, double y2, int depth = 0)
{
    outlines::Outline outline{};
    TUVect2D const corners[] = {{{x1, y1}}, {{x2, y1}}, {{x2, y2}}, {{x1, y2}}};
    for (int i = 0; i < 4; ++i)
        outline.sides.push_back({corners[i], corners[(i + 1) % 4], 0.0});
    outline.area = (x2 - x1) * (y2 - y1);
    outline.parent = depth - 1;
    outline.depth = depth;
    return outline;
}

TEST(SectionValues, RectangleHasItsClosedForms)
{
    CMathematics kernel;
    // b = 0.3, h = 0.5, lower left corner at (1, 2).
    SectionValues const v = ComputeSection(kernel, {Rectangle(1, 2, 1.3, 2.5)}, 1e-6);
    EXPECT_NEAR(v.area, 0.15, 1e-15);
    EXPECT_NEAR(v.exactArea, 0.15, 1e-15);
    EXPECT_NEAR(v.perimeter, 1.6, 1e-15);
    EXPECT_NEAR(v.xc, 1.15, 1e-14);
    EXPECT_NEAR(v.yc, 2.25, 1e-14);
    EXPECT_NEAR(v.Sx, 0.15 * 2.25, 1e-14);
    EXPECT_NEAR(v.Sy, 0.15 * 1.15, 1e-14);
    EXPECT_NEAR(v.Ixc, 0.3 * 0.125 / 12, 1e-16);
    EXPECT_NEAR(v.Iyc, 0.5 * 0.027 / 12, 1e-16);
    EXPECT_NEAR(v.Ix, v.Ixc + 0.15 * 2.25 * 2.25, 1e-14);
    EXPECT_NEAR(v.Iy, v.Iyc + 0.15 * 1.15 * 1.15, 1e-14);
    EXPECT_NEAR(v.Ixy, 0.15 * 2.25 * 1.15, 1e-14);
    EXPECT_NEAR(v.ix, 0.5 / std::sqrt(12.0), 1e-14);
    EXPECT_NEAR(v.iy, 0.3 / std::sqrt(12.0), 1e-14);
    EXPECT_NEAR(v.WxTop, 0.3 * 0.25 / 6, 1e-14);
    EXPECT_NEAR(v.WxBottom, 0.3 * 0.25 / 6, 1e-14);
    EXPECT_NEAR(v.WyLeft, 0.5 * 0.09 / 6, 1e-14);
    EXPECT_NEAR(v.WyRight, 0.5 * 0.09 / 6, 1e-14);
    EXPECT_NEAR(v.WplX, 0.3 * 0.25 / 4, 1e-6);
    EXPECT_NEAR(v.WplY, 0.5 * 0.09 / 4, 1e-6);
    EXPECT_NEAR(v.shearX, 5.0 / 6, 1e-3);
    EXPECT_NEAR(v.shearY, 5.0 / 6, 1e-3);
    EXPECT_NEAR(v.widthAtCentroid, 0.3, 1e-12);
}

TEST(SectionValues, HoleSubtractsAlsoInTheLevelValues)
{
    CMathematics kernel;
    SectionValues const v = ComputeSection(kernel, {Rectangle(0, 0, 4, 6), Rectangle(1, 1, 3, 5, 1)}, 1e-6);
    EXPECT_NEAR(v.area, 16.0, 1e-12);
    EXPECT_NEAR(v.Ixc, (4.0 * 216 - 2.0 * 64) / 12, 1e-11);
    EXPECT_NEAR(v.WplX, (4.0 * 36 - 2.0 * 16) / 4, 0.01);
    EXPECT_NEAR(v.widthAtCentroid, 2.0, 1e-9);
}

TEST(SectionValues, FarFromTheOriginLosesNothing)
{
    CMathematics kernel;
    SectionValues const v = ComputeSection(kernel, {Rectangle(5e6, 5e6, 5e6 + 0.5, 5e6 + 0.25)}, 1e-6);
    EXPECT_NEAR(v.Ixc, 0.5 * 0.015625 / 12, 1e-12);
    EXPECT_NEAR(v.Iyc, 0.25 * 0.125 / 12, 1e-12);
}

TEST(SideGeometry, ArcHasItsBoxAndLength)
{
    // A half circle of radius 1 from (1, 0) over the top to (-1, 0): the apex is right of the chord.
    TSPlaneEdge2D const arc{{{1, 0}}, {{-1, 0}}, -1.0};
    outlines::Box const box = outlines::BoxOf({arc});
    EXPECT_NEAR(box.min.x, -1, 1e-15);
    EXPECT_NEAR(box.min.y, 0, 1e-15);
    EXPECT_NEAR(box.max.x, 1, 1e-15);
    EXPECT_NEAR(box.max.y, 1, 1e-15);
    EXPECT_NEAR(outlines::LengthOf(arc), std::acos(-1.0), 1e-14);
}

TEST(SideGeometry, SplitArcKeepsItsCourse)
{
    for (double bulge : {-3.0, -1.0, -0.2, 0.7, 8.0}) {
        TSPlaneEdge2D const arc{{{0.3, -0.2}}, {{1.4, 0.9}}, bulge};
        outlines::Path pieces;
        outlines::AppendSplit(arc, pieces);
        double length = 0.0;
        outlines::Box box{arc.start, arc.start};
        for (TSPlaneEdge2D const & piece : pieces) {
            length += outlines::LengthOf(piece);
            box.min = {{std::min(box.min.x, piece.end.x), std::min(box.min.y, piece.end.y)}};
            box.max = {{std::max(box.max.x, piece.end.x), std::max(box.max.y, piece.end.y)}};
        }
        EXPECT_NEAR(length, outlines::LengthOf(arc), 1e-12 * length);
        outlines::Box const whole = outlines::BoxOf({arc});
        EXPECT_NEAR(box.min.x, whole.min.x, 1e-12);
        EXPECT_NEAR(box.min.y, whole.min.y, 1e-12);
        EXPECT_NEAR(box.max.x, whole.max.x, 1e-12);
        EXPECT_NEAR(box.max.y, whole.max.y, 1e-12);
        EXPECT_EQ(pieces.back().end.x, arc.end.x);
    }
}

TEST(SideGeometry, ChordsStayWithinTheBound)
{
    for (double bulge : {-3.0, -1.0, -0.2, 0.05, 0.7, 8.0})
        for (double bound : {0.3, 1e-2, 1e-5}) {
            TSPlaneEdge2D const arc{{{0.3, -0.2}}, {{1.4, 0.9}}, bulge};
            std::vector<TUVect2D> points = {arc.start};
            outlines::AppendFlattened(arc, bound, points);
            EXPECT_EQ(points.back().x, arc.end.x);
            EXPECT_EQ(points.back().y, arc.end.y);
            // Radius c (1 + b^2) / (2 |b|) with the half chord c; sagitta of a chord s: R - sqrt(R^2 - s^2 /
            // 4).
            double const radius = std::hypot(1.1, 1.1) / 2 * (1 + bulge * bulge) / (2 * std::fabs(bulge));
            for (std::size_t i = 1; i < points.size(); ++i) {
                double const chord = std::hypot(points[i].x - points[i - 1].x, points[i].y - points[i - 1].y);
                double const sagitta = radius - std::sqrt(std::max(0.0, radius * radius - chord * chord / 4));
                EXPECT_LE(sagitta, bound * (1 + 1e-6)) << bulge;
            }
        }
}
}  // namespace
