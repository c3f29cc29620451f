#include <array>

#include "geometry/detail_polygon_intersection.h"
#include "geometry/detail_polygon_stages.h"
#include "geometry/polygon_cutter.h"
#include "geometry/polygon_pieces.h"

using namespace detail;

namespace {
/// Working memory of a call that needs no allocation; enough for outlines of a dozen sides.
constexpr std::size_t kMemoryOnStack = 16384;

int IntersectIndexed(CMathematics & math, Area const & a, PolygonSides const & sidesOfA, Area const & b,
                     PolygonSides const & sidesOfB, std::pmr::memory_resource & memory,
                     GeneralSetArray *& result)
{
    PlaneScale const scale{math.GetOkoli(), std::max(sidesOfA.Size(), sidesOfB.Size())};
    SideBoxes const boxesOfA(sidesOfA, scale, memory);
    SideBoxes const boxesOfB(sidesOfB, scale, memory);
    Contacts const contacts(math, sidesOfA, boxesOfA, sidesOfB, boxesOfB, scale, memory);
    IndexedCutter cutterOfA(math, {sidesOfB, boxesOfB}, contacts.ofA, scale);
    IndexedCutter cutterOfB(math, {sidesOfA, boxesOfA}, contacts.ofB, scale);
    IndexedPieces piecesOfA(math, 2 * sidesOfA.ElementCount(), memory);
    IndexedPieces piecesOfB(math, 2 * sidesOfB.ElementCount(), memory);
    IndexedElements const elementsOfA(sidesOfA);
    IndexedElements const elementsOfB(sidesOfB);
    auto const isFirstOfBInside = [&] {
        return ClassOfPoint(math, sidesOfA, boxesOfA, VertexOf(b[0])) == kPointInside;
    };
    return IntersectElements(CutArea{a, elementsOfA, cutterOfA}, CutArea{b, elementsOfB, cutterOfB},
                             piecesOfA, piecesOfB, isFirstOfBInside, result);
}
}  // namespace

int CMathematics::PolygonIntersection(CArray<TSPoint2DPlane, TSPoint2DPlane &> const * a,
                                      CArray<TSPoint2DPlane, TSPoint2DPlane &> const * b,
                                      CArray<TSGeneralSet, TSGeneralSet &> *& result)
{
    std::array<std::byte, kMemoryOnStack> onStack;
    std::pmr::monotonic_buffer_resource memory(onStack.data(), onStack.size());
    PolygonSides sidesOfA(*this, *a, memory);
    PolygonSides sidesOfB(*this, *b, memory);
    if (!sidesOfA.IsUsable() || !sidesOfB.IsUsable())
        return PolygonIntersectionPlain(*this, *a, *b, result);
    if (AreApart(sidesOfA.GetExtents(), sidesOfB.GetExtents(), m_dOkoli))
        return kNoCommonPart;
    sidesOfA.Orient(*this, *a);
    sidesOfB.Orient(*this, *b);
    return IntersectIndexed(*this, *a, sidesOfA, *b, sidesOfB, memory, result);
}
