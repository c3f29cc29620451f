#ifndef KX7_GEOMETRY_RECORDS_H
#define KX7_GEOMETRY_RECORDS_H

// The plain records of the geometry kernel. None has a constructor; all are copied as plain memory. Lengths
// are in the host's model units, angles in radians.

template <class TYPE, class ARG_TYPE>
class CArray;

/// A plane point or vector: the named coordinates and an array of the same doubles.
union TUVect2D
{
    struct
    {
        double x, y;
    };
    double a[2];
};

/// A point or vector in space: the named coordinates and an array of the same doubles.
union TUVect3D
{
    struct
    {
        double x, y, z;
    };
    double a[3];
};

/// A plane.
struct TSPlane
{
    TUVect3D origin;  ///< A point of the plane.
    TUVect3D normal;  ///< Unit normal.
};

// Kinds of edges and plane elements.
inline constexpr int EDGE_POINT = 0;
inline constexpr int EDGE_LINE = 1;
inline constexpr int EDGE_ARC = 2;

/// A point, segment or circular arc in space. Clear a record to zero before filling it.
struct TSPlaneEdge3D
{
    TUVect3D start;      ///< Start; for a point edge the point.
    TUVect3D end;        ///< End; for a point edge the point again.
    TUVect3D arcVector;  ///< Arc: a vector in its plane, not along the chord, toward the apex of a positive
                         ///< bulge; zero otherwise.
    double bulge;        ///< Arc: sagitta over half chord, tan(included angle / 4), as a rule not negative
                         ///< since `arcVector` carries the side; zero otherwise.
    int type;            ///< `EDGE_POINT`, `EDGE_LINE` or `EDGE_ARC`.
};

/// One plane edge by its values.
struct TSPlaneEdge2D
{
    TUVect2D start;  ///< Start point.
    TUVect2D end;    ///< End point.
    double bulge;    ///< Signed bulge, positive with the apex left of the chord; 0 for a straight edge.
};

/// One element of a plane outline: point, line or arc.
struct TSelem
{
    int type;        ///< `EDGE_POINT`, `EDGE_LINE` or `EDGE_ARC`.
    int mark;        ///< Working mark of the polygon routines: index of the other boundary's side on which
                     ///< the piece lies; -1 or 255 for none.
    TUVect2D start;  ///< Start point.
    TUVect2D end;    ///< End point.
    double bulge;    ///< Signed bulge, positive with the apex left of the chord; 0 for a line or point.
};

/// The x of an arc marker in an area.
inline constexpr double ARC_MARKER = -1e100;

/// A record whose x lies below this is an arc marker.
inline constexpr double ARC_MARKER_LIMIT = -1e99;

/// One record of an area: a vertex, or an arc marker (x is `ARC_MARKER`, y the signed bulge of the arc from
/// the vertex before it to the vertex after it). An area is an array of these in closed form: its first
/// vertex is repeated as the last record.
struct TSPoint2DPlane
{
    double x;  ///< Coordinate of a vertex, or `ARC_MARKER`.
    double y;  ///< Coordinate of a vertex, or the bulge.
};

/// One stretch of an element against an area.
struct TSInterval
{
    double t1;  ///< Start of the stretch, as a distance along the element from its start.
    double t2;  ///< Its end, likewise; equal to `t1` for a single touching point.
    int side;   ///< Index of the area's side concerned; -1 where none.
    int kind;   ///< Classification of the stretch, told where it is made.
};

/// One member of the result of a polygon intersection.
struct TSGeneralSet
{
    int kind;  ///< 0 touching points, 1 shared edge, 2 closed outline.
    CArray<TSPoint2DPlane, TSPoint2DPlane &> * points;  ///< Owned by the result; the caller frees it.
};

/// An axis-aligned box.
struct TS3DBlock
{
    TUVect3D min;  ///< Smallest x, y and z.
    TUVect3D max;  ///< Largest x, y and z.
};

#endif
