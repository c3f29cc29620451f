// Two outlines, from raw bytes or one of the shared cases with some of its numbers changed: the intersection
// has to end in bounded time without a read out of bounds, give what the plain method gives, bit by bit, and
// every result can be freed.

#include <cstring>

#include "fuzz/byte_input.h"
#include "geometry/detail_polygon_intersection.h"
#include "tests/geometry/polygon_cases.h"

using fuzz::ByteInput;
using fuzz::Require;
using namespace outlines;

namespace {
std::vector<polygon_cases::Case> const & Cases()
{
    static std::vector<polygon_cases::Case> const cases = polygon_cases::Load(KX7_SOURCE_DIR);
    return cases;
}

/// Sometimes an arc marker, wherever it stands.
TSPoint2DPlane RecordOf(ByteInput & input)
{
    if (input.Byte() % 4 == 0)
        return Arc(input.Number() / 4.0);
    double const x = input.Number();
    return V(x, input.Number());
}

Outline ReadOutline(ByteInput & input)
{
    Outline outline;
    for (int count = input.Byte() % 24; count > 0; --count)
        outline.push_back(RecordOf(input));
    return input.Byte() % 8 != 0 ? Closed(outline) : outline;
}

void Change(ByteInput & input, Outline & outline)
{
    for (int count = input.Byte() % 4; count > 0; --count) {
        std::size_t const at = input.Byte() % outline.size();
        outline[at] = RecordOf(input);
    }
    if (input.Byte() % 2 == 0)
        outline.back() = outline.front();
}

bool SameRecords(Area const & a, Area const & b)
{
    auto const size = static_cast<std::size_t>(a.GetSize()) * sizeof(TSPoint2DPlane);
    return a.GetSize() == b.GetSize() && (size == 0 || std::memcmp(a.GetData(), b.GetData(), size) == 0);
}

void RequireSame(SetArray const * a, SetArray const * b)
{
    Require(!a == !b);
    if (!a)
        return;
    Require(a->GetSize() == b->GetSize());
    for (int i = 0; i < a->GetSize(); ++i)
        Require((*a)[i].kind == (*b)[i].kind && SameRecords(*(*a)[i].points, *(*b)[i].points));
}

bool HasNumbersOnly(Outline const & outline)
{
    return std::all_of(outline.begin(), outline.end(),
                       [](TSPoint2DPlane const & r) { return std::isfinite(r.x) && std::isfinite(r.y); });
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    ByteInput input(data, size);
    Outline a;
    Outline b;
    if (input.Byte() % 2 == 0 && !Cases().empty()) {
        polygon_cases::Case const & chosen = Cases()[input.Byte() % Cases().size()];
        a = chosen.a;
        b = chosen.b;
        Change(input, a);
        Change(input, b);
    } else {
        a = ReadOutline(input);
        b = ReadOutline(input);
    }
    CMathematics math;
    MadeArea const areaA(a);
    MadeArea const areaB(b);
    SetArray * indexed = nullptr;
    SetArray * plain = nullptr;
    int const code = math.PolygonIntersection(&areaA, &areaB, indexed);
    int const plainCode = detail::PolygonIntersectionPlain(math, *areaA, *areaB, plain);
    Sets const indexedOwner(indexed);
    Sets const plainOwner(plain);
    Require(code == plainCode);
    if (HasNumbersOnly(a) && HasNumbersOnly(b))
        RequireSame(indexed, plain);
    return 0;
}
