#include "geometry/polygon_clearance.h"

#include "geometry/polygon_boxes.h"

namespace detail {
namespace {
/// Twice the area between a line and a point; positive on the left.
double SideOf(TSelem const & line, TUVect2D const & p)
{
    return (line.end.x - line.start.x) * (p.y - line.start.y) -
           (line.end.y - line.start.y) * (p.x - line.start.x);
}

/// Whether both ends of a line lie further than `margin` on one side of another.
bool IsBeside(TSelem const & line, TSelem const & other, double margin)
{
    double const limit =
        margin * (std::fabs(line.end.x - line.start.x) + std::fabs(line.end.y - line.start.y));
    double const start = SideOf(line, other.start);
    double const end = SideOf(line, other.end);
    return (start > limit && end > limit) || (start < -limit && end < -limit);
}

double Distance(TUVect2D const & p, TUVect2D const & q)
{
    return std::sqrt((p.x - q.x) * (p.x - q.x) + (p.y - q.y) * (p.y - q.y));
}

/// An arc as a part of its circle.
struct RoundSide
{
    TSelem const & arc;
    ArcReach of;
    TUVect2D centre{};
    TUVect2D toApex{};
    double radius = 0.0;
    double absBulge = 0.0;
    bool isRound;

    RoundSide(CMathematics & math, TSelem const & side, PlaneScale const & scale)
        : arc(side),
          of(side, scale),
          isRound(!MayBeFlat(side) && math.GetArcCentreVectorBulge(side.start, side.end, side.bulge, centre,
                                                                   radius, toApex, absBulge))
    {
    }

    /// How far a point stands from the chord toward the apex.
    double HeightOf(TUVect2D const & p) const
    {
        return (p.x - arc.start.x) * toApex.x + (p.y - arc.start.y) * toApex.y;
    }

    double Sagitta() const { return absBulge * of.halfChord; }

    /// Whether the class of an end of another side may hang on rounding: on the chord, within the circle, the
    /// plain method may take a point for either side of the arc.
    bool HasEndOnChord(TSelem const & other, double margin) const
    {
        return IsOnChord(other.start, margin) || IsOnChord(other.end, margin);
    }

    bool IsAcross(TSelem const & other, double margin) const
    {
        return HeightOf(other.start) < -margin && HeightOf(other.end) < -margin;
    }

  private:
    bool IsOnChord(TUVect2D const & p, double margin) const
    {
        return std::fabs(HeightOf(p)) <= margin && Distance(p, of.middle) <= of.halfChord + margin;
    }
};

/// A line meets an arc at points of the arc's circle on the apex side of the chord.
bool LineIsClear(RoundSide const & round, TSelem const & line, PlaneScale const & scale)
{
    if (!round.isRound)
        return false;
    double const margin = scale.Margin() + 1e-12 * round.radius;
    if (round.HasEndOnChord(line, margin))
        return false;
    if (round.IsAcross(line, margin))
        return true;
    double const inner = round.radius - margin;
    if (Distance(line.start, round.centre) < inner && Distance(line.end, round.centre) < inner)
        return true;
    double const top = round.Sagitta() + margin;
    if (round.HeightOf(line.start) > top && round.HeightOf(line.end) > top)
        return true;
    return std::fabs(SideOf(line, round.of.middle)) > round.of.reach * Distance(line.start, line.end);
}

/// Arcs meet where their circles do. On one circle they are apart if neither has an end on the other's side
/// of the chord.
bool ArcsAreClear(RoundSide const & a, RoundSide const & b, PlaneScale const & scale)
{
    if (!a.isRound || !b.isRound)
        return false;
    double const noise = 1e-12 * (a.radius + b.radius);
    double const margin = scale.Margin() + noise;
    if (a.HasEndOnChord(b.arc, margin) || b.HasEndOnChord(a.arc, margin))
        return false;
    double const distance = Distance(a.centre, b.centre);
    double const difference = std::fabs(a.radius - b.radius);
    if (distance > a.radius + b.radius + margin || distance < difference - margin)
        return true;
    // Circles that don't nearly fall together are met within the reach of their arcs only.
    double const slack = std::min(a.of.slack, b.of.slack);
    if (distance * slack > 2.0 * std::max(a.radius, b.radius) * scale.tolerance &&
        (Distance(a.of.middle, b.of.middle) > a.of.reach + b.of.reach ||
         a.HeightOf(b.of.middle) < -b.of.reach - margin || b.HeightOf(a.of.middle) < -a.of.reach - margin))
        return true;
    bool const isOneCircle =
        distance + noise < scale.tolerance / 2.0 && difference + noise < scale.tolerance / 2.0;
    return isOneCircle && a.IsAcross(b.arc, margin) && b.IsAcross(a.arc, margin);
}
}  // namespace

bool AreClear(CMathematics & math, TSelem const & a, TSelem const & b, PlaneScale const & scale)
{
    if (a.type == EDGE_LINE && b.type == EDGE_LINE)
        return IsBeside(a, b, scale.Margin()) || IsBeside(b, a, scale.Margin());
    if (a.type == EDGE_LINE)
        return LineIsClear(RoundSide(math, b, scale), a, scale);
    if (b.type == EDGE_LINE)
        return LineIsClear(RoundSide(math, a, scale), b, scale);
    return ArcsAreClear(RoundSide(math, a, scale), RoundSide(math, b, scale), scale);
}
}  // namespace detail
