#ifndef KX7_DXF_DXF_IN_BASIC_H
#define KX7_DXF_DXF_IN_BASIC_H

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "dxf/dxf_status.h"
#include "geometry/records.h"
#include "platform/base/archive.h"
#include "platform/base/array.h"
#include "platform/base/collections.h"
#include "platform/base/export.h"
#include "platform/base/file.h"
#include "platform/base/object.h"
#include "platform/base/string.h"

/// Reads a drawing in the text form of DXF as a stream of group-code and value lines. It builds no drawing:
/// it walks the file section by section and hands the values of each entity to a virtual hook, which a host's
/// class overrides. The values are those of the file, in object coordinates: arcs stay arcs, polylines keep
/// their bulges, blocks are reported and not expanded.
///
/// Lines end in a line feed, with or without a carriage return in front of it; the last one may end with the
/// file. Words (layers, line types, names) end at their first blank. A value that doesn't scan as the number
/// that is wanted leaves the earlier value (or the default) in place. Read operations and hooks return a
/// status of `dxf_status.h`; the first one other than 0 and 4 ends the reading.
///
/// An object reads one stream once: Create, if wanted SetUseLayersFilter, then ReadDXF or GetBoundingBox.
class KX7_API CDXFInBasic : public CObject
{
    DECLARE_DYNAMIC(CDXFInBasic)

    CDXFInBasic();

    /// Closes an archive of this object's own, only flushes one of the host's, and closes a file that was
    /// opened by its path.
    ~CDXFInBasic() override;

    CDXFInBasic(CDXFInBasic const &) = delete;
    CDXFInBasic & operator=(CDXFInBasic const &) = delete;

    /// Opens a stream: the host's archive, or an own archive on the host's file. The host keeps both and they
    /// outlive this object. The line counter and the layer table start anew; the layer filter stays as it is.
    /// 0, or 1 for a null pointer.
    int Create(CArchive * archive);
    int Create(CFile * file);

    /// Opens a file by its path. 0, or 1 if it can't be opened.
    int Create(CString path);

    /// Asks the user for the file to open. 0, or 1 if the user cancels or the file can't be opened.
    int Create(CString title, CString fileName, CString extension, CString filter);

    /// Reads a line with a group code into `m_data` and scans it into `m_code`, which stays if the line isn't
    /// a number. Status 0, 2 or 3.
    virtual int ReadCode();

    /// Reads a value line into `m_data`. Status 0 or 2.
    virtual int ReadData();

    /// Reads a group: its code and, if that went well, its value.
    virtual int ReadDXFLine();

    /// Passes over a section: reads lines, with no pairing, until one is exactly "ENDSEC" or the stream ends.
    /// Always status 0.
    virtual int ReadUnknownSection();

    // The hooks. Each gets the values of one entity; what they point to is valid during the call only. Here
    // they do nothing and return 0, except where something else is said.

    virtual int SetEntLINE(TUVect3D & start, TUVect3D & end, int & colour, double & thickness, char * layer,
                           char * linetype, TUVect3D & extrusion);

    /// `edge1` to `edge4`: bits 1, 2, 4 and 8 of group 70, each as 0 or 1.
    virtual int SetEnt3DFACE(TUVect3D & corner1, TUVect3D & corner2, TUVect3D & corner3, TUVect3D & corner4,
                             int & colour, double & thickness, char * layer, char * linetype, int edge1,
                             int edge2, int edge3, int edge4, CString & owner);

    /// Angles in degrees, counter-clockwise around the extrusion.
    virtual int SetEntARC(TUVect3D & centre, double & radius, double & startAngle, double & endAngle,
                          int & colour, double & thickness, char * layer, char * linetype,
                          TUVect3D & extrusion);

    /// `count` is the number of vertices that were read; both arrays have so many elements. `closed` is 1 if
    /// group 70 is exactly 1.
    virtual int SetEntLWPOLYLINE(int count, TUVect2D * points, double * bulges, int closed, int & colour,
                                 double & elevation, double & thickness, char * layer, char * linetype,
                                 double & constantWidth, double & startWidth, double & endWidth,
                                 TUVect3D & extrusion);

    /// `inPolyline` is 1 for a vertex of a POLYLINE. Here it stores the point, the bulge and the flag in the
    /// vertex members, from where a POLYLINE takes them.
    virtual int SetEntVERTEX(TUVect3D & point, char * layer, double & bulge, int hasBulge, int & inPolyline);

