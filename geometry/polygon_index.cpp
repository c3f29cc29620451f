#include "geometry/polygon_index.h"

#include <cmath>

#include "geometry/detail_point_class.h"

namespace detail {
namespace {
constexpr std::size_t kMostSides = 10000;  // rounding of a sum of turns over more could show
constexpr double kLargestCoordinate = 1e15;
constexpr double kTolerances = 8.0;         // everything in common lies within four tolerances of a side
constexpr double kRoundingShare = 1e-12;    // share of a length that rounding can't reach
constexpr double kFarRoundingShare = 1e-9;  // the same for triangles beyond the range served
constexpr double kSquareRounding = 1e-15;   // share of a square of a distance that rounding can't reach
constexpr double kSmallestToleranceShare = 1e-13;  // of the coordinates; below, a tolerance is rounding
constexpr double kServedSizes = 4.0;               // range served round the polygon, in sizes of it
constexpr double kLargestDistance = 12.0;          // largest distance within the range served, in sizes
constexpr double kSmallestBulge = 1e-4;            // well above the arcs that count as lines
constexpr double kLargestBulge = 1e4;
constexpr double kShortestChordSquare = 1e-12;  // of an arc and of a triangle's side: well above what the
                                                // kernel takes for no direction
constexpr std::size_t kCellsPerSide = 32;
constexpr std::size_t kFewestCells = 16384;
constexpr std::size_t kMostCells = 65536;

double Square(TUVect2D const & a, TUVect2D const & b)
{
    double const x = b.x - a.x;
    double const y = b.y - a.y;
    return x * x + y * y;
}

bool IsUsable(TSPoint2DPlane const & record)
{
    return std::fabs(record.x) < kLargestCoordinate && std::fabs(record.y) < kLargestCoordinate;
}

/// Vertices with at most one marker between two of them, the last exactly the first.
bool IsInClosedForm(AreaRecords records)
{
    if (records.size() < 3 || records.size() > 2 * kMostSides || IsArcMarker(records.front()) ||
        IsArcMarker(records.back()))
        return false;
    for (std::size_t i = 0; i < records.size(); ++i) {
        bool const isMarker = IsArcMarker(records[i]);
        if (isMarker ? IsArcMarker(records[i - 1]) : !IsUsable(records[i]))
            return false;
    }
    return records.front().x == records.back().x && records.front().y == records.back().y;
}

TUVect2D MiddleOf(AreaSide const & side)
{
    return {{(side.from.x + side.to.x) / 2.0, (side.from.y + side.to.y) / 2.0}};
}

/// A rectangle that holds a side and, for an arc, its chord; for a straight side one without breadth.
std::array<TUVect2D, 4> HullOf(IndexedSide const & indexed)
{
    AreaSide const & side = indexed.side;
    if (!side.isArc)
        return {side.from, side.to, side.to, side.from};
    if (std::fabs(side.bulge) > 1.0) {
        double const r = indexed.radius;
        TUVect2D const & c = indexed.centre;
        return {TUVect2D{{c.x - r, c.y - r}}, TUVect2D{{c.x + r, c.y - r}}, TUVect2D{{c.x + r, c.y + r}},
                TUVect2D{{c.x - r, c.y + r}}};
    }
    // Up to a half circle an arc stands on its chord within a rectangle of the sagitta's height.
    double const sagitta = std::sqrt(Square(side.from, side.to)) / 2.0 * std::fabs(side.bulge);
    double const dx = sagitta * indexed.toApex.x;
    double const dy = sagitta * indexed.toApex.y;
    return {side.from, side.to, TUVect2D{{side.to.x + dx, side.to.y + dy}},
            TUVect2D{{side.from.x + dx, side.from.y + dy}}};
}

PlaneBox BoxOf(std::array<TUVect2D, 4> const & corners)
{
    PlaneBox box;
    for (TUVect2D const & corner : corners)
        box.Add(corner.x, corner.y);
    return box;
}

PointOnSide AgainstSide(CMathematics & math, TUVect2D const & p, IndexedSide const & indexed,
                        double tolerance)
{
    AreaSide const & side = indexed.side;
    if (!side.isArc)
        return AgainstStraightSide(p, side, indexed.length, tolerance);
    return {Length(p - side.from) < tolerance || Length(p - side.to) < tolerance,
            math.IsPointOnArc(p, side.from, side.to, side.bulge) == 1};
}

bool IsSupportedArc(AreaSide const & side)
{
    double const bulge = std::fabs(side.bulge);
    return bulge >= kSmallestBulge && bulge <= kLargestBulge &&
           Square(side.from, side.to) > kShortestChordSquare;
}
}  // namespace

std::unique_ptr<PolygonIndex> PolygonIndex::Make(CMathematics & math, Area const & area)
{
    if (!IsInClosedForm(area.View()))
        return nullptr;
    std::unique_ptr<PolygonIndex> index(new PolygonIndex);
    index->m_okoli = math.GetOkoli();
    if (!index->ReadSides(math, area) || !index->AddSlack())
        return nullptr;
    index->BuildTree();
    index->BuildGrid(math);
    return index;
}

bool PolygonIndex::ReadSides(CMathematics & math, Area const & area)
{
    int elements = 0;
    SideWalk sides = ClosingSideLast(area.View());
    while (auto const side = sides.Next()) {
        IndexedSide indexed = {*side, {}, {}, 0.0, std::sqrt(Square(side->from, side->to)), 0.0, -1};
        if (side->isArc) {
            double absBulge = 0.0;
            if (!IsSupportedArc(*side) ||
                !math.GetArcCentreVectorBulge(side->from, side->to, side->bulge, indexed.centre,
                                              indexed.radius, indexed.toApex, absBulge))
                return false;
            m_smallestRadius = m_hasArcs ? std::min(m_smallestRadius, indexed.radius) : indexed.radius;
            m_hasArcs = true;
        }
        if (!math.ComparePoints(side->from, side->to, 1))
            indexed.element = elements++;
        m_sides.push_back(indexed);
        m_reach.Add(BoxOf(HullOf(indexed)));
    }
    m_isReversed = !(math.GetAreaSurface(&area) > 0.0);
    if (m_isReversed)
        for (IndexedSide & indexed : m_sides)
            indexed.element = indexed.element >= 0 ? elements - 1 - indexed.element : -1;
    return true;
}

bool PolygonIndex::AddSlack()
{
    m_size = std::max(m_reach.highX - m_reach.lowX, m_reach.highY - m_reach.lowY);
    for (double const coordinate : {m_reach.lowX, m_reach.lowY, m_reach.highX, m_reach.highY})
        m_largest = std::max(m_largest, std::fabs(coordinate));
    double const coordinates = m_largest + kServedSizes * m_size;
    m_smallestOkoli = kSmallestToleranceShare * coordinates;
    if (!(m_okoli >= m_smallestOkoli && m_size > m_okoli))
        return false;

    m_served = m_reach.Grown(kServedSizes * m_size);
    double const distance = kLargestDistance * m_size;
    double largestSlack = 0.0;
    for (IndexedSide & indexed : m_sides) {
        indexed.slack = kTolerances * m_okoli + kRoundingShare * 8.0 * coordinates;
        if (indexed.side.isArc) {
            double const bulge = std::fabs(indexed.side.bulge);
            double const ofCircle = indexed.radius * std::max(1.0, 2.0 / (1.0 + bulge * bulge));
            indexed.slack +=
                kRoundingShare * 4.0 * ofCircle + kSquareRounding * distance * distance / indexed.radius;
        }
        largestSlack = std::max(largestSlack, indexed.slack);
    }
    m_reach = m_reach.Grown(2.0 * largestSlack);
    return true;
}

void PolygonIndex::BuildTree()
{
    std::vector<PlaneBox> boxes;
    boxes.reserve(m_sides.size());
    for (IndexedSide const & indexed : m_sides) {
        std::array<TUVect2D, 4> const hull = HullOf(indexed);
        boxes.push_back(BoxOf(hull).Grown(indexed.slack));
        m_hulls.emplace_back(hull);
    }
    m_tree = BoxTree(boxes);
}

void PolygonIndex::BuildGrid(CMathematics & math)
{
    m_grid = PolygonGrid(m_reach, std::clamp(kCellsPerSide * m_sides.size(), kFewestCells, kMostCells));
    for (std::size_t i = 0; i < m_sides.size(); ++i) {
        IndexedSide const & indexed = m_sides[i];
        // An arc's chord too: across it the turns seen from a point change, though not their sum.
        m_grid.MarkSegment(indexed.side.from, indexed.side.to, indexed.slack);
        if (indexed.side.isArc)
            m_grid.MarkArc(m_tree[i], indexed.centre, indexed.radius, MiddleOf(indexed.side), indexed.toApex,
                           indexed.slack);
    }
    m_grid.Classify([&](TUVect2D const & p) { return ClassOf(math, p) != kPointOutside; });
}

bool PolygonIndex::IsNear(PlaneBox const & box) const
{
    return box.lowX >= m_served.lowX && box.highX <= m_served.highX && box.lowY >= m_served.lowY &&
           box.highY <= m_served.highY;
}

// For triangles of any size.
bool PolygonIndex::IsClearOfAll(PlaneBox const & box) const
{
    double size = m_largest;
    for (double const coordinate : {box.lowX, box.lowY, box.highX, box.highY})
        size = std::max(size, std::fabs(coordinate));
    double const ofArcs = m_hasArcs ? kSquareRounding * 16.0 * size * size / m_smallestRadius : 0.0;
    double const slack = kTolerances * m_okoli + kFarRoundingShare * size + ofArcs;
    PlaneBox const reach = m_reach.Grown(slack);
    return box.lowX > reach.highX || box.highX < reach.lowX || box.lowY > reach.highY ||
           box.highY < reach.lowY;
}

TrianglePlace PolygonIndex::PlaceOf(TUVect2D const (&corners)[3], std::vector<std::size_t> & nearSides) const
{
    PlaneBox box;
    for (TUVect2D const & corner : corners)
        box.Add(corner.x, corner.y);
    double const shortest = std::max(kShortestChordSquare, m_okoli * m_okoli);
    for (std::size_t i = 0; i < 3; ++i)
        if (!(Square(corners[i], corners[(i + 1) % 3]) > shortest))
            return TrianglePlace::kUnserved;
    if (!IsNear(box))
        return IsClearOfAll(box) ? TrianglePlace::kOutside : TrianglePlace::kUnserved;
    if (!m_reach.Meets(box))
        return TrianglePlace::kOutside;
    switch (m_grid.Ask(box)) {
        case PolygonGrid::Answer::kInside:
            return TrianglePlace::kInside;
        case PolygonGrid::Answer::kOutside:
            return TrianglePlace::kOutside;
        default:
            return PlaceBySides(box, corners, nearSides);
    }
}

TrianglePlace PolygonIndex::PlaceBySides(PlaneBox const & box, TUVect2D const (&corners)[3],
                                         std::vector<std::size_t> & nearSides) const
{
    TriangleFigure const triangle({corners[0], corners[1], corners[2]});
    bool isClearOfChords = true;
    nearSides.clear();
    m_tree.ForEach([&box](PlaneBox const & sides) { return sides.Meets(box); },
                   [&](std::size_t ordinal) {
                       if (IsClearOfHull(ordinal, triangle))
                           return true;
                       isClearOfChords = false;
                       if (!IsClearOf(ordinal, triangle))
                           nearSides.push_back(ordinal);
                       return true;
                   });
    if (!nearSides.empty())
        return TrianglePlace::kUndecided;
    bool const isInside = WindingNumber(corners[0]) != 0;
    // On the chord of an arc rounding decides on which side of it a corner is seen.
    if (!isClearOfChords &&
        ((WindingNumber(corners[1]) != 0) != isInside || (WindingNumber(corners[2]) != 0) != isInside))
        return TrianglePlace::kUndecided;
    return isInside ? TrianglePlace::kInside : TrianglePlace::kOutside;
}

int PolygonIndex::ClassOf(CMathematics & math, TUVect2D const & p) const
{
    if (std::optional<int> const found = ClassOnBoundary(math, p))
        return *found;
    return WindingNumber(p) != 0 ? kPointInside : kPointOutside;
}

std::optional<int> PolygonIndex::ClassOnBoundary(CMathematics & math, TUVect2D const & p) const
{
    double const tolerance = math.GetOkoli();
    bool onVertex = false;
    bool onEdge = false;
    m_tree.ForEach([&p](PlaneBox const & box) { return box.Holds(p.x, p.y); },
                   [&](std::size_t ordinal) {
                       PointOnSide const found = AgainstSide(math, p, m_sides[ordinal], tolerance);
                       onVertex = found.onVertex;
                       onEdge = onEdge || found.onEdge;
                       return !onVertex;
                   });
    if (onVertex)
        return kPointOnVertex;
    return onEdge ? std::optional<int>(kPointOnEdge) : std::nullopt;
}

// Only sides across the line down from `p`, where the direction angles begin and end, and arcs beside `p` add
// to the number.
int PolygonIndex::WindingNumber(TUVect2D const & p) const
{
    int turns = 0;
    m_tree.ForEach(
        [&p](PlaneBox const & box) { return box.lowX <= p.x && p.x <= box.highX && box.lowY <= p.y; },
        [&](std::size_t ordinal) {
            turns += TurnsOf(ordinal, p);
            return true;
        });
    return turns;
}

int PolygonIndex::TurnsOf(std::size_t ordinal, TUVect2D const & p) const
{
    IndexedSide const & indexed = m_sides[ordinal];
    TUVect2D const from = indexed.side.from - p;
    TUVect2D const to = indexed.side.to - p;
    if (m_tree[ordinal].highY < p.y)
        return static_cast<int>(from.x < 0.0) - static_cast<int>(to.x < 0.0);
    if (!indexed.side.isArc)
        return FullTurnsBetween(from, to);
    double const fromAngle = DirectionAngle(from);
    double const toAngle = DirectionAngle(to);
    double const turn = ArcTurn(p, indexed.side, indexed.centre, indexed.radius, indexed.toApex,
                                TurnBetween(fromAngle, toAngle));
    return static_cast<int>(std::lround((turn - (toAngle - fromAngle)) / (2.0 * std::numbers::pi)));
}
}  // namespace detail
