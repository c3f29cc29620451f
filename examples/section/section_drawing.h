#ifndef KX7_EXAMPLES_SECTION_SECTION_DRAWING_H
#define KX7_EXAMPLES_SECTION_SECTION_DRAWING_H

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "outlines.h"

/// What an entity leaves in the drawing plane: a path on a layer, in drawing units.
struct DrawnPath
{
    outlines::Path path;
    std::string layer;
};

/// The blocks of a drawing, each with its paths.
class CSectionBlocks : public CDXFBlockBasic
{
  public:
    ~CSectionBlocks() override { EraseAllBlocks(); }

    /// Adds a block with its content.
    void Add(TSDXFBlockHeader header, std::vector<DrawnPath> paths);

    /// The paths of the block of that name and its base point; null if there is none.
    std::vector<DrawnPath> const * Find(char const * name, TUVect3D & basePoint);

    int EraseData(CObject * data) override;
};

/// Reads a drawing into paths: LINE, ARC, CIRCLE, LWPOLYLINE and POLYLINE, and those of blocks where the
/// drawing inserts them. Everything else is counted and left out.
class CSectionDrawing : public CDXFInBasic
{
  public:
    /// `layers`: the layers to take, none for all. `bound`: how far, in drawing units, a chord may leave an
    /// arc that an unevenly scaled block turns into an ellipse. `progress` is told the line number now and
    /// then.
    CSectionDrawing(std::set<std::string> layers, double bound, std::function<void(int line)> progress);

    /// The paths on the chosen layers, in drawing units.
    std::vector<DrawnPath> const & Paths() const { return m_paths; }

    /// How often each kind of entity stands in the drawing, the blocks included.
    std::map<std::string, int> const & EntityCounts() const { return m_entityCounts; }

    /// How many entities stand on each layer, over all layers.
    std::map<std::string, int> const & LayerCounts() const { return m_layerCounts; }

    /// Length of a drawing unit in metres, if the drawing's header tells it.
    std::optional<double> UnitInMetres() const { return m_unitInMetres; }

    /// Entities that don't lie in the drawing plane, and references to blocks that aren't there.
    int TiltedEntities() const { return m_tiltedEntities; }
    std::set<std::string> const & MissingBlocks() const { return m_missingBlocks; }

    /// The line at which the reading stands.
    int LineNumber() const { return m_lineCounter; }

    int ReadDXFLine() override;
    int ReadUnknownSection() override;
    int PreReadControl(EDXFEntType type, int & code, CString & data, int & status) override;
    int SetEntLINE(TUVect3D & start, TUVect3D & end, int & colour, double & thickness, char * layer,
                   char * linetype, TUVect3D & extrusion) override;
    int SetEntARC(TUVect3D & centre, double & radius, double & startAngle, double & endAngle, int & colour,
                  double & thickness, char * layer, char * linetype, TUVect3D & extrusion) override;
    int SetEntCIRCLE(TUVect3D & centre, double & radius, int & colour, double & thickness, char * layer,
                     char * linetype, TUVect3D & extrusion) override;
    int SetEntLWPOLYLINE(int count, TUVect2D * points, double * bulges, int closed, int & colour,
                         double & elevation, double & thickness, char * layer, char * linetype,
                         double & constantWidth, double & startWidth, double & endWidth,
                         TUVect3D & extrusion) override;
    int SetEntPOLYLINE(int & count, CArray<TUVect3D, TUVect3D &> & points, CArray<double, double &> & bulges,
                       int & flags, int & colour, double & elevation, double & thickness, char * layer,
                       char * linetype, double & startWidth, double & endWidth,
                       TUVect3D & extrusion) override;
    int SetBeginBlock(char * layer, TUVect3D & basePoint, char * name, char * secondName, int flags) override;
    int SetEndBlock() override;
    int SetInsertedBlock(char * name, TUVect3D & point, TUVect3D & scales, double & rotation, int & columns,
                         int & rows, double & columnSpacing, double & rowSpacing,
                         TUVect3D & extrusion) override;

  private:
    struct Placement;

    void AddPath(outlines::Path path, std::string const & layer);
    void AddPolyline(std::vector<TUVect2D> const & points, std::vector<double> const & bulges, bool closed,
                     std::string const & layer, TUVect3D const & extrusion);
    bool LiesInPlane(TUVect3D const & extrusion);
    bool IsWanted(std::string const & layer) const { return m_layers.empty() || m_layers.count(layer) != 0; }
    TUVect2D ToWorld(double x, double y, TUVect3D const & extrusion);
    outlines::Path Place(outlines::Path const & path, Placement const & placement) const;

    std::set<std::string> m_layers;
    double m_bound;
    std::function<void(int line)> m_progress;
    std::vector<DrawnPath> m_paths;
    std::map<std::string, int> m_entityCounts;
    std::map<std::string, int> m_layerCounts;
    std::optional<double> m_unitInMetres;
    int m_tiltedEntities = 0;
    std::set<std::string> m_missingBlocks;
    CSectionBlocks m_blocks;
    std::optional<TSDXFBlockHeader> m_openBlock;
    std::vector<DrawnPath> m_blockPaths;
    std::string m_insertLayer;
};

#endif
