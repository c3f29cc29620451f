// The plain method of the polygon intersection.

#include "geometry/detail_plain_pieces.h"
#include "geometry/detail_polygon_intersection.h"
#include "geometry/detail_polygon_stages.h"

namespace detail {
namespace {
TSelem Reversed(TSelem const & e)
{
    return {e.type, e.mark, e.end, e.start, e.type == EDGE_ARC ? -e.bulge : 0.0};
}

class PlainElements
{
  public:
    PlainElements(CMathematics & math, Area const & area) : m_elements(OrientedElements(math, area)) {}

    template <class Visit>
    bool ForEach(Visit const & visit) const
    {
        for (std::size_t i = 0; i < m_elements.size(); ++i)
            if (!visit(i, m_elements[i]))
                return false;
        return true;
    }

  private:
    std::vector<TSelem> m_elements;
};
}  // namespace

std::vector<TSelem> OrientedElements(CMathematics & math, Area const & area)
{
    std::vector<TSelem> elements;
    elements.reserve(static_cast<std::size_t>(area.GetSize()));
    SideWalk sides = ClosedSides(area.View());
    while (auto const side = sides.Next())
        if (!math.ComparePoints(side->from, side->to, 1))
            elements.push_back(ElementOf(*side));
    if (!(math.GetAreaSurface(&area) > 0.0)) {
        std::reverse(elements.begin(), elements.end());
        std::transform(elements.begin(), elements.end(), elements.begin(), Reversed);
    }
    return elements;
}

int PolygonIntersectionPlain(CMathematics & math, Area const & a, Area const & b, GeneralSetArray *& result)
{
    if (math.ArePolygonsSeparated(&a, &b))
        return kNoCommonPart;
    PlainElements const elementsOfA(math, a);
    PlainElements const elementsOfB(math, b);
    PlainCutter cutterOfA(math, b);
    PlainCutter cutterOfB(math, a);
    PlainPieces piecesOfA(math);
    PlainPieces piecesOfB(math);
    auto const isFirstOfBInside = [&] {
        int pointClass = kPointInside;
        return !b.IsEmpty() && math.IsPointInArea(VertexOf(b[0]), &a, 0, pointClass) &&
               pointClass == kPointInside;
    };
    return IntersectElements(CutArea{a, elementsOfA, cutterOfA}, CutArea{b, elementsOfB, cutterOfB},
                             piecesOfA, piecesOfB, isFirstOfBInside, result);
}
}  // namespace detail
