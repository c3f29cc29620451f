#include "section_values.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {
using outlines::Outline;
using Polygon = CArray<TUVect2D, TUVect2D &>;

// The number of sides that GetThoseCharacteristics takes for a circle.
constexpr std::size_t kCircleCount = 32767;

// The outputs of GetThoseCharacteristics for one group.
struct Characteristics
{
    double Ix = 0, Iy = 0, Ixc = 0, Iyc = 0, I1 = 0, I2 = 0, A = 0, Ixy = 0, Ixyc = 0, Sx = 0, Sy = 0, xc = 0;
    double yc = 0, alpha = 0;
};

std::vector<TUVect2D> Flatten(Outline const & outline, double bound, TUVect2D const & origin)
{
    std::vector<TUVect2D> points = {outline.sides.front().start};
    for (TSPlaneEdge2D const & side : outline.sides)
        outlines::AppendFlattened(side, bound, points);
    for (TUVect2D & point : points) {
        point.x -= origin.x;
        point.y -= origin.y;
    }
    if (points.size() - 1 == kCircleCount)
        points.push_back(points.back());
    return points;
}

void Accumulate(CMathematics & kernel, std::vector<TUVect2D> & points, bool isHole, Characteristics & sum)
{
    Characteristics w = sum;  // the weighted group; with a weight of 1 it equals the other one
    int direction = 0;
    kernel.GetThoseCharacteristics(points.data(), isHole ? 1 : 0, direction,
                                   static_cast<unsigned int>(points.size() - 1), 1.0, w.Ix, w.Iy, w.Ixc,
                                   w.Iyc, w.I1, w.I2, w.A, w.Ixy, w.Ixyc, w.Sx, w.Sy, w.xc, w.yc, w.alpha,
                                   sum.Ix, sum.Iy, sum.Ixc, sum.Iyc, sum.I1, sum.I2, sum.A, sum.Ixy, sum.Ixyc,
                                   sum.Sx, sum.Sy, sum.xc, sum.yc, sum.alpha);
}

// One closed polygon for the routines that take a single outline: every outline is reached from the first
// point by a slit that is run there and back, which adds nothing to areas, moments and widths.
void FillSlitPolygon(std::vector<Outline> const & section, double bound, TUVect2D const & origin,
                     Polygon & polygon)
{
    for (Outline const & outline : section) {
        std::vector<TUVect2D> points = Flatten(outline, bound, origin);
        if (outline.IsHole())
            std::reverse(points.begin(), points.end());
        for (TUVect2D & point : points)
            polygon.Add(point);
        if (polygon.GetSize() > static_cast<int>(points.size())) {
            TUVect2D first = polygon[0];
            polygon.Add(first);
        }
    }
}

void TurnQuarter(Polygon & polygon)
{
    for (TUVect2D & point : polygon) {
        double const x = point.x;
        point.x = -point.y;
        point.y = x;
    }
}

// The level integration has steps of a hundredth of the height: arcs needn't be finer than this share of it.
constexpr double kLevelBound = 1e-4;
// Heights that differ by rounding only would each get a level of their own, nearer to the next one than the
// levels' own margin. On a grid of this share of the size they are equal.
constexpr double kLevelGrid = 1e-9;

void SnapToGrid(CMathematics & kernel, Polygon & polygon, double grid)
{
    for (TUVect2D & point : polygon) {
        point.x = kernel.GetValWithPrecision(point.x, grid);
        point.y = kernel.GetValWithPrecision(point.y, grid);
    }
}

