#ifndef KX7_TESTS_GEOMETRY_CIRCLE_ARCS_H
#define KX7_TESTS_GEOMETRY_CIRCLE_ARCS_H

// Arcs for the intersection tests, made from circles by plain trigonometry.

#include "geometry/mathematics.h"
#include "space_samples.h"

namespace space {
/// An arc as the kernel takes it.
struct SpaceArc
{
    TUVect3D start;
    TUVect3D end;
    TUVect3D arcVector;
    double bulge;
};

/// The upper half circle over (0, 0, 0)-(2, 0, 0) in the plane z = 0, centre (1, 0, 0).
inline SpaceArc const kHalf = {P(0, 0, 0), P(2, 0, 0), P(0, 1, 0), 1.0};

/// A circle with two perpendicular unit vectors; the arc runs from angle `from` over `sweep` (positive, below
/// a full turn) from e1 toward e2.
struct Circle
{
    TUVect3D centre;
    TUVect3D e1;
    TUVect3D e2;
    double radius;

    TUVect3D At(double angle) const
    {
        return Plus(centre, Plus(Times(radius * std::cos(angle), e1), Times(radius * std::sin(angle), e2)));
    }
    TUVect3D Axis() const { return PlainCross(e1, e2); }

    /// The bulge is tan(sweep / 4) and the arc vector points from the chord to the apex. `flipped` gives the
    /// same arc with a negative bulge and the arc vector turned round.
    SpaceArc Cut(double from, double sweep, bool flipped = false) const
    {
        TUVect3D const toApex = Minus(At(from + sweep / 2.0), centre);
        double const sign = flipped ? -1.0 : 1.0;
        return {At(from), At(from + sweep), Times(sign, toApex), sign * std::tan(sweep / 4.0)};
    }
};

inline Circle const kUnitCircle = {P(0, 0, 0), P(1, 0, 0), P(0, 1, 0), 1.0};

inline Circle RandomCircle(Random & random)
{
    TUVect3D const e1 = random.Direction();
    TUVect3D const e2 = random.Across(e1);
    TUVect3D const centre = random.Point(5.0);
    return {centre, e1, e2, random.Between(0.5, 5.0)};
}

inline SpaceArc Moved(RigidMotion const & motion, SpaceArc const & arc)
{
    return {motion(arc.start), motion(arc.end), motion.Turned(arc.arcVector), arc.bulge};
}

/// The angle from `from` to `angle` in 0 to 2 pi.
inline double Ahead(double from, double angle)
{
    double const d = std::fmod(angle - from, 2.0 * kPi);
    return d < 0.0 ? d + 2.0 * kPi : d;
}
}  // namespace space

#endif
