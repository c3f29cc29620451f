#include <array>
#include <memory>

#include "geometry/detail_polygon_intersection.h"
#include "geometry/detail_polygon_stages.h"
#include "geometry/polygon_cutter.h"
#include "geometry/polygon_pieces.h"

using namespace detail;

namespace {
/// Working memory for small outlines, of a dozen sides or two, so that they need no allocation.
constexpr std::size_t kMemoryOnStack = 16384;

/// Working memory per record of larger outlines, taken in one piece: memory that is given back in many pieces
/// goes back to the system, which then hands it out page by page the next time.
constexpr std::size_t kMemoryPerRecord = 256;

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
    IndexedPieces piecesOfA(math, sidesOfA.ElementCount(), memory);
    IndexedPieces piecesOfB(math, sidesOfB.ElementCount(), memory);
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
    std::size_t const wanted = kMemoryPerRecord * static_cast<std::size_t>(a->GetSize() + b->GetSize());
    auto const onHeap =
        wanted > kMemoryOnStack ? std::make_unique_for_overwrite<std::byte[]>(wanted) : nullptr;
    std::pmr::monotonic_buffer_resource memory(onHeap ? onHeap.get() : onStack.data(),
                                               onHeap ? wanted : onStack.size());
    PolygonSides sidesOfA(*this, *a, memory);
    PolygonSides sidesOfB(*this, *b, memory);
    if (!sidesOfA.IsUsable() || !sidesOfB.IsUsable())
        return PolygonIntersectionPlain(*this, *a, *b, result);
    if (AreApart(sidesOfA.GetExtents(), sidesOfB.GetExtents(), m_dOkoli))
        return kNoCommonPart;
    sidesOfA.Orient(*this);
    sidesOfB.Orient(*this);
    return IntersectIndexed(*this, *a, sidesOfA, *b, sidesOfB, memory, result);
}
