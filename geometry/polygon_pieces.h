#ifndef KX7_GEOMETRY_POLYGON_PIECES_H
#define KX7_GEOMETRY_POLYGON_PIECES_H

// The pieces of one boundary in a linked list. Its positions and answers are those of an array searched one
// by one (PlainPieces), but when the searches get long they go through the sorted starts.

#include <cstdint>
#include <memory_resource>
#include <vector>

#include "geometry/polygon_sides.h"

namespace detail {
class IndexedPieces
{
  public:
    using Position = std::uint32_t;

    IndexedPieces(CMathematics & math, std::size_t expected, std::pmr::memory_resource & memory);

    static constexpr Position End() { return UINT32_MAX; }
    Position First() const { return m_first; }
    Position Next(Position i) const { return m_links[i].next; }
    Position NextAround(Position i) const { return m_links[i].next != End() ? m_links[i].next : m_first; }
    Position Previous(Position i) const
    {
        return m_links[i].previous != End() ? m_links[i].previous : m_last;
    }
    std::size_t Size() const { return m_size; }
    TSelem const & operator[](Position i) const { return m_pieces[i]; }
    bool Same(TUVect2D const & p, TUVect2D const & q) const { return IsOnePlace(p, q, m_tolerance); }

    /// Puts a piece at the end. Not after the first search.
    void Add(TSelem const & piece);

    Position Remove(Position i);

    /// The last piece that CompareElem, or CompareAntiElem, calls equal to `e`.
    Position FindLastEqual(TSelem const & e);
    Position FindLastOpposite(TSelem const & e);

    /// The next piece from `i` on, round the list, that starts at `p`. Each step takes one of the budget;
    /// without any left the search stays where it is.
    Position SearchStart(Position i, TUVect2D const & p, std::int64_t & budget);

  private:
    struct Links
    {
        Position previous, next;
    };

    /// A piece by the place of its start along a slanted line, which few starts share.
    struct Start
    {
        double along;
        Position piece;

        bool operator<(Start const & other) const { return along < other.along; }
    };

    /// So many steps are searched one by one before the starts are sorted; that costs about as much.
    static constexpr std::size_t kStepsPerPiece = 16;

    bool IsAlive(Position i) const { return m_links[i].previous != i; }
    void MakeIndex();

    /// Calls `visit(i)` for all pieces whose start may be one place with `p`.
    template <class Visit>
    void ForStartsNear(TUVect2D const & p, Visit const & visit);

    template <class Predicate>
    Position FindLast(TUVect2D const & start, Predicate const & holds);

    Position SearchByIndex(Position i, TUVect2D const & p, std::int64_t & budget);

    // Counts of the pieces alive, as a tree of partial sums.
    void Count(Position i, std::int32_t change);
    std::int64_t AliveBefore(Position i) const;
    Position AliveAt(std::int64_t rank) const;

    CMathematics & m_math;
    double m_tolerance;
    std::pmr::vector<TSelem> m_pieces;
    std::pmr::vector<Links> m_links;
    std::pmr::vector<Start> m_starts;
    std::pmr::vector<std::int32_t> m_counts;
    Position m_first = End();
    Position m_last = End();
    std::size_t m_size = 0;
    std::size_t m_steps = 0;  ///< Left to be searched one by one.
};
}  // namespace detail

#endif
