#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "dxf/dxf_out_basic.h"
#include "dxf/object_axes.h"

using namespace std::string_view_literals;

namespace {
constexpr int kVertexOf3DPolyline = 32;
constexpr int k3DPolyline = 8;
constexpr int kClosed3DPolyline = 9;

bool Is3DPolyline(int flags)
{
    return flags == k3DPolyline || flags == kClosed3DPolyline;
}
}  // namespace

int CDXFOutBasic::WritePoint(TUVect3D point, int index)
{
    int const place = index >= 0 && index <= 3 ? index : 0;
    WriteGroup(10 + place, point.x);
    WriteGroup(20 + place, point.y);
    WriteGroup(30 + place, point.z);
    return DXF_WRITTEN;
}

int CDXFOutBasic::WriteEntLine(TUVect3D start, TUVect3D end, int & colour, CString layer, double & thickness)
{
    UpravLayer(&layer);
    WriteGroup(0, "LINE"sv);
    WriteGroup(62, colour);
    WriteGroup(8, layer.View());
    WriteGroup(39, thickness);
    int const status = WritePoint(start, 0);
    return status == DXF_WRITTEN ? WritePoint(end, 1) : status;
}

int CDXFOutBasic::WriteEnt3DFace(TUVect3D & p1, TUVect3D & p2, TUVect3D & p3, TUVect3D & p4, int & colour,
                                 CString const & layer, int, int, int, int)
{
    CString cleaned = layer;
    UpravLayer(&cleaned);
    WriteGroup(0, "3DFACE"sv);
    WriteGroup(62, colour);
    WriteGroup(8, cleaned.View());
    int index = 0;
    for (TUVect3D const * point : {&p1, &p2, &p3, &p4})
        WritePoint(*point, index++);
    return DXF_WRITTEN;
}

int CDXFOutBasic::WriteEntVertex(TUVect3D & point, CString layer, double bulge, int flags)
{
    WriteGroup(0, "VERTEX"sv);
    WriteGroup(8, layer.View());
    if (int const status = WritePoint(point, 0); status != DXF_WRITTEN)
        return status;
    if (flags < 1)
        WriteGroup(42, bulge);
    else
        WriteGroup(70, flags);
    return DXF_WRITTEN;
}

int CDXFOutBasic::BeginPolyline(CString const & layer, double elevation)
{
    WriteGroup(0, "POLYLINE"sv);
    WriteGroup(8, layer.View());
    WriteGroup(66, "     1"sv);  // vertices follow; the field is six columns wide
    return WritePoint({{0, 0, elevation}}, 0);
}

void CDXFOutBasic::WriteColourAndThickness(int colour, double thickness)
{
    if (colour > 0)
        WriteGroup(62, colour);
    if (std::abs(thickness) > m_tolerance)
        WriteGroup(39, thickness);
}

int CDXFOutBasic::WriteEntPolyLine(int count, CArray<TUVect3D, TUVect3D &> & points,
                                   CArray<double, double &> & bulges, int flags, double elevation,
                                   TUVect3D extrusion, int colour, double thickness, CString layer)
{
    UpravLayer(&layer);
    if (int const status = BeginPolyline(layer, elevation); status != DXF_WRITTEN)
        return status;
    if (std::sqrt(detail::Dot(extrusion, extrusion)) > m_tolerance) {
        WriteGroup(210, extrusion.x);
        WriteGroup(220, extrusion.y);
        WriteGroup(230, extrusion.z);
    }
    WriteColourAndThickness(colour, thickness);
    if (flags > 0)
        WriteGroup(70, flags);
    bool const isIn3D = Is3DPolyline(flags);
    for (int i = 0; i < std::min(count, points.GetSize()); ++i) {
        TUVect3D point = points[i];
        if (!isIn3D && !TranWCStoOCS(points[i], point, elevation, extrusion))
            return DXF_NO_TRANSFORM;
        double const bulge = i < bulges.GetSize() ? bulges[i] : 0;
        if (int const status = WriteEntVertex(point, layer, bulge, isIn3D ? kVertexOf3DPolyline : 0);
            status != DXF_WRITTEN)
            return status;
    }
    WriteGroup(0, "SEQEND"sv);
    return DXF_WRITTEN;
}

int CDXFOutBasic::WriteEnt3DPolyLine(int count, CArray<TUVect3D, TUVect3D &> & points, int closed,
                                     double elevation, int colour, double thickness, CString layer)
{
    UpravLayer(&layer);
    if (int const status = BeginPolyline(layer, elevation); status != DXF_WRITTEN)
        return status;
    WriteColourAndThickness(colour, thickness);
    WriteGroup(70, closed ? kClosed3DPolyline : k3DPolyline);
    for (int i = 0; i < std::min(count, points.GetSize()); ++i)
        if (int const status = WriteEntVertex(points[i], layer, 0, kVertexOf3DPolyline);
            status != DXF_WRITTEN)
            return status;
    WriteGroup(0, "SEQEND"sv);
    return DXF_WRITTEN;
}

int CDXFOutBasic::WriteEntText(TUVect3D & point, double & height, CString & text, int colour, CString layer,
                               CString, double, double, int, int, TUVect3D *)
{
    constexpr int kSignificantDigits = 6;
    UpravLayer(&layer);
    WriteGroup(0, "TEXT"sv);
    WriteGroup(62, colour);
    WriteGroup(8, layer.View());
    if (int const status = WritePoint(point, 0); status != DXF_WRITTEN)
        return status;
    if (height > 0) {
        std::array<char, 32> digits;
        char const * const end = std::to_chars(digits.begin(), digits.end(), height,
                                               std::chars_format::general, kSignificantDigits)
                                     .ptr;
        WriteGroup(40, std::string_view(digits.data(), end));
    }
    WriteGroup(1, text.View());
    return DXF_WRITTEN;
}
