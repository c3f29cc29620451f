#include "geometry/polygon_boxes.h"

#include "geometry/arcs_course.h"

namespace detail {
namespace {
/// An unlimited box; finite, so that its sums and differences stay numbers.
constexpr double kEverywhere = 1e200;

/// Chords up to this length may have no direction for VectorProduct; twice its limit.
constexpr double kShortChord = 2e-7;

/// From this bulge on an arc's box goes round its whole circle, whose radius is about twice the half chord.
constexpr double kRoundBulge = 0.25;

/// The box of an arc is a square round the middle of its chord that holds what its reach tells. Where the
/// whole circle isn't much larger than the arc, it is taken as a whole and three quarters of a radius more,
/// so that the box holds any arc whose circle nearly falls together with this one.
PlaneBox BoxOfArc(TSelem const & arc, PlaneScale const & scale)
{
    if (MayBeFlat(arc))
        return {-kEverywhere, -kEverywhere, kEverywhere, kEverywhere};
    ArcReach const of(arc, scale);
    double const bulge = std::fabs(arc.bulge);
    double const reach = HasCircleBox(arc) ? of.halfChord * std::max(bulge, 1.0 / bulge) +
                                                 std::max(of.slack, 0.75 * of.radius) + scale.Margin()
                                           : of.reach;
    return {of.middle.x - reach, of.middle.y - reach, of.middle.x + reach, of.middle.y + reach};
}

PlaneBox BoxOfSide(TSelem const & side, PlaneScale const & scale)
{
    if (side.type == EDGE_ARC)
        return BoxOfArc(side, scale);
    double const margin = scale.Margin();
    return {std::min(side.start.x, side.end.x) - margin, std::min(side.start.y, side.end.y) - margin,
            std::max(side.start.x, side.end.x) + margin, std::max(side.start.y, side.end.y) + margin};
}

/// Counts the turns of an outline round a point: the times its direction angle, seen from the point, passes
/// the downward direction, where DirectionAngle jumps. Runs of sides that the point lies outside of are
/// counted by their ends.
class TurnCount
{
  public:
    TurnCount(CMathematics & math, PolygonSides const & sides, SideBoxes const & boxes, TUVect2D const & p)
        : m_math(math), m_sides(sides), m_boxes(boxes), m_p(p), m_margin(boxes.Margin())
    {
    }

    int Class()
    {
        if (!Visit(m_boxes.Shape().Root()))
            return kPointOnEdge;
        if (m_isDoubtful)
            return m_sides.PlainClassOf(m_math, m_p);
        return m_turns == 0 ? kPointOutside : kPointInside;
    }

  private:
    bool IsLeft(TUVect2D const & v) const { return SnappedDifference(v.x, m_p.x) < 0.0; }

    /// False if the point lies on one of the sides.
    bool Visit(TreeNode node)
    {
        PlaneBox const & box = m_boxes[m_boxes.Shape().Place(node)];
        if (m_p.x < box.lowX || m_p.x > box.highX || m_p.y < box.lowY)
            return true;
        if (m_p.y > box.highY) {
            auto const [first, end] = m_boxes.Shape().Leaves(node);
            PassBelow(m_sides.Sides()[first].start, m_sides.Sides()[end - 1].end);
            return true;
        }
        if (node.level == 0)
            return VisitSide(m_sides.Sides()[node.index]);
        auto const [first, end] = m_boxes.Shape().Children(node);
        for (std::uint32_t i = first; i < end; ++i)
            if (!Visit({node.level - 1, i}))
                return false;
        return true;
    }

    void PassBelow(TUVect2D const & from, TUVect2D const & to)
    {
        m_turns += static_cast<int>(IsLeft(from)) - static_cast<int>(IsLeft(to));
    }

    bool VisitSide(TSelem const & side)
    {
        double const tolerance = m_math.GetOkoli();
        if (Length(m_p - side.start) < tolerance || Length(m_p - side.end) < tolerance)
            return false;
        if (side.type == EDGE_ARC)
            return VisitArc(side);
        if (IsPointOnStraightSide(m_p, side.start, side.end, tolerance))
            return false;
        bool const fromLeft = IsLeft(side.start);
        if (fromLeft != IsLeft(side.end)) {
            double const cross =
                (side.start.x - m_p.x) * (side.end.y - m_p.y) - (side.start.y - m_p.y) * (side.end.x - m_p.x);
            bool const passesBelow = fromLeft ? cross > 0.0 : cross < 0.0;
            if (passesBelow)
                PassBelow(side.start, side.end);
        }
        return true;
    }

