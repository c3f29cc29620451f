// Centres and radii of arcs. The roads to a centre differ in their limits and in what a negative bulge does;
// each is kept as it stands, since callers choose by these differences.

#include <cmath>
#include <numbers>

#include "geometry/arcs_course.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// Bulges below this have no centre by projection.
constexpr double kZeroBulge = 1e-10;

/// Whether the centre of a plane arc lies against the left normal of its chord, by the angle from that normal
/// to the chord.
bool CentreLiesAgainstNormal(double bulge, double angle)
{
    constexpr double kHalfTurn = std::numbers::pi;
    if (0.0 < bulge && bulge < 1.0)
        return angle > kHalfTurn;
    if (bulge > 1.0)
        return angle < kHalfTurn;
    if (-1.0 < bulge && bulge < 0.0)
        return angle < kHalfTurn;
    return bulge < -1.0 && angle > kHalfTurn;
}
}  // namespace

int CMathematics::Get3DArcCenter(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                 double const & bulge, TUVect3D & centre)
{
    if (IsFlatBulge(bulge))
        return 0;
    TUVect3D chord = end - start;
    double const length = Length(chord);
    TUVect3D vector = arcVector;
    TUVect3D normal;
    TUVect3D toApex;
    if (!VectorProduct(&vector, &chord, &normal) || !VectorProduct(&chord, &normal, &toApex))
        return 0;
    double const sagitta = length / 2.0 * bulge;
    double const radius = std::copysign(RadiusByAngle(length, bulge), sagitta);
    double const offset = SnapNoise(sagitta - radius, radius);
    TUVect3D const result = (start + end) * 0.5 + offset * toApex;
    if (!IsFinite(result))
        return 0;
    centre = result;
    return 1;
}

int CMathematics::GetArcCentre(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                               double bulge, TUVect3D & centre, double & radius)
{
    TUVect3D const chord = end - start;
    double const halfChord = Length(chord) / 2.0;
    if (!(std::fabs(bulge) >= kZeroBulge) || !(halfChord > m_dOkoli))
        return 0;
    TUVect3D const along = Unit(chord);
    // Vector and sagitta both turn with a negative bulge, so that the centre keeps its side, unlike in
    // Get3DArcCenter; only the radius comes out negative.
    TUVect3D const toApex = Unit(bulge * (arcVector - Dot(along, arcVector) * along));
    double const sagitta = bulge * halfChord;
    radius = RadiusBySagitta(sagitta, halfChord);
    centre = (start + end) * 0.5 + (sagitta - radius) * toApex;
    return 1;
}

int CMathematics::GetArcCentreVectorBulge(TUVect2D const & start, TUVect2D const & end, double bulge,
                                          TUVect2D & centre, double & radius, TUVect2D & direction,
                                          double & absBulge)
{
    absBulge = std::fabs(bulge);
    TUVect2D const chord = end - start;
    double const halfChord = Length(chord) / 2.0;
    double const sagitta = halfChord * absBulge;
    if (!(sagitta > 0.0))
        return 0;
    direction = Unit(bulge * TUVect2D{{-chord.y, chord.x}});
    radius = RadiusBySagitta(sagitta, halfChord);
    centre = (start + end) * 0.5 + (sagitta - radius) * direction;
    return 1;
}

int CMathematics::GetArcCentre(TUVect2D const & start, TUVect2D const & end, double bulge, TUVect2D & centre,
                               double & radius)
{
    TUVect2D direction;
    double absBulge;
    return GetArcCentreVectorBulge(start, end, bulge, centre, radius, direction, absBulge);
}

int CMathematics::GetArcCentre2D(TUVect2D const & start, TUVect2D const & end, double const & bulge,
                                 TUVect2D & centre, double & radius)
{
    TUVect2D const chord = end - start;
    double const halfChord = Length(chord) / 2.0;
    double const sagitta = std::fabs(halfChord * bulge);
    radius = 0.5 / sagitta * (sagitta * sagitta + halfChord * halfChord);
    TUVect2D normal = Unit(TUVect2D{{-chord.y, chord.x}});
    double angle;
    GetOrientAngle(Widened(normal), Widened(chord), SetPoint3D(0.0, 0.0, 1.0), angle);
    if (CentreLiesAgainstNormal(bulge, angle))
        normal = -normal;
    centre = (start + end) * 0.5 + std::fabs(radius - sagitta) * normal;
    return 1;
}

int CMathematics::GetRadiusOf3DArcFromTwoPointsAndBulge(TUVect3D const & start, TUVect3D const & end,
                                                        double const & bulge, double & radius)
{
    double const length = Length(end - start);
    double const sagitta = 0.5 * length * bulge;
    radius = (sagitta * sagitta + length * length / 4.0) / 2.0 / sagitta;
    return 1;
}
