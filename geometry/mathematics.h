#ifndef KX7_GEOMETRY_MATHEMATICS_H
#define KX7_GEOMETRY_MATHEMATICS_H

#include "geometry/records.h"
#include "platform/base/gdi_types.h"
#include "platform/base/object.h"

class CDC;
class CPoint;
class CRect;
class CString;

/// The geometry kernel. A host makes one object and hands its pointer round; it isn't safe to share between
/// threads, since the equation solver and the drawing operations work on its members.
///
/// Conventions: lengths in the host's model units, angles in radians, matrices row by row. An `int` result is
/// 1 for success and 0 for failure unless the operation says otherwise; nothing throws and nothing is shown.
/// "One place" below means closer than the tolerance `Okoli`. An arc is given by start, end, `arcVector` and
/// bulge, as in `TSPlaneEdge3D`.
class KX7_API CMathematics : public CObject
{
    DECLARE_DYNAMIC(CMathematics)

  public:
    CMathematics();
    ~CMathematics() override;

    // ---- vectors and text -------------------------------------------------------------------------------

    /// Sets the tolerance, a length below which two coordinates are one place. Returns the previous one.
    double SetOkoli(double okoli);

    /// The tolerance; 1e-6 after construction.
    double GetOkoli() const;

    /// `value` rounded to a whole number, halves away from zero.
    double Round(double const & value);

    /// Round(value) as an int; a value that no int holds gives the nearest int, NaN gives 0.
    int RoundToInt(double value);

    double RadiansToDegrees(double radians);
    double DegreesToRadians(double degrees);

    /// `value` rounded to a multiple of `precision`, halves upward for negative values too (unlike Round). A
    /// zero precision isn't guarded.
    double GetValWithPrecision(double value, double precision);

    /// `angle`, plus one full turn if it is negative.
    double GetOrientedAngle(double const & angle);

    /// Direction angle from `from` to `to`, in 0 to 2*pi. A vertical direction gives pi/2 or 3*pi/2 exactly,
    /// two equal points pi/2.
    double GetAlfa(TUVect2D const & from, TUVect2D const & to);

    /// `result` = the point at `distance` from `base` in the direction `angle`.
    void Polar(TUVect2D const & base, double angle, double distance, TUVect2D & result);

    /// `vector` turned anticlockwise by `angle` about the coordinate origin.
    TUVect2D rotate(TUVect2D const & vector, double const & angle);

    /// 1 if the points are one place: for `mode` not 0 within the tolerance (in space a sphere, in the plane
    /// a box), for `mode` 0 exactly but for rounding noise.
    int ComparePoints(TUVect3D const & a, TUVect3D const & b, int mode);
    int ComparePoints(TUVect2D const & a, TUVect2D const & b, int mode);

    /// 1 if the vectors are equal: within the tolerance per axis (in space for `mode` not 0, in the plane for
    /// `mode` 1 only); otherwise exactly (in space without, in the plane with rounding noise taken off).
    int CompareVectors(TUVect3D const & a, TUVect3D const & b, int mode);
    int CompareVectors(TUVect2D const & a, TUVect2D const & b, int mode);

    /// 1 if the numbers are equal: within the tolerance for `mode` 1, else exactly but for rounding noise.
    int CompareDouble(double a, double b, int mode);

    /// 1 if the segments a1-a2 and b1-b2 have the same ends, in either order; `mode` as for ComparePoints.
    int CompareLine(TUVect3D & a1, TUVect3D & a2, TUVect3D & b1, TUVect3D & b2, int mode);

    /// The length, by plain arithmetic.
    double GetSizeOfVector(TUVect3D const * vector);

    /// Makes the vector a unit vector. 0, with the vector as it was, if it is no longer than 1e-7.
    int NormOfVector(TUVect3D * vector);
    int NormOfVector(TUVect2D * vector);

    /// The unit vector perpendicular to `a` and `b`, which are normalised in place. 0 with a zero `result` if
    /// either is no longer than 1e-7 (neither changes then) or the sine between them is not above 0.0005.
    int VectorProduct(TUVect3D * a, TUVect3D * b, TUVect3D * result);

    /// `result` = the plain dot product. Always 1.
    int ScalarProduct(TUVect3D * a, TUVect3D * b, double & result);

    /// `result` = the sine of the angle between the vectors; 0 unless both are longer than 1e-10.
    void SinOfVectors(TUVect3D * a, TUVect3D * b, double * result);

    /// The distance of two points, by plain arithmetic.
    double GetDistance(TUVect2D const & a, TUVect2D const & b);
    double GetDistance(TUVect3D const & a, TUVect3D const & b);

    /// Against its name: `result` = b - a, rounding noise taken off. Always 1.
    int GetDistance3D(TUVect3D const & a, TUVect3D const & b, TUVect3D & result);

    /// The point (x, y, z).
    TUVect3D SetPoint3D(double const & x, double const & y, double const & z);

    /// point = m point, and point = transposed m point, by plain sums.
    void MatrixPoint(double (*const m)[3], TUVect3D & point);
    void MatrixTransPoint(double (*const m)[3], TUVect3D & point);

    /// m = t m transposed(t), and m = transposed(t) m t, by plain sums.
    void MatrixTenzor(double (*const t)[3], double (*const m)[3]);
    void MatrixTransTenzor(double (*const t)[3], double (*const m)[3]);

    /// m v, by plain sums.
    TUVect3D mul(double (*const m)[3], TUVect3D const & v);

    /// Solves m_dEqA times m_dEqX = m_dEqB for three right-hand columns at once; m_dEqA and m_dEqB are
    /// destroyed. 0 if a pivot is missing; a matrix of zeros isn't caught.
    int SolveEqSystem33();

    /// The polynomial with the coefficient `coefficients[i]` of x to the power i, for i = 0 to `degree`.
    double PolynomValue(double x, unsigned char degree, double * const coefficients);

    /// Reads one number with blanks and tabs around it. 0 if there is none or anything follows it (`value` is
    /// written all the same), and for a zero whose first character isn't "0".
    int SimpleFloatParse(char const * text, double & value);

    /// 1 if each character of `line` is a decimal digit or stands in `allowed`.
    int CheckInputLine(CString const & line, CString const & allowed);

    /// Removes all blanks. 0 for an empty text.
    int SpacesOutOfString(CString & text);

    /// Reads a typed point, vector or direction: "1,2,3" absolute, "@1,2,3" relative, "<45" an angle, "X",
    /// "Y", "Z", "I" or "IZO" a unit direction. A keyword, "@" and "<" pass whatever `allowed` holds; the
    /// rest may have digits, " .,+-E" and the characters of `allowed`. `form`: 1, 2, 3 for three, two, one
    /// absolute numbers, 4, 5, 6 for relative ones, 7 for an angle in `a` (`b`, `c` untouched), 8 for a
    /// keyword. Missing numbers are 0. Returns 0, outputs untouched, for an empty or foreign line or three
    /// commas.
    int StripString(CString line, CString allowed, double & a, double & b, double & c, int & form);

    /// The same with `values[0]` to `values[2]` as a, b, c.
    int StripString(CString line, CString allowed, double * const values, int & form);

    // ---- views and projections --------------------------------------------------------------------------

