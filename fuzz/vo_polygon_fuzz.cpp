// A prepared polygon and triangles from raw bytes: nothing may crash, hang or read out of bounds, the answers
// with and without the index have to be the same, bit by bit, and every result can be freed.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

#include "fuzz/byte_input.h"
#include "geometry/vo_polygon.h"

using fuzz::ByteInput;
using fuzz::Require;

namespace {
using Area = CArray<TSPoint2DPlane, TSPoint2DPlane &>;
using SetArray = CArray<TSGeneralSet, TSGeneralSet &>;

/// Sometimes an arc marker, wherever it stands.
TSPoint2DPlane RecordOf(ByteInput & input)
{
    bool const isMarker = input.Byte() % 4 == 0;
    double const x = isMarker ? ARC_MARKER : input.Number();
    double const y = isMarker ? input.Number() / 4.0 : input.Number();
    return {x, y};
}

struct SetsDeleter
{
    void operator()(SetArray * sets) const
    {
        for (TSGeneralSet const & set : *sets)
            delete set.points;
        delete sets;
    }
};

struct Answer
{
    int code = 0;
    std::unique_ptr<SetArray, SetsDeleter> sets;
};

bool SameRecords(Area const & a, Area const & b)
{
    auto const size = static_cast<std::size_t>(a.GetSize()) * sizeof(TSPoint2DPlane);
    return a.GetSize() == b.GetSize() && (size == 0 || std::memcmp(a.GetData(), b.GetData(), size) == 0);
}

void RequireSame(Answer const & a, Answer const & b)
{
    Require(a.code == b.code && !a.sets == !b.sets);
    if (!a.sets)
        return;
    Require(a.sets->GetSize() == b.sets->GetSize());
    for (int i = 0; i < a.sets->GetSize(); ++i) {
        TSGeneralSet const & p = (*a.sets)[i];
        TSGeneralSet const & q = (*b.sets)[i];
        Require(p.kind == 2 && q.kind == 2 && SameRecords(*p.points, *q.points));
    }
}

void Close(Area & area)
{
    TSPoint2DPlane first = area[0];
    area.Add(first);
}

void ReadPolygon(ByteInput & input, Area & polygon)
{
    int const count = input.Byte() % 16;
    for (int i = 0; i < count; ++i) {
        TSPoint2DPlane record = RecordOf(input);
        polygon.Add(record);
    }
    if (count > 0 && input.Byte() % 8 != 0)
        Close(polygon);
}

void ReadTriangle(ByteInput & input, Area & triangle)
{
    triangle.RemoveAll();
    for (int i = 0; i < 3; ++i) {
        TSPoint2DPlane corner = {input.Number(), input.Number()};
        triangle.Add(corner);
    }
    Close(triangle);
    if (input.Byte() == 0)
        triangle[3].x = input.Number();
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    ByteInput input(data, size);
    CMathematics math;
    CVOPolygon prepared(&math);
    Area polygon;
    ReadPolygon(input, polygon);
    Require(prepared.Create(polygon, input.Byte() % 2) == 1);
    for (int i = 0; i < 16 && !input.IsEmpty(); ++i) {
        Area triangle;
        ReadTriangle(input, triangle);
        if (input.Byte() == 1)
            math.SetOkoli(input.Number());
        Answer fast;
        SetArray * sets = nullptr;
        fast.code = prepared.LoadPolygonFEMTriangleIntersection(triangle, sets);
        fast.sets.reset(sets);
        Answer plain;
        sets = nullptr;
        plain.code = prepared.IntersectTrianglePlainly(triangle, sets);
        plain.sets.reset(sets);
        Require(fast.code >= 0 && fast.code <= 2 && (fast.code == 1) == (fast.sets != nullptr));
        RequireSame(fast, plain);
    }
    return 0;
}
