#include "end_graph.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace {
using outlines::Path;

double Distance(TUVect2D const & a, TUVect2D const & b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

// Direction angle in which a path leaves its start. An arc leaves its chord by half its included angle, to
// the left for a positive bulge.
double LeavingAngle(TSPlaneEdge2D const & first)
{
    return std::atan2(first.end.y - first.start.y, first.end.x - first.start.x) + 2 * std::atan(first.bulge);
}

// Direction angle from the end of a path back along it.
double BackAngle(TSPlaneEdge2D const & last)
{
    return std::atan2(last.start.y - last.end.y, last.start.x - last.end.x) - 2 * std::atan(last.bulge);
}

// The angle brought to 0 (not included) to a full turn.
double PositiveAngle(double angle)
{
    double const turn = 2 * std::numbers::pi;
    double const rest = std::fmod(angle, turn);
    return rest > 0 ? rest : rest + turn;
}

// The place nearest to places[i], which are sorted by x; i itself if there is no other.
std::size_t NearestTo(std::vector<TUVect2D> const & places, std::size_t i)
{
    std::size_t nearest = i;
    double least = 0.0;
    auto const tryPlace = [&](std::size_t j) {
        if (nearest != i && std::fabs(places[j].x - places[i].x) >= least)
            return false;
        double const distance = Distance(places[j], places[i]);
        if (nearest == i || distance < least) {
            nearest = j;
            least = distance;
        }
        return true;
    };
    for (std::size_t j = i + 1; j < places.size() && tryPlace(j); ++j) {
    }
    for (std::size_t j = i; j-- > 0 && tryPlace(j);) {
    }
    return nearest;
}

// Each loose end with its nearest; two that are each other's nearest are told once.
std::vector<outlines::Gap> GapsBetween(std::vector<TUVect2D> places)
{
    std::sort(places.begin(), places.end(), [](TUVect2D const & a, TUVect2D const & b) { return a.x < b.x; });
    std::vector<std::size_t> nearest(places.size());
    for (std::size_t i = 0; i < places.size(); ++i)
        nearest[i] = NearestTo(places, i);
    std::vector<outlines::Gap> gaps;
    for (std::size_t i = 0; i < places.size(); ++i)
        if (nearest[i] >= i || nearest[nearest[i]] != i)
            gaps.push_back({places[i], places[nearest[i]], Distance(places[i], places[nearest[i]])});
    return gaps;
}

std::size_t RootOf(std::vector<std::size_t> & parents, std::size_t i)
{
    while (parents[i] != i)
        i = parents[i] = parents[parents[i]];
    return i;
}
}  // namespace

namespace outlines {
EndGraph::EndGraph(std::vector<Path> paths, double tolerance)
    : m_paths(std::move(paths)),
      m_tolerance(tolerance),
      m_used(m_paths.size(), false),
      m_lastTrace(m_paths.size(), 0)
{
    FindPoints(tolerance);
    MoveEndsOntoPoints();
}

// Ends sorted by x: only those within the tolerance in x are compared.
void EndGraph::FindPoints(double tolerance)
{
    std::size_t const count = 2 * m_paths.size();
    std::vector<TUVect2D> positions(count);
    for (std::size_t i = 0; i < count; ++i)
        positions[i] = PositionOf({i / 2, i % 2 == 0});
    std::vector<std::size_t> byX(count), parents(count);
    std::iota(byX.begin(), byX.end(), std::size_t{0});
    std::iota(parents.begin(), parents.end(), std::size_t{0});
    std::sort(byX.begin(), byX.end(),
              [&](std::size_t a, std::size_t b) { return positions[a].x < positions[b].x; });
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t j = i + 1; j < count && positions[byX[j]].x - positions[byX[i]].x <= tolerance; ++j)
            if (Distance(positions[byX[i]], positions[byX[j]]) <= tolerance)
                parents[RootOf(parents, byX[j])] = RootOf(parents, byX[i]);
    std::vector<std::size_t> pointOfRoot(count, count);
    m_points.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t & point = pointOfRoot[RootOf(parents, i)];
        if (point == count) {
            point = m_endsAt.size();
            m_endsAt.emplace_back();
        }
        m_points[i] = point;
        m_endsAt[point].push_back({i / 2, i % 2 == 0});
    }
}

void EndGraph::MoveEndsOntoPoints()
{
    for (auto const & ends : m_endsAt)
        for (End const & end : ends)
            PositionOf(end) = PositionOf(ends.front());
}

std::size_t EndGraph::PointOf(End const & end) const
{
    return m_points[2 * end.path + (end.atStart ? 0 : 1)];
}

TUVect2D & EndGraph::PositionOf(End const & end)
{
    Path & path = m_paths[end.path];
    return end.atStart ? path.front().start : path.back().end;
}

std::size_t EndGraph::CountAt(std::size_t point) const
{
    return static_cast<std::size_t>(std::count_if(m_endsAt[point].begin(), m_endsAt[point].end(),
                                                  [&](End const & end) { return !m_used[end.path]; }));
}

