#include "overlay.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace {
using outlines::Area;
using outlines::Box;
using outlines::Outline;
using Members = CArray<TSGeneralSet, TSGeneralSet &>;

// Frees a result list with the points of its members.
struct MembersDeleter
{
    void operator()(Members * members) const
    {
        for (TSGeneralSet & member : *members)
            delete member.points;
        delete members;
    }
};
using OwnedMembers = std::unique_ptr<Members, MembersDeleter>;

double SurfaceOf(CMathematics & kernel, Members const * members)
{
    constexpr int kClosedOutline = 2;
    double surface = 0.0;
    if (members)
        for (TSGeneralSet const & member : *members)
            if (member.kind == kClosedOutline)
                surface += std::fabs(kernel.GetAreaSurface(member.points));
    return surface;
}

double CommonAreaOfTwo(CMathematics & kernel, Outline const & a, Outline const & b)
{
    Area areaA, areaB;
    outlines::FillArea(a.sides, areaA);
    outlines::FillArea(b.sides, areaB);
    Members * result = nullptr;
    kernel.PolygonIntersection(&areaA, &areaB, result);
    OwnedMembers const owner(result);
    return SurfaceOf(kernel, result);
}

Box BoxOfAll(std::vector<Outline> const & section)
{
    Box box = outlines::BoxOf(section.front().sides);
    for (Outline const & outline : section) {
        Box const other = outlines::BoxOf(outline.sides);
        box.min.x = std::min(box.min.x, other.min.x);
        box.min.y = std::min(box.min.y, other.min.y);
        box.max.x = std::max(box.max.x, other.max.x);
        box.max.y = std::max(box.max.y, other.max.y);
    }
    return box;
}

// An outline made ready for the triangles of a mesh.
struct MeshedOutline
{
    std::unique_ptr<CVOPolygon> polygon;
    double sign;
};

std::vector<MeshedOutline> Prepare(CMathematics & kernel, std::vector<Outline> const & section)
{
    std::vector<MeshedOutline> prepared;
    for (Outline const & outline : section) {
        // The polygon's box holds its vertices alone, so arcs are cut where they reach farthest.
        outlines::Path pieces;
        for (TSPlaneEdge2D const & side : outline.sides)
            outlines::AppendSplit(side, pieces);
        Area area;
        outlines::FillArea(pieces, area);
        prepared.push_back({std::make_unique<CVOPolygon>(&kernel), outline.IsHole() ? -1.0 : 1.0});
        prepared.back().polygon->Create(area, 0);
    }
    return prepared;
}

// The overlap of a triangle with the section; `sees` becomes true if there is any with an outline.
double Overlap(CMathematics & kernel, std::vector<MeshedOutline> const & section, Area & triangle,
               bool & sees)
{
    constexpr int kPart = 1, kWhole = 2;
    double overlap = 0.0;
    for (MeshedOutline const & outline : section) {
        Members * result = nullptr;
        int const answer = outline.polygon->LoadPolygonFEMTriangleIntersection(triangle, result);
        OwnedMembers const owner(result);
        if (answer == kWhole)
            overlap += outline.sign * std::fabs(kernel.GetAreaSurface(&triangle));
        else if (answer == kPart)
            overlap += outline.sign * SurfaceOf(kernel, result);
        sees = sees || answer == kWhole || answer == kPart;
    }
    return overlap;
}

void FillTriangle(std::array<TSPoint2DPlane, 3> corners, Area & triangle)
{
    triangle.SetSize(0);
    for (TSPoint2DPlane & corner : corners)
        triangle.Add(corner);
    triangle.Add(corners[0]);
}
}  // namespace

double CommonArea(CMathematics & kernel, std::vector<Outline> const & a, std::vector<Outline> const & b)
{
    double sum = 0.0;
    for (Outline const & first : a)
        for (Outline const & second : b)
            sum += (first.IsHole() == second.IsHole() ? 1.0 : -1.0) * CommonAreaOfTwo(kernel, first, second);
    return sum;
}

double TriangleCount(std::vector<Outline> const & section, double size)
{
    Box const box = BoxOfAll(section);
    return 2 * std::ceil((box.max.x - box.min.x) / size) * std::ceil((box.max.y - box.min.y) / size);
}

MeshOverlap MeshArea(CMathematics & kernel, std::vector<Outline> const & section, double size)
{
    Box const box = BoxOfAll(section);
    std::vector<MeshedOutline> const prepared = Prepare(kernel, section);
    int const columns = static_cast<int>(std::ceil((box.max.x - box.min.x) / size));
    int const rows = static_cast<int>(std::ceil((box.max.y - box.min.y) / size));
    MeshOverlap overlap{0, 0.0};
    Area triangle;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            for (bool lower : {true, false}) {
                double const x1 = box.min.x + column * size, x2 = box.min.x + (column + 1) * size;
                double const y1 = box.min.y + row * size, y2 = box.min.y + (row + 1) * size;
                TSPoint2DPlane const a{x1, y1}, b{x2, y1}, c{x2, y2}, d{x1, y2};
                if (lower)
                    FillTriangle({a, b, c}, triangle);
                else
                    FillTriangle({a, c, d}, triangle);
                bool sees = false;
                overlap.area += Overlap(kernel, prepared, triangle, sees);
                overlap.triangles += sees;
            }
    return overlap;
}
