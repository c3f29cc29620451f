#include "geometry/face_3d.h"

IMPLEMENT_DYNCREATE(CFace3D, CObject)

CFace3D::CFace3D() = default;

CFace3D::~CFace3D() = default;