    // A view is the matrix m and its inverse. Row 0 of m gives u (to the right), row 1 v (upward), row 2 the
    // depth. A point stands on the screen at originX + u * scale, originY - v * scale, with `scale` in pixels
    // per model unit. The three ways of rounding to pixels below differ on purpose.

    /// Both matrices of the view with the three `angles`; `handed` 0 turns the sign of one axis. The inverse
    /// comes from the equation solver, whose failure isn't looked at.
    void ComputeViewMatrix(int handed, double (*const m)[3], double (*const inverse)[3], TUVect3D angles);

    /// A view from the direction (x, y, z), given from the viewer's side, if `byDirection` is 1, else from
    /// the angles x, y, z. Writes both matrices, the angles and the unit direction. A direction shorter than
    /// 1e-10 changes nothing.
    void DefineView(double x, double y, double z, int byDirection, int handed, TUVect3D * direction,
                    TUVect3D * angles, double (*const m)[3], double (*const inverse)[3]);

    /// `result` = the slide vector for PRtoPR that carries a point of the projection plane of `direction`
    /// along `c`; `a` has no effect. 0 if `c` lies in the projection plane or `direction` is none.
    int DefineProjection(int handed, TUVect3D const & a, TUVect3D const & direction, TUVect3D const & c,
                         TUVect3D * result);

    /// `result` = the point in space of the projection plane's coordinates u, v.
    void PRtoUS(double const & u, double const & v, TUVect3D * result, double const (*inverse)[3]);

    /// The same, then moved along `slide` by its distance from the plane through `origin` with the normal
    /// `n`.
    void PRtoPR(double const & u, double const & v, TUVect3D * result, double const (*inverse)[3],
                TUVect3D const & slide, TUVect3D const & origin, TUVect3D const & n);

    /// Projected coordinates, u to the right and v upward, in model units; without a matrix in the stored
    /// view.
    double u3D(double const & x, double const & y, double const & z, double const (*m)[3]);
    double v3D(double const & x, double const & y, double const & z, double const (*m)[3]);
    double u3D(TUVect3D const * point);
    double v3D(TUVect3D const * point);

    /// (u, v) of the point, in model units.
    void Get2DCoord(double const (*m)[3], TUVect3D const & point, TUVect2D & result);

    /// The point's pixel, u * scale and v * scale rounded as RoundToInt does.
    void GetInt2DCoord(int const & originX, int const & originY, double const (*m)[3], double const & scale,
                       TUVect3D const & point, int & x, int & y);

    /// The point's pixel in the stored view, u * scale and v * scale truncated, as doubles.
    void Get2DCoord(TUVect3D const * point, TUVect2D * result);

    /// The floors of u * scale and v * scale, without an origin.
    void Point3DToView2D(double const (*m)[3], double const & scale, TUVect3D const & point,
                         TUVect2D & result);

    /// u and v of the pixel (x, y); 0, 0 for a scale below 1e-22.
    void GetWorld2DCoord(int originX, int originY, double scale, int x, int y, double & u, double & v);

    /// u and v of the lower left (u1, v1) and upper right (u2, v2) corner of a window of the size of `rect`
    /// whose upper left corner is the pixel `origin`; the model origin stands at (originX, originY).
    void GetWorldWindowCorners(CPoint origin, CRect rect, int originX, int originY, double scale, double & u1,
                               double & v1, double & u2, double & v2);

    /// The midpoint, in space, projected to (u, v), and as a pixel.
    void GetCenterPoint(TUVect3D const & a, TUVect3D const & b, TUVect3D & result);
    void Get2DCenterPoint(double const (*m)[3], TUVect3D const & a, TUVect3D const & b, TUVect2D & result);
    void GetInt2DCenterPoint(int const & originX, int const & originY, double const (*m)[3],
                             double const & scale, TUVect3D & a, TUVect3D & b, int & x, int & y);

    /// Stores the view state for the operations that take no matrix.
    void SetViewParams(int originX, int originY, double (*const m)[3], double scale);

    /// Turns coordinates in a plane's system (x along `axisX`, y along `axisY`, z along the normal) into
    /// global ones. `mode` 0: rectangular; 1: cylindrical, x the radius, y along the normal, z the angle from
    /// `axisX`; 2: spherical, x the radius, y the angle in the plane, z the angle above it. The plane's
    /// normal and both axes are normalised in place.
    void TransUSS_GSS(TSPlane * plane, TUVect3D * axisX, TUVect3D * axisY, int mode, TUVect3D * point);

    /// The way from global coordinates, the exact reverse of TransUSS_GSS only for `mode` 0 and an origin of
    /// zero: the plane's origin is taken off after the projection on the axes, x stays as in `mode` 0 always,
    /// and in modes 1 and 2 y becomes 1 or 0 for a point off or on the plane's normal.
    void TransGSS_USS(TSPlane * plane, TUVect3D * axisX, TUVect3D * axisY, int mode, TUVect3D * point);

    /// `point` in the system of a member from `origin` along `direction`, turned by `angle` about the member:
    /// x across it and level, y across it, z along it. A direction with a level part below 1e-5 counts as
    /// vertical. Always 1.
    int TransGssToLss(TUVect3D * origin, TUVect3D * direction, double angle, TUVect3D * point,
                      TUVect3D * result);

    /// The way back. Always 1.
    int TransLssToGss(TUVect3D * origin, TUVect3D * direction, double angle, TUVect3D * point,
                      TUVect3D * result);

    // ---- drawing ----------------------------------------------------------------------------------------

    // Lines are clipped to the page or the screen and not to the window, which keeps device coordinates
    // within what the device can draw at high zoom. They take the pen that is selected.

    /// The rectangle that lines are clipped to: the page for a printer (technology 2), otherwise the screen,
    /// also for a null context.
    CRect GetScissorRect(HDC hdc);
    CRect GetScissorRect(CDC * dc);

    /// 1 if the pixel (x, y) lies in the rectangle or the context's scissor rectangle, all four borders
    /// included.
    int ScissorTest(HDC hdc, int x, int y);
    int ScissorTest(CDC * dc, int x, int y);
    int ScissorTest(CRect rect, int x, int y);

    /// A line between two pixels, as far as it lies in the scissor rectangle. The 2D pen moves to its end.
    void Line2D(HDC hdc, int x1, int y1, int x2, int y2);

    /// Moves the 2D pen; the old place goes to `previous` unless that is null.
    void MoveTo2D(HDC hdc, int const & x, int const & y, tagPOINT * previous);

    /// Line2D from the 2D pen.
    void LineTo2D(HDC hdc, int const & x, int const & y);

    /// A line in space, seen with the matrix, at GetInt2DCoord's pixels. The 3D pen moves to its end.
    void Line3D(HDC hdc, int const & originX, int const & originY, double const (*m)[3], double const & scale,
                TUVect3D const & a, TUVect3D const & b);

    /// Moves the 3D pen to a point of the model; the view doesn't matter.
    void MoveTo3D(HDC hdc, int const & originX, int const & originY, double const (*m)[3],
                  double const & scale, TUVect3D const & point);

    /// Line3D from the 3D pen.
    void LineTo3D(HDC hdc, int const & originX, int const & originY, double const (*m)[3],
                  double const & scale, TUVect3D const & point);

