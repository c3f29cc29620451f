#include "geometry/section_levels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace detail {
namespace {
constexpr double kLevelsPerHeight = 100.0;
constexpr double kSameHeight = 1e12;  // levels nearer than the step over this stand at one height
constexpr double kNudge = 1e10;       // levels are moved off a horizontal side by the step over this

// The heights of all vertices from the top down, the first vertex's three times in a closed outline: once for
// itself, once in turn, once as the last vertex.
std::vector<double> SortedHeights(std::span<TUVect2D const> outline)
{
    std::vector<double> heights = {outline.front().y};
    for (TUVect2D const & vertex : outline)
        heights.push_back(vertex.y);
    std::sort(heights.begin(), heights.end(), std::greater<>());
    return heights;
}

// Leaves one level at the top, just inside the section.
void TrimTop(std::vector<double> & heights, double step)
{
    std::size_t same = 1;
    while (same + 1 < heights.size() && std::fabs(heights[0] - heights[same]) < step / kSameHeight)
        ++same;
    heights.erase(heights.begin() + 1, heights.begin() + static_cast<std::ptrdiff_t>(same));
    heights[0] -= step / kNudge;
}

// Puts levels between `from` and the next height below, `gap` lower, so that none are a step apart.
void AddBetween(std::vector<SectionLevel> & levels, double from, double gap, double step)
{
    int const parts = static_cast<int>(gap / step) + 1;
    for (int q = 1; q < parts; ++q)
        levels.push_back({from - q * gap / parts});
}

std::vector<SectionLevel> RefinedLevels(std::vector<double> const & heights, double step)
{
    double const same = step / kSameHeight;
    double const nudge = step / kNudge;
    std::vector<SectionLevel> levels;
    double current = heights[0];
    for (std::size_t next = 1; next < heights.size();) {
        double const gap = current - heights[next];
        double following = heights[next++];
        if (gap > step) {
            levels.push_back({current});
            AddBetween(levels, current, gap, step);
        } else if (std::fabs(gap) < same) {
            while (next < heights.size() && std::fabs(heights[next] - current) < same)
                ++next;
            if (next < heights.size())
                levels.push_back({current + nudge});
            // At the bottom one raised level stands for the pair.
            following = next < heights.size() ? following - nudge : current + nudge;
        } else {
            levels.push_back({current});
        }
        current = following;
    }
    levels.push_back({current});
    return levels;
}

}  // namespace

SectionTable BuildSectionTable(std::span<TUVect2D const> outline)
{
    bool const usable = !outline.empty() && std::ranges::all_of(outline, [](TUVect2D const & vertex) {
        return std::isfinite(vertex.y);
    });
    if (!usable)
        return {};
    std::vector<double> heights = SortedHeights(outline);
    double const step = (heights.front() - heights.back()) / kLevelsPerHeight;
    if (!std::isfinite(step))
        return {};
    TrimTop(heights, step);
    return {RefinedLevels(heights, step), step};
}

SectionIntegrator::SectionIntegrator(std::span<TUVect2D const> outline, double nearLevel)
    : m_vertices(outline.begin(), outline.end()), m_nearLevel(nearLevel)
{
    m_vertices.push_back(outline.front());
    double highest = outline.front().y;
    for (std::size_t side = 0; side < outline.size(); ++side) {
        m_sides.push_back(SumsOfPiece(m_vertices[side], m_vertices[side + 1]));
        highest = std::max(highest, m_vertices[side].y);
        m_highestSoFar.push_back(highest);
    }
}

bool SectionIntegrator::Integrate(std::span<SectionLevel> levels) const
{
    for (std::size_t first = 0; first < levels.size(); first += kLanes) {
        std::size_t const count = std::min(kLanes, levels.size() - first);
        if (!IntegrateLanes(levels.subspan(first, count)))
            return false;
    }
    return true;
}

bool SectionIntegrator::IntegratePlainly(std::span<SectionLevel> levels) const
{
    std::size_t const count = m_sides.size();
    for (SectionLevel & level : levels) {
        Walk walk = WalkAt(level.y);
        if (walk.start == count)
            return false;
        Sums sums;
        for (std::size_t i = 0; i < count; ++i)
            Step(walk, sums, (walk.start + i) % count);
        Fill(level, walk, sums);
    }
    return true;
}

SectionIntegrator::Walk SectionIntegrator::WalkAt(double level) const
{
    auto const found = std::lower_bound(m_highestSoFar.begin(), m_highestSoFar.end(), level);
    return {level, static_cast<std::size_t>(found - m_highestSoFar.begin())};
}

SectionIntegrator::Sums SectionIntegrator::SumsOfPiece(TUVect2D const & from, TUVect2D const & to)
{
    double const dx = to.x - from.x;
    double const dy = to.y - from.y;
    return {(3.0 * from.y * from.y + 3.0 * from.y * dy + dy * dy) * dx, from.x * dy - from.y * dx};
}

