#include <cmath>
#include <numbers>

#include "dxf/dxf_in_basic.h"
#include "dxf/object_axes.h"

namespace {
// The radial vector at an angle in degrees, in the arc's own plane.
TUVect3D Radial(double radius, double degrees)
{
    double const angle = degrees * std::numbers::pi / 180;
    return {{radius * std::cos(angle), radius * std::sin(angle), 0}};
}

TUVect3D Sum(TUVect3D const & a, TUVect3D const & b)
{
    return {{a.x + b.x, a.y + b.y, a.z + b.z}};
}

TUVect3D Difference(TUVect3D const & a, TUVect3D const & b)
{
    return {{a.x - b.x, a.y - b.y, a.z - b.z}};
}
}  // namespace

int CDXFInBasic::TranOCStoWCS(TUVect3D point, TUVect3D & result, double elevation, TUVect3D extrusion)
{
    detail::ObjectAxes const axes = detail::AxesOfExtrusion(extrusion);
    for (int i = 0; i < 3; ++i)
        result.a[i] = point.x * axes.x.a[i] + point.y * axes.y.a[i] + elevation * axes.z.a[i];
    return 1;
}

int CDXFInBasic::GetARCEndPoints(TUVect3D & centre, double & radius, double & startAngle, double & endAngle,
                                 TUVect3D & extrusion, TUVect3D * start, TUVect3D * end, TUVect3D * middle,
                                 double * bulge)
{
    constexpr double kSmallest = 1e-8;
    if (radius < kSmallest)
        return DXF_NO_RADIUS;
    if (std::abs(startAngle - endAngle) < kSmallest)
        return DXF_NO_SPAN;
    auto const worldRadial = [&](double degrees) {
        TUVect3D world;
        TranOCStoWCS(Radial(radius, degrees), world, 0, extrusion);
        return world;
    };
    double const difference = endAngle - startAngle;
    double const span = difference < 0 ? difference + 360 : difference;
    TUVect3D const middleRadial = worldRadial(startAngle + span / 2);
    *start = Sum(worldRadial(startAngle), centre);
    *end = Sum(worldRadial(endAngle), centre);
    *middle = Sum(middleRadial, centre);

    TUVect3D const chord = Difference(*end, *start);
    double const halfChord = std::sqrt(detail::Dot(chord, chord)) / 2;
    if (!(halfChord > kSmallest))
        return DXF_NO_SPAN;
    double const radialLength = std::sqrt(detail::Dot(middleRadial, middleRadial));
    *bulge = detail::Dot(Difference(*middle, *start), middleRadial) / radialLength / halfChord;
    return DXF_GO_ON;
}