    bool IsOnEnd(TSelem const & side) const
    {
        return Length(m_p - side.start) < m_math.GetOkoli() || Length(m_p - side.end) < m_math.GetOkoli();
    }

    bool VisitArc(TSelem const & arc)
    {
        if (m_math.IsPointOnArc(m_p, arc.start, arc.end, arc.bulge))
            return false;
        double const from = DirectionAngle(arc.start - m_p);
        double const to = DirectionAngle(arc.end - m_p);
        double turn = TurnBetween(from, to);
        TUVect2D centre{};
        TUVect2D toApex{};
        double radius = 0.0;
        double absBulge = 0.0;
        if (m_math.GetArcCentreVectorBulge(arc.start, arc.end, arc.bulge, centre, radius, toApex, absBulge))
            turn = ArcTurn(m_p, {arc.start, arc.end, arc.bulge, true}, centre, radius, toApex, turn);
        double const turns = (turn - (to - from)) / (2.0 * std::numbers::pi);
        double const whole = std::round(turns);
        if (!(std::fabs(turns - whole) < 1e-3))
            m_isDoubtful = true;
        else
            m_turns += static_cast<int>(whole);
        return true;
    }

    CMathematics & m_math;
    PolygonSides const & m_sides;
    SideBoxes const & m_boxes;
    TUVect2D m_p;
    double m_margin;  ///< Points further than this from a side aren't on it.
    int m_turns = 0;
    /// The turn of a flat arc is no whole number of turns off its chord's: only the plain sum tells the
    /// class.
    bool m_isDoubtful = false;
};
}  // namespace

TreeShape::TreeShape(std::size_t leaves) : m_levels(0)
{
    m_first[0] = 0;
    std::size_t count = leaves;
    do {
        m_first[m_levels + 1] = m_first[m_levels] + count;
        ++m_levels;
        count = count > 1 ? (count + kFanOut - 1) / kFanOut : 0;
    } while (count > 0);
}

bool HasCircleBox(TSelem const & arc)
{
    return std::fabs(arc.bulge) >= kRoundBulge;
}

bool MayBeFlat(TSelem const & arc)
{
    double const x = arc.end.x - arc.start.x;
    double const y = arc.end.y - arc.start.y;
    return std::fabs(arc.bulge) < kFlatBulge * (1.0 + 1e-9) || x * x + y * y < kShortChord * kShortChord;
}

ArcReach::ArcReach(TSelem const & arc, PlaneScale const & scale)
{
    double const x = arc.end.x - arc.start.x;
    double const y = arc.end.y - arc.start.y;
    double const bulge = std::fabs(arc.bulge);
    middle = {{arc.start.x + x / 2.0, arc.start.y + y / 2.0}};
    halfChord = std::sqrt(x * x + y * y) / 2.0;
    radius = halfChord * (1.0 + bulge * bulge) / (2.0 * bulge);
    double const sagitta = halfChord * bulge;
    slack = std::max(sagitta / 4.0, scale.Margin() + 1e-13 * radius);
    // A point up to `noise` on the wrong side of the chord may count as on its apex side.
    double const noise = 1e-13 * (radius + scale.size);
    reach = bulge > 1.0 ? sagitta + slack
                        : std::sqrt(halfChord * halfChord + 2.0 * radius * (slack + noise) + slack * slack);
    reach += scale.Margin();
}

SideBoxes::SideBoxes(PolygonSides const & sides, PlaneScale const & scale, std::pmr::memory_resource & memory)
    : m_shape(sides.Sides().size()), m_boxes(m_shape.Size(), &memory), m_margin(scale.Margin())
{
    std::transform(sides.Sides().begin(), sides.Sides().end(), m_boxes.begin(),
                   [&scale](TSelem const & side) { return BoxOfSide(side, scale); });
    FillUpward(m_shape, m_boxes);
}

int ClassOfPoint(CMathematics & math, PolygonSides const & sides, SideBoxes const & boxes, TUVect2D const & p)
{
    return TurnCount(math, sides, boxes, p).Class();
}
}  // namespace detail
