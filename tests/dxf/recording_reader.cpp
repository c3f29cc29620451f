#include "recording_reader.h"

#include <gtest/gtest.h>

#include <span>
#include <sstream>

#include "foundation/vard_message.h"

namespace {
void Print(std::ostream & out, double value)
{
    out << value;
}

void Print(std::ostream & out, TUVect3D const & point)
{
    out << '(' << point.x << ' ' << point.y << ' ' << point.z << ')';
}

void Print(std::ostream & out, char const * text)
{
    out << '\'' << text << '\'';
}

void Print(std::ostream & out, std::string const & list)
{
    out << '[' << list << ']';
}

// The arguments, parted by blanks.
template <class First, class... Others>
std::string Joined(First const & first, Others const &... others)
{
    std::ostringstream out;
    Print(out, first);
    ((out << ' ', Print(out, others)), ...);
    return out.str();
}

std::vector<std::string> * g_messages = nullptr;

int KeepMessage(TSVardMessage const & message)
{
    g_messages->emplace_back(message.text);
    return message.defaultButton;
}
}  // namespace

int RecordingReader::Record(std::string const & hook, std::string const & arguments)
{
    calls.push_back(arguments.empty() ? hook : hook + " " + arguments);
    ++counts[hook];
    return statusOf[hook];
}

int RecordingReader::SetEntLINE(TUVect3D & start, TUVect3D & end, int & colour, double & thickness,
                                char * layer, char * linetype, TUVect3D & extrusion)
{
    return Record("LINE", Joined(start, end, colour, thickness, layer, linetype, extrusion));
}

int RecordingReader::SetEnt3DFACE(TUVect3D & corner1, TUVect3D & corner2, TUVect3D & corner3,
                                  TUVect3D & corner4, int & colour, double & thickness, char * layer,
                                  char * linetype, int edge1, int edge2, int edge3, int edge4,
                                  CString & owner)
{
    return Record("3DFACE", Joined(corner1, corner2, corner3, corner4, colour, thickness, layer, linetype,
                                   edge1, edge2, edge3, edge4, owner));
}

int RecordingReader::SetEntARC(TUVect3D & centre, double & radius, double & startAngle, double & endAngle,
                               int & colour, double & thickness, char * layer, char * linetype,
                               TUVect3D & extrusion)
{
    return Record(
        "ARC", Joined(centre, radius, startAngle, endAngle, colour, thickness, layer, linetype, extrusion));
}

int RecordingReader::SetEntLWPOLYLINE(int count, TUVect2D * points, double * bulges, int closed, int & colour,
                                      double & elevation, double & thickness, char * layer, char * linetype,
                                      double & constantWidth, double & startWidth, double & endWidth,
                                      TUVect3D & extrusion)
{
    std::ostringstream vertices;
    for (int i = 0; i < count; ++i)
        vertices << (i > 0 ? ", " : "") << points[i].x << ' ' << points[i].y << ' ' << bulges[i];
    return Record("LWPOLYLINE", Joined(vertices.str(), closed, colour, elevation, thickness, layer, linetype,
                                       constantWidth, startWidth, endWidth, extrusion));
}

int RecordingReader::SetEntVERTEX(TUVect3D & point, char * layer, double & bulge, int hasBulge,
                                  int & inPolyline)
{
    CDXFInBasic::SetEntVERTEX(point, layer, bulge, hasBulge, inPolyline);
    return Record("VERTEX", Joined(point, layer, bulge, hasBulge, inPolyline));
}

int RecordingReader::SetEntPOLYLINE(int & count, CArray<TUVect3D, TUVect3D &> & points,
                                    CArray<double, double &> & bulges, int & flags, int & colour,
                                    double & elevation, double & thickness, char * layer, char * linetype,
                                    double & startWidth, double & endWidth, TUVect3D & extrusion)
{
    std::ostringstream vertices;
    for (int i = 0; i < count; ++i) {
        vertices << (i > 0 ? ", " : "");
        Print(vertices, points[i]);
        vertices << ' ' << bulges[i];
    }
    return Record("POLYLINE", Joined(vertices.str(), flags, colour, elevation, thickness, layer, linetype,
                                     startWidth, endWidth, extrusion));
}

