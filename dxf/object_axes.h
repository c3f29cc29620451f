#ifndef KX7_DXF_OBJECT_AXES_H
#define KX7_DXF_OBJECT_AXES_H

#include "geometry/records.h"

namespace detail {
/// The axes of an object's own coordinate system.
struct ObjectAxes
{
    TUVect3D x, y, z;
};

/// The axes that the DXF format's published arbitrary axis algorithm gives an extrusion. Unit vectors; all
/// zero for an extrusion of no length.
ObjectAxes AxesOfExtrusion(TUVect3D const & extrusion);

double Dot(TUVect3D const & a, TUVect3D const & b);
}  // namespace detail

#endif
