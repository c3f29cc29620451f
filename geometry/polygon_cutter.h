#ifndef KX7_GEOMETRY_POLYGON_CUTTER_H
#define KX7_GEOMETRY_POLYGON_CUTTER_H

// Cuts the elements of one area by another one through the index. An element meets only the sides of its
// contact table that can't be shown to be apart; one that meets none is inside or outside as a whole, and so
// is the next one if it meets none either.

#include "geometry/detail_element_cut.h"
#include "geometry/polygon_contacts.h"

namespace detail {
/// The elements of an area, by their order.
class IndexedElements
{
  public:
    explicit IndexedElements(PolygonSides const & sides) : m_sides(sides) {}

    template <class Visit>
    bool ForEach(Visit const & visit) const
    {
        std::uint32_t const count = static_cast<std::uint32_t>(m_sides.Sides().size());
        for (std::uint32_t i = 0; i < count; ++i) {
            std::uint32_t const side = m_sides.IsReversed() ? count - 1 - i : i;
            if (!m_sides.IsPoint(side) && !visit(side, m_sides.ElementOf(side)))
                return false;
        }
        return true;
    }

  private:
    PolygonSides const & m_sides;
};

/// The area that cuts: its sides and their boxes.
struct CuttingArea
{
    PolygonSides const & sides;
    SideBoxes const & boxes;
};

/// The class of the point that was asked for last, or of one that is certain to have the same class.
struct KnownClass
{
    TUVect2D at{};
    int pointClass = -1;  ///< -1 before the first question.

    bool IsAt(TUVect2D const & p) const { return pointClass >= 0 && IsSamePoint(p, at); }
};

class IndexedCutter
{
  public:
    IndexedCutter(CMathematics & math, CuttingArea const & other, ContactTable const & contacts,
                  PlaneScale const & scale);

    /// Cuts the element that is the side `side` of its area.
    int Cut(std::uint32_t side, TSelem const & e, IntervalArray & intervals);

    int SectionOf(TSelem const & e, TSInterval const & stretch, TSelem & piece);
    void PointOf(TSelem const & e, double position, TUVect2D & p);

  private:
    /// Moves the known class from the place on the element that was asked for last to the element's end, if
    /// nothing lies between.
    void CarryClassToEnd(TSelem const & e);

    /// An element that meets no side; `isOneClass` tells whether its end has the class of its start.
    int CutClear(TSelem const & e, bool isOneClass, IntervalArray & intervals);

    CMathematics & m_math;
    CuttingArea m_other;
    ContactTable const & m_contacts;
    PlaneScale m_scale;
    std::vector<TSInterval> m_intervals;    ///< Working memory of a cut.
    std::vector<std::uint32_t> m_partners;  ///< The sides that an element may really meet.
    KnownClass m_known;
};
}  // namespace detail

#endif
