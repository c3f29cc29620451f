#include "dxf/object_axes.h"

#include <cmath>

namespace {
TUVect3D Cross(TUVect3D const & a, TUVect3D const & b)
{
    return {{a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}};
}

TUVect3D Unit(TUVect3D const & v)
{
    double const length = std::sqrt(detail::Dot(v, v));
    return length > 0 ? TUVect3D{{v.x / length, v.y / length, v.z / length}} : TUVect3D{};
}
}  // namespace

namespace detail {
double Dot(TUVect3D const & a, TUVect3D const & b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

ObjectAxes AxesOfExtrusion(TUVect3D const & extrusion)
{
    constexpr double kNearWorldZ = 1.0 / 64;
    constexpr TUVect3D kWorldY = {{0, 1, 0}};
    constexpr TUVect3D kWorldZ = {{0, 0, 1}};
    TUVect3D const z = Unit(extrusion);
    bool const isNearWorldZ = std::abs(z.x) < kNearWorldZ && std::abs(z.y) < kNearWorldZ;
    TUVect3D const x = Unit(Cross(isNearWorldZ ? kWorldY : kWorldZ, z));
    return {x, Unit(Cross(z, x)), z};
}
}  // namespace detail