    /// Three arms through the point along x, y and z, `size` model units to each side, not clipped.
    void Cross3D(HDC hdc, int const & originX, int const & originY, double const (*m)[3],
                 double const & scale, TUVect3D const & point, float size);

    /// A polygon of pixels filled and outlined in a colour. The brush that was selected before is handed to
    /// DeleteObject in place of the one made here: one brush stays behind with each call.
    void DrawFillPoly2D(HDC hdc, tagPOINT * const points, int count, unsigned long colour);

    /// The same for points in space; nothing for fewer than 2.
    void DrawFillPoly3D(HDC hdc, int const & originX, int const & originY, double const (*m)[3],
                        double const & scale, TUVect3D * points, int count, unsigned long colour);

    /// An arc in space as lines of at most `step` radians each, at least 5; a flat one as its chord. 1, or 0
    /// with nothing drawn for an arc without a centre.
    int Draw3dArc(HDC hdc, int const & originX, int const & originY, double const (*matrix)[3],
                  double const & scale, TUVect3D const & start, TUVect3D const & end,
                  TUVect3D const & arcVector, double const & bulge, double step);

    // ---- arcs and bulges --------------------------------------------------------------------------------

    // The bulge of an arc is its sagitta over its half chord, tan(included angle / 4). Only the part of
    // `arcVector` perpendicular to the chord counts: a positive bulge puts the apex on its side, a negative
    // one on the other. In the plane a positive bulge puts the apex left of the chord from start to end. An
    // arc travels from start to end as a positive turn about `arcVector` x chord (negative bulge: minus it).
    // Outputs stay untouched on failure unless an operation says otherwise.

    /// The centre. 0 for |bulge| below 1e-5, which counts as a line, and for an `arcVector` along the chord.
    /// A negative bulge mirrors the centre across the chord.
    int Get3DArcCenter(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                       double const & bulge, TUVect3D & centre);

    /// The centre and signed radius with other limits: 0 for |bulge| below 1e-10 or a half chord not above
    /// the tolerance. The side isn't turned by a negative bulge, unlike Get3DArcCenter; only `radius` is.
    int GetArcCentre(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector, double bulge,
                     TUVect3D & centre, double & radius);

    /// Centre and radius (not negative) of a plane arc. Always 1; a zero bulge isn't guarded.
    int GetArcCentre2D(TUVect2D const & start, TUVect2D const & end, double const & bulge, TUVect2D & centre,
                       double & radius);

    /// GetArcCentreVectorBulge without its last two outputs.
    int GetArcCentre(TUVect2D const & start, TUVect2D const & end, double bulge, TUVect2D & centre,
                     double & radius);

    /// Centre and radius of a plane arc, the unit vector from the middle of the chord to the apex and
    /// |bulge|. 0 for a zero bulge or chord, with only `absBulge` written.
    int GetArcCentreVectorBulge(TUVect2D const & start, TUVect2D const & end, double bulge, TUVect2D & centre,
                                double & radius, TUVect2D & direction, double & absBulge);

    /// The radius, with the sign of the bulge. Always 1; a zero bulge isn't guarded.
    int GetRadiusOf3DArcFromTwoPointsAndBulge(TUVect3D const & start, TUVect3D const & end,
                                              double const & bulge, double & radius);

    /// The length along the arc: 0 if the ends are one place, the chord for |bulge| below 1e-14. A bulge
    /// below -1 is measured as the smaller arc of its circle.
    double GetArcLength(TUVect3D const & start, TUVect3D const & end, double const & bulge);

    /// The included angle of the smaller arc with this radius; 0 with `angle` 0 if the chord doesn't fit.
    int GetAngleOfArc(TUVect3D const & start, TUVect3D const & end, double const & radius, double & angle);

    /// The angle from `a` to `b` about `normal`, 0 to 2*pi, to seven decimals; 0 if either is shorter than
    /// 1e-7. Always 1.
    int GetOrientAngle(TUVect3D a, TUVect3D b, TUVect3D const & normal, double & angle);

    /// Bulge and `arcVector` of the arc about `centre`: the smaller one for `smaller` 1, else the larger one,
    /// which goes round the centre. A centre on the chord gives 0 with the bulge of the half circle written;
    /// a zero chord 0 with bulge 0.
    int CalcBulgeOf3DArc2PtsAndCenter(TUVect3D const & start, TUVect3D const & end, TUVect3D & centre,
                                      TUVect3D * arcVector, double & bulge, int smaller);

    /// Bulge of the smaller arc with this radius. 0 with bulge 0 for a zero chord.
    int CalcBulgeOf3DArc2PtsAndRadius(TUVect3D const & start, TUVect3D const & end, double radius,
                                      double & bulge);

    /// Bulge and unit `arcVector` of the arc through three points. 0, both cleared, if they lie on one line.
    int CalcBulgeOf3DArc3Points(TUVect3D const & start, TUVect3D const & end, TUVect3D const & through,
                                TUVect3D * arcVector, double & bulge);

    /// Bulge from chord length and radius, of the larger arc if `big` isn't 0. 0, `bulge` cleared, if the
    /// chord is zero or doesn't fit.
    int CalcBulgeLengthAndRadius(double chord, double radius, double & bulge, int big);

    /// Radius from bulge and chord length, and whether it is the larger arc. For a negative bulge the radius
    /// is negative and `big` the opposite. 0, `radius` cleared, for |bulge| below 1e-5.
    int CalcRadiusFromBulgeAndLength(double bulge, double chord, double & radius, int & big);

    /// `arcVector` and bulge of the other arc of the circle between the same ends. Always 1.
    int GetArcComplement(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                         double const & bulge, TUVect3D & complementVector, double & complementBulge);

    /// Slides `point` along the chord's direction until it stands over the middle of the chord. 0 for a point
    /// on the chord's line.
    int MovePtTo3DArcCenter(TUVect3D const & start, TUVect3D const & end, TUVect3D * point);

    /// End points of two tangent handles, half a chord long, at start (`p1`, ahead) and end (`p2`, back), for
    /// the circle's `axis`. 0 as Get3DArcCenter.
    int Get3DArcTangentPoints(TUVect3D const & start, TUVect3D const & end, TUVect3D const & axis,
                              TUVect3D const & arcVector, double bulge, TUVect3D & p1, TUVect3D & p2);

    /// Unit tangents at the ends of a plane arc, both toward the apex: `t1` ahead from the start, `t2` back
    /// from the end. 0 as GetArcCentreVectorBulge.
    int GetArcTangentVectors(TUVect2D const & start, TUVect2D const & end, double bulge, TUVect2D & t1,
                             TUVect2D & t2);

    /// Direction angle of a plane arc's tangent at the start, not reduced to one turn.
    double GetArcTanAngle(TUVect2D const & start, TUVect2D const & end, double const & bulge);

    /// A polyline along the arc, at least 5 segments, none above 0.20667 radians; the caller frees `points`
    /// with delete[]. `arcVector` becomes its unit part perpendicular to the chord. A flat arc gives its two
    /// ends; an angle that comes out as 0 gives 1 with `count` and `points` untouched.
    int Make3dArc(TUVect3D const & start, TUVect3D const & end, TUVect3D & arcVector, double bulge,
                  long & count, TUVect3D *& points);

