#include <cmath>
#include <numbers>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
constexpr unsigned int kCircle = 32767;  // number of sides that announces a circle
constexpr double kEqualMomentsShare =
    1e-10;                                  // weighted group: difference of equal moments, share of their sum
constexpr double kEqualMoments = 1e-99;     // plain group: difference of equal moments
constexpr double kNoProductMoment = 1e-14;  // product moment, and share of one, that counts as none

struct Moments
{
    double Ix = 0.0;
    double Iy = 0.0;
    double Ixy = 0.0;
    double Sx = 0.0;
    double Sy = 0.0;
    double A = 0.0;
};

// The outputs of one group, in the order of the arguments.
struct Characteristics
{
    double & Ix;
    double & Iy;
    double & Ixc;
    double & Iyc;
    double & I1;
    double & I2;
    double & A;
    double & Ixy;
    double & Ixyc;
    double & Sx;
    double & Sy;
    double & Xc;
    double & Yc;
    double & alpha;
};

struct CentralMoments
{
    double Ixc;
    double Iyc;
    double Ixyc;
};

Moments MomentsOfCircle(double radius, TUVect2D const & centre)
{
    double const area = std::numbers::pi * radius * radius;
    double const own = radius * radius * radius * radius * std::numbers::pi / 4.0;
    Moments moments;
    moments.A = area;
    moments.Ix = centre.y * centre.y * area + own;
    moments.Iy = centre.x * centre.x * area + own;
    moments.Sx = area * centre.y;
    moments.Sy = area * centre.x;
    moments.Ixy = area * centre.x * centre.y;
    return moments;
}

// Adds a side's share of the boundary integrals, still without their common divisors.
void AddSide(Moments & sums, TUVect2D const & from, TUVect2D const & to)
{
    double const x = from.x;
    double const y = from.y;
    double const dx = to.x - from.x;
    double const dy = to.y - from.y;
    sums.Ix -= (4.0 * y * (y * y + dy * dy) + (6.0 * y * y + dy * dy) * dy) * dx;
    sums.Iy += (4.0 * x * (x * x + dx * dx) + (6.0 * x * x + dx * dx) * dx) * dy;
    sums.Sx -= (3.0 * y * y + 3.0 * y * dy + dy * dy) * dx;
    sums.Sy += (3.0 * x * x + 3.0 * x * dx + dx * dx) * dy;
    sums.Ixy += (12.0 * x * x * y + 12.0 * x * y * dx + 6.0 * x * x * dy + 4.0 * y * dx * dx +
                 8.0 * x * dx * dy + 3.0 * dx * dx * dy) *
                dy;
    sums.A += x * dy - y * dx;
}

Moments MomentsOfPolygon(TUVect2D const * points, unsigned int count)
{
    Moments sums;
    for (unsigned int i = 0; i < count; ++i)
        AddSide(sums, points[i], points[i + 1]);
    sums.Ix /= 12.0;
    sums.Iy /= 12.0;
    sums.Sx /= 6.0;
    sums.Sy /= 6.0;
    sums.Ixy /= 24.0;
    sums.A /= 2.0;
    return sums;
}

Moments Negated(Moments const & m)
{
    return {-m.Ix, -m.Iy, -m.Ixy, -m.Sx, -m.Sy, -m.A};
}

void Accumulate(Characteristics & group, Moments const & moments, double weight)
{
    group.Ix += weight * moments.Ix;
    group.Iy += weight * moments.Iy;
    group.A += weight * moments.A;
    group.Ixy += weight * moments.Ixy;
    group.Sx += weight * moments.Sx;
    group.Sy += weight * moments.Sy;
}

// Static moments that are rounding noise against the section become true zeroes.
void SnapStaticMoments(Characteristics & group, double inertia)
{
    double const square = inertia * group.A;
    if (square > 0.0) {
        double const scale = std::sqrt(square);
        group.Sx = SnapNoise(group.Sx, scale);
        group.Sy = SnapNoise(group.Sy, scale);
    }
}