int RecordingReader::SetBeginBlock(char * layer, TUVect3D & basePoint, char * name, char * secondName,
                                   int flags)
{
    return Record("BLOCK", Joined(layer, basePoint, name, secondName, flags));
}

int RecordingReader::SetEndBlock()
{
    return Record("ENDBLK", "");
}

int RecordingReader::SetInsertedBlock(char * name, TUVect3D & point, TUVect3D & scales, double & rotation,
                                      int & columns, int & rows, double & columnSpacing, double & rowSpacing,
                                      TUVect3D & extrusion)
{
    return Record("INSERT",
                  Joined(name, point, scales, rotation, columns, rows, columnSpacing, rowSpacing, extrusion));
}

int RecordingReader::SetTableLayer(char * name)
{
    int const status = CDXFInBasic::SetTableLayer(name);
    int const wanted = Record("LAYER", Joined(name));
    return wanted ? wanted : status;
}

int RecordingReader::SetEntTEXT(TUVect3D & point, double & height, CString & text, int & colour,
                                CString & layer, CString & linetype, double & rotation, double & widthFactor,
                                int & horizontal, int & vertical, TUVect3D & extrusion)
{
    return Record("TEXT", Joined(point, height, text, colour, layer, linetype, rotation, widthFactor,
                                 horizontal, vertical, extrusion));
}

int RecordingReader::SetEntMTEXT(TUVect3D & point, double & height, CString & text, int & colour,
                                 CString & layer, CString & linetype, double & rotation, double & widthFactor,
                                 int & horizontal, int & vertical, TUVect3D & extrusion)
{
    return Record("MTEXT", Joined(point, height, text, colour, layer, linetype, rotation, widthFactor,
                                  horizontal, vertical, extrusion));
}

int RecordingReader::SetEntSOLID(TUVect3D & corner1, TUVect3D & corner2, TUVect3D & corner3,
                                 TUVect3D & corner4, int & colour, double & thickness, char * layer,
                                 char * linetype, TUVect3D & extrusion)
{
    return Record("SOLID",
                  Joined(corner1, corner2, corner3, corner4, colour, thickness, layer, linetype, extrusion));
}

int RecordingReader::SetEntCIRCLE(TUVect3D & centre, double & radius, int & colour, double & thickness,
                                  char * layer, char * linetype, TUVect3D & extrusion)
{
    return Record("CIRCLE", Joined(centre, radius, colour, thickness, layer, linetype, extrusion));
}

Reading ReadDrawing(CDXFInBasic & reader, CFile & file)
{
    Reading reading{};
    g_messages = &reading.messages;
    VardMessageHandler const before = SetVardMessageHandler(KeepMessage);
    EXPECT_EQ(reader.Create(&file), 0);
    reading.status = reader.ReadDXF();
    SetVardMessageHandler(before);
    return reading;
}

std::string Lines(std::vector<std::string> const & lines, std::string const & lineEnd)
{
    std::string text;
    for (std::string const & line : lines)
        text += line + lineEnd;
    return text;
}

std::string Groups(std::string const & groups)
{
    std::string text;
    std::size_t at = 0;
    while (at < groups.size()) {
        std::size_t const end = std::min(groups.find("; ", at), groups.size());
        std::string const group = groups.substr(at, end - at);
        std::size_t const bar = group.find('|');
        text += group.substr(0, bar) + "\n" + group.substr(bar + 1) + "\n";
        at = end + 2;
    }
    return text;
}

std::string EntitiesOf(std::string const & groups)
{
    return Groups("0|SECTION; 2|ENTITIES; " + groups + "; 0|ENDSEC; 0|EOF");
}
