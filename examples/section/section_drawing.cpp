#include "section_drawing.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <numbers>

namespace {
using outlines::Path;

constexpr int kLinesBetweenReports = 8192;
// One insertion with more copies than this is taken for a broken drawing.
constexpr long long kMostCopies = 1000000;

struct BlockContent : CObject
{
    TUVect3D basePoint{};
    std::vector<DrawnPath> paths;
};

// Length in metres of the drawing unit by the header's code; 0 for a code that is none of the usual.
double UnitByCode(int code)
{
    switch (code) {
        case 1:
            return 0.0254;
        case 2:
            return 0.3048;
        case 4:
            return 0.001;
        case 5:
            return 0.01;
        case 6:
            return 1.0;
        case 10:
            return 0.9144;
        case 14:
            return 0.1;
        default:
            return 0.0;
    }
}

TSPlaneEdge2D Side(TUVect2D const & start, TUVect2D const & end, double bulge)
{
    return {start, end, bulge};
}

bool IsFinite(Path const & path)
{
    return std::all_of(path.begin(), path.end(), [](TSPlaneEdge2D const & side) {
        return std::isfinite(side.start.x) && std::isfinite(side.start.y) && std::isfinite(side.end.x) &&
               std::isfinite(side.end.y) && std::isfinite(side.bulge);
    });
}

void Copy(char (&to)[81], char const * from)
{
    std::strncpy(to, from, sizeof(to) - 1);
    to[sizeof(to) - 1] = '\0';
}
}  // namespace

void CSectionBlocks::Add(TSDXFBlockHeader header, std::vector<DrawnPath> paths)
{
    auto content = std::make_unique<BlockContent>();
    content->basePoint = header.basePoint;
    content->paths = std::move(paths);
    header.data = content.release();  // EraseData takes it back
    AddBlock(header);
}

std::vector<DrawnPath> const * CSectionBlocks::Find(char const * name, TUVect3D & basePoint)
{
    TSDXFBlockHeader header;
    if (!GetBlockHeader(FindBlockByName(const_cast<char *>(name)), &header))
        return nullptr;
    auto const * content = static_cast<BlockContent const *>(header.data);
    basePoint = content->basePoint;
    return &content->paths;
}

int CSectionBlocks::EraseData(CObject * data)
{
    delete data;
    return 1;
}

// How the points of a block come into the drawing: scaled, turned, moved, seen from the one or the other
// side.
struct CSectionDrawing::Placement
{
    double xx, xy, yx, yy;  // matrix by rows
    double dx, dy;

    TUVect2D operator()(TUVect2D const & p) const
    {
        TUVect2D placed{};
        placed.x = xx * p.x + xy * p.y + dx;
        placed.y = yx * p.x + yy * p.y + dy;
        return placed;
    }

    bool Mirrors() const { return xx * yy - xy * yx < 0; }

    bool KeepsCircles() const
    {
        double const first = std::hypot(xx, yx), second = std::hypot(xy, yy);
        return std::fabs(first - second) <= 1e-9 * std::max(first, second);
    }
};

CSectionDrawing::CSectionDrawing(std::set<std::string> layers, double bound,
                                 std::function<void(int)> progress)
    : m_layers(std::move(layers)), m_bound(bound), m_progress(std::move(progress))
{
}

int CSectionDrawing::ReadDXFLine()
{
    int const status = CDXFInBasic::ReadDXFLine();
    if (m_lineCounter % kLinesBetweenReports < 2)
        m_progress(m_lineCounter);
    constexpr int kBlocks = 4, kEntities = 5;
    if (status == 0 && m_code == 0 && (m_section == kBlocks || m_section == kEntities))
        ++m_entityCounts[static_cast<char const *>(m_data)];
    return status;
}

// The header tells the drawing's unit as the variable $INSUNITS, an integer in group 70.
int CSectionDrawing::ReadUnknownSection()
{
    if (m_data != "HEADER")
        return CDXFInBasic::ReadUnknownSection();
    bool isUnit = false;
    while (ReadDXFLine() == 0 && !(m_code == 0 && m_data == "ENDSEC")) {
        if (m_code == 9)
            isUnit = m_data == "$INSUNITS";
        else if (isUnit && m_code == 70 && UnitByCode(std::atoi(m_data)) > 0)
            m_unitInMetres = UnitByCode(std::atoi(m_data));
    }
    return 0;
}

