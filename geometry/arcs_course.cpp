// The course of an arc seen from its centre, and the polyline made from it.

#include "geometry/arcs_course.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// The widest segment of a polyline along an arc, in radians.
constexpr double kPolylineStep = 0.20666666666666667;

/// The fewest segments of a polyline along an arc.
constexpr double kFewestSegments = 5.0;

/// The most: finer than any device shows, so that a tiny step can't keep a caller busy for ever.
constexpr double kMostSegments = 100000.0;

int MakeChord(TUVect3D const & start, TUVect3D const & end, long & count, TUVect3D *& points)
{
    points = new (std::nothrow) TUVect3D[2]{start, end};
    if (!points)
        return 0;
    count = 2;
    return 1;
}
}  // namespace

bool detail::IsFinite(TUVect3D const & v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

bool detail::IsFlatBulge(double bulge)
{
    return !(std::fabs(bulge) >= kFlatBulge);
}

double detail::RadiusByAngle(double chord, double bulge)
{
    double const a = std::atan(std::fabs(1.0 / bulge));
    return chord / 4.0 / std::cos(a) / std::sin(a);
}

double detail::RadiusBySagitta(double sagitta, double halfChord)
{
    return (sagitta * sagitta + halfChord * halfChord) / 2.0 / sagitta;
}

TUVect3D detail::ArcAxis(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                         double bulge)
{
    TUVect3D const axis = Unit(Cross(arcVector, end - start));
    return bulge < 0.0 ? -axis : axis;
}

bool detail::MakeArcCourse(CMathematics & math, TUVect3D const & start, TUVect3D const & end,
                           TUVect3D & arcVector, double bulge, ArcCourse & course)
{
    TUVect3D chord = end - start;
    double const length = Length(chord);
    TUVect3D axis;
    if (!math.VectorProduct(&arcVector, &chord, &axis) || !math.VectorProduct(&chord, &axis, &arcVector))
        return false;
    double const side = bulge < 0.0 ? -1.0 : 1.0;
    course.radius = RadiusByAngle(length, bulge);
    double const toCentre = side * (length / 2.0 * std::fabs(bulge) - course.radius);
    course.centre = (start + end) * 0.5 + toCentre * arcVector;
    course.toStart = start - course.centre;
    if (!math.NormOfVector(&course.toStart))
        return false;
    // A negative bulge travels the other way round.
    axis = axis * side;
    math.GetOrientAngle(course.toStart, end - course.centre, axis, course.angle);
    TUVect3D toStart = course.toStart;
    return math.VectorProduct(&axis, &toStart, &course.ahead) != 0;
}

long detail::CourseSegments(ArcCourse const & course, double step)
{
    double const segments = std::trunc(std::fabs(course.angle / step)) + 1.0;
    return static_cast<long>(std::max(kFewestSegments, std::min(kMostSegments, segments)));
}

TUVect3D detail::CoursePoint(ArcCourse const & course, double t)
{
    double const cosine = std::cos(t);
    double const sine = std::sin(t);
    TUVect3D point;
    for (int i = 0; i < 3; ++i)
        point.a[i] =
            course.centre.a[i] + course.radius * (cosine * course.toStart.a[i] + sine * course.ahead.a[i]);
    return point;
}

int CMathematics::Make3dArc(TUVect3D const & start, TUVect3D const & end, TUVect3D & arcVector, double bulge,
                            long & count, TUVect3D *& points)
{
    if (IsFlatBulge(bulge))
        return MakeChord(start, end, count, points);
    ArcCourse course;
    if (!MakeArcCourse(*this, start, end, arcVector, bulge, course))
        return 0;
    if (std::fabs(course.angle) < kNoTurn)
        return 1;
    long const segments = CourseSegments(course, kPolylineStep);
    points = new (std::nothrow) TUVect3D[static_cast<std::size_t>(segments) + 1];
    if (!points)
        return 0;
    double const step = course.angle / static_cast<double>(segments);
    points[0] = start;
    // The last point is computed too and not copied from `end`: the walk shows what the angle gives.
    for (long i = 1; i <= segments; ++i)
        points[i] = CoursePoint(course, static_cast<double>(i) * step);
    count = segments + 1;
    return 1;
}
