#ifndef KX7_GEOMETRY_DETAIL_POLYGON_OUTLINES_H
#define KX7_GEOMETRY_DETAIL_POLYGON_OUTLINES_H

// From the pieces of two boundaries to the members of the result. The pieces of one boundary stand in a list;
// two forms of it are used, with the same positions and the same answers:
//
//   PlainPieces    an array with linear searches
//   IndexedPieces  linked, with its starts sorted when a search gets long
//
// A position is what First() and Next() give, End() behind the last piece. Remove() gives the position of the
// piece that moves up.

#include <cstdint>
#include <memory>

#include "geometry/detail_areas.h"
#include "geometry/mathematics.h"

namespace detail {
/// A result under construction; releases it unless it is handed out.
class GeneralSets
{
  public:
    GeneralSets() : m_sets(std::make_unique<GeneralSetArray>()) {}
    GeneralSets(GeneralSets const &) = delete;
    GeneralSets & operator=(GeneralSets const &) = delete;
    ~GeneralSets();

    void Append(int kind, std::unique_ptr<Area> points);
    GeneralSetArray * Release() { return m_sets.release(); }

  private:
    std::unique_ptr<GeneralSetArray> m_sets;
};

// Kinds of a member of the result.
inline constexpr int kSetTouchingPoints = 0;
inline constexpr int kSetSharedEdge = 1;
inline constexpr int kSetOutline = 2;

// Results of PolygonIntersection.
inline constexpr int kNoCommonPart = 0;
inline constexpr int kAWithinB = 1;
inline constexpr int kBWithinA = 2;
inline constexpr int kAWithinBTouching = 3;
inline constexpr int kBWithinATouching = 4;
inline constexpr int kOnlyTouching = 5;
inline constexpr int kOverlapping = 6;
inline constexpr int kCoinciding = 11;

/// `result` becomes one closed outline, a copy of `area`; returns `code`.
int ReturnCopy(Area const & area, int code, GeneralSetArray *& result);

/// The record that announces an arc.
inline TSPoint2DPlane ArcMarker(double bulge)
{
    return {ARC_MARKER, bulge};
}

inline void AddVertex(Area & points, TUVect2D const & v)
{
    TSPoint2DPlane record{v.x, v.y};
    points.Add(record);
}

inline void AddPieceEnd(Area & points, TSelem const & piece)
{
    if (piece.type == EDGE_ARC) {
        TSPoint2DPlane marker = ArcMarker(piece.bulge);
        points.Add(marker);
    }
    AddVertex(points, piece.end);
}

/// Takes out the points that only repeat an end of a neighbour.
template <class Pieces>
void DropRedundantPoints(Pieces & list)
{
    for (auto i = list.First(); i != list.End();) {
        auto const isPoint = [&] {
            return i != list.End() && list.Size() >= 2 && list[i].type == EDGE_POINT;
        };
        while (isPoint() && list.Same(list[i].start, list[list.Previous(i)].end))
            i = list.Remove(i);
        while (isPoint() && list.Same(list[i].start, list[list.NextAround(i)].start))
            i = list.Remove(i);
        if (i != list.End())
            i = list.Next(i);
    }
}

/// Points that stand in both lists become one member. The piece behind a removed one is passed over; callers
/// rely on what that leaves for the next stage.
template <class Pieces>
void TakeTouchingPoints(Pieces & a, Pieces & b, GeneralSets & sets)
{
    std::unique_ptr<Area> points;
    for (auto i = a.First(); i != a.End();) {
        if (a[i].type != EDGE_POINT) {
            i = a.Next(i);
            continue;
        }
        if (!points)
            points = std::make_unique<Area>();
        auto const partner = b.FindLastEqual(a[i]);
        if (partner != b.End()) {
            AddVertex(*points, a[i].start);
            b.Remove(partner);
            i = a.Remove(i);
        }
        if (partner == b.End() || i != a.End())
            i = a.Next(i);
    }
    if (points)
        sets.Append(kSetTouchingPoints, std::move(points));
}

/// Pieces along which the two boundaries run in opposite directions become members of their own.
template <class Pieces>
void TakeOppositeEdges(Pieces & a, Pieces & b, GeneralSets & sets)
{
    for (auto i = a.First(); i != a.End();) {
        auto const partner = a[i].mark != kNoSide ? b.FindLastOpposite(a[i]) : b.End();
        if (partner == b.End()) {
            i = a.Next(i);
            continue;
        }
        auto points = std::make_unique<Area>();
        AddVertex(*points, a[i].start);
        AddPieceEnd(*points, a[i]);
        b.Remove(partner);
        i = a.Remove(i);
        sets.Append(kSetSharedEdge, std::move(points));
    }
}

/// Pieces that stand in both lists in the same direction stay in b's list only.
template <class Pieces>
void DropSharedEdges(Pieces & a, Pieces & b)
{
    for (auto i = a.First(); i != a.End();) {
        bool const isShared = a[i].mark != kNoSide && b.FindLastEqual(a[i]) != b.End();
        i = isShared ? a.Remove(i) : a.Next(i);
    }
}

/// The first piece that doesn't continue the one before it; the first of all if each does.
template <class Pieces>
auto FirstOfRun(Pieces & list)
{
    for (auto i = list.First(); i != list.End(); i = list.Next(i))
        if (!list.Same(list[i].start, list[list.Previous(i)].end))
            return i;
    return list.First();
}

/// One outline being chained: where it stands and the steps that are left in this pass.
struct Chain
{
    TUVect2D at;
    std::int64_t budget;
    Area & points;
};

/// Follows the pieces of a list from position `i` on as long as each continues the chain, and takes them out.
template <class Pieces>
void WalkPieces(Pieces & list, typename Pieces::Position & i, Chain & chain)
{
    while (chain.budget > 0 && list.Size() > 0 && list.Same(chain.at, list[i].start)) {
        --chain.budget;
        AddPieceEnd(chain.points, list[i]);
        chain.at = list[i].end;
        i = list.Remove(i);
        if (i == list.End())
            i = list.First();
    }
}

/// Chains the pieces of both lists head to tail into outlines, starting at piece `i` of a's list.
template <class Pieces>
void ChainOutlines(Pieces & a, Pieces & b, typename Pieces::Position i, GeneralSets & sets)
{
    // Guards against endless walks over inconsistent pieces; consistent ones never use it up.
    std::int64_t const budget = 4 * static_cast<std::int64_t>(a.Size() + b.Size());
    auto j = b.First();
    while (a.Size() > 0) {
        auto points = std::make_unique<Area>();
        TUVect2D const first = a[i].start;
        AddVertex(*points, first);
        Chain chain{first, budget, *points};
        do {
            chain.budget = budget;
            i = a.SearchStart(i, chain.at, chain.budget);
            WalkPieces(a, i, chain);
            j = b.SearchStart(j, chain.at, chain.budget);
            WalkPieces(b, j, chain);
        } while (!a.Same(chain.at, first) && a.Size() > 0 && b.Size() > 0 && chain.budget > 0);
        bool const isClosed = a.Same(chain.at, first);
        sets.Append(kSetOutline, std::move(points));
        if (!isClosed && (a.Size() > 0 || b.Size() > 0))
            return;
    }
}

/// All stages from the collected pieces of a and b to the result.
template <class Pieces>
int AssembleResult(Pieces & a, Pieces & b, GeneralSetArray *& result)
{
    DropRedundantPoints(a);
    DropRedundantPoints(b);
    GeneralSets sets;
    TakeTouchingPoints(a, b, sets);
    TakeOppositeEdges(a, b, sets);
    int code = kOnlyTouching;
    if (a.Size() > 0) {
        DropSharedEdges(a, b);
        code = a.Size() > 0 && b.Size() > 0 ? kOverlapping : kNoCommonPart;
        if (code == kOverlapping)
            ChainOutlines(a, b, FirstOfRun(a), sets);
    }
    result = sets.Release();
    return code;
}
}  // namespace detail

#endif