CentralMoments MomentsAboutCentroid(Characteristics const & group)
{
    double const x = group.Xc;
    double const y = group.Yc;
    return {group.Ix - group.A * y * y, group.Iy - group.A * x * x,
            group.Ixy - group.Sy * y - group.Sx * x + x * y * group.A};
}

double AngleOfPrincipalAxes(CentralMoments const & central, double Ixy, double equalMoments)
{
    bool const areEqual = std::fabs(central.Iyc - central.Ixc) <= equalMoments;
    if (!areEqual)
        return std::atan(2.0 * central.Ixyc / (central.Iyc - central.Ixc)) / 2.0;
    if (std::fabs(Ixy) <= kNoProductMoment)
        return 0.0;
    return std::fabs(central.Ixyc / Ixy) > kNoProductMoment ? std::numbers::pi / 4.0 : 0.0;
}

// Writes everything that follows from the accumulators and the centroid. Outputs may share one variable.
void WriteDerived(Characteristics & group, CentralMoments const & central, double alpha)
{
    double const cosine = std::cos(alpha);
    double const sine = std::sin(alpha);
    double const product = std::sin(2.0 * alpha) * central.Ixyc;
    group.Ixc = central.Ixc;
    group.Iyc = central.Iyc;
    group.Ixyc = central.Ixyc;
    group.alpha = alpha;
    group.I1 = cosine * cosine * central.Ixc + sine * sine * central.Iyc - product;
    group.I2 = cosine * cosine * central.Iyc + sine * sine * central.Ixc + product;
}

void UpdateWeighted(Characteristics & group)
{
    SnapStaticMoments(group, group.Ix + group.Iy);
    if (group.A == 0.0) {
        group.Xc = 0.0;  // Yc stays as the caller had it
    } else {
        group.Xc = group.Sy / group.A;
        group.Yc = group.Sx / group.A;
    }
    CentralMoments const central = MomentsAboutCentroid(group);
    double const equalMoments = (central.Ixc + central.Iyc) * kEqualMomentsShare;
    WriteDerived(group, central, AngleOfPrincipalAxes(central, group.Ixy, equalMoments));
    SnapStaticMoments(group, group.I1 + group.I2);
}

void UpdatePlain(Characteristics & group)
{
    group.Xc = group.A == 0.0 ? 0.0 : group.Sy / group.A;
    group.Yc = group.A == 0.0 ? 0.0 : group.Sx / group.A;
    CentralMoments const central = MomentsAboutCentroid(group);
    WriteDerived(group, central, AngleOfPrincipalAxes(central, group.Ixy, kEqualMoments));
}
}  // namespace

int CMathematics::GetThoseCharacteristics(TUVect2D * points, int hole, int & direction, unsigned int count,
                                          double weight, double & weightedIx, double & weightedIy,
                                          double & weightedIxc, double & weightedIyc, double & weightedI1,
                                          double & weightedI2, double & weightedA, double & weightedIxy,
                                          double & weightedIxyc, double & weightedSx, double & weightedSy,
                                          double & weightedXc, double & weightedYc, double & weightedAlpha,
                                          double & Ix, double & Iy, double & Ixc, double & Iyc, double & I1,
                                          double & I2, double & A, double & Ixy, double & Ixyc, double & Sx,
                                          double & Sy, double & Xc, double & Yc, double & alpha)
{
    Moments moments =
        count == kCircle ? MomentsOfCircle(points[0].x, points[1]) : MomentsOfPolygon(points, count);
    direction = moments.A < 0.0 ? 0 : 1;
    if (direction == 0)
        moments = Negated(moments);
    if (hole == 1)
        moments = Negated(moments);

    Characteristics weighted = {weightedIx, weightedIy, weightedIxc, weightedIyc,  weightedI1,
                                weightedI2, weightedA,  weightedIxy, weightedIxyc, weightedSx,
                                weightedSy, weightedXc, weightedYc,  weightedAlpha};
    Accumulate(weighted, moments, weight);
    UpdateWeighted(weighted);

    Characteristics plain = {Ix, Iy, Ixc, Iyc, I1, I2, A, Ixy, Ixyc, Sx, Sy, Xc, Yc, alpha};
    Accumulate(plain, moments, 1.0);
    UpdatePlain(plain);
    return 1;
}