// An insertion's layer isn't among the arguments of its hook, so it is caught on the way.
int CSectionDrawing::PreReadControl(EDXFEntType type, int & code, CString & data, int & status)
{
    status = 0;
    if (type == DXF_ARC_OR_INSERT && code == 8)
        m_insertLayer = static_cast<char const *>(data);
    return 0;
}

int CSectionDrawing::SetEntLINE(TUVect3D & start, TUVect3D & end, int &, double &, char * layer, char *,
                                TUVect3D &)
{
    TUVect2D a{}, b{};
    a.x = start.x, a.y = start.y;
    b.x = end.x, b.y = end.y;
    AddPath({Side(a, b, 0.0)}, layer);
    return 0;
}

int CSectionDrawing::SetEntARC(TUVect3D & centre, double & radius, double & startAngle, double & endAngle,
                               int & colour, double & thickness, char * layer, char * linetype,
                               TUVect3D & extrusion)
{
    if (!LiesInPlane(extrusion))
        return 0;
    TUVect3D worldCentre{}, start{}, end{}, middle{};
    TranOCStoWCS(centre, worldCentre, centre.z, extrusion);
    double bulge = 0.0;
    int const status =
        GetARCEndPoints(worldCentre, radius, startAngle, endAngle, extrusion, &start, &end, &middle, &bulge);
    if (status == DXF_NO_SPAN)
        return SetEntCIRCLE(centre, radius, colour, thickness, layer, linetype, extrusion);
    if (status != 0)
        return 0;
    TUVect2D a{}, b{};
    a.x = start.x, a.y = start.y;
    b.x = end.x, b.y = end.y;
    // Counter-clockwise around the extrusion: seen from above, the apex lies right of the chord.
    AddPath({Side(a, b, extrusion.z > 0 ? -bulge : bulge)}, layer);
    return 0;
}

int CSectionDrawing::SetEntCIRCLE(TUVect3D & centre, double & radius, int &, double &, char * layer, char *,
                                  TUVect3D & extrusion)
{
    if (!LiesInPlane(extrusion))
        return 0;
    TUVect2D const middle = ToWorld(centre.x, centre.y, extrusion);
    TUVect2D east = middle, west = middle;
    east.x += radius;
    west.x -= radius;
    AddPath({Side(east, west, -1.0), Side(west, east, -1.0)}, layer);
    return 0;
}

int CSectionDrawing::SetEntLWPOLYLINE(int count, TUVect2D * points, double * bulges, int closed, int &,
                                      double &, double &, char * layer, char *, double &, double &, double &,
                                      TUVect3D & extrusion)
{
    AddPolyline({points, points + count}, {bulges, bulges + count}, closed == 1, layer, extrusion);
    return 0;
}

int CSectionDrawing::SetEntPOLYLINE(int & count, CArray<TUVect3D, TUVect3D &> & points,
                                    CArray<double, double &> & bulges, int & flags, int &, double &, double &,
                                    char * layer, char *, double &, double &, TUVect3D & extrusion)
{
    constexpr int kClosed = 1, kMeshes = 16 + 64;
    if (flags & kMeshes)
        return 0;
    std::vector<TUVect2D> plane(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        plane[static_cast<std::size_t>(i)].x = points[i].x;
        plane[static_cast<std::size_t>(i)].y = points[i].y;
    }
    AddPolyline(plane, {bulges.begin(), bulges.end()}, (flags & kClosed) != 0, layer, extrusion);
    return 0;
}

int CSectionDrawing::SetBeginBlock(char * layer, TUVect3D & basePoint, char * name, char * secondName, int)
{
    TSDXFBlockHeader header;
    m_blocks.ClearHeaderStructure(&header);
    Copy(header.layer, layer);
    Copy(header.name, name);
    Copy(header.secondName, secondName);
    header.basePoint = basePoint;
    m_openBlock = header;
    m_blockPaths.clear();
    return 0;
}

int CSectionDrawing::SetEndBlock()
{
    if (m_openBlock)
        m_blocks.Add(*m_openBlock, std::move(m_blockPaths));
    m_openBlock.reset();
    m_blockPaths.clear();
    return 0;
}

