#ifndef KX7_GEOMETRY_OBJECT_3D_H
#define KX7_GEOMETRY_OBJECT_3D_H

#include "geometry/records.h"
#include "platform/base/gdi_types.h"
#include "platform/base/object.h"

class CMathematics;

/// One point, line or arc in space together with a view, for the questions of an interactive editor. Lengths
/// are in model units; the kernel isn't owned and outlives the object.
///
/// Results are 1 or 0, and 0 to every question for an object that is empty or has no kernel. Outputs stay
/// untouched on 0 unless the operation says otherwise.
class KX7_API CObject3D : public CObject
{
    DECLARE_DYNAMIC(CObject3D)

  public:
    /// An empty object; without a view all points are seen in the origin of the view plane.
    explicit CObject3D(CMathematics * math);
    /// An empty object with a view: its matrix, which is copied, and pixels per model unit.
    CObject3D(CMathematics * math, double (*const m)[3], double scale);
    ~CObject3D() override;

    /// Make the object a point, a line, an arc, or what the edge's `type` says; 0 for an unknown type.
    int CreatePoint(TUVect3D point);
    int CreateLine(TUVect3D start, TUVect3D end);
    int CreateArc(TUVect3D start, TUVect3D end, TUVect3D arcVector, double bulge);
    int Create3DEdge(TSPlaneEdge3D edge);

    /// Fills the edge from the object.
    int Make3DEdge(TSPlaneEdge3D & edge);

    /// The length; 0 for a point.
    int GetLength(double * length);

    /// The point at a length from the start; 0 beyond the end by more than the tolerance. A negative length
    /// goes back from the start. A point object gives its point.
    int GetPointFromLength(double length, TUVect3D * point);

    /// The same from the end.
    int GetPointFromLengthReverse(double length, TUVect3D * point);

    /// The length from the start to a point of the object; 0 with `length` 0 if the point isn't on it.
    int GetLengthToPoint(double * length, TUVect3D point);

    /// The point at a percentage of the length, from the start or from the end.
    int GetPointFromPercent(double percent, TUVect3D * point);
    int GetPointFromPercentReverse(double percent, TUVect3D * point);

    /// The ends; a point object is its own start and end.
    int GetStartPoint(TUVect3D * point);
    int GetEndPoint(TUVect3D * point);

    /// End minus start; 0 for a point.
    int GetVector(TUVect3D * vector);

    /// The point halfway along the object.
    int GetCenterPoint(TUVect3D * point);

    /// The centre of the arc's circle; 0 for other kinds and for a flat arc.
    int GetCenterPointOfArc(TUVect3D * point);

    /// 1 if the point lies on the object, between its ends.
    int PointLiesInObject(TUVect3D point);

    /// 1 if the point is one place with the point object or an end.
    int PointIsObjectsVertex(TUVect3D point);

    // Questions on the view plane, in its model units. A point object against a line counts the infinite
    // line.

    /// 1 if the object as seen meets the segment a-b.
    int ObjectIntersects2DLine(TUVect2D a, TUVect2D b);

    /// 1 if the object as seen lies wholly in the rectangle of two opposite corners.
    int ObjectLiesIn2DRectangle(TUVect2D c1, TUVect2D c2);

    /// 1 if it crosses the rectangle's border; never for a point.
    int ObjectIntersects2DRectangle(TUVect2D c1, TUVect2D c2);

    /// 1 if its ends lie inside of the polygon of `count` points. An open polygon is closed in the caller's
    /// array, which needs room for one point more.
    int ObjectLiesIn2DPolygon(int count, TUVect2D * polygon);

    /// 1 if it meets a side of the polygon.
    int ObjectIntersects2DPolygon(int count, TUVect2D * polygon);

    /// Combines the last two, L and I, by `question`: 0 L, 1 L or I, 2 neither, 3 not L, 4 I, 5 not I; others
    /// 0.
    int ObjectVersus2DPolygon(int count, TUVect2D * polygon, int question);

    // Points in common: 1 if there are any. `count` is cleared first; `points` has room for two.

    /// Points in common with another object. Two lines with a stretch in common give its ends; two arcs of
    /// one circle with a stretch in common give `count` 3 and the other's ends. A point against a line counts
    /// the infinite line.
    int IntersectionWithObject3D(CObject3D * other, int * count, TUVect3D * points);

    /// The same without limits: infinite lines and whole circles. `count` 3 comes without points.
    int ApparentIntersectionWithObject3D(CObject3D * other, int * count, TUVect3D * points);

    /// The feet on the object of the perpendiculars from a point.
    int VerticalIntersection(TUVect3D point, int * count, TUVect3D * points);

    /// The points of the arc whose tangents pass through a point of its plane; 0 for other kinds.
    int GetTangensPoint(TUVect3D point, int * count, TUVect3D * points);

    /// Draws the object as it is seen, with the pen that is selected: a point as a circle of radius 3 pixels,
    /// if it lies on the page or screen. 1; 0 for an empty object and an arc without a centre.
    int Draw(HDC hdc, int originX, int originY);

  private:
    bool IsEmpty() const;
    int AgainstRectangle(TUVect2D const & c1, TUVect2D const & c2);
    int CommonWithPoint(TUVect3D const & point, bool limited);
    int CommonOfLines(CObject3D const & line, bool limited, TUVect3D * points);
    int CommonOfArcAndLine(CObject3D const & line, bool limited, TUVect3D * points);
    int CommonOfArcs(CObject3D const & arc, bool limited, TUVect3D * points);
    int Intersect(CObject3D * other, bool limited, int * count, TUVect3D * points);

    CMathematics * m_pMathematics;
    int m_iKind;  // -1 empty, or the kind of edge
    double m_dViewMatrix[3][3];
    double m_dScale;
    TUVect3D m_Point;
    TUVect3D m_Start;
    TUVect3D m_End;
    TUVect3D m_ArcVector;
    double m_dBulge;
};

#endif
