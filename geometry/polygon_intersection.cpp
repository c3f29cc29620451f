#include "geometry/detail_polygon_intersection.h"
#include "geometry/mathematics.h"

int CMathematics::PolygonIntersection(CArray<TSPoint2DPlane, TSPoint2DPlane &> const * a,
                                      CArray<TSPoint2DPlane, TSPoint2DPlane &> const * b,
                                      CArray<TSGeneralSet, TSGeneralSet &> *& result)
{
    return detail::PolygonIntersectionPlain(*this, *a, *b, result);
}
