// Bulges made from other data: centre, radius, a third point, numbers; the other arc of a circle; and the
// bulges of edges at a distance from an arc.

#include <algorithm>
#include <cmath>

#include "geometry/arcs_course.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// Half chords below this are zero.
constexpr double kZeroHalfChord = 1e-50;

/// Chords and arc vectors up to this are zero.
constexpr double kZeroLength = 1e-14;

/// Shares of the squared radius below this put the centre of an arc through three points on the chord.
constexpr double kHalfCircleShare = 1e-10;

/// Squared lengths up to this may be negative by rounding when a bulge is reduced.
constexpr double kRoundedSquare = 1e-20;

/// The distance of the centre from the chord, squared: |r^2 - c^2| without noise.
double SquareToCentre(double radius, double halfChord)
{
    double const square = radius * radius;
    return std::fabs(SnapNoise(square - halfChord * halfChord, square));
}

double Square(double value)
{
    return value * value;
}

double HalfChord(TSPlaneEdge2D const & edge)
{
    return Length(edge.end - edge.start) / 2.0;
}

/// One of the two edges that ReduceBulge fits beside the old arc.
struct ReducedEdge
{
    double halfChord;
    double radius;
    double square;  ///< Squared distance of the centre from the chord.

    ReducedEdge(TSPlaneEdge2D const & edge, double oldHalfChord, double oldRadius, double offset)
        : halfChord(HalfChord(edge)),
          radius(halfChord >= oldHalfChord ? oldRadius + offset : oldRadius - offset),
          square(SnapNoise(Square(radius) - Square(halfChord), Square(radius) + Square(halfChord)))
    {
    }

    bool Fits() const { return !(std::fabs(square) > kRoundedSquare && square < 0.0); }
    double Root() const { return std::sqrt(std::fabs(square)); }
};

/// The sagittas of the two edges beside an arc with the bulge `oldBulge`.
void ReducedSagittas(double oldBulge, ReducedEdge const & a, ReducedEdge const & b, double & sagittaA,
                     double & sagittaB)
{
    if (std::fabs(std::fabs(oldBulge) - 1.0) >= kFlatBulge) {
        double const side = std::fabs(oldBulge) < 1.0 ? -1.0 : 1.0;
        sagittaA = a.radius + side * a.Root();
        sagittaB = b.radius + side * b.Root();
        return;
    }
    // Beside a half circle the two edges go to opposite branches. Each case takes the root of one edge for
    // both where it always has: the root of `a` for a bulge not above 0, the own roots above 0.
    if (oldBulge <= 0.0) {
        sagittaA = a.radius - a.Root();
        sagittaB = b.radius + a.Root();
    } else {
        sagittaB = b.radius - b.Root();
        sagittaA = a.radius + a.Root();
    }
}
}  // namespace

int CMathematics::CalcBulgeOf3DArc2PtsAndCenter(TUVect3D const & start, TUVect3D const & end,
                                                TUVect3D & centre, TUVect3D * arcVector, double & bulge,
                                                int smaller)
{
    bulge = 0.0;
    TUVect3D const middle = (start + end) * 0.5;
    *arcVector = smaller == 1 ? middle - centre : centre - middle;
    double const halfChord = Length(end - start) / 2.0;
    if (!(halfChord >= kZeroHalfChord))
        return 0;
    double const radius = Length(centre - start);
    double const root = std::sqrt(SquareToCentre(radius, halfChord));
    bulge = (smaller == 1 ? radius - root : radius + root) / halfChord;
    // A half circle has its centre on the chord and so no vector to give: 0, with its bulge written.
    return Length(*arcVector) > kZeroLength ? 1 : 0;
}

int CMathematics::CalcBulgeOf3DArc2PtsAndRadius(TUVect3D const & start, TUVect3D const & end, double radius,
                                                double & bulge)
{
    bulge = 0.0;
    double const halfChord = Length(end - start) / 2.0;
    if (!(halfChord >= kZeroHalfChord))
        return 0;
    bulge = (radius - std::sqrt(SquareToCentre(radius, halfChord))) / halfChord;
    return 1;
}

