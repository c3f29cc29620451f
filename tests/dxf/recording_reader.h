#ifndef KX7_TESTS_DXF_RECORDING_READER_H
#define KX7_TESTS_DXF_RECORDING_READER_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "dxf/dxf_in_basic.h"

/// The file in memory of a reader that derives from this ahead of the reader's class, so that it outlives it.
struct DrawingInMemory
{
    std::unique_ptr<CMemFile> file;
};

/// A reader without hooks of its own.
class PlainReader : public DrawingInMemory, public CDXFInBasic
{
};

/// A reader that writes each call of a hook down as a line of text, and counts them by name.
class RecordingReader : public DrawingInMemory, public CDXFInBasic
{
  public:
    std::vector<std::string> calls;
    std::map<std::string, int> counts;
    std::map<std::string, int> statusOf;  // what a hook returns, by its name; 0 for others

    int Section() const { return m_section; }
    int Lines() const { return m_lineCounter; }
    int Code() const { return m_code; }
    CString const & Data() const { return m_data; }
    char const * Layer() const { return m_layer; }
    TUVect3D const & Vertex() const { return m_vertex; }
    double VertexBulge() const { return m_vertexBulge; }
    int VertexHasBulge() const { return m_vertexHasBulge; }

    int SetEntLINE(TUVect3D & start, TUVect3D & end, int & colour, double & thickness, char * layer,
                   char * linetype, TUVect3D & extrusion) override;
    int SetEnt3DFACE(TUVect3D & corner1, TUVect3D & corner2, TUVect3D & corner3, TUVect3D & corner4,
                     int & colour, double & thickness, char * layer, char * linetype, int edge1, int edge2,
                     int edge3, int edge4, CString & owner) override;
    int SetEntARC(TUVect3D & centre, double & radius, double & startAngle, double & endAngle, int & colour,
                  double & thickness, char * layer, char * linetype, TUVect3D & extrusion) override;
    int SetEntLWPOLYLINE(int count, TUVect2D * points, double * bulges, int closed, int & colour,
                         double & elevation, double & thickness, char * layer, char * linetype,
                         double & constantWidth, double & startWidth, double & endWidth,
                         TUVect3D & extrusion) override;
    int SetEntVERTEX(TUVect3D & point, char * layer, double & bulge, int hasBulge, int & inPolyline) override;
    int SetEntPOLYLINE(int & count, CArray<TUVect3D, TUVect3D &> & points, CArray<double, double &> & bulges,
                       int & flags, int & colour, double & elevation, double & thickness, char * layer,
                       char * linetype, double & startWidth, double & endWidth,
                       TUVect3D & extrusion) override;
    int SetBeginBlock(char * layer, TUVect3D & basePoint, char * name, char * secondName, int flags) override;
    int SetEndBlock() override;
    int SetInsertedBlock(char * name, TUVect3D & point, TUVect3D & scales, double & rotation, int & columns,
                         int & rows, double & columnSpacing, double & rowSpacing,
                         TUVect3D & extrusion) override;
    int SetTableLayer(char * name) override;
    int SetEntTEXT(TUVect3D & point, double & height, CString & text, int & colour, CString & layer,
                   CString & linetype, double & rotation, double & widthFactor, int & horizontal,
                   int & vertical, TUVect3D & extrusion) override;
    int SetEntMTEXT(TUVect3D & point, double & height, CString & text, int & colour, CString & layer,
                    CString & linetype, double & rotation, double & widthFactor, int & horizontal,
                    int & vertical, TUVect3D & extrusion) override;
    int SetEntSOLID(TUVect3D & corner1, TUVect3D & corner2, TUVect3D & corner3, TUVect3D & corner4,
                    int & colour, double & thickness, char * layer, char * linetype,
                    TUVect3D & extrusion) override;
    int SetEntCIRCLE(TUVect3D & centre, double & radius, int & colour, double & thickness, char * layer,
                     char * linetype, TUVect3D & extrusion) override;

  private:
    int Record(std::string const & hook, std::string const & arguments);
};

/// What a reading came to.
struct Reading
{
    int status;
    std::vector<std::string> messages;  ///< Shown to the user.
};

/// Reads a drawing from an open file, keeping messages from the screen.
Reading ReadDrawing(CDXFInBasic & reader, CFile & file);

/// Reads a drawing of these bytes with a reader that keeps them.
template <class Reader>
Reading ReadDrawing(Reader & reader, std::string const & bytes)
{
    auto file = std::make_unique<CMemFile>(bytes.data(), bytes.size());
    Reading const reading = ReadDrawing(reader, *file);
    reader.file = std::move(file);
    return reading;
}

/// Lines of text joined with a line end behind each.
std::string Lines(std::vector<std::string> const & lines, std::string const & lineEnd = "\n");

/// "code|value" pairs in the words of a string, parted by "; ", as lines of a drawing. A value may be empty.
std::string Groups(std::string const & groups);

/// A drawing with nothing but an ENTITIES section of these groups.
std::string EntitiesOf(std::string const & groups);

#endif