void SectionIntegrator::Add(Sums & sums, Sums const & piece)
{
    sums.staticMoment -= piece.staticMoment;
    sums.area += piece.area;
}

void SectionIntegrator::Step(Walk & walk, Sums & sums, std::size_t side) const
{
    double const from = m_vertices[side].y;
    double const to = m_vertices[side + 1].y;
    bool const toAbove = to >= walk.level;
    bool const alongLevel =
        std::fabs(from - walk.level) <= m_nearLevel && std::fabs(to - walk.level) <= m_nearLevel;
    if (walk.above != toAbove && !alongLevel)
        Cross(walk, sums, side);
    else if (walk.above || toAbove)
        Add(sums, m_sides[side]);
}

void SectionIntegrator::Cross(Walk & walk, Sums & sums, std::size_t side) const
{
    TUVect2D const & from = m_vertices[side];
    TUVect2D const & to = m_vertices[side + 1];
    double const x = from.x + (walk.level - from.y) / (to.y - from.y) * (to.x - from.x);
    TUVect2D const crossing = {{x, walk.level}};
    if (walk.above) {
        Add(sums, SumsOfPiece(from, crossing));
        walk.width -= x;
        walk.crossing = x;
    } else {
        Add(sums, SumsOfPiece({{walk.crossing, walk.level}}, crossing));
        Add(sums, SumsOfPiece(crossing, to));
        walk.width += x;
    }
    walk.above = !walk.above;
}

void SectionIntegrator::Fill(SectionLevel & level, Walk const & walk, Sums const & sums)
{
    level.staticMoment = sums.staticMoment / 6.0;
    level.area = sums.area / 2.0;
    level.width = walk.width;
}

// The sums stand apart from the walks so that one instruction adds to several.
struct SectionIntegrator::Lanes
{
    std::array<Walk, kLanes> walks;
    std::array<double, kLanes> staticMoments = {};
    std::array<double, kLanes> areas = {};
    std::size_t firstStart = 0;
    double highest = 0.0;
    double lowest = 0.0;

    void AddToAll(Sums const & piece)
    {
        for (double & sum : staticMoments)
            sum -= piece.staticMoment;
        for (double & sum : areas)
            sum += piece.area;
    }
};

bool SectionIntegrator::IntegrateLanes(std::span<SectionLevel> levels) const
{
    Lanes lanes;
    if (!PrepareLanes(lanes, levels))
        return false;
    for (std::size_t side = lanes.firstStart; side < m_sides.size(); ++side)
        StepLanes(lanes, side);
    for (std::size_t lane = 0; lane < levels.size(); ++lane) {
        Sums sums = {lanes.staticMoments[lane], lanes.areas[lane]};
        FinishWalk(lanes.walks[lane], sums);
        Fill(levels[lane], lanes.walks[lane], sums);
    }
    return true;
}

bool SectionIntegrator::PrepareLanes(Lanes & lanes, std::span<SectionLevel const> levels) const
{
    lanes.firstStart = m_sides.size();
    lanes.highest = levels.front().y;
    lanes.lowest = levels.front().y;
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
        // Lanes beyond the last level repeat it; nobody reads them.
        double const level = levels[std::min(lane, levels.size() - 1)].y;
        lanes.walks[lane] = WalkAt(level);
        if (lanes.walks[lane].start == m_sides.size())
            return false;
        lanes.firstStart = std::min(lanes.firstStart, lanes.walks[lane].start);
        lanes.highest = std::max(lanes.highest, level);
        lanes.lowest = std::min(lanes.lowest, level);
    }
    return true;
}

void SectionIntegrator::StepLanes(Lanes & lanes, std::size_t side) const
{
    // Off all levels by more than the nearness, every walk is on the side's own side, and has started if the
    // side lies above.
    double const margin = std::max(m_nearLevel, 0.0);
    auto const [low, high] = std::minmax(m_vertices[side].y, m_vertices[side + 1].y);
    if (low > lanes.highest + margin)
        return lanes.AddToAll(m_sides[side]);
    if (high < lanes.lowest - margin)
        return;
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
        Walk & walk = lanes.walks[lane];
        if (side < walk.start)
            continue;
        Sums sums = {lanes.staticMoments[lane], lanes.areas[lane]};
        Step(walk, sums, side);
        lanes.staticMoments[lane] = sums.staticMoment;
        lanes.areas[lane] = sums.area;
    }
}

void SectionIntegrator::FinishWalk(Walk & walk, Sums & sums) const
{
    // The vertices before the start are below the level, so a walk that is below adds nothing until the side
    // that ends at the start.
    std::size_t const side = walk.above || walk.start == 0 ? 0 : walk.start - 1;
    for (std::size_t i = side; i < walk.start; ++i)
        Step(walk, sums, i);
}
}  // namespace detail
