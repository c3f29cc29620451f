#include "geometry/detail_polygon_outlines.h"

#include "geometry/detail_polygon_intersection.h"

namespace detail {
GeneralSets::~GeneralSets()
{
    FreeGeneralSets(m_sets.release());
}

void GeneralSets::Append(int kind, std::unique_ptr<Area> points)
{
    TSGeneralSet member{kind, points.get()};
    m_sets->Add(member);
    static_cast<void>(points.release());  // the member owns them now
}

void FreeGeneralSets(GeneralSetArray * sets)
{
    if (!sets)
        return;
    for (TSGeneralSet const & member : *sets)
        delete member.points;
    delete sets;
}

int ReturnCopy(Area const & area, int code, GeneralSetArray *& result)
{
    auto points = std::make_unique<Area>();
    points->Copy(area);
    GeneralSets sets;
    sets.Append(kSetOutline, std::move(points));
    result = sets.Release();
    return code;
}
}  // namespace detail
