#ifndef KX7_GEOMETRY_MATHEMATICS_H
#define KX7_GEOMETRY_MATHEMATICS_H

#include "geometry/records.h"
#include "platform/base/object.h"
#include "platform/base/types.h"

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

    // ---- arcs and bulges --------------------------------------------------------------------------------

    // ---- lines, planes and rectangles in space ----------------------------------------------------------

    // ---- arc intersections in space ---------------------------------------------------------------------

    // ---- edge algebra -----------------------------------------------------------------------------------

    // ---- plane elements ---------------------------------------------------------------------------------

    // ---- areas ------------------------------------------------------------------------------------------

    // ---- polygon intersection ---------------------------------------------------------------------------

    // ---- cross-sections ---------------------------------------------------------------------------------

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
