#ifndef KX7_GEOMETRY_POLYGON_CONTACTS_H
#define KX7_GEOMETRY_POLYGON_CONTACTS_H

// Which sides of two areas may meet.

#include <span>

#include "geometry/polygon_boxes.h"

namespace detail {
/// For each side of one area the sides of the other that it may meet, in their order.
class ContactTable
{
  public:
    using Pair = std::pair<std::uint32_t, std::uint32_t>;

    explicit ContactTable(std::pmr::memory_resource & memory) : m_starts(&memory), m_partners(&memory) {}

    /// Sorts pairs of a side below `count` and a partner. The partners of a side keep the order of the pairs.
    void Fill(std::size_t count, std::pmr::vector<Pair> const & pairs);

    std::span<std::uint32_t const> Of(std::uint32_t side) const
    {
        return {m_partners.data() + m_starts[side], m_partners.data() + m_starts[side + 1]};
    }

    /// All pairs with partner and side exchanged, in the order of the sides.
    void Exchanged(std::pmr::vector<Pair> & pairs) const;

  private:
    std::pmr::vector<std::uint32_t> m_starts;
    std::pmr::vector<std::uint32_t> m_partners;
};

/// The sides of `a` and `b` that may meet, seen from both.
struct Contacts
{
    ContactTable ofA;
    ContactTable ofB;

    Contacts(CMathematics & math, PolygonSides const & a, SideBoxes const & boxesOfA, PolygonSides const & b,
             SideBoxes const & boxesOfB, PlaneScale const & scale, std::pmr::memory_resource & memory);
};
}  // namespace detail

#endif
