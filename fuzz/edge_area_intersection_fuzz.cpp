// An element against an area from raw bytes: the cut has to end without a read out of bounds, and its
// intervals lie in order on the element.

#include "fuzz/byte_input.h"
#include "tests/geometry/outlines.h"

using fuzz::ByteInput;
using fuzz::Require;
using namespace outlines;

namespace {
TSPoint2DPlane RecordOf(ByteInput & input)
{
    if (input.Byte() % 4 == 0)
        return Arc(input.Number() / 4.0);
    double const x = input.Number();
    return V(x, input.Number());
}

TSelem ElementOf(ByteInput & input)
{
    TSelem e{};
    e.type = input.Byte() % 8 == 0 ? static_cast<int>(input.Byte()) - 128 : 1 + input.Byte() % 2;
    e.start = {{input.Number(), 0.0}};
    e.start.y = input.Number();
    e.end = {{input.Number(), 0.0}};
    e.end.y = input.Number();
    e.bulge = e.type == EDGE_ARC ? input.Number() / 4.0 : 0.0;
    return e;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    ByteInput input(data, size);
    TSelem const e = ElementOf(input);
    Outline outline;
    for (int count = input.Byte() % 32; count > 0; --count)
        outline.push_back(RecordOf(input));
    MadeArea const area(input.Byte() % 8 != 0 ? Closed(outline) : outline);

    CMathematics math;
    CArray<TSInterval, TSInterval &> intervals;
    int const flags = math.EdgeAreaIntersection(e, *area, 0, intervals);
    Require(flags >= 0 && (flags <= 7 || flags == 18 || flags == 26));
    for (TSInterval const & interval : intervals) {
        Require(interval.kind >= 0 && interval.kind <= 3);
        Require(interval.side >= -1 && interval.side < 2 * static_cast<int>(outline.size()) + 2);
    }
    int pointClass = 1;
    math.IsPointInArea(e.start, &area, 0, pointClass);
    Require(pointClass >= 0 && pointClass <= 3);
    math.GetAreaSurface(&area);
    return 0;
}
