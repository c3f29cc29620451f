#include "platform/device/cairo/scan_polygon.h"

#include <algorithm>
#include <cstdint>

namespace detail {
namespace {
/// A side that isn't level, from its upper end to its lower end.
struct Edge
{
    POINT top, bottom;
    int winding;  // 1 for a side drawn downward, -1 upward
};

struct Crossing
{
    std::int64_t x;
    int winding;
};

/// First whole column at or right of the edge on row y. Coordinates stay below 2^28, so the product fits.
std::int64_t ColumnOf(Edge const & edge, int y)
{
    std::int64_t const height = std::int64_t{edge.bottom.y} - edge.top.y;
    std::int64_t const width = std::int64_t{edge.bottom.x} - edge.top.x;
    std::int64_t const product = (std::int64_t{y} - edge.top.y) * width;
    std::int64_t const quotient = product / height;
    return edge.top.x + quotient + (product % height > 0 ? 1 : 0);
}

void AppendEdges(std::span<POINT const> polygon, RECT const & clip, std::vector<Edge> & edges)
{
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        POINT const a = polygon[i];
        POINT const b = polygon[(i + 1) % polygon.size()];
        Edge const edge = a.y < b.y ? Edge{a, b, 1} : Edge{b, a, -1};
        if (edge.top.y != edge.bottom.y && edge.top.y < clip.bottom && edge.bottom.y > clip.top)
            edges.push_back(edge);
    }
}

void AppendSpan(int y, std::int64_t left, std::int64_t right, RECT const & clip,
                std::vector<PixelSpan> & spans)
{
    left = std::max<std::int64_t>(left, clip.left);
    right = std::min<std::int64_t>(right, clip.right);
    if (left < right)
        spans.push_back({y, static_cast<int>(left), static_cast<int>(right)});
}

void AppendRow(int y, std::span<Crossing const> crossings, int fillMode, RECT const & clip,
               std::vector<PixelSpan> & spans)
{
    int winding = 0;
    std::int64_t left = 0;
    for (std::size_t i = 0; i < crossings.size(); ++i) {
        bool const wasInside = fillMode == WINDING ? winding != 0 : i % 2 == 1;
        winding += crossings[i].winding;
        bool const isInside = fillMode == WINDING ? winding != 0 : i % 2 == 0;
        if (!wasInside && isInside)
            left = crossings[i].x;
        else if (wasInside && !isInside)
            AppendSpan(y, left, crossings[i].x, clip, spans);
    }
}

std::vector<Edge> CollectEdges(std::span<POINT const> points, std::span<int const> counts, RECT const & clip)
{
    std::vector<Edge> edges;
    std::size_t first = 0;
    for (int const count : counts) {
        AppendEdges(points.subspan(first, static_cast<std::size_t>(count)), clip, edges);
        first += static_cast<std::size_t>(count);
    }
    std::sort(edges.begin(), edges.end(), [](Edge const & a, Edge const & b) { return a.top.y < b.top.y; });
    return edges;
}
}  // namespace

std::vector<PixelSpan> ScanPolygons(std::span<POINT const> points, std::span<int const> counts, int fillMode,
                                    RECT const & clip)
{
    std::vector<PixelSpan> spans;
    std::vector<Edge> const edges = CollectEdges(points, counts, clip);
    std::vector<Edge> active;
    std::vector<Crossing> crossings;
    std::size_t next = 0;
    int const firstRow = edges.empty() ? clip.bottom : std::max(clip.top, edges.front().top.y);
    for (int y = firstRow; y < clip.bottom && (next < edges.size() || !active.empty()); ++y) {
        std::erase_if(active, [y](Edge const & edge) { return edge.bottom.y <= y; });
        for (; next < edges.size() && edges[next].top.y <= y; ++next)
            if (edges[next].bottom.y > y)
                active.push_back(edges[next]);
        crossings.clear();
        for (Edge const & edge : active)
            crossings.push_back({ColumnOf(edge, y), edge.winding});
        std::sort(crossings.begin(), crossings.end(),
                  [](Crossing const & a, Crossing const & b) { return a.x < b.x; });
        AppendRow(y, crossings, fillMode, clip, spans);
    }
    return spans;
}
}  // namespace detail
