#include <array>
#include <string_view>

#include "platform/device/cairo/objects.h"
#include "platform/device/gdi.h"

using namespace detail;

namespace {
constexpr int kStockObjects = 18;

HGDIOBJ EnterStock(std::unique_ptr<GraphicsObject> object)
{
    object->m_stock = true;
    return AddObject(std::move(object));
}

HGDIOBJ StockBrush(UINT style, COLORREF colour)
{
    return EnterStock(std::make_unique<BrushObject>(LOGBRUSH{style, colour, 0}));
}

HGDIOBJ StockPen(int style, COLORREF colour)
{
    return EnterStock(std::make_unique<PenObject>(LOGPEN{static_cast<UINT>(style), {0, 0}, colour}));
}

HGDIOBJ StockFont(int height, int weight)
{
    LOGFONT record = {};
    record.lfHeight = height;
    record.lfWeight = weight;
    std::string_view("Arial").copy(record.lfFaceName, LF_FACESIZE - 1);
    return EnterStock(std::make_unique<FontObject>(record));
}

std::array<HGDIOBJ, kStockObjects> MakeStock()
{
    std::array<HGDIOBJ, kStockObjects> stock = {};
    stock[WHITE_BRUSH] = StockBrush(BS_SOLID, RGB(255, 255, 255));
    stock[LTGRAY_BRUSH] = StockBrush(BS_SOLID, RGB(192, 192, 192));
    stock[GRAY_BRUSH] = StockBrush(BS_SOLID, RGB(128, 128, 128));
    stock[DKGRAY_BRUSH] = StockBrush(BS_SOLID, RGB(64, 64, 64));
    stock[BLACK_BRUSH] = StockBrush(BS_SOLID, RGB(0, 0, 0));
    stock[NULL_BRUSH] = StockBrush(BS_NULL, 0);
    stock[WHITE_PEN] = StockPen(PS_SOLID, RGB(255, 255, 255));
    stock[BLACK_PEN] = StockPen(PS_SOLID, RGB(0, 0, 0));
    stock[NULL_PEN] = StockPen(PS_NULL, 0);
    stock[SYSTEM_FONT] = StockFont(16, FW_BOLD);
    stock[DEFAULT_GUI_FONT] = StockFont(-11, FW_NORMAL);
    return stock;
}
}  // namespace

HGDIOBJ GetStockObject(int object)
{
    static std::array<HGDIOBJ, kStockObjects> const stock = MakeStock();
    return object >= 0 && object < kStockObjects ? stock[static_cast<std::size_t>(object)] : nullptr;
}

namespace detail {
HBITMAP GetStockBitmap()
{
    static HGDIOBJ const bitmap = EnterStock(std::make_unique<BitmapObject>(1, 1, 1));
    return static_cast<HBITMAP>(bitmap);
}
}  // namespace detail