    /// `bulges` has an element for each point, 0 for a vertex without one; `flags` is group 70 as read.
    virtual int SetEntPOLYLINE(int & count, CArray<TUVect3D, TUVect3D &> & points,
                               CArray<double, double &> & bulges, int & flags, int & colour,
                               double & elevation, double & thickness, char * layer, char * linetype,
                               double & startWidth, double & endWidth, TUVect3D & extrusion);

    virtual int SetBeginBlock(char * layer, TUVect3D & basePoint, char * name, char * secondName, int flags);
    virtual int SetEndBlock();

    /// Rotation in degrees.
    virtual int SetInsertedBlock(char * name, TUVect3D & point, TUVect3D & scales, double & rotation,
                                 int & columns, int & rows, double & columnSpacing, double & rowSpacing,
                                 TUVect3D & extrusion);

    /// A layer of the table. Here it is added; 10 if it can't be.
    virtual int SetTableLayer(char * name);

    /// Rotation in degrees. The reader reads neither layer, line type nor colour of a text, and no width
    /// factor: these come empty and 0. `horizontal` is 0 and `vertical` 3 for each TEXT.
    virtual int SetEntTEXT(TUVect3D & point, double & height, CString & text, int & colour, CString & layer,
                           CString & linetype, double & rotation, double & widthFactor, int & horizontal,
                           int & vertical, TUVect3D & extrusion);

    /// As SetEntTEXT. `horizontal` (0 left, 1 centre, 2 right) and `vertical` (0 top, 1 middle, 3 bottom)
    /// come from the attachment point.
    virtual int SetEntMTEXT(TUVect3D & point, double & height, CString & text, int & colour, CString & layer,
                            CString & linetype, double & rotation, double & widthFactor, int & horizontal,
                            int & vertical, TUVect3D & extrusion);

    virtual int SetEntSOLID(TUVect3D & corner1, TUVect3D & corner2, TUVect3D & corner3, TUVect3D & corner4,
                            int & colour, double & thickness, char * layer, char * linetype,
                            TUVect3D & extrusion);

    virtual int SetEntCIRCLE(TUVect3D & centre, double & radius, int & colour, double & thickness,
                             char * layer, char * linetype, TUVect3D & extrusion);

    /// A host's way into any entity: called for each group of one ahead of the reader's own handling, except
    /// for the group 0 that ends it and for the vertices of a POLYLINE. It may change the code and the value
    /// and set the status. Result 1: skip this group. 2: end the entity with `status` now. Any other: go on,
    /// unless `status` isn't 0, which ends the entity with it. Here it sets `status` to 0 and returns 0.
    virtual int PreReadControl(EDXFEntType type, int & code, CString & data, int & status);

    /// 1 if the current code is 0.
    virtual int CheckEndOfEntity();

    // The entity readers. Each starts behind the group 0 that names the entity, gathers its groups and calls
    // its hook. An entity that ends at its last group returns the hook's result; one that ends at a group 0
    // line returns 4 in place of a 0.

    virtual int ReadEntLINE();

    /// Vertices come with group 10, or with group 42 where the bulge stands in front of its point; the first
    /// one met decides. 5 for vertices without a usable count (group 90), or more than it.
    virtual int ReadEntLWPOLYLINE();

    /// A vertex ends at its first group 42 or 70.
    virtual int ReadEntVERTEX(int inPolyline);

    virtual int ReadEntPOLYLINE();
    virtual int ReadEntTEXT();
    virtual int ReadEntMTEXT();
    virtual int ReadEntARC();
    virtual int ReadEnt3DFACE();
    virtual int InsertBlock();
    virtual int ReadEntSOLID();
    virtual int ReadEntCIRCLE();

    /// Reads a record of the layer table up to its name.
    virtual int ReadTableLayer();

    // The section loops, from behind the section's name to its end.

    /// Reads the layers and offers them for choice at its end.
    virtual int ReadTables();

    /// The entities of a block up to its end. References to other blocks in it are passed over.
    virtual int ReadBlockEntities();

    virtual int ReadBlock();
    virtual int ReadBlocks();
    virtual int ReadEntities();