int CMathematics::CalcBulgeOf3DArc3Points(TUVect3D const & start, TUVect3D const & end,
                                          TUVect3D const & through, TUVect3D * arcVector, double & bulge)
{
    *arcVector = TUVect3D{};
    bulge = 0.0;
    TUVect3D chord = end - start;
    TUVect3D toThrough = through - start;
    double const chordLength = Length(chord);
    double const sideLength = Length(toThrough);
    double const otherLength = Length(end - through);
    TUVect3D normal;
    TUVect3D toApex;
    if (!VectorProduct(&chord, &toThrough, &normal) || !VectorProduct(&normal, &chord, &toApex))
        return 0;
    double const area = Dot(toThrough, toApex) * sideLength * chordLength / 2.0;
    double const radius = chordLength * sideLength * otherLength / area / 4.0;
    double const halfChord = chordLength / 2.0;
    double square = std::fabs(radius * radius - halfChord * halfChord);
    if (square / (radius * radius) < kHalfCircleShare)
        square = 0.0;
    // The angle at `through` is acute on the larger arc and obtuse on the smaller one.
    bool const larger = Dot(toThrough, through - end) >= 0.0;
    bulge = (larger ? radius + std::sqrt(square) : radius - std::sqrt(square)) / halfChord;
    *arcVector = toApex;
    return 1;
}

int CMathematics::CalcBulgeLengthAndRadius(double chord, double radius, double & bulge, int big)
{
    bulge = 0.0;
    if (radius == 0.0 || !(std::fabs(chord) > kZeroLength))
        return 0;
    double const halfChord = chord / 2.0;
    double const square = SnapNoise(radius * radius - halfChord * halfChord, std::max(radius, halfChord));
    if (!(square >= 0.0))
        return 0;
    bulge = (big ? radius + std::sqrt(square) : radius - std::sqrt(square)) / halfChord;
    return 1;
}

int CMathematics::CalcRadiusFromBulgeAndLength(double bulge, double chord, double & radius, int & big)
{
    radius = 0.0;
    if (IsFlatBulge(bulge))
        return 0;
    radius = RadiusByAngle(chord, bulge);
    big = std::fabs(bulge) > 1.0 ? 1 : 0;
    if (bulge < 0.0) {
        radius = -radius;
        big = 1 - big;
    }
    return 1;
}

int CMathematics::GetArcComplement(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                   double const & bulge, TUVect3D & complementVector,
                                   double & complementBulge)
{
    double radius;
    GetRadiusOf3DArcFromTwoPointsAndBulge(start, end, bulge, radius);
    double const length = Length(end - start);
    double const sagitta = 2.0 * radius - bulge / 2.0 * length;
    complementBulge = 2.0 * sagitta / length;
    complementVector = -arcVector;
    return 1;
}

int CMathematics::ReduceBulge(TSPlaneEdge2D const & old, TSPlaneEdge2D & a, TSPlaneEdge2D & b, double offset)
{
    double const halfChord = HalfChord(old);
    double const radius = RadiusBySagitta(std::fabs(old.bulge) * halfChord, halfChord);
    ReducedEdge const edgeA(a, halfChord, radius, offset);
    ReducedEdge const edgeB(b, halfChord, radius, offset);
    if (!edgeA.Fits() || !edgeB.Fits())
        return 0;
    double sagittaA;
    double sagittaB;
    ReducedSagittas(old.bulge, edgeA, edgeB, sagittaA, sagittaB);
    double const side = old.bulge < 0.0 ? -1.0 : 1.0;
    double const bulgeA = side * sagittaA / edgeA.halfChord;
    double const bulgeB = side * sagittaB / edgeB.halfChord;
    if (!std::isfinite(bulgeA) || !std::isfinite(bulgeB))
        return 0;
    a.bulge = bulgeA;
    b.bulge = bulgeB;
    return 1;
}
