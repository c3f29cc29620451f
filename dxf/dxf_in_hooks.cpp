// What the hooks do where a host's class doesn't override them.
#include "dxf/dxf_in_basic.h"

int CDXFInBasic::SetEntLINE(TUVect3D &, TUVect3D &, int &, double &, char *, char *, TUVect3D &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetEnt3DFACE(TUVect3D &, TUVect3D &, TUVect3D &, TUVect3D &, int &, double &, char *, char *,
                              int, int, int, int, CString &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetEntARC(TUVect3D &, double &, double &, double &, int &, double &, char *, char *,
                           TUVect3D &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetEntLWPOLYLINE(int, TUVect2D *, double *, int, int &, double &, double &, char *, char *,
                                  double &, double &, double &, TUVect3D &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetEntVERTEX(TUVect3D & point, char *, double & bulge, int hasBulge, int &)
{
    m_vertex = point;
    m_vertexBulge = bulge;
    m_vertexHasBulge = hasBulge;
    return DXF_GO_ON;
}

int CDXFInBasic::SetEntPOLYLINE(int &, CArray<TUVect3D, TUVect3D &> &, CArray<double, double &> &, int &,
                                int &, double &, double &, char *, char *, double &, double &, TUVect3D &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetBeginBlock(char *, TUVect3D &, char *, char *, int)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetEndBlock()
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetInsertedBlock(char *, TUVect3D &, TUVect3D &, double &, int &, int &, double &, double &,
                                  TUVect3D &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetTableLayer(char * name)
{
    CString layer(name);
    return AddLayerToArray(layer) ? DXF_GO_ON : DXF_LAYER_REFUSED;
}

int CDXFInBasic::SetEntTEXT(TUVect3D &, double &, CString &, int &, CString &, CString &, double &, double &,
                            int &, int &, TUVect3D &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetEntMTEXT(TUVect3D &, double &, CString &, int &, CString &, CString &, double &, double &,
                             int &, int &, TUVect3D &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetEntSOLID(TUVect3D &, TUVect3D &, TUVect3D &, TUVect3D &, int &, double &, char *, char *,
                             TUVect3D &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::SetEntCIRCLE(TUVect3D &, double &, int &, double &, char *, char *, TUVect3D &)
{
    return DXF_GO_ON;
}

int CDXFInBasic::PreReadControl(EDXFEntType, int &, CString &, int & status)
{
    status = DXF_GO_ON;
    return 0;
}
