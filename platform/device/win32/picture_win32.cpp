#include <vector>

#include "platform/device/bmp_file.h"
#include "platform/device/picture.h"

IMPLEMENT_DYNAMIC(CImageDC, CDC)

namespace {
constexpr int kLargestPicture = 32767;  // width and height, in pixels

/// Header of an image of 32 bits per pixel, rows from the top.
BITMAPINFO InfoOf(CSize size)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}
}  // namespace

CImageDC::CImageDC(int width, int height) : m_size(width, height)
{
    if (width < 1 || width > kLargestPicture || height < 1 || height > kLargestPicture)
        return;
    BITMAPINFO const info = InfoOf(m_size);
    void * bits = nullptr;
    if (!m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)))
        return;
    CreateCompatibleDC(nullptr);
    m_oldBitmap = ::SelectObject(m_hDC, m_bitmap);
    PatBlt(0, 0, width, height, WHITENESS);
}

CImageDC::~CImageDC()
{
    if (m_hDC)
        ::SelectObject(m_hDC, m_oldBitmap);
    DeleteDC();
}

int CImageDC::SaveBMP(char const * path) const
{
    BITMAP bitmap = {};
    if (!path || m_bitmap.GetObject(sizeof bitmap, &bitmap) == 0 || !bitmap.bmBits)
        return 0;
    ::GdiFlush();
    auto const * const pixels = static_cast<std::uint32_t const *>(bitmap.bmBits);
    std::size_t const width = static_cast<std::size_t>(m_size.cx);
    return detail::WriteBmpFile(path, m_size.cx, m_size.cy,
                                [&](int row) { return pixels + static_cast<std::size_t>(row) * width; });
}

int CountLiveGdiObjects()
{
    return static_cast<int>(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
}
