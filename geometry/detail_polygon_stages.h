#ifndef KX7_GEOMETRY_DETAIL_POLYGON_STAGES_H
#define KX7_GEOMETRY_DETAIL_POLYGON_STAGES_H

// The stages of a polygon intersection up to the pieces of both boundaries. Two things are parameters:
//   Elements   ForEach(visit) calls visit(index, element) in order until it returns false; the result says
//              whether it never did
//   Cutter     cuts the elements of one area by the other:
//     int Cut(Index i, TSelem const & e, IntervalArray & intervals)    flags of an element
//     int SectionOf(TSelem const & e, TSInterval const & stretch, TSelem & piece)
//     void PointOf(TSelem const & e, double position, TUVect2D & p)

#include "geometry/detail_element_cut.h"
#include "geometry/detail_polygon_outlines.h"

namespace detail {
/// The mark of a working record that has been given none.
inline constexpr int kUnsetMark = 255;

/// How the elements of one area lie to the other.
struct ContactFlags
{
    bool someOutside = false;
    bool onBoundary = false;
    bool anyContact = false;
    bool allOnBoundary = true;

    void Add(int flags)
    {
        if (flags == 0) {
            someOutside = true;
            allOnBoundary = false;
            return;
        }
        if (flags & (kCutInside | kCutOutside))
            allOnBoundary = false;
        if (flags & kCutOutside)
            someOutside = true;
        if (flags & kCutOnBoundary)
            onBoundary = true;
        anyContact = true;
    }
};

/// Turns the intervals of one element into pieces. 0 if a section can't be made.
template <class Cutter, class Pieces>
int AddPieces(Cutter & cutter, TSelem const & e, IntervalArray const & intervals, TSelem & work,
              Pieces & pieces)
{
    for (TSInterval const & interval : intervals) {
        if (interval.t1 != interval.t2) {
            if (!cutter.SectionOf(e, interval, work))
                return 0;
        } else {
            cutter.PointOf(e, interval.t1, work.start);
            work.end = work.start;
            work.type = EDGE_POINT;
        }
        work.mark = interval.side;
        pieces.Add(work);
    }
    return 1;
}

/// Cuts all elements of one area by the other. 0 if a section can't be made.
template <class Elements, class Cutter, class Pieces>
bool CollectPieces(Cutter & cutter, Elements const & elements, TSelem & work, ContactFlags & flags,
                   Pieces & pieces)
{
    IntervalArray intervals;
    return elements.ForEach([&](auto i, TSelem const & e) {
        int const cut = cutter.Cut(i, e, intervals);
        flags.Add(cut);
        return cut == 0 || AddPieces(cutter, e, intervals, work, pieces) != 0;
    });
}

/// One area as the stages see it.
template <class Elements, class Cutter>
struct CutArea
{
    Area const & area;
    Elements const & elements;  ///< Its sides, the interior on their left.
    Cutter & cutter;            ///< Cuts its elements by the other area.
};

// Spelled out for clang 14, which derives no guide for aggregates.
template <class Elements, class Cutter>
CutArea(Area const &, Elements const &, Cutter &) -> CutArea<Elements, Cutter>;

/// From the elements of two areas that may touch to the result. `isFirstOfBInside` tells whether the first
/// vertex of b lies inside a and not on its boundary.
template <class Pieces, class Elements, class Cutter, class IsFirstOfBInside>
int IntersectElements(CutArea<Elements, Cutter> const & a, CutArea<Elements, Cutter> const & b,
                      Pieces & piecesOfA, Pieces & piecesOfB, IsFirstOfBInside const & isFirstOfBInside,
                      GeneralSetArray *& result)
{
    TSelem work{};
    work.mark = kUnsetMark;
    ContactFlags flagsOfA;
    if (!CollectPieces(a.cutter, a.elements, work, flagsOfA, piecesOfA))
        return kNoCommonPart;
    if (flagsOfA.allOnBoundary)
        return ReturnCopy(a.area, kCoinciding, result);
    if (!flagsOfA.someOutside)
        return ReturnCopy(a.area, flagsOfA.onBoundary ? kAWithinBTouching : kAWithinB, result);
    if (!flagsOfA.anyContact)
        return isFirstOfBInside() ? ReturnCopy(b.area, kBWithinA, result) : kNoCommonPart;

    ContactFlags flagsOfB;
    if (!CollectPieces(b.cutter, b.elements, work, flagsOfB, piecesOfB))
        return kNoCommonPart;
    if (!flagsOfB.someOutside)
        return ReturnCopy(b.area, kBWithinATouching, result);
    return AssembleResult(piecesOfA, piecesOfB, result);
}
}  // namespace detail

#endif
