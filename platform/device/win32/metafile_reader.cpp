#include "platform/device/win32/metafile_reader.h"

#include <cstring>

#include "platform/base/code_page.h"

namespace detail {
namespace {
constexpr DWORD kStockFlag = 0x80000000;  // marks a stock object in a select record

template <typename Record>
Record const & As(ENHMETARECORD const & record)
{
    return reinterpret_cast<Record const &>(record);
}

template <typename Point>
std::vector<POINT> PointsOf(Point const * points, DWORD count)
{
    std::vector<POINT> result;
    for (DWORD i = 0; i < count; ++i)
        result.push_back({points[i].x, points[i].y});
    return result;
}

LOGFONT FontOf(LOGFONTW const & wide)
{
    LOGFONT font = {};
    std::memcpy(&font, &wide, offsetof(LOGFONT, lfFaceName));
    std::string const face = Text1250FromUtf16(reinterpret_cast<char16_t const *>(wide.lfFaceName));
    face.copy(font.lfFaceName, LF_FACESIZE - 1);
    return font;
}

RECT RectOf(LONG x, LONG y, LONG width, LONG height)
{
    return {x, y, x + width, y + height};
}
}  // namespace

void MetafileReader::Read(HENHMETAFILE metafile)
{
    SelectStock(BLACK_PEN);
    SelectStock(WHITE_BRUSH);
    SelectStock(SYSTEM_FONT);
    ::EnumEnhMetaFile(nullptr, metafile, &MetafileReader::OnRecord, this, nullptr);
}

int CALLBACK MetafileReader::OnRecord(HDC, HANDLETABLE *, ENHMETARECORD const * record, int, LPARAM reader)
{
    reinterpret_cast<MetafileReader *>(reader)->ReadRecord(*record);
    return 1;
}

int MetafileReader::LeftSelected() const
{
    return (m_pen != 0) + (m_brush != 0) + (m_font != 0);
}

void MetafileReader::ReadRecord(ENHMETARECORD const & record)
{
    if (!ReadState(record) && !ReadObject(record))
        ReadDrawing(record);
}

bool MetafileReader::ReadState(ENHMETARECORD const & record)
{
    DWORD const value = record.dParm[0];
    switch (record.iType) {
        case EMR_SETTEXTCOLOR:
            m_state.textColour = value;
            return true;
        case EMR_SETBKCOLOR:
            m_state.backgroundColour = value;
            return true;
        case EMR_SETBKMODE:
            m_state.backgroundMode = static_cast<int>(value);
            return true;
        case EMR_SETTEXTALIGN:
            m_state.textAlign = value;
            return true;
        case EMR_SETROP2:
            m_state.rasterOperation = static_cast<int>(value);
            return true;
        case EMR_MOVETOEX:
            m_position = {As<EMRMOVETOEX>(record).ptl.x, As<EMRMOVETOEX>(record).ptl.y};
            return true;
        default:
            return false;
    }
}

bool MetafileReader::ReadObject(ENHMETARECORD const & record)
{
    switch (record.iType) {
        case EMR_CREATEPEN:
            m_pens[As<EMRCREATEPEN>(record).ihPen] = As<EMRCREATEPEN>(record).lopn;
            return true;
        case EMR_CREATEBRUSHINDIRECT: {
            LOGBRUSH32 const & brush = As<EMRCREATEBRUSHINDIRECT>(record).lb;
            m_brushes[As<EMRCREATEBRUSHINDIRECT>(record).ihBrush] = {brush.lbStyle, brush.lbColor,
                                                                     brush.lbHatch};
            return true;
        }
        case EMR_CREATEMONOBRUSH:
        case EMR_CREATEDIBPATTERNBRUSHPT:
            m_brushes[As<EMRCREATEDIBPATTERNBRUSHPT>(record).ihBrush] = {BS_PATTERN, 0, 0};
            return true;
        case EMR_EXTCREATEFONTINDIRECTW:
            m_fonts[As<EMREXTCREATEFONTINDIRECTW>(record).ihFont] =
                FontOf(As<EMREXTCREATEFONTINDIRECTW>(record).elfw.elfLogFont);
            return true;
        case EMR_SELECTOBJECT:
            Select(As<EMRSELECTOBJECT>(record).ihObject);
            return true;
        case EMR_DELETEOBJECT:
            Delete(As<EMRDELETEOBJECT>(record).ihObject);
            return true;
        default:
            return false;
    }
}

void MetafileReader::ReadDrawing(ENHMETARECORD const & record)
{
    switch (record.iType) {
        case EMR_LINETO:
            AddLine(As<EMRLINETO>(record).ptl);
            break;
        case EMR_POLYLINE16:
            Add(EDrawn::Polyline, PointsOf(As<EMRPOLYLINE16>(record).apts, As<EMRPOLYLINE16>(record).cpts));
            break;
        case EMR_POLYLINE:
            Add(EDrawn::Polyline, PointsOf(As<EMRPOLYLINE>(record).aptl, As<EMRPOLYLINE>(record).cptl));
            break;
        case EMR_POLYGON16:
            Add(EDrawn::Polygon, PointsOf(As<EMRPOLYLINE16>(record).apts, As<EMRPOLYLINE16>(record).cpts));
            break;
        case EMR_POLYGON:
            Add(EDrawn::Polygon, PointsOf(As<EMRPOLYLINE>(record).aptl, As<EMRPOLYLINE>(record).cptl));
            break;
        case EMR_POLYPOLYGON16: {
            EMRPOLYPOLYLINE16 const & poly = As<EMRPOLYPOLYLINE16>(record);
            Add(EDrawn::PolyPolygon,
                PointsOf(reinterpret_cast<POINTS const *>(poly.aPolyCounts + poly.nPolys), poly.cpts));
            break;
        }
        case EMR_RECTANGLE:
            AddBox(EDrawn::Rectangle, As<EMRRECTANGLE>(record).rclBox);
            break;
        case EMR_ELLIPSE:
            AddBox(EDrawn::Ellipse, As<EMRELLIPSE>(record).rclBox);
            break;
        case EMR_FILLRGN:
            AddFill(As<EMRFILLRGN>(record));
            break;
        case EMR_SETPIXELV:
            Add(EDrawn::Pixel, {{As<EMRSETPIXELV>(record).ptlPixel.x, As<EMRSETPIXELV>(record).ptlPixel.y}});
            m_calls.back().textColour = As<EMRSETPIXELV>(record).crColor;
            break;
        case EMR_EXTTEXTOUTW:
            AddText(As<EMREXTTEXTOUTW>(record));
            break;
        case EMR_BITBLT:
            AddCopy(As<EMRBITBLT>(record));
            break;
        case EMR_STRETCHBLT:
            AddStretch(As<EMRSTRETCHBLT>(record));
            break;
        default:
            break;
    }
}

void MetafileReader::SelectStock(int object)
{
    HGDIOBJ const handle = ::GetStockObject(object);
    switch (::GetObjectType(handle)) {
        case OBJ_PEN:
            ::GetObject(handle, sizeof m_state.pen, &m_state.pen);
            m_pen = 0;
            break;
        case OBJ_BRUSH:
            ::GetObject(handle, sizeof m_state.brush, &m_state.brush);
            m_brush = 0;
            break;
        case OBJ_FONT:
            ::GetObject(handle, sizeof m_state.font, &m_state.font);
            m_font = 0;
            break;
        default:
            break;
    }
}

void MetafileReader::Select(DWORD handle)
{
    if (handle & kStockFlag) {
        SelectStock(static_cast<int>(handle & ~kStockFlag));
        return;
    }
    m_selectedOnce.insert(handle);
    if (auto const pen = m_pens.find(handle); pen != m_pens.end()) {
        m_state.pen = pen->second;
        m_pen = handle;
    } else if (auto const brush = m_brushes.find(handle); brush != m_brushes.end()) {
        m_state.brush = brush->second;
        m_brush = handle;
    } else if (auto const font = m_fonts.find(handle); font != m_fonts.end()) {
        m_state.font = font->second;
        m_font = handle;
    }
}

void MetafileReader::Delete(DWORD handle)
{
    m_selectedOnce.erase(handle);
    m_pens.erase(handle);
    m_brushes.erase(handle);
    m_fonts.erase(handle);
}

void MetafileReader::Add(EDrawn kind, std::vector<POINT> points)
{
    m_calls.push_back(m_state);
    m_calls.back().kind = kind;
    m_calls.back().points = std::move(points);
}

void MetafileReader::AddBox(EDrawn kind, RECTL const & inclusive)
{
    // The records hold the last row and column that are drawn.
    Add(kind, {{inclusive.left, inclusive.top}, {inclusive.right + 1, inclusive.bottom + 1}});
}

void MetafileReader::AddLine(POINTL const & to)
{
    POINT const end = {to.x, to.y};
    Add(EDrawn::Line, {m_position, end});
    m_position = end;
}

void MetafileReader::AddText(EMREXTTEXTOUTW const & record)
{
    auto const * const start = reinterpret_cast<char const *>(&record) + record.emrtext.offString;
    Add(EDrawn::Text, {{record.emrtext.ptlReference.x, record.emrtext.ptlReference.y}});
    m_calls.back().text =
        Text1250FromUtf16({reinterpret_cast<char16_t const *>(start), record.emrtext.nChars});
}

void MetafileReader::AddFill(EMRFILLRGN const & record)
{
    auto const & region = *reinterpret_cast<RGNDATA const *>(record.RgnData);
    RECT const & box = region.rdh.rcBound;
    Add(EDrawn::FillRegion, {{box.left, box.top}, {box.right, box.bottom}});
    auto const brush = m_brushes.find(record.ihBrush);
    if (brush != m_brushes.end())
        m_calls.back().brush = brush->second;
    m_calls.back().copyOperation = PATCOPY;
}

void MetafileReader::AddCopy(EMRBITBLT const & record)
{
    RECT const to = RectOf(record.xDest, record.yDest, record.cxDest, record.cyDest);
    Add(record.cbBmiSrc ? EDrawn::Copy : EDrawn::Fill, {{to.left, to.top}, {to.right, to.bottom}});
    m_calls.back().copyOperation = record.dwRop;
}

void MetafileReader::AddStretch(EMRSTRETCHBLT const & record)
{
    RECT const to = RectOf(record.xDest, record.yDest, record.cxDest, record.cyDest);
    Add(EDrawn::Copy, {{to.left, to.top}, {to.right, to.bottom}});
    m_calls.back().copyOperation = record.dwRop;
}
}  // namespace detail
