#ifndef KX7_GEOMETRY_DETAIL_PLAIN_PIECES_H
#define KX7_GEOMETRY_DETAIL_PLAIN_PIECES_H

// What the plain polygon intersection shares with the triangles of a mesh.

#include <cstdint>
#include <vector>

#include "geometry/detail_areas.h"
#include "geometry/mathematics.h"

namespace detail {
/// The pieces of one boundary in an array, searched one by one.
class PlainPieces
{
  public:
    using Position = std::size_t;

    explicit PlainPieces(CMathematics & math) : m_math(math) {}

    static constexpr Position End() { return static_cast<Position>(-1); }
    Position First() const { return At(0); }
    Position Next(Position i) const { return At(i + 1); }
    Position NextAround(Position i) const { return i + 1 < m_pieces.size() ? i + 1 : 0; }
    Position Previous(Position i) const { return i > 0 ? i - 1 : m_pieces.size() - 1; }
    std::size_t Size() const { return m_pieces.size(); }
    TSelem const & operator[](Position i) const { return m_pieces[i]; }
    bool Same(TUVect2D const & p, TUVect2D const & q) const { return m_math.ComparePoints(p, q, 1) != 0; }

    void Clear() { m_pieces.clear(); }
    void Add(TSelem const & piece) { m_pieces.push_back(piece); }

    Position Remove(Position i)
    {
        m_pieces.erase(m_pieces.begin() + static_cast<std::ptrdiff_t>(i));
        return At(i);
    }

    Position FindLastEqual(TSelem const & e) const
    {
        return FindLast([&](TSelem const & piece) { return m_math.CompareElem(piece, e) != 0; });
    }

    Position FindLastOpposite(TSelem const & e) const
    {
        return FindLast([&](TSelem const & piece) { return m_math.CompareAntiElem(piece, e) != 0; });
    }

    /// The next piece from `i` on, round the list, that starts at `p`. Each step takes one of the budget;
    /// without any left the search stays where it is.
    Position SearchStart(Position i, TUVect2D const & p, std::int64_t & budget) const
    {
        for (; budget > 0 && !m_pieces.empty() && !Same(m_pieces[i].start, p); --budget)
            i = NextAround(i);
        return i;
    }

  private:
    Position At(Position i) const { return i < m_pieces.size() ? i : End(); }

    template <class Predicate>
    Position FindLast(Predicate const & holds) const
    {
        for (Position i = m_pieces.size(); i > 0; --i)
            if (holds(m_pieces[i - 1]))
                return i - 1;
        return End();
    }

    CMathematics & m_math;
    std::vector<TSelem> m_pieces;
};

/// Cuts by the public operations.
class PlainCutter
{
  public:
    PlainCutter(CMathematics & math, Area const & other) : m_math(math), m_other(other) {}

    int Cut(std::size_t /*i*/, TSelem const & e, IntervalArray & intervals)
    {
        return m_math.EdgeAreaIntersection(e, m_other, 0, intervals);
    }

    int SectionOf(TSelem const & e, TSInterval const & stretch, TSelem & piece)
    {
        return m_math.GetSectionOfElem(e, stretch.t1, stretch.t2, &piece);
    }

    void PointOf(TSelem const & e, double position, TUVect2D & p)
    {
        m_math.GetPointOnEelem(e, position, 0, p);
    }

  private:
    CMathematics & m_math;
    Area const & m_other;
};

/// The sides of an area with its interior on their left; sides without length are left out.
std::vector<TSelem> OrientedElements(CMathematics & math, Area const & area);
}  // namespace detail

#endif
