#include "geometry/polygon_pieces.h"

#include <algorithm>
#include <bit>
#include <optional>

namespace detail {
namespace {
/// The place of a point along a line in no direction that drawings prefer. Its weights add up to less than
/// 1.5, the factor by which a tolerance in x and y is to be widened.
double PlaceAlong(TUVect2D const & p)
{
    return 0.8191520442889918 * p.x + 0.5735764363510460 * p.y;
}
}  // namespace

IndexedPieces::IndexedPieces(CMathematics & math, std::size_t expected, std::pmr::memory_resource & memory)
    : m_math(math),
      m_tolerance(math.GetOkoli()),
      m_pieces(&memory),
      m_links(&memory),
      m_starts(&memory),
      m_counts(&memory)
{
    m_pieces.reserve(expected);
    m_links.reserve(expected);
}

void IndexedPieces::Add(TSelem const & piece)
{
    Position const i = static_cast<Position>(m_pieces.size());
    m_pieces.push_back(piece);
    m_links.push_back({m_last, End()});
    if (m_last != End())
        m_links[m_last].next = i;
    else
        m_first = i;
    m_last = i;
    ++m_size;
    m_steps += kStepsPerPiece;
}

IndexedPieces::Position IndexedPieces::Remove(Position i)
{
    Links & links = m_links[i];
    Position const next = links.next;
    if (links.previous != End())
        m_links[links.previous].next = next;
    else
        m_first = next;
    if (next != End())
        m_links[next].previous = links.previous;
    else
        m_last = links.previous;
    links.previous = i;  // no longer alive
    --m_size;
    if (!m_counts.empty())
        Count(i, -1);
    return next;
}

IndexedPieces::Position IndexedPieces::FindLastEqual(TSelem const & e)
{
    return FindLast(e.start, [&](TSelem const & piece) { return m_math.CompareElem(piece, e) != 0; });
}

IndexedPieces::Position IndexedPieces::FindLastOpposite(TSelem const & e)
{
    return FindLast(e.end, [&](TSelem const & piece) { return m_math.CompareAntiElem(piece, e) != 0; });
}

template <class Predicate>
IndexedPieces::Position IndexedPieces::FindLast(TUVect2D const & start, Predicate const & holds)
{
    if (m_size <= m_steps) {
        m_steps -= m_size;
        for (Position i = m_last; i != End(); i = m_links[i].previous)
            if (holds(m_pieces[i]))
                return i;
        return End();
    }
    std::optional<Position> last;
    ForStartsNear(start, [&](Position i) {
        if ((!last || i > *last) && holds(m_pieces[i]))
            last = i;
    });
    return last.value_or(End());
}

IndexedPieces::Position IndexedPieces::SearchStart(Position i, TUVect2D const & p, std::int64_t & budget)
{
    while (budget > 0 && m_size > 0 && !Same(m_pieces[i].start, p)) {
        if (m_steps == 0)
            return SearchByIndex(i, p, budget);
        --m_steps;
        i = NextAround(i);
        --budget;
    }
    return i;
}

IndexedPieces::Position IndexedPieces::SearchByIndex(Position i, TUVect2D const & p, std::int64_t & budget)
{
    std::optional<Position> ahead;
    std::optional<Position> behind;
    ForStartsNear(p, [&](Position candidate) {
        if (!Same(m_pieces[candidate].start, p))
            return;
        std::optional<Position> & nearest = candidate >= i ? ahead : behind;
        nearest = std::min(nearest.value_or(candidate), candidate);
    });
    std::optional<Position> const found = ahead ? ahead : behind;
    std::int64_t const size = static_cast<std::int64_t>(m_size);
    std::int64_t const from = AliveBefore(i);
    std::int64_t const steps = found ? (AliveBefore(*found) - from + size) % size : budget;
    if (found && steps <= budget) {
        budget -= steps;
        return *found;
    }
    i = AliveAt((from + budget) % size);
    budget = 0;
    return i;
}

void IndexedPieces::MakeIndex()
{
    m_starts.reserve(m_pieces.size());
    m_counts.assign(m_pieces.size() + 1, 0);
    for (Position i = m_first; i != End(); i = m_links[i].next) {
        m_starts.push_back({PlaceAlong(m_pieces[i].start), i});
        Count(i, 1);
    }
    std::sort(m_starts.begin(), m_starts.end());
}

template <class Visit>
void IndexedPieces::ForStartsNear(TUVect2D const & p, Visit const & visit)
{
    if (m_counts.empty())
        MakeIndex();
    double const place = PlaceAlong(p);
    double const reach = 1.5 * m_tolerance + 1e-14 * (std::fabs(p.x) + std::fabs(p.y));
    for (auto s = std::lower_bound(m_starts.begin(), m_starts.end(), Start{place - reach, 0});
         s != m_starts.end() && s->along <= place + reach; ++s)
        if (IsAlive(s->piece))
            visit(s->piece);
}

void IndexedPieces::Count(Position i, std::int32_t change)
{
    for (std::size_t k = i + std::size_t{1}; k < m_counts.size(); k += k & (~k + 1))
        m_counts[k] += change;
}

std::int64_t IndexedPieces::AliveBefore(Position i) const
{
    std::int64_t sum = 0;
    for (std::size_t k = i; k > 0; k &= k - 1)
        sum += m_counts[k];
    return sum;
}

IndexedPieces::Position IndexedPieces::AliveAt(std::int64_t rank) const
{
    std::size_t k = 0;
    for (std::size_t step = std::bit_floor(m_counts.size()); step > 0; step /= 2) {
        if (k + step < m_counts.size() && m_counts[k + step] <= rank) {
            k += step;
            rank -= m_counts[k];
        }
    }
    return static_cast<Position>(k);
}
}  // namespace detail
