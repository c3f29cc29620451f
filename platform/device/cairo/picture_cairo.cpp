#include "platform/device/picture.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>

#include "platform/device/bmp_file.h"
#include "platform/device/cairo/context.h"
#include "platform/device/cairo/page_painter.h"

using namespace detail;

IMPLEMENT_DYNAMIC(CImageDC, CDC)
IMPLEMENT_DYNAMIC(CPageDC, CDC)

namespace {
constexpr int kLargestPicture = 32767;  // width and height, in pixels
constexpr double kPointsPerInch = 72;

bool SizeFits(int width, int height)
{
    return width >= 1 && width <= kLargestPicture && height >= 1 && height <= kLargestPicture;
}

PixelBuffer const * PixelsOf(HBITMAP bitmap)
{
    BitmapObject const * const object = Find<BitmapObject>(bitmap);
    return object ? &object->m_pixels : nullptr;
}
}  // namespace

CImageDC::CImageDC(int width, int height) : m_size(width, height)
{
    if (!SizeFits(width, height) || !m_bitmap.CreateBitmap(width, height, 1, 32, nullptr))
        return;
    auto context = std::make_unique<DeviceContext>(
        DeviceTraits{DT_RASPRINTER, width, height, kScreen.dotsPerInch}, nullptr);
    context->m_isMemory = true;
    Attach(EnterContext(std::move(context)));
    m_oldBitmap = ::SelectObject(m_hDC, m_bitmap);
    PatBlt(0, 0, width, height, WHITENESS);
}

CImageDC::~CImageDC()
{
    DeleteDC();
}

int CImageDC::SaveBMP(char const * path) const
{
    PixelBuffer const * const pixels = PixelsOf(m_bitmap);
    return path && pixels &&
           WriteBmpFile(path, pixels->width, pixels->height, [pixels](int row) { return pixels->Row(row); });
}

int CImageDC::SavePNG(char const * path) const
{
    PixelBuffer const * const pixels = PixelsOf(m_bitmap);
    if (!path || !pixels)
        return 0;
    // Cairo only reads the pixels here.
    auto * const data = reinterpret_cast<unsigned char *>(const_cast<Pixel *>(pixels->pixels.data()));
    SurfacePointer const surface(
        cairo_image_surface_create_for_data(data, CAIRO_FORMAT_RGB24, pixels->width, pixels->height,
                                            pixels->width * static_cast<int>(sizeof(Pixel))));
    return cairo_surface_write_to_png(surface.get(), path) == CAIRO_STATUS_SUCCESS;
}

CPageDC::CPageDC(char const * path, EPageForm form, int width, int height, int dotsPerInch)
{
    if (!path || !SizeFits(width, height) || dotsPerInch < 1)
        return;
    double const scale = kPointsPerInch / dotsPerInch;
    SurfacePointer surface(form == EPageForm::Svg
                               ? cairo_svg_surface_create(path, width * scale, height * scale)
                               : cairo_pdf_surface_create(path, width * scale, height * scale));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
        return;
    auto painter = std::make_unique<PagePainter>(std::move(surface), width, height, scale);
    Attach(EnterContext(std::make_unique<DeviceContext>(
        DeviceTraits{DT_RASPRINTER, width, height, dotsPerInch}, std::move(painter))));
}

CPageDC::~CPageDC()
{
    Close();
}

int CPageDC::Close()
{
    DeviceContext * const context = FindContext(m_hDC);
    if (!context)
        return 0;
    auto * const painter = static_cast<PagePainter *>(context->m_painter.get());
    bool const written = painter->Finish();
    DeleteDC();
    return written;
}

int CountLiveGdiObjects()
{
    return CountObjects();
}
