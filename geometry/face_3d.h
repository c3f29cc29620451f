#ifndef KX7_GEOMETRY_FACE_3D_H
#define KX7_GEOMETRY_FACE_3D_H

#include "platform/base/object.h"

/// A face in space, for hosts to derive from; it can be created by its run-time class. Nothing here reads it.
class KX7_API CFace3D : public CObject
{
    DECLARE_DYNCREATE(CFace3D)

  public:
    CFace3D();
    ~CFace3D() override;
};

#endif
