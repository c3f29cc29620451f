#include "geometry/polygon_contacts.h"

#include "geometry/polygon_circles.h"
#include "geometry/polygon_clearance.h"

namespace detail {
void ContactTable::Fill(std::size_t count, std::pmr::vector<Pair> const & pairs)
{
    m_starts.assign(count + 1, 0);
    m_partners.resize(pairs.size());
    if (pairs.empty())
        return;
    for (Pair const & pair : pairs)
        ++m_starts[pair.first];
    std::uint32_t sum = 0;
    for (std::uint32_t & start : m_starts)
        sum = start += sum;
    // From the last pair down, so that the ends of the runs become their starts.
    for (std::size_t i = pairs.size(); i > 0; --i)
        m_partners[--m_starts[pairs[i - 1].first]] = pairs[i - 1].second;
}

void ContactTable::Exchanged(std::pmr::vector<Pair> & pairs) const
{
    pairs.clear();
    for (std::uint32_t side = 0; side + 1 < m_starts.size(); ++side)
        for (std::uint32_t const partner : Of(side))
            pairs.emplace_back(partner, side);
}

Contacts::Contacts(CMathematics & math, PolygonSides const & a, SideBoxes const & boxesOfA,
                   PolygonSides const & b, SideBoxes const & boxesOfB, PlaneScale const & scale,
                   std::pmr::memory_resource & memory)
    : ofA(memory), ofB(memory)
{
    std::pmr::vector<ContactTable::Pair> pairs(&memory);
    if (a.HasArcs() && b.HasArcs())
        FindNearlyEqualCircles(math, a, b, scale, memory, pairs);
    bool const mayRepeat = !pairs.empty();
    auto const mayMeet = [&](std::size_t i, std::size_t j) { return boxesOfA[i].Meets(boxesOfB[j]); };
    auto const found = [&](std::uint32_t i, std::uint32_t j) {
        if (!AreClear(math, a.Sides()[i], b.Sides()[j], scale))
            pairs.emplace_back(i, j);
    };
    PairSearch(boxesOfA.Shape(), boxesOfB.Shape(), mayMeet, found)
        .Search(boxesOfA.Shape().Root(), boxesOfB.Shape().Root());
    if (mayRepeat) {
        std::sort(pairs.begin(), pairs.end());
        pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());
    }
    // Three passes bring the partners of each side into their order, on both sides.
    ofA.Fill(a.Sides().size(), pairs);
    ofA.Exchanged(pairs);
    ofB.Fill(b.Sides().size(), pairs);
    ofB.Exchanged(pairs);
    ofA.Fill(a.Sides().size(), pairs);
}
}  // namespace detail