int CSectionDrawing::SetInsertedBlock(char * name, TUVect3D & point, TUVect3D & scales, double & rotation,
                                      int & columns, int & rows, double & columnSpacing, double & rowSpacing,
                                      TUVect3D & extrusion)
{
    std::string const insertLayer = std::exchange(m_insertLayer, std::string());
    if (!LiesInPlane(extrusion))
        return 0;
    TUVect3D base{};
    std::vector<DrawnPath> const * paths = m_blocks.Find(name, base);
    if (!paths) {
        m_missingBlocks.insert(name);
        return 0;
    }
    long long const columnCount = std::max(columns, 1), rowCount = std::max(rows, 1);
    if (columnCount * rowCount > kMostCopies)
        return DXF_EMPTY_CODE;
    double const angle = rotation * std::numbers::pi / 180;
    double const cosine = std::cos(angle), sine = std::sin(angle);
    // Seen from below, x runs the other way.
    double const side = extrusion.z > 0 ? 1.0 : -1.0;
    for (long long row = 0; row < rowCount; ++row)
        for (long long column = 0; column < columnCount; ++column) {
            double const alongX = static_cast<double>(column) * columnSpacing - scales.x * base.x;
            double const alongY = static_cast<double>(row) * rowSpacing - scales.y * base.y;
            Placement const placement{side * cosine * scales.x,
                                      -side * sine * scales.y,
                                      sine * scales.x,
                                      cosine * scales.y,
                                      side * (point.x + cosine * alongX - sine * alongY),
                                      point.y + sine * alongX + cosine * alongY};
            for (DrawnPath const & drawn : *paths)
                AddPath(Place(drawn.path, placement), drawn.layer == "0" ? insertLayer : drawn.layer);
        }
    return 0;
}

// Paths of a block are kept whatever their layer: the insertion decides.
void CSectionDrawing::AddPath(Path path, std::string const & layer)
{
    if (!IsFinite(path))
        return;
    if (m_openBlock) {
        m_blockPaths.push_back({std::move(path), layer});
        return;
    }
    ++m_layerCounts[layer];
    if (IsWanted(layer))
        m_paths.push_back({std::move(path), layer});
}

void CSectionDrawing::AddPolyline(std::vector<TUVect2D> const & points, std::vector<double> const & bulges,
                                  bool closed, std::string const & layer, TUVect3D const & extrusion)
{
    if (points.size() < 2 || !LiesInPlane(extrusion))
        return;
    double const side = extrusion.z > 0 ? -1.0 : 1.0;
    Path path;
    std::size_t const sides = closed ? points.size() : points.size() - 1;
    for (std::size_t i = 0; i < sides; ++i) {
        TUVect2D const & next = points[(i + 1) % points.size()];
        // The format counts a bulge positive for a counter-clockwise arc, the kernel for an apex on the left.
        path.push_back(Side(ToWorld(points[i].x, points[i].y, extrusion), ToWorld(next.x, next.y, extrusion),
                            side * bulges[i]));
    }
    AddPath(std::move(path), layer);
}

// Entities count when they are drawn on the plane itself, seen from either side.
bool CSectionDrawing::LiesInPlane(TUVect3D const & extrusion)
{
    constexpr double kTilt = 1e-6;
    double const size = std::hypot(extrusion.x, extrusion.y, extrusion.z);
    bool const inPlane = size > 0 && std::hypot(extrusion.x, extrusion.y) <= kTilt * size;
    if (!inPlane)
        ++m_tiltedEntities;
    return inPlane;
}

TUVect2D CSectionDrawing::ToWorld(double x, double y, TUVect3D const & extrusion)
{
    TUVect3D object{}, world{};
    object.x = x;
    object.y = y;
    TranOCStoWCS(object, world, 0.0, extrusion);
    TUVect2D point{};
    point.x = world.x;
    point.y = world.y;
    return point;
}

Path CSectionDrawing::Place(Path const & path, Placement const & placement) const
{
    Path placed;
    double const turn = placement.Mirrors() ? -1.0 : 1.0;
    for (TSPlaneEdge2D const & side : path) {
        if (side.bulge == 0 || placement.KeepsCircles()) {
            placed.push_back(Side(placement(side.start), placement(side.end), turn * side.bulge));
            continue;
        }
        std::vector<TUVect2D> points = {side.start};
        outlines::AppendFlattened(side, m_bound, points);
        for (std::size_t i = 1; i < points.size(); ++i)
            placed.push_back(Side(placement(points[i - 1]), placement(points[i]), 0.0));
    }
    return placed;
}
