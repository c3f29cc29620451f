#include "outlines.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <numeric>

#include "end_graph.h"

namespace {
using outlines::Area;
using outlines::Box;
using outlines::Outline;
using outlines::OutlineSet;
using outlines::Path;

double Distance(TUVect2D const & a, TUVect2D const & b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

Path WithoutShortSides(Path const & path, double tolerance)
{
    Path kept;
    for (TSPlaneEdge2D side : path) {
        if (!kept.empty())
            side.start = kept.back().end;
        if (Distance(side.start, side.end) > tolerance)
            kept.push_back(side);
    }
    return kept;
}

bool Closes(Path const & path, double tolerance)
{
    return path.size() > 1 && Distance(path.front().start, path.back().end) <= tolerance;
}

bool SameBox(Box const & a, Box const & b, double tolerance)
{
    return Distance(a.min, b.min) <= tolerance && Distance(a.max, b.max) <= tolerance;
}

// Two outlines are one if the kernel finds every side of the one on the other.
bool Coincide(CMathematics & kernel, Outline const & a, Outline const & b)
{
    constexpr int kAreasCoincide = 11;
    Area areaA, areaB;
    outlines::FillArea(a.sides, areaA);
    outlines::FillArea(b.sides, areaB);
    CArray<TSGeneralSet, TSGeneralSet &> * result = nullptr;
    int const relation = kernel.PolygonIntersection(&areaA, &areaB, result);
    if (result)
        for (TSGeneralSet & member : *result)
            delete member.points;
    delete result;
    return relation == kAreasCoincide;
}

double PerimeterOf(Path const & sides)
{
    double perimeter = 0.0;
    for (TSPlaneEdge2D const & side : sides)
        perimeter += outlines::LengthOf(side);
    return perimeter;
}

// Outlines come from the largest to the smallest, so only the last ones kept can be of the same size.
void DropCoincident(CMathematics & kernel, OutlineSet & set, double tolerance)
{
    std::vector<Outline> kept;
    std::vector<Box> boxes;
    for (Outline & outline : set.outlines) {
        Box const box = outlines::BoxOf(outline.sides);
        double const areaTolerance = tolerance * PerimeterOf(outline.sides);
        bool isNew = true;
        for (std::size_t i = kept.size(); isNew && i-- > 0 && kept[i].area - outline.area <= areaTolerance;)
            isNew = !(SameBox(boxes[i], box, tolerance) && Coincide(kernel, kept[i], outline));
        if (isNew) {
            kept.push_back(std::move(outline));
            boxes.push_back(box);
        } else {
            ++set.duplicates;
        }
    }
    set.outlines = std::move(kept);
}

bool Contains(Box const & outer, Box const & inner, double tolerance)
{
    return outer.min.x <= inner.min.x + tolerance && outer.min.y <= inner.min.y + tolerance &&
           outer.max.x >= inner.max.x - tolerance && outer.max.y >= inner.max.y - tolerance;
}

// The first vertex that isn't on the outer boundary decides; an outline with all vertices on it lies within.
bool LiesWithin(CMathematics & kernel, Path const & inner, Area const & outer)
{
    constexpr int kInside = 1, kOutside = 0;
    for (TSPlaneEdge2D const & side : inner) {
        int pointClass = kInside;
        kernel.IsPointInArea(side.start, &outer, 0, pointClass);
        if (pointClass == kInside || pointClass == kOutside)
            return pointClass == kInside;
    }
    return true;
}

// Outlines run from the largest to the smallest: the last one around another is its parent.
void Nest(CMathematics & kernel, std::vector<Outline> & all, double tolerance)
{
    std::vector<Box> boxes;
    for (Outline const & outline : all)
        boxes.push_back(outlines::BoxOf(outline.sides));
    std::vector<std::unique_ptr<Area>> areas;
    for (Outline const & outline : all) {
        areas.push_back(std::make_unique<Area>());
        outlines::FillArea(outline.sides, *areas.back());
    }
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i].parent = -1;
        for (std::size_t outer = i; outer-- > 0 && all[i].parent < 0;)
            if (Contains(boxes[outer], boxes[i], tolerance) &&
                LiesWithin(kernel, all[i].sides, *areas[outer]))
                all[i].parent = static_cast<int>(outer);
        all[i].depth = all[i].parent < 0 ? 0 : all[static_cast<std::size_t>(all[i].parent)].depth + 1;
    }
}

void AddOutline(CMathematics & kernel, Path path, std::vector<Outline> & all)
{
    path.back().end = path.front().start;
    double const area = outlines::SignedArea(kernel, path);
    if (area < 0)
        path = outlines::Reversed(path);
    all.push_back({std::move(path), std::fabs(area), -1, 0});
}
}  // namespace

namespace outlines {
Path Reversed(Path const & path)
{
    Path reversed(path.rbegin(), path.rend());
    for (TSPlaneEdge2D & side : reversed) {
        std::swap(side.start, side.end);
        side.bulge = -side.bulge;
    }
    return reversed;
}

void FillArea(Path const & sides, Area & area)
{
    area.SetSize(0);
    if (sides.empty())
        return;
    TSPoint2DPlane vertex{sides.front().start.x, sides.front().start.y};
    area.Add(vertex);
    for (TSPlaneEdge2D const & side : sides) {
        if (side.bulge != 0) {
            TSPoint2DPlane marker{ARC_MARKER, side.bulge};
            area.Add(marker);
        }
        vertex = {side.end.x, side.end.y};
        area.Add(vertex);
    }
}

double SignedArea(CMathematics & kernel, Path const & sides)
{
    Area area;
    FillArea(sides, area);
    return kernel.GetAreaSurface(&area);
}

OutlineSet BuildOutlines(CMathematics & kernel, std::vector<Path> const & paths, double tolerance)
{
    OutlineSet set;
    std::vector<Path> open;
    for (Path const & path : paths) {
        Path kept = WithoutShortSides(path, tolerance);
        if (Closes(kept, tolerance))
            AddOutline(kernel, std::move(kept), set.outlines);
        else if (!kept.empty())
            open.push_back(std::move(kept));
    }
    EndGraph graph(std::move(open), tolerance);
    set.duplicates = graph.DropDuplicates();
    set.gaps = graph.TakeLooseEnds();
    for (Path & closed : graph.TakeClosedPaths(kernel))
        AddOutline(kernel, std::move(closed), set.outlines);
    std::erase_if(set.outlines,
                  [&](Outline const & outline) { return outline.area <= tolerance * tolerance; });
    std::stable_sort(set.outlines.begin(), set.outlines.end(),
                     [](Outline const & a, Outline const & b) { return a.area > b.area; });
    DropCoincident(kernel, set, tolerance);
    Nest(kernel, set.outlines, tolerance);
    return set;
}
}  // namespace outlines