void ComputeLevelValues(CMathematics & kernel, std::vector<Outline> const & section, double bound,
                        SectionValues & values)
{
    TUVect2D centroid{};
    centroid.x = values.xc;
    centroid.y = values.yc;
    double const height = std::min(values.box.max.y - values.box.min.y, values.box.max.x - values.box.min.x);
    Polygon polygon;
    FillSlitPolygon(section, std::max(bound, kLevelBound * height), centroid, polygon);
    kernel.GetWidthInPosition(polygon, 0.0, values.widthAtCentroid);
    SnapToGrid(kernel, polygon, kLevelGrid * height);
    kernel.ComputePlastMoment(polygon, values.WplX);
    kernel.ComputeShearCoef(polygon, values.shearY);
    TurnQuarter(polygon);
    kernel.ComputePlastMoment(polygon, values.WplY);
    kernel.ComputeShearCoef(polygon, values.shearX);
}

outlines::Box BoxOfAll(std::vector<Outline> const & section)
{
    outlines::Box box = outlines::BoxOf(section.front().sides);
    for (Outline const & outline : section) {
        outlines::Box const other = outlines::BoxOf(outline.sides);
        box.min.x = std::min(box.min.x, other.min.x);
        box.min.y = std::min(box.min.y, other.min.y);
        box.max.x = std::max(box.max.x, other.max.x);
        box.max.y = std::max(box.max.y, other.max.y);
    }
    return box;
}

// From the sums about `origin` to the values about the drawing's axes and the centroid.
void FillMoments(Characteristics const & sum, TUVect2D const & origin, SectionValues & values)
{
    values.area = sum.A;
    values.xc = origin.x + sum.xc;
    values.yc = origin.y + sum.yc;
    values.Sx = sum.A * values.yc;
    values.Sy = sum.A * values.xc;
    values.Ixc = sum.Ixc;
    values.Iyc = sum.Iyc;
    values.Ixyc = sum.Ixyc;
    values.Ix = sum.Ixc + sum.A * values.yc * values.yc;
    values.Iy = sum.Iyc + sum.A * values.xc * values.xc;
    values.Ixy = sum.Ixyc + sum.A * values.xc * values.yc;
    values.I1 = sum.I1;
    values.I2 = sum.I2;
    // With equal moments every axis is a principal one, and rounding alone would choose it.
    constexpr double kEqualMoments = 1e-6;  // of the polar moment
    bool const allPrincipal =
        std::hypot((sum.Ixc - sum.Iyc) / 2, sum.Ixyc) <= kEqualMoments * (sum.Ixc + sum.Iyc);
    values.alpha = allPrincipal ? 0.0 : sum.alpha;
}

void FillDerived(SectionValues & values)
{
    values.ix = std::sqrt(values.Ixc / values.area);
    values.iy = std::sqrt(values.Iyc / values.area);
    values.i1 = std::sqrt(values.I1 / values.area);
    values.i2 = std::sqrt(values.I2 / values.area);
    values.WxTop = values.Ixc / (values.box.max.y - values.yc);
    values.WxBottom = values.Ixc / (values.yc - values.box.min.y);
    values.WyRight = values.Iyc / (values.box.max.x - values.xc);
    values.WyLeft = values.Iyc / (values.xc - values.box.min.x);
}
}  // namespace

SectionValues ComputeSection(CMathematics & kernel, std::vector<Outline> const & section, double bound)
{
    SectionValues values{};
    values.box = BoxOfAll(section);
    // Sums about the middle of the section stay exact for drawings far from their origin.
    TUVect2D origin{};
    origin.x = (values.box.min.x + values.box.max.x) / 2;
    origin.y = (values.box.min.y + values.box.max.y) / 2;
    Characteristics sum;
    for (Outline const & outline : section) {
        std::vector<TUVect2D> points = Flatten(outline, bound, origin);
        Accumulate(kernel, points, outline.IsHole(), sum);
        values.exactArea += outline.IsHole() ? -outline.area : outline.area;
        for (TSPlaneEdge2D const & side : outline.sides)
            values.perimeter += outlines::LengthOf(side);
    }
    FillMoments(sum, origin, values);
    FillDerived(values);
    ComputeLevelValues(kernel, section, bound, values);
    return values;
}
