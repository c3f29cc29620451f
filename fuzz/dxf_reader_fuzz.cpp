// Reads arbitrary bytes as a drawing with a reader that keeps all it is handed, from two directions: entity
// by entity and for the bounding box.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "dxf/dxf_block_basic.h"
#include "dxf/dxf_in_basic.h"
#include "dxf/layer_choice.h"
#include "foundation/sound_player.h"
#include "foundation/vard_message.h"

namespace {
void Require(bool condition)
{
    if (!condition)
        std::abort();
}

class KeepingReader : public CDXFInBasic
{
  public:
    int SetEntLINE(TUVect3D & start, TUVect3D & end, int &, double &, char * layer, char * linetype,
                   TUVect3D & extrusion) override
    {
        TUVect3D world;
        TranOCStoWCS(start, world, end.z, extrusion);
        m_points.push_back(world);
        return KeepTexts(layer, linetype);
    }

    int SetEnt3DFACE(TUVect3D & corner1, TUVect3D &, TUVect3D &, TUVect3D & corner4, int &, double &,
                     char * layer, char * linetype, int edge1, int edge2, int edge3, int edge4,
                     CString & owner) override
    {
        Require((edge1 | edge2 | edge3 | edge4) >> 1 == 0);
        m_points.insert(m_points.end(), {corner1, corner4});
        m_texts.emplace_back(owner);
        return KeepTexts(layer, linetype);
    }

    int SetEntARC(TUVect3D & centre, double & radius, double & startAngle, double & endAngle, int &, double &,
                  char * layer, char * linetype, TUVect3D & extrusion) override
    {
        TUVect3D start{};
        TUVect3D end{};
        TUVect3D middle{};
        double bulge = 0;
        GetARCEndPoints(centre, radius, startAngle, endAngle, extrusion, &start, &end, &middle, &bulge);
        m_points.insert(m_points.end(), {start, end, middle});
        return KeepTexts(layer, linetype);
    }

    int SetEntLWPOLYLINE(int count, TUVect2D * points, double * bulges, int, int &, double &, double &,
                         char * layer, char * linetype, double &, double &, double &, TUVect3D &) override
    {
        for (int i = 0; i < count; ++i)
            m_points.push_back({{points[i].x, points[i].y, bulges[i]}});
        return KeepTexts(layer, linetype);
    }

    int SetEntPOLYLINE(int & count, CArray<TUVect3D, TUVect3D &> & points, CArray<double, double &> & bulges,
                       int &, int &, double &, double &, char * layer, char * linetype, double &, double &,
                       TUVect3D &) override
    {
        Require(points.GetSize() == count && bulges.GetSize() == count);
        m_points.insert(m_points.end(), points.begin(), points.end());
        return KeepTexts(layer, linetype);
    }

    int SetBeginBlock(char * layer, TUVect3D & basePoint, char * name, char * secondName, int flags) override
    {
        TSDXFBlockHeader header;
        m_blocks.ClearHeaderStructure(&header);
        std::strcpy(header.layer, layer);
        std::strcpy(header.name, name);
        std::strcpy(header.secondName, secondName);
        header.basePoint = basePoint;
        header.number = flags;
        m_blocks.AddBlock(header);
        return 0;
    }

    int SetInsertedBlock(char * name, TUVect3D & point, TUVect3D &, double &, int &, int &, double &,
                         double &, TUVect3D &) override
    {
        m_points.push_back(point);
        m_blocks.FindBlockByName(name);
        return 0;
    }

    int SetEntTEXT(TUVect3D & point, double &, CString & text, int &, CString &, CString &, double &,
                   double &, int &, int &, TUVect3D &) override
    {
        m_points.push_back(point);
        m_texts.emplace_back(text);
        return 0;
    }

    int SetEntMTEXT(TUVect3D & point, double & height, CString & text, int & colour, CString & layer,
                    CString & linetype, double & rotation, double & widthFactor, int & horizontal,
                    int & vertical, TUVect3D & extrusion) override
    {
        Require(horizontal >= 0 && horizontal <= 2 && vertical >= 0 && vertical <= 3);
        return SetEntTEXT(point, height, text, colour, layer, linetype, rotation, widthFactor, horizontal,
                          vertical, extrusion);
    }

    int SetEntSOLID(TUVect3D & corner1, TUVect3D &, TUVect3D &, TUVect3D & corner4, int &, double &,
                    char * layer, char * linetype, TUVect3D &) override
    {
        m_points.insert(m_points.end(), {corner1, corner4});
        return KeepTexts(layer, linetype);
    }

    int SetEntCIRCLE(TUVect3D & centre, double &, int &, double &, char * layer, char * linetype,
                     TUVect3D &) override
    {
        m_points.push_back(centre);
        return KeepTexts(layer, linetype);
    }

  private:
    int KeepTexts(char const * layer, char const * linetype)
    {
        Require(std::strlen(layer) < kLayerSize && std::strlen(linetype) < kLayerSize);
        m_texts.insert(m_texts.end(), {layer, linetype});
        CString name(layer);
        IsLayerOn(name);
        return 0;
    }

    std::vector<TUVect3D> m_points;
    std::vector<std::string> m_texts;
    CDXFBlockBasic m_blocks;
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    SetVardMessageHandler([](TSVardMessage const & message) { return message.defaultButton; });
    SetLayerChoiceHandler(nullptr);
    SetSoundPlayer([](char const *, DWORD) {});
    CMemFile file(data, size);
    {
        KeepingReader reader;
        reader.SetUseLayersFilter(1);
        reader.Create(&file);
        reader.ReadDXF();
    }
    file.SeekToBegin();
    KeepingReader reader;
    reader.Create(&file);
    double box[6] = {};
    reader.GetBoundingBox(box[0], box[1], box[2], box[3], box[4], box[5], size % 2 == 0 ? 1 : 0, 1, 1);
    Require(!(box[0] > box[1]) && !(box[2] > box[3]) && !(box[4] > box[5]));
    return 0;
}
