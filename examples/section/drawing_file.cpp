#include "drawing_file.h"

#include <cstdio>

#include "options.h"

namespace {
void WriteOutline(CDXFOutBasic & writer, outlines::Outline const & outline, double unit)
{
    CArray<TUVect3D, TUVect3D &> points;
    CArray<double, double &> bulges;
    for (TSPlaneEdge2D const & side : outline.sides) {
        TUVect3D point{{side.start.x / unit, side.start.y / unit, 0.0}};
        points.Add(point);
        // The format counts a bulge positive for a counter-clockwise arc, the kernel for an apex on the left.
        double bulge = -side.bulge;
        bulges.Add(bulge);
    }
    constexpr int kClosed = 1, kByLayer = 0;
    TUVect3D const up{{0.0, 0.0, 1.0}};
    writer.WriteEntPolyLine(points.GetSize(), points, bulges, kClosed, 0.0, up, kByLayer, 0.0,
                            outline.IsHole() ? "HOLE" : "OUTLINE");
}

void WriteTo(CMathematics & kernel, CFile & file, std::vector<outlines::Outline> const & outlines,
             double unit)
{
    CDXFOutBasic writer(&kernel);
    writer.Create(&file);
    writer.WriteBeginSectionENTITIES();
    for (outlines::Outline const & outline : outlines)
        WriteOutline(writer, outline, unit);
    writer.WriteEndSection();
    writer.WriteEOF();
}
}  // namespace

void WriteDrawing(CMathematics & kernel, std::string const & name,
                  std::vector<outlines::Outline> const & outlines, double unit)
{
    bool written = false;
    if (CFile file; file.Open(name.c_str(), CFile::modeCreate | CFile::modeWrite)) {
        try {
            WriteTo(kernel, file, outlines, unit);
            file.Close();
            written = true;
        } catch (CException * failure) {
            failure->Delete();
        }
    }
    if (!written) {
        std::remove(name.c_str());
        throw Failure(name + ": can't be written");
    }
}