bool EndGraph::SameCourse(std::size_t a, std::size_t b) const
{
    Path const & first = m_paths[a];
    if (first.size() != m_paths[b].size())
        return false;
    auto const matches = [&](Path const & second) {
        return std::equal(first.begin(), first.end(), second.begin(),
                          [&](TSPlaneEdge2D const & p, TSPlaneEdge2D const & q) {
                              // Sagittas within the tolerance: bulge times half chord.
                              double const halfChord = Distance(p.start, p.end) / 2;
                              return Distance(p.start, q.start) <= m_tolerance &&
                                     Distance(p.end, q.end) <= m_tolerance &&
                                     std::fabs(p.bulge - q.bulge) * halfChord <= m_tolerance;
                          });
    };
    return matches(m_paths[b]) || matches(Reversed(m_paths[b]));
}

int EndGraph::DropDuplicates()
{
    int dropped = 0;
    for (std::size_t path = 0; path < m_paths.size(); ++path)
        for (End const & other : m_endsAt[PointOf({path, true})])
            if (other.path < path && !m_used[other.path] && !m_used[path] && SameCourse(other.path, path)) {
                m_used[path] = true;
                ++dropped;
            }
    return dropped;
}

std::vector<Gap> EndGraph::TakeLooseEnds()
{
    std::vector<End> loose;
    for (std::size_t point = 0; point < m_endsAt.size(); ++point)
        if (CountAt(point) == 1)
            for (End const & end : m_endsAt[point])
                if (!m_used[end.path])
                    loose.push_back(end);
    std::vector<TUVect2D> places;
    for (End const & end : loose)
        places.push_back(PositionOf(end));
    std::vector<Gap> gaps = GapsBetween(std::move(places));
    // What hangs on a loose end goes too: taking a path away can leave its other end's point with a single
    // one.
    while (!loose.empty()) {
        End const end = loose.back();
        loose.pop_back();
        if (m_used[end.path])
            continue;
        m_used[end.path] = true;
        std::size_t const point = PointOf({end.path, !end.atStart});
        if (CountAt(point) == 1)
            for (End const & next : m_endsAt[point])
                if (!m_used[next.path])
                    loose.push_back(next);
    }
    return gaps;
}

// Where to go on from the end of a path: with one other end there is no choice; with more, the sharpest turn
// to the asked side, which keeps an outline from running across another that touches it in this point.
bool EndGraph::NextFrom(End const & arrival, Turn turn, End & next) const
{
    Path const & path = m_paths[arrival.path];
    double const back = arrival.atStart ? LeavingAngle(path.front()) : BackAngle(path.back());
    double sharpest = 0.0;
    bool found = false;
    for (End const & end : m_endsAt[PointOf(arrival)]) {
        if (m_used[end.path] || m_lastTrace[end.path] == m_traces)
            continue;
        Path const & candidate = m_paths[end.path];
        double const leaving = end.atStart ? LeavingAngle(candidate.front()) : BackAngle(candidate.back());
        // The angle from the way back to the way on: clockwise for the sharpest left turn.
        double const angle = PositiveAngle(turn == Turn::kLeft ? back - leaving : leaving - back);
        if (!found || angle < sharpest) {
            found = true;
            sharpest = angle;
            next = end;
        }
    }
    return found;
}

// Follows paths from the start of `first` until the trace is back there; the trace holds the ends at which
// each path is entered. False if it runs into a dead end.
bool EndGraph::Follow(std::size_t first, Turn turn, std::vector<End> & trace)
{
    ++m_traces;
    std::size_t const home = PointOf({first, true});
    trace.assign(1, {first, true});
    m_lastTrace[first] = m_traces;
    for (;;) {
        End const arrival{trace.back().path, !trace.back().atStart};
        if (PointOf(arrival) == home)
            return true;
        End next{};
        if (!NextFrom(arrival, turn, next))
            return false;
        trace.push_back(next);
        m_lastTrace[next.path] = m_traces;
    }
}

Path EndGraph::Join(std::vector<End> const & trace) const
{
    Path joined;
    for (End const & entry : trace) {
        Path const part = entry.atStart ? m_paths[entry.path] : Reversed(m_paths[entry.path]);
        joined.insert(joined.end(), part.begin(), part.end());
    }
    return joined;
}

std::vector<Path> EndGraph::TakeClosedPaths(CMathematics & kernel)
{
    std::vector<Path> closed;
    for (std::size_t path = 0; path < m_paths.size(); ++path) {
        std::vector<End> trace;
        if (m_used[path] || !Follow(path, Turn::kLeft, trace))
            continue;
        // Turning left all along closes tightly around an interior on the left. If the interior turned out to
        // be on the right, the tight way round is the other one.
        if (SignedArea(kernel, Join(trace)) < 0)
            Follow(path, Turn::kRight, trace);
        closed.push_back(Join(trace));
        for (End const & entry : trace)
            m_used[entry.path] = true;
    }
    return closed;
}
}  // namespace outlines
