#ifndef KX7_DXF_DXF_OUT_BASIC_H
#define KX7_DXF_DXF_OUT_BASIC_H

#include <cstdint>
#include <memory>
#include <string_view>

#include "geometry/records.h"
#include "platform/base/archive.h"
#include "platform/base/array.h"
#include "platform/base/export.h"
#include "platform/base/file.h"
#include "platform/base/object.h"
#include "platform/base/string.h"

class CMathematics;

inline constexpr int DXF_WRITTEN = 0;       ///< Done.
inline constexpr int DXF_NO_STREAM = 1;     ///< There is no stream to write to.
inline constexpr int DXF_NO_KERNEL = 6;     ///< The writer was made without a kernel.
inline constexpr int DXF_NO_TRANSFORM = 7;  ///< A point couldn't be transformed.

/// Writes a drawing in the text form of DXF: one call for a section's start or end, one for an entity, in the
/// host's order. Nothing is written unasked but the end of the file, so there are no header variables, tables
/// or layers unless the host writes them through the archive between the calls.
///
/// Lines end in carriage return and line feed; group codes stand in three columns. Coordinates have three
/// decimals in the host's unit, and what doesn't fit that takes exponent form (0.001 is "1.0e-03").
///
/// Operations return a status, and entities don't test for a stream: none may be written before Create was
/// successful. Failures of the stream pass through as its exceptions.
class KX7_API CDXFOutBasic : public CObject
{
    DECLARE_DYNAMIC(CDXFOutBasic)

    /// The kernel is the host's and outlives the writer.
    explicit CDXFOutBasic(CMathematics * kernel);

    /// Writes the end of the file unless that was done, and closes what the writer opened itself. An open
    /// section isn't ended: its host does that. Failures of the stream are lost here; WriteEOF reports them.
    ~CDXFOutBasic() override;

    CDXFOutBasic(CDXFOutBasic const &) = delete;
    CDXFOutBasic & operator=(CDXFOutBasic const &) = delete;

    /// Opens a stream: the host's archive, or an own archive on the host's file; both stay the host's. 0, 1
    /// for a null pointer, 6 without a kernel. A stream that was open before is ended as the destructor does
    /// it.
    int Create(CArchive * archive);
    int Create(CFile * file);

    /// Opens an existing file. It isn't cut: of a longer old text the tail stays behind the new one. 1 also
    /// if it can't be opened.
    int Create(CString path);

    /// Asks the user for the file and makes it new. 1 also if the user cancels.
    int Create(CString title, CString fileName, CString extension, CString filter);

    /// Start a section, ending the one that is open. Always 0.
    int WriteBeginSectionHEADERS();
    int WriteBeginSectionCLASSES();
    int WriteBeginSectionTABLES();
    int WriteBeginSectionBLOCKS();
    int WriteBeginSectionENTITIES();
    int WriteBeginSectionOBJECTS();

    /// Write the end of a section, or of the file, as often as they are called. Always 0.
    int WriteEndSection();
    int WriteEOF();

    /// Writes the coordinates of the point with the given index in its entity, 0 to 3; any other counts as 0.
    int WritePoint(TUVect3D point, int index);

    int WriteEntLine(TUVect3D start, TUVect3D end, int & colour, CString layer, double & thickness);

    /// The edges aren't written.
    int WriteEnt3DFace(TUVect3D & p1, TUVect3D & p2, TUVect3D & p3, TUVect3D & p4, int & colour,
                       CString const & layer, int edge1, int edge2, int edge3, int edge4);

    /// The layer's name is written as it stands, and of the bulge and the flags only one: the flags if they
    /// are above 0.
    int WriteEntVertex(TUVect3D & point, CString layer, double bulge, int flags);

    /// A polyline in the plane of `extrusion` at `elevation`, to which its points are transformed from world
    /// coordinates; or, with the flags 8 or 9, one in space, whose points stay and whose bulges aren't
    /// written. Points beyond the array aren't written, missing bulges are 0.
    int WriteEntPolyLine(int count, CArray<TUVect3D, TUVect3D &> & points, CArray<double, double &> & bulges,
                         int flags, double elevation, TUVect3D extrusion, int colour, double thickness,
                         CString layer);

    /// A polyline in space. Points beyond the array aren't written.
    int WriteEnt3DPolyLine(int count, CArray<TUVect3D, TUVect3D &> & points, int closed, double elevation,
                           int colour, double thickness, CString layer);

    /// The height is written if it is above 0, with six significant digits. What follows the layer among the
    /// arguments isn't written.
    int WriteEntText(TUVect3D & point, double & height, CString & text, int colour, CString layer,
                     CString linetype, double rotation, double widthFactor, int horizontal, int vertical,
                     TUVect3D * extrusion);

    /// Makes a layer's name fit for the file: none becomes "0", a blank "-", a point "_". 1 if that changed
    /// something, otherwise 0.
    int UpravLayer(CString * layer);

    /// Takes a point from world to object coordinates: x and y along the axes of `CDXFInBasic::TranOCStoWCS`,
    /// z is `elevation`. Always 1.
    int TranWCStoOCS(TUVect3D point, TUVect3D & result, double elevation, TUVect3D extrusion);

  private:
    void Finish();
    int OpenAndCreate(CString const & path, UINT flags);
    int BeginSection(std::string_view name);
    void WriteLine(std::string_view text);
    void WriteGroup(int code, std::string_view value);
    void WriteGroup(int code, int value);
    void WriteGroup(int code, double value);
    int BeginPolyline(CString const & layer, double elevation);
    void WriteColourAndThickness(int colour, double thickness);

    std::unique_ptr<CFile> m_file;  // opened by its path
    std::unique_ptr<CArchive> m_ownArchive;
    CArchive * m_archive = nullptr;
    std::int32_t m_sectionOpen = 0;
    std::int32_t m_endWritten = 0;
    double m_tolerance = 1e-8;  // of lengths and thicknesses that count as none
    CMathematics * m_kernel;
};

#endif
