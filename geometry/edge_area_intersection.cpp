// Cutting an element at the boundary of an area, side by side.

#include "geometry/detail_plain_cut_kernel.h"
#include "geometry/mathematics.h"

using namespace detail;

int CMathematics::EdgeAreaIntersection(TSelem const & e,
                                       CArray<TSPoint2DPlane, TSPoint2DPlane &> const & area,
                                       unsigned int /*unused*/, CArray<TSInterval, TSInterval &> & intervals)
{
    AreaRecords const records = area.View();
    if (records.size() < 2)
        return 0;
    PlainCutKernel kernel(*this, area);
    std::vector<TSInterval> contacts;
    ElementCut<PlainCutKernel> cut(kernel, e, m_dOkoli, contacts, intervals);

    SideWalk sides = ClosingSideLast(records);
    for (int k = 0; auto const side = sides.Next(); ++k) {
        if (kernel.Same(side->from, side->to))
            continue;
        if (int const flags = cut.Meet(ElementOf(*side), k))
            return flags;
    }
    return cut.Finish();
}
