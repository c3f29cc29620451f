#ifndef KX7_GEOMETRY_MAT_POINT_H
#define KX7_GEOMETRY_MAT_POINT_H

#include "geometry/records.h"
#include "platform/base/export.h"

class CMathematics;

/// Moves points and edges: set up one action, then feed points through it, each `repeat` times at once. The
/// kernel isn't owned and outlives the object.
///
/// Results are 1 or 0; GetLastError tells why it was 0 and is cleared by each set-up and each move:
///
///     0 none                                     5 stretch: second and third points coincide
///     1 axis or plane normal too short           6 a scale factor is too small or negative
///     2 rotation angle too small                 7 no kernel
///     3 direction too short                      8 no action set up
///     4 stretch: first two points coincide       9 repeat count below 1
///
/// Too short, small, or coincident means below 0.0001. A set-up that fails leaves the object as it was.
class KX7_API CMatPoint
{
  public:
    /// The action that is set up.
    enum Action
    {
        NO_ACTION = -1,
        MOVE_BY_DIRECTION = 0,
        MOVE_BY_ROTATION = 1,
        MOVE_BY_MIRROR = 2,
        MOVE_BY_STRETCH = 3,
        MOVE_BY_SCALE = 4,
        MOVE_TO_PLANE = 5,
        MOVE_TO_POINT = 6
    };

    explicit CMatPoint(CMathematics * math);
    virtual ~CMatPoint();

    /// Moves by `direction`.
    int SetupActionMoveByDirection(TUVect3D & direction);

    /// Turns by `angle` about the axis through `origin`, anticlockwise seen from the axis's tip, and moves by
    /// `shift` along it.
    int SetupActionMoveByRotation(TUVect3D & origin, TUVect3D & axis, double angle, double shift);

    /// Mirrors in the plane through `origin`.
    int SetupActionMoveByMirror(TUVect3D & origin, TUVect3D & normal);

    /// Turns about `a` so that the leg a-b comes to the leg a-c, and, unless `keepDistance`, scales the
    /// points' shares along a-c by the ratio of the lengths, so that b comes to c. The angle is taken in the
    /// first quadrant: legs at more than a right angle turn the wrong way. Parallel legs aren't turned, only
    /// scaled.
    int SetupActionMoveByStretch(TUVect3D & a, TUVect3D & b, TUVect3D & c, int keepDistance);

    /// Scales each coordinate about `origin` by its own factor.
    int SetupActionMoveByScale(TUVect3D & origin, TUVect3D & factors);

    /// Casts on the plane through `origin`.
    int SetupActionMoveToPlane(TUVect3D & origin, TUVect3D & normal);

    /// Moves everything to one point.
    int SetupActionMoveToPoint(TUVect3D & point);

    /// The place of a point after the action; on failure it stays where it was. Only moving by a direction,
    /// turning and a turning stretch heed a `repeat` above 1. A point within 0.0001 of the origin of a
    /// rotation, mirror, stretch or plane isn't turned, mirrored or cast; nor is one turned that stands
    /// within 0.03 degrees of the axis as seen from the origin.
    int GetNewPoint(TUVect3D & point, int repeat);
    int GetNewPoint(TUVect3D source, TUVect3D & result, int repeat);

    /// The same for an edge. An arc is rebuilt from its moved ends and middle; if they come to lie on one
    /// line, its `arcVector` and bulge are cleared. On failure the edge stays.
    int GetNewEdge3D(TSPlaneEdge3D & edge, int repeat);

    /// The angle between two vectors in the first quadrant, 0 to pi/2.
    double GetAngle(TUVect3D & a, TUVect3D & b);

    /// Turns a vector `repeat` times by the angle of a rotation; 0 for other actions.
    int RotateVectorAroundAxis(TUVect3D & vector, int repeat);

    /// The unit axis of a rotation or unit normal of a mirror or plane; 0 for other actions. `action` is
    /// written in every case.
    int GetAxis(TUVect3D & axis, int & action);

    int GetActionMode() { return m_action; }
    void SetActionMode(int action) { m_action = action; }
    unsigned char GetLastError() { return static_cast<unsigned char>(m_lastError); }

  private:
    bool Begin();
    int Fail(int error);
    int SetAxis(TUVect3D const & origin, TUVect3D const & axis, int action);
    bool BeginMove(int repeat);
    TUVect3D Turned(TUVect3D const & source) const;
    int Stretched(TUVect3D & point) const;
    int Moved(TUVect3D & point) const;

    int m_lastError = 0;
    double m_tolerance = 0.0001;
    int m_keepDistance = 0;
    TUVect3D m_axis = {};
    TUVect3D m_shift = {};
    TUVect3D m_stretchLeg = {};
    double m_lengths[2] = {};
    TUVect3D m_origin = {};
    TUVect3D m_factors = {};
    int m_repeat = -1;
    int m_action = NO_ACTION;
    double m_angle = 0.0;
    CMathematics * m_pMathematics;
};

#endif
