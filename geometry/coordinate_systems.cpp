#include <cmath>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
constexpr double kVerticalMember = 1e-5;  // level part of a member's direction that counts as none
constexpr double kNoTurn = 1e-5;          // turn of a member about its axis that counts as none, in radians

constexpr int kCylindrical = 1;
constexpr int kSpherical = 2;

struct MemberAxes
{
    TUVect3D level;
    TUVect3D up;
    TUVect3D along;
};

MemberAxes AxesOfMember(TUVect3D const & direction, double angle)
{
    MemberAxes axes = {{{1.0, 0.0, 0.0}}, {{0.0, 1.0, 0.0}}, {}};
    TUVect3D const level = Cross({{0.0, 0.0, 1.0}}, direction);
    if (Length(level) >= kVerticalMember) {
        axes.level = Unit(level);
        axes.up = Unit(Cross(direction, axes.level));
    }
    axes.along = Cross(axes.level, axes.up);
    if (std::fabs(angle) > kNoTurn) {
        axes.level = std::cos(angle) * axes.level + std::sin(angle) * axes.up;
        axes.up = Cross(axes.along, axes.level);
    }
    return axes;
}

void NormaliseSystem(CMathematics & mathematics, TSPlane & plane, TUVect3D & axisX, TUVect3D & axisY)
{
    mathematics.NormOfVector(&plane.normal);
    mathematics.NormOfVector(&axisX);
    mathematics.NormOfVector(&axisY);
}

TUVect3D Turned(double angle, TUVect3D const & from, TUVect3D const & to)
{
    return std::cos(angle) * from + std::sin(angle) * to;
}

// The angle of `point` (coordinates in the plane's system) above the plane, 0 to 2*pi; 0 on the normal.
double AngleAbovePlane(CMathematics & mathematics, TUVect3D const & point)
{
    TUVect3D level = {{point.x, point.y, 0.0}};
    TUVect3D normal = {{0.0, 0.0, 1.0}};
    TUVect3D axis = {};
    double angle = 0.0;
    if (mathematics.VectorProduct(&level, &normal, &axis) == 1)
        mathematics.GetOrientAngle(level, point, axis, angle);
    return angle;
}
}  // namespace

void CMathematics::TransUSS_GSS(TSPlane * plane, TUVect3D * axisX, TUVect3D * axisY, int mode,
                                TUVect3D * point)
{
    NormaliseSystem(*this, *plane, *axisX, *axisY);
    TUVect3D const given = *point;
    if (mode == kCylindrical) {
        *point = plane->origin + given.x * Turned(given.z, *axisX, *axisY) + given.y * plane->normal;
    } else if (mode == kSpherical) {
        TUVect3D const level = Turned(given.y, *axisX, *axisY);
        *point = plane->origin + given.x * Turned(given.z, level, plane->normal);
    } else {
        *point = plane->origin + given.x * *axisX + given.y * *axisY + given.z * plane->normal;
    }
}

void CMathematics::TransGSS_USS(TSPlane * plane, TUVect3D * axisX, TUVect3D * axisY, int mode,
                                TUVect3D * point)
{
    NormaliseSystem(*this, *plane, *axisX, *axisY);
    TUVect3D const local = {{Dot(*point, *axisX), Dot(*point, *axisY), Dot(*point, plane->normal)}};
    // The origin's global coordinates come off the plane's coordinates; hosts allow for it.
    *point = local - plane->origin;
    if (mode != kCylindrical && mode != kSpherical)
        return;

    TUVect3D level = {{point->x, point->y, 0.0}};
    double angle = 0.0;
    if (mode == kCylindrical)
        GetOrientAngle(*axisX, level, plane->normal, angle);
    else
        angle = AngleAbovePlane(*this, *point);
    point->z = angle;
    // Not the radius nor the angle in the plane but the code of the normalisation, in both modes.
    point->y = NormOfVector(&level);
}

int CMathematics::TransGssToLss(TUVect3D * origin, TUVect3D * direction, double angle, TUVect3D * point,
                                TUVect3D * result)
{
    MemberAxes const axes = AxesOfMember(*direction, angle);
    TUVect3D const offset = *point - *origin;
    *result = {{Dot(offset, axes.level), Dot(offset, axes.up), Dot(offset, axes.along)}};
    return 1;
}

int CMathematics::TransLssToGss(TUVect3D * origin, TUVect3D * direction, double angle, TUVect3D * point,
                                TUVect3D * result)
{
    MemberAxes const axes = AxesOfMember(*direction, angle);
    *result = *origin + point->x * axes.level + point->y * axes.up + point->z * axes.along;
    return 1;
}