    /// The point at `value` along the arc from its start: a length (`mode` 0), a fraction (1) or a percentage
    /// (2). 0 beyond the end by more than the tolerance; a negative value goes back from the start.
    int Get3DPointOnArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                        double const & bulge, double const & value, int const & mode, TUVect3D & point);

    /// The point at `distance` along the circle from `point`, which must lie on the arc, toward the end.
    int MovePointAlongArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                          double const & bulge, TUVect3D const & point, double const & distance,
                          TUVect3D & result);

    /// 1 if `point` lies on the arc, and on the arc or its complement.
    int PointOnArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                   double const & bulge, TUVect3D const & point);
    int PointOnCircle(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                      double const & bulge, TUVect3D const & point);

    /// The arc from the same start on the same circle with a new length; a flat arc as StretchLine3D. 0 for
    /// 1.95 pi or more, and for an arc too flat for three points to give it.
    int StretchArc3D(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                     double const & bulge, double const & length, TSPlaneEdge3D & result);

    /// The segment from the same start with a new length; writes start, end and type only.
    int StretchLine3D(TUVect3D const & start, TUVect3D const & end, double length, TSPlaneEdge3D & result);

    /// The edge with a new length by its type; a point edge is copied.
    int StretchEdge3D(TSPlaneEdge3D const & edge, double length, TSPlaneEdge3D & result);

    /// Turns `vector` about `axis`. 0, with the vector made a unit vector, for an axis shorter than 1e-8; a
    /// vector shorter than that stays.
    int RotateVectorAroundAxis(TUVect3D & vector, TUVect3D const & axis, double const & angle);

    /// New bulges of the two edges, ends given, that follow the arc `old` at the distance `offset` on either
    /// side: the one whose chord is not shorter outside, else inside. 0, bulges untouched, if the arc is too
    /// small for the offset or has no radius.
    int ReduceBulge(TSPlaneEdge2D const & old, TSPlaneEdge2D & a, TSPlaneEdge2D & b, double offset);

    // ---- lines, planes and rectangles in space ----------------------------------------------------------

    /// The plane through three points, its origin the first. 0 if they lie on one line; a nearly parallel
    /// pair of sides gives a zero normal and 1.
    int DefinePlane(TUVect3D * const points, TSPlane & plane);
    int DefinePlane(TUVect3D const & a, TUVect3D const & b, TUVect3D const & c, TSPlane & plane);

    /// 1 if `p` lies on the infinite line through `a` and `b`. The squared sine times the distance from `a`
    /// is compared, so a far point may stand further off than the tolerance. 0 if `a` and `b` are one place.
    int PointLiesOnLine(TUVect3D a, TUVect3D b, TUVect3D p);

    /// 1 if `p` is one place with the plane's origin or its direction from there is perpendicular to the unit
    /// `normal` within the tolerance: a test of the angle, not of the distance.
    int PointLiesInPlane(TSPlane const & plane, TUVect3D const & p);
    int PointLiesInPlane(TUVect3D const & origin, TUVect3D const & normal, TUVect3D const & p);

    /// Distance of `p` from the infinite line a-b, its foot there and the foot's parameter (0 at `a`, 1 at
    /// `b`). 0 if the line is shorter than 1e-10.
    int GetDistancePointToLine(TUVect3D const & p, TUVect3D const & a, TUVect3D const & b, double & distance,
                               TUVect3D & foot, double & t);

    /// Where `p` stands on the line a-b: -1 behind `a`, 1 on the segment, 2 beyond `b`, 0 off the line.
    int IsPointOnExtendedLine(TUVect3D const & a, TUVect3D const & b, TUVect3D const & p);

    /// `foot` = the foot of the perpendicular from `p` to the line a-b. 1 if it lies within the segment.
    int PointCastOnLine(TUVect3D const & a, TUVect3D const & b, TUVect3D const & p, TUVect3D & foot);

    /// 1 if `p` lies on the segment a-b, with its distance from `a`; `distance` is 0 or the tried one else.
    int IsPoint3DInLine(TUVect3D const & a, TUVect3D const & b, TUVect3D const & p, double & distance);

    /// The point at `value` from `a` along a-b: a distance (`mode` 0), a fraction (1) or a percentage (2). 0
    /// for a zero segment or another mode, and, with the point written, for a point outside the segment.
    int GetPoint3DOnLine(TUVect3D const & a, TUVect3D const & b, TUVect3D & point, double const & value,
                         int const & mode);

    /// The case analysis of two lines. `mode` 1 takes them as segments, others as infinite. Not parallel: the
    /// nearest points p1, p2 of the infinite lines with their parameters t, u, `hit` 1, `kind` 0; 1 if they
    /// meet. Parallel and apart: 0, `kind` 11. One line: `kind` 10, t and u the parameters of b1 and b2 on
    /// the first; with a common stretch `hit` is 1 and p1, p2 its ends. 0 with all cleared for a zero
    /// segment.
    int LineIntersectionParameters(TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1,
                                   TUVect3D const & b2, int mode, TUVect3D & p1, TUVect3D & p2, int & kind,
                                   double & t, double & u, int & hit);

    /// The same with the point of meeting in `p1` (`p2` untouched) and `kind` telling where it lies: 1
    /// outside both, 2 inside both, 3 outside the first, inside the second, 4 the reverse, 5 end of the
    /// first, inside the second, 6 the reverse, 7 end of the second, outside the first, 8 the reverse, 9 end
    /// of both, 10 one line (9 if in one point; p1, p2 the ends of the common stretch), 0 none, parallel
    /// lines too.
    int LineIntersection(TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1, TUVect3D const & b2,
                         int mode, TUVect3D & p1, TUVect3D & p2, int & kind);

    /// The infinite line a-b against a plane: 1 with the crossing in `point`, 2 if it lies in the plane, else
    /// 0.
    int LineTSPlaneIntersection(TUVect3D const & a, TUVect3D const & b, TSPlane const & plane,
                                TUVect3D & point);

    /// An edge against a plane; `pieces` (freed by the caller with delete[]) gets `count` records. 1 for
    /// point edges, also with `count` 0 for an arc; 2 for a copy of an edge in the plane; 1 for a point edge
    /// in it. A line is taken as infinite. 0 with null and 0 for none.
    int EdgeTSPlaneIntersection(TSPlaneEdge3D * const edge, TSPlane const & plane, TSPlaneEdge3D *& pieces,
                                int & count);

    /// The infinite line through `point` along `direction` against the rectangle corner + a side1 + b side2
    /// with a, b in 0 to 1; `result` is the crossing, for a line within the rectangle's plane a common point.
    int LineRectangleIntersection(TUVect3D const & point, TUVect3D const & direction, TUVect3D const & corner,
                                  TUVect3D const & side1, TUVect3D const & side2, TUVect3D & result);

    /// The infinite line against the bilinear patch with the corners q0, q1, q2, q3 in order: the number of
    /// crossings, in p1 and p2; 16 if the line lies in the patch. The parameters of each crossing run from
    /// side q0-q3 to side q1-q2 (`r`) and from side q0-q1 to side q3-q2 (`s`).
    int GetLineQuadIntersectionParameters(TUVect3D const & q0, TUVect3D const & q1, TUVect3D const & q2,
                                          TUVect3D const & q3, TUVect3D const & point,
                                          TUVect3D const & direction, TUVect3D & p1, TUVect3D & p2,
                                          double & r1, double & s1, double & r2, double & s2);
    int GetLineQuadIntersection(TUVect3D const & q0, TUVect3D const & q1, TUVect3D const & q2,
                                TUVect3D const & q3, TUVect3D const & point, TUVect3D const & direction,
                                TUVect3D & p1, TUVect3D & p2);

    /// A segment, projected with the view matrix, against a rectangle of the view plane (corners in any
    /// order): 0 outside, 1 inside, 2 crossing.
    int LineRectIntersection(TUVect3D const & a, TUVect3D const & b, double const & left, double const & top,
                             double const & right, double const & bottom, double const (*matrix)[3]);

    /// 1 if both ends of the segment lie in the rectangle, borders included.
    int LineInRectangle(TUVect3D const & a, TUVect3D const & b, double const & left, double const & top,
                        double const & right, double const & bottom, double const (*matrix)[3]);
    int LineInRectangle(double const & x1, double const & y1, double const & x2, double const & y2,
                        double const & left, double const & top, double const & right, double const & bottom);

    /// 1 if the segment and the rectangle have a point in common. A segment that isn't vertical must pass
    /// some way between the rectangle's vertical borders; touching one of them from outside doesn't count.
    int LineIntersectsRectangle(TUVect3D const & a, TUVect3D const & b, double const & left,
                                double const & top, double const & right, double const & bottom,
                                double const (*matrix)[3]);
    int LineIntersectsRectangle(double const & x1, double const & y1, double const & x2, double const & y2,
                                double const & left, double const & top, double const & right,
                                double const & bottom);

    /// 1 if the projected point lies in the rectangle, with half the tolerance as margin.
    int IsPointInRectangle(TUVect3D const & p, double const & left, double const & top, double const & right,
                           double const & bottom, double const (*matrix)[3]);

    /// 1 if the point lies in the rectangle of two opposite corners, with half the tolerance as margin.
    int PointInRectangle(TUVect2D const & p, TUVect2D const & c1, TUVect2D const & c2);

    /// 'B' within the tolerance of the rectangle's border, also just outside; 'I' inside, 'O' outside.
    char PointInRectangle(double const & x, double const & y, double const & x1, double const & y1,
                          double const & x2, double const & y2);

    /// 1 if `p` lies on the segment a-b within the tolerance.
    int PointLiesOnSegment(TUVect2D const & a, TUVect2D const & b, TUVect2D const & p);

    /// 1 if `p` is one place with one of the first `count` - 1 points (the last repeats the first).
    int PointLiesAtVertex(TUVect2D const & p, TUVect2D const * points, int const & count);

    /// The crossing `y` of the vertical through `x` with the segment a-b; 0 if it passes the segment by or
    /// the segment is vertical.
    int IntersectsY(TUVect2D const & a, TUVect2D const & b, double x, double & y);

    /// 1 if `p` lies in the straight polygon of `count` points; on its boundary the answer is
    /// `boundaryCounts` as 0 or 1. An open polygon is closed in the caller's array, which needs room for one
    /// point more.
    int PointLiesInPolygon(TUVect2D const & p, TUVect2D * polygon, int count, int boundaryCounts);

    // ---- arc intersections in space ---------------------------------------------------------------------

    // Parameters: on a line 0 at its start and 1 at its end; on an arc (1 - cosine of the angle at the
    // chord's midpoint between start and point) / 2, 0 at its start, 1 at its end, growing along the arc, -1
    // across the chord. Codes: 0 nothing, 1 one point (p1), 2 two points, 17 a tangent point (p1), 3 two arcs
    // of one circle with a stretch in common, 33 an arc within the plane, 16 an arc wholly on the plane's
    // positive side. `flags`: 2 a first point exists, 8 a second, 1 and 4 their parameters are filled. Don't
    // read outputs after a 0.

    /// An arc against the line l1-l2; `mode` 1 limits the line to the segment. The arc is limited always.
    int ArcLineIntersectionParameters(TUVect3D const & start, TUVect3D const & end,
                                      TUVect3D const & arcVector, double const & bulge, TUVect3D const & l1,
                                      TUVect3D const & l2, TUVect3D & p1, TUVect3D & p2, int mode,
                                      double & arcT1, double & lineT1, double & arcT2, double & lineT2,
                                      int & flags);

    /// The same without parameters; a single hit of two elements that share an end point counts as none.
    int ArcLineIntersection(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                            double const & bulge, TUVect3D const & l1, TUVect3D const & l2, TUVect3D & p1,
                            TUVect3D & p2, int mode);

    /// The same; shared end points count.
    int ArcLineIntersectionPlus(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                double const & bulge, TUVect3D const & l1, TUVect3D const & l2, TUVect3D & p1,
                                TUVect3D & p2, int mode);

    /// An arc against a plane; `count` is the number of points in p1, p2.
    int ArcPlaneIntersectionParameters(TUVect3D const & start, TUVect3D const & end,
                                       TUVect3D const & arcVector, double const & bulge,
                                       TUVect3D const & origin, TUVect3D const & normal, TUVect3D & p1,
                                       TUVect3D & p2, int & count);
    int ArcPlaneIntersection(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                             double const & bulge, TUVect3D const & origin, TUVect3D const & normal);

    /// Two arcs. Mind the order of the parameters: a1 on A for p1, b2 on B for p2, b1 on B for p1, a2 on A
    /// for p2. For arcs of one circle p1, p2 are B's ends with a1, a2 on A, and b1, b2 are those of A's ends
    /// on B. `flags` here: 1, 2, 4, 8 for a1, b2, b1, a2 filled.
    int ArcIntersectionParameters(TUVect3D const & startA, TUVect3D const & endA, TUVect3D const & arcVectorA,
                                  double const & bulgeA, TUVect3D const & startB, TUVect3D const & endB,
                                  TUVect3D const & arcVectorB, double const & bulgeB, TUVect3D & p1,
                                  TUVect3D & p2, double & a1, double & b2, double & b1, double & a2,
                                  int & flags);

    /// The same without parameters; a single hit of arcs that share an end point counts as none, and code 3
    /// stays only for a true common stretch.
    int ArcIntersection(TUVect3D const & startA, TUVect3D const & endA, TUVect3D const & arcVectorA,
                        double const & bulgeA, TUVect3D const & startB, TUVect3D const & endB,
                        TUVect3D const & arcVectorB, double const & bulgeB, TUVect3D & p1, TUVect3D & p2);

    /// Neither element limited. Class of a point on the arc: 2 on it, 1 on the rest of its circle; on the
    /// line: 2 on the segment, 1 beyond l2, -1 before l1. Returns the number of classified points.
    int ExtendedLineArcIntersection(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                    double const & bulge, TUVect3D const & l1, TUVect3D const & l2,
                                    TUVect3D & p1, TUVect3D & p2, int & arcClass1, int & lineClass1,
                                    int & arcClass2, int & lineClass2);

    /// The same for two arcs; 3 for arcs of one circle with a stretch in common.
    int ExtendedArcIntersection(TUVect3D const & startA, TUVect3D const & endA, TUVect3D const & arcVectorA,
                                double const & bulgeA, TUVect3D const & startB, TUVect3D const & endB,
                                TUVect3D const & arcVectorB, double const & bulgeB, TUVect3D & p1,
                                TUVect3D & p2, int & classA1, int & classB1, int & classA2, int & classB2);

    /// 2 if `p` lies on the arc, 1 on the rest of its circle, else 0; a flat arc answers as
    /// IsPointOnExtendedLine.
    int IsPointOnExtendedArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                             double const & bulge, TUVect3D const & p);

    /// 1 if `p` lies on the arc, with its distance along the arc from the start.
    int IsPoint3DInArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                       double const & bulge, TUVect3D const & p, double & distance);
    int IsPoint3DInArc(TSPlaneEdge3D & arc, TUVect3D const & p, double & distance);

    /// An arc seen in the view plane against a rectangle there: 1 wholly inside, 2 crossing a side, else 0.
    int ArcRectIntersection(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                            double const & bulge, double left, double top, double right, double bottom,
                            double const (*matrix)[3]);

    /// 1 if the arc, seen in the view plane, crosses the segment (x1, y1)-(x2, y2) there.
    int ArcLineIntersection(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                            double const & bulge, double const & x1, double const & y1, double const & x2,
                            double const & y2, double const (*matrix)[3]);

    /// The feet on the arc of the perpendiculars from `p`: their number, 0 for a `p` on the arc's axis.
    /// `foot` and `other` get both feet on the circle, those on the arc first, then the nearer one; their
    /// classes are 2 on the arc, 1 on the rest of the circle, 0 for none. A flat arc has one foot, on its
    /// chord.
    int PointCastOnArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                       double const & bulge, TUVect3D const & p, TUVect3D & foot, TUVect3D & other,
                       int & class1, int & class2);

    /// The points of the arc whose tangents pass through `p`, which must lie in the arc's plane: their
    /// number. `t1` and `t2` get those on the whole circle, `count` of them, with classes as for
    /// PointCastOnArc and those on the arc first. A point on the circle is its own tangent point; a flat arc
    /// has none.
    int Arc3DTangentPoints(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                           double const & bulge, TUVect3D const & p, TUVect3D & t1, TUVect3D & t2,
                           int & count, int & class1, int & class2);

    // ---- edge algebra -----------------------------------------------------------------------------------

    // Points, segments and arcs behind one type. All comparisons use the tolerance. A set of edges comes as
    // an array and its count; the caller frees the array with delete[]. A result of 0 leaves the array null
    // and the count 0. `how` tells how two edges meet: 0 they are the same edge (one record, a copy), 1 they
    // overlap in stretches (line or arc records), 2 they meet in separate points (point records).

    /// A record with the given fields, the rest cleared; for a point start and end are both the point.
    TSPlaneEdge3D GetEdgeFromPoint(TUVect3D * const point);
    TSPlaneEdge3D GetEdgeFromLine(TUVect3D * const start, TUVect3D * const end);
    TSPlaneEdge3D GetEdgeFromArc(TUVect3D * const start, TUVect3D * const end, TUVect3D * const arcVector,
                                 double const & bulge);

    /// 1 for the same edge, in either direction; arcs by their ends and their middle.
    int CompareArc(TSPlaneEdge3D * a, TSPlaneEdge3D * b);
    int CompareEdge(TSPlaneEdge3D * a, TSPlaneEdge3D * b);

    /// What two edges have in common. Frees what `result` holds on entry; `a` and `b` may lie in it.
    int EdgeIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                         int & count, int & how);

    /// The single cases of EdgeIntersection, by the types of `a` and `b` in this order. `result` isn't freed
    /// on entry, only written.
    int EdgePointPointIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                                   int & count, int & how);
    int EdgePointLineIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                                  int & count, int & how);
    int EdgePointArcIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                                 int & count, int & how);
    int EdgeLineLineIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                                 int & count, int & how);
    int EdgeLineArcIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                                int & count, int & how);
    /// Arcs of one circle that share no more than points keep `how` 1.
    int EdgeArcArcIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                               int & count, int & how);

    /// The common stretch of two segments; p1 and p2 are one place if they only touch.
    int LineLiesOnLine(TUVect3D & a1, TUVect3D & a2, TUVect3D & b1, TUVect3D & b2, TUVect3D & p1,
                       TUVect3D & p2);

    /// The common stretches of two arcs of one plane, centre and radius, one or two, each in the direction of
    /// an arc it comes from; a point record where they only touch. `result` isn't freed on entry.
    int ArcLiesOnArc(TSPlaneEdge3D * a, TSPlaneEdge3D * b, TSPlaneEdge3D *& result, int & count);

    /// The same for two edges of one type. Frees what `result` holds on entry.
    int Edge3DLiesOnEdge3D(TSPlaneEdge3D * a, TSPlaneEdge3D * b, TSPlaneEdge3D *& result, int & count);

    /// 1 if the second edge lies wholly on the first. An edge of another type than a point never does.
    int IsLineInLine(TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1, TUVect3D const & b2);
    int IsArcInArc(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b);
    int IsEdgeInEdge(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b);

    /// 1 if the point lies on the edge, with its distance along the edge from the start.
    int IsPoint3DInEdge3D(TSPlaneEdge3D const & edge, TUVect3D const & point, double & distance);

    /// The point at `value` along the edge: a distance (`mode` 0), a fraction (1) or a percentage (2). A
    /// point edge gives its point whatever the mode.
    int Get3DPointOnEdge3D(TSPlaneEdge3D const & edge, double const & value, int const & mode,
                           TUVect3D & point);

    /// The unit vector of travel at a point of the edge; zero for a point edge and where there is none.
    TUVect3D GetDerivationVectorOnEdge3D(TSPlaneEdge3D const & edge, TUVect3D & point);
    TUVect3D GetDerivationVectorOnEdge3D(TSPlaneEdge3D const & edge, double const & value, int const & mode);

    /// The length; 0 for null and a point edge.
    double GetLengthEdge3D(TSPlaneEdge3D * edge);

    /// The part of a line or arc between two places, in that direction. For a line the places aren't checked;
    /// for an arc they must lie on it, and two places in one give a point edge.
    int GetSectionOfEdge(TSPlaneEdge3D const & edge, TUVect3D & from, TUVect3D & to, TSPlaneEdge3D * result);
    int GetSectionOfArc(TSPlaneEdge3D const & arc, TUVect3D & from, TUVect3D & to, TSPlaneEdge3D * result);

    /// The same between two distances from the start.
    int GetSectionOfEdge(TSPlaneEdge3D const & edge, double from, double to, TSPlaneEdge3D * result);
    int GetSectionOfArc(TSPlaneEdge3D const & arc, double from, double to, TSPlaneEdge3D * result);

    /// Cuts a line or arc at points that lie on it in order. A point at an end and a repeated one make no
    /// piece; fewer than two pieces give 0. Frees what `pieces` holds on entry.
    int DivideEdge3D(TSPlaneEdge3D const & edge, TUVect3D const * const points, int const & count,
                     TSPlaneEdge3D *& pieces, int & pieceCount);

    /// The first edge with the second, which must lie on it, taken out: one or two pieces in the first one's
    /// direction; 0 if nothing remains. Frees what `result` holds on entry; the two forms behind it don't.
    int EdgeExtractEdge(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                        int & count);
    int LineExtractLine(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                        int & count);
    int ArcExtractArc(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result, int & count);

    /// Two overlapping segments of one direction as one, in the direction of the first. Arcs are never
    /// joined: always 0.
    int JointEdge3D(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D * result);
    int JointLine3D(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D * result);
    int JointArc3D(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D * result);

    /// Exchanges start and end of `b` if its end is nearer to the start of `a`. Always 1.
    int HarmonyEdge(TSPlaneEdge3D * a, TSPlaneEdge3D * b);

    /// The part of `b` that corresponds to the part `sub` of `a` by the ratio of their lengths.
    int TransformSubArc(TSPlaneEdge3D const & a, TSPlaneEdge3D const & sub, TSPlaneEdge3D & b,
                        TSPlaneEdge3D & result);

    /// TransformSubArc for `count` parts. 0 for a count below 1, an edge without length and a part that isn't
    /// on `a`; the records before it are written.
    int DivideEdgeFromEdge(TSPlaneEdge3D * a, TSPlaneEdge3D * subs, TSPlaneEdge3D * b,
                           TSPlaneEdge3D * results, int count);

    /// The box of two points, and of an edge: an arc counts with its full circle.
    void CalcBlock3D(TUVect3D const & a, TUVect3D const & b, TS3DBlock * result);
    void CalcBlock3DFromEdge(TSPlaneEdge3D const & edge, TS3DBlock * result);

    /// The union of two boxes.
    void SumBlock3D(TS3DBlock * a, TS3DBlock * b, TS3DBlock * result);

    /// The overlap of two boxes. 0 if they miss each other in x or y by more than the tolerance, the axes
    /// behind untouched; z isn't tested.
    int CutBlock(TS3DBlock * a, TS3DBlock * b, TS3DBlock * result);

    /// 1 if the boxes overlap within the tolerance on all three axes.
    int IsIntersectionOfBlock(TS3DBlock * a, TS3DBlock * b);

    // ---- plane elements ---------------------------------------------------------------------------------

    // One or two plane elements (`TSelem`, or two end points with a bulge). A positive bulge puts the apex on
    // the left of the direction from start to end. Positions are distances along an element from its start.

    /// The fraction of `p` along a to b, not limited to 0 to 1: exactly 0 or 1 nearer to a or b than the
    /// tolerance. A segment without length isn't guarded.
    double GetPointOnLineParam(TUVect2D const & p, TUVect2D const & a, TUVect2D const & b);

    /// 1 if `p` lies on the arc from a to b.
    int IsPointOnArc(TUVect2D const & p, TUVect2D const & a, TUVect2D const & b, double bulge);

    /// The same, with the fraction of the arc's length (-1 for a point off the arc; exactly 0 or 1 at the
    /// ends) and the arc's length. A point on the circle counts only on the apex side of the chord.
    int IsPointOnArcParams(TUVect2D const & p, TUVect2D const & a, TUVect2D const & b, double bulge,
                           double & fraction, double & arcLength);

    /// Where two elements meet. `parts` becomes a block of always two records, of which `count` are filled,
    /// for the caller to free with delete[]; `kind` is 0 for the same element, 1 for stretches in common, 2
    /// for points (records with `type` 0). Returns 0, with `parts` as it was, if they don't meet.
    int ElemIntersection(TSelem const & e1, TSelem const & e2, TSelem *& parts, int & count, int & kind);

    /// 1 if the elements are of one type and have the same start and end, and arcs the same bulge within
    /// 1e-10.
    int CompareElem(TSelem const & e1, TSelem const & e2);

    /// 1 if e2 is e1 reversed: ends exchanged and, for arcs, the opposite bulge within 1e-10.
    int CompareAntiElem(TSelem const & e1, TSelem const & e2);

    /// Writes the part of `e` between two positions: its type, start, end and bulge (not the mark). 0 if
    /// there is none.
    int GetSectionOfElem(TSelem const & e, double from, double to, TSelem * part);

    /// 1 if `p` lies on `e`, with its position (0 if it doesn't, and for a point element).
    int IsPointInEelem(TSelem const & e, TUVect2D p, double & position);

    /// The point of `e` at a position: for `mode` 0 a distance from the start, 1 a fraction of the length, 2
    /// a percentage. An element whose ends are one place counts as a point. 0 if the position is off `e`.
    int GetPointOnEelem(TSelem const & e, double position, int mode, TUVect2D & p);

    /// Segments a-b and c-d. 1 if they meet; p1, p2, t1 and t2 are written for lines that cross anywhere, so
    /// the crossing of the infinite lines can be read after a result of 0.
    ///
    /// `kind` 1: not parallel; t1 and t2 are the fractions of the crossing on each segment, `shape` 1. 10:
    /// one line; t1 and t2 are the positions of c and d as fractions of a to b, p1 and p2 the ends of the
    /// common stretch, `shape` 3. 2: one line, apart. 0: parallel; p2 is the point opposite p1 = b as the
    /// unscaled projection gives it. 255: both segments without length.
    int LineIntersectionParameters(TUVect2D const & a, TUVect2D const & b, TUVect2D const & c,
                                   TUVect2D const & d, TUVect2D & p1, TUVect2D & p2, int & kind, double & t1,
                                   double & t2, int & shape);

    /// Arc against segment: ArcLineIntersectionParameters limited to the segment, without parameters.
    int ArcLineIntersection(TUVect2D const & a, TUVect2D const & b, double bulge, TUVect2D l1, TUVect2D l2,
                            TUVect2D & p1, TUVect2D & p2, int & flags);

    /// Arc against a line, or for `limit` 1 against the segment l1-l2. 0 none, 1 one crossing in p1, 2 two
    /// crossings, 17 a tangent contact in p1. arc1, arc2 order the points along the arc only (0 at a, 1 at b,
    /// -1 off it); line1, line2 are fractions of l1 to l2. `flags`: 2 and 8 points found, 1 and 4 their
    /// parameters.
    int ArcLineIntersectionParameters(TUVect2D const & a, TUVect2D const & b, double const & bulge,
                                      TUVect2D const & l1, TUVect2D const & l2, TUVect2D & p1, TUVect2D & p2,
                                      int limit, double & arc1, double & line1, double & arc2, double & line2,
                                      int & flags);

    // ---- areas ------------------------------------------------------------------------------------------

    // An area is a closed outline with arcs (`TSPoint2DPlane`). Classes of a point: 0 outside, 1 inside, 2 on
    // an edge, 3 on a vertex.

    /// Class of `p` against a straight polygon whose last vertex joins its first. Returns 0 outside, 1 inside
    /// or on the boundary.
    int IsPointInPolygon(TUVect2D p, TUVect2D * vertices, unsigned int count, int & pointClass);

    /// The same against an area in closed form. `pointClass` 0 on entry asks for the boundary tests alone (0
    /// then also for a point inside), any other value for the full test. The number has no effect.
    int IsPointInArea(TUVect2D p, CArray<TSPoint2DPlane, TSPoint2DPlane &> const * area, unsigned int unused,
                      int & pointClass);

    /// Signed surface of an area, positive for a counter-clockwise outline; algebraic for one that crosses
    /// itself.
    double GetAreaSurface(CArray<TSPoint2DPlane, TSPoint2DPlane &> const * area);

    /// Signed surface of a straight polygon whose last vertex joins its first.
    double GetArea(CArray<TUVect2D, TUVect2D &> const & polygon);

    /// Cuts an element at an area's boundary: `intervals` becomes its stretches inside (kind 0), along an
    /// edge (1) and its touching points and the stretches between two of them (2), in order along the
    /// element; `side` is the ordinal of the edge, -1 in the interior. Memory exceptions pass through. The
    /// number has no effect.
    ///
    /// Returns a sum of 1 (a stretch inside), 2 (one on the boundary) and 4 (one outside); 0 for an element
    /// outside without contact, 18 for one that lies wholly on an edge, 26 for one that is an edge (these two
    /// with the single interval of kind 3).
    int EdgeAreaIntersection(TSelem const & e, CArray<TSPoint2DPlane, TSPoint2DPlane &> const & area,
                             unsigned int unused, CArray<TSInterval, TSInterval &> & intervals);

    /// 1 if the two areas are certainly apart, by their extents in eight directions; else 0.
    int ArePolygonsSeparated(CArray<TSPoint2DPlane, TSPoint2DPlane &> const * a,
                             CArray<TSPoint2DPlane, TSPoint2DPlane &> const * b);

    // ---- polygon intersection ---------------------------------------------------------------------------

    /// The common part of two areas in closed form. `result` becomes an array for the caller to free with
    /// delete, like the `points` of each of its members; a member's `kind` is 0 for touching points (one
    /// member for all), 1 for a shared edge along which the areas run in opposite directions (start, marker
    /// for an arc, end), 2 for a closed counter-clockwise outline. `result` isn't cleared on entry. Memory
    /// exceptions pass through, everything released.
    ///
    /// 0  no common part, `result` untouched; or the work failed, then `result` may hold an array.
    /// 1  a lies inside b; 3 a lies inside b and touches its boundary; 11 the areas coincide: a copy of a.
    /// 2  b lies inside a; 4 b lies inside a and touches its boundary: a copy of b.
    /// 5  the areas only touch: members of kinds 0 and 1.
    /// 6  they overlap. The last outline may be open where the pieces can't be chained.
    int PolygonIntersection(CArray<TSPoint2DPlane, TSPoint2DPlane &> const * a,
                            CArray<TSPoint2DPlane, TSPoint2DPlane &> const * b,
                            CArray<TSGeneralSet, TSGeneralSet &> *& result);

    // ---- cross-sections ---------------------------------------------------------------------------------

    // Outlines here have straight sides only and run counter-clockwise for a positive area.

    /// The characteristics of a section, accumulated polygon by polygon: the caller zeroes the accumulators
    /// of both groups and makes one call per outer outline and per hole (`hole` 1, which subtracts whichever
    /// way it runs). `count` is the number of sides and `points` has count + 1 entries, or `count` is 32767
    /// for a circle with the radius in points[0].x and the centre in points[1]. `direction` becomes 0 for a
    /// clockwise polygon, else 1. Always 1.
    ///
    /// The outputs are two groups in the same order, the first weighted by `weight`, the second not: moments
    /// of inertia about the axes of coordinates (Ix the integral of y squared), about the centroid's axes,
    /// and about the principal axes; area; product moments; static moments (Sx the integral of y); centroid;
    /// angle of the principal axes in radians. Ix, Iy, A, Ixy, Sx and Sy are the accumulators. With no area
    /// accumulated Xc is 0, and Yc is 0 in the second group but left alone in the first.
    int GetThoseCharacteristics(TUVect2D * points, int hole, int & direction, unsigned int count,
                                double weight, double & weightedIx, double & weightedIy, double & weightedIxc,
                                double & weightedIyc, double & weightedI1, double & weightedI2,
                                double & weightedA, double & weightedIxy, double & weightedIxyc,
                                double & weightedSx, double & weightedSy, double & weightedXc,
                                double & weightedYc, double & weightedAlpha, double & Ix, double & Iy,
                                double & Ixc, double & Iyc, double & I1, double & I2, double & A,
                                double & Ixy, double & Ixyc, double & Sx, double & Sy, double & Xc,
                                double & Yc, double & alpha);

    /// The plastic section modulus for bending about y = 0 of a closed outline in centroidal coordinates: the
    /// static moments of the two halves of the area, with levels about a hundredth of the height apart. 0
    /// with `modulus` unwritten for a clockwise outline, one without area, or heights that aren't numbers.
    int ComputePlastMoment(CArray<TUVect2D, TUVect2D &> & outline, double & modulus);

    /// The ratio of shear area to area for a shear force along y of a closed outline in centroidal
    /// coordinates: Ix squared over A times the integral of S squared over the width (5/6 for a rectangle). A
    /// ratio above 1, below 0.0001 or none counts as 1. Unwritten for heights that aren't numbers.
    void ComputeShearCoef(CArray<TUVect2D, TUVect2D &> & outline, double & coefficient);

    /// The total length within the outline of the horizontal line at the height `y`. Sides whose ends differ
    /// in height by no more than 1e-10 are passed over.
    void GetWidthInPosition(CArray<TUVect2D, TUVect2D &> & outline, double y, double & width);

    /// The smallest positive width of the outline turned by `angle`, within the heights from `bottom` above
    /// its lowest to `top` below its highest point; 0 if there is none.
    void FindMinimalB0(CArray<TUVect2D, TUVect2D &> & outline, double top, double bottom, double angle,
                       double & B0);

    /// The part of the outline on the side of the line through `axisPoint`, at right angles to `direction`,
    /// to which `direction` points, with a margin of 1e-10, closed by its first point. 0 if it is empty.
    int GetPartOfPolygonAboveNeutralAxis(CArray<TUVect2D, TUVect2D &> & outline, TUVect2D axisPoint,
                                         TUVect2D direction, CArray<TUVect2D, TUVect2D &> & part);

    // ---- state ------------------------------------------------------------------------------------------

    int m_iOriginX = 0;               ///< View state: screen position of the model origin, in pixels.
    int m_iOriginY = 0;               ///< View state: the same, downward.
    double m_dViewMatrix[3][3] = {};  ///< View state: rows u (right), v (up) and depth.
    double m_dScale = 0.0;            ///< View state: pixels per model unit.
    double m_dOkoli = 1e-6;           ///< The tolerance.
    double m_dEqA[3][3] = {};         ///< Matrix of the equation solver.
    double m_dEqX[3][3] = {};         ///< Its solution, three columns at once.
    double m_dEqB[3][3] = {};         ///< Its right-hand sides.
    TUVect3D m_PenPoint3D = {};       ///< Current point of line drawing in space.
    int m_iPenX = 0;                  ///< Pen position of clipped line drawing, in pixels.
    int m_iPenY = 0;                  ///< The same, downward.
};

#endif