    /// Widens a box by all groups 10, 20 and 30 of a section. The first counted value of an axis sets its
    /// minimum and maximum anew. A value of a magnitude up to 1e-6 counts only if `takeZeros` is 1. `first`
    /// is 1 until the section's first counted value, then 0.
    virtual int ReadSectionBoudingBox(double & xMin, double & xMax, double & yMin, double & yMax,
                                      double & zMin, double & zMax, int takeZeros, int & first);

    /// Walks the whole file in place of ReadDXF for the box of the sections BLOCKS (if `useBlocks` is 1) and
    /// ENTITIES (if `useEntities` is 1). With both, the later section replaces the box on each axis on which
    /// it has a value. An axis without a value stays untouched. The result is the status; no message is
    /// shown.
    virtual int GetBoundingBox(double & xMin, double & xMax, double & yMin, double & yMax, double & zMin,
                               double & zMax, int takeZeros, int useBlocks, int useEntities);

    /// Reads the whole file. 0, or the status that ended the walk, after the user was told the line.
    virtual int ReadDXF();

    /// Adds a layer with its flag on. 1 if it is in the table, also if it was before; 0 if it can't be added.
    int AddLayerToArray(CString & name);

    /// Sets a layer's flag. 1, also for an unknown layer; 0 if the layer has no flag.
    int SetLayerOn(CString & name, int on);

    /// 0 if the filter is on and the layer's flag off, otherwise 1. For hooks: the reader itself never asks.
    int IsLayerOn(CString & name);

    /// Turns the layer filter on or off; the result is the old value. It is off at the start, and with it off
    /// no layers are offered for choice.
    int SetUseLayersFilter(int on);

    /// Offers the layers for choice if the filter is on; with no layer in the table it turns the filter off.
    /// Always 1.
    int SetupLayersOn();

    /// Takes a point from object to world coordinates by the format's arbitrary axis algorithm. `elevation`
    /// takes the place of the point's z. Always 1.
    int TranOCStoWCS(TUVect3D point, TUVect3D & result, double elevation, TUVect3D extrusion);

    /// The end points, a middle point and the bulge (never negative) of an arc with angles in degrees,
    /// counter-clockwise around the extrusion. The points lie around `centre`, which is taken as it stands.
    /// 0; 8 for a radius below 1e-8 and 9 for equal angles, with the results untouched; 9 for end points that
    /// fall together, without the bulge.
    int GetARCEndPoints(TUVect3D & centre, double & radius, double & startAngle, double & endAngle,
                        TUVect3D & extrusion, TUVect3D * start, TUVect3D * end, TUVect3D * middle,
                        double * bulge);

  protected:
    static constexpr int kLayerSize = 84;  // bytes of a layer's or line type's text with its NUL

    std::int32_t m_section = 0;          ///< 0 outside, 3 in TABLES, 4 in BLOCKS, 5 in ENTITIES.
    std::int32_t m_lineCounter = 0;      ///< Lines read so far.
    std::int32_t m_useLayersFilter = 0;  ///< With 0 all layers count as on.
    char m_layer[kLayerSize] = {};       ///< Layer of the entity being read, shared by all entity readers.
    CString m_data;                      ///< The current value line.
    std::int32_t m_code = -1;            ///< The current group code.
    TUVect3D m_vertex = {};              ///< Point of the last vertex.
    double m_vertexBulge = 0;            ///< Its bulge.
    std::int32_t m_vertexHasBulge = 0;   ///< 1 if it came with a bulge.

  private:
    struct Attributes;
    struct PolylineVertices;

    bool ReadLine();
    void Release();
    void StartAnew();
    int FindLayer(CString const & name) const;
    int ReadNamedSection(std::string_view name);
    int ReadEntity(std::string_view name);
    int ReadVertices(PolylineVertices & vertices);

    template <class ReadSection>
    int WalkFile(ReadSection readSection);
    template <class Dispatch>
    int WalkSection(int status, std::string_view end, Dispatch dispatch);
    template <class Take, class Finish>
    int ReadGroups(std::optional<EDXFEntType> type, Take take, Finish finish);

    std::unique_ptr<CFile> m_file;  // opened by its path
    std::unique_ptr<CArchive> m_ownArchive;
    CArchive * m_archive = nullptr;
    CStringArray m_layerNames;                               // in order of first sight
    CByteArray m_layerFlags;                                 // 1 for on, one for each name
    std::map<std::string, int, std::less<>> m_layerIndices;  // by name, so that a long table stays quick
};

#endif
