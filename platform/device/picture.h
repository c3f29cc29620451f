#ifndef KX7_PLATFORM_DEVICE_PICTURE_H
#define KX7_PLATFORM_DEVICE_PICTURE_H

#include "platform/device/dc.h"

/// An image of pixels to draw on, all white at first.
///
///     CImageDC image(800, 600);
///     CDraw(&image).Line(0, 0, 799, 599, RGB(255, 0, 0));
///     image.SaveBMP("picture.bmp");
class KX7_API CImageDC : public CDC
{
    DECLARE_DYNAMIC(CImageDC)

  public:
    /// Width and height in pixels, 1 to 32767 each; outside of that there is no context (m_hDC is null).
    CImageDC(int width, int height);
    ~CImageDC() override;

    CSize GetSize() const { return m_size; }
    /// The bitmap that is drawn on, owned by this object.
    CBitmap * GetBitmap() { return &m_bitmap; }

    /// Writes the image as a BMP file of 24 bits per pixel. 1, or 0 if the file can't be written.
    int SaveBMP(char const * path) const;

#if !defined(_WIN32)
    /// Writes the image as a PNG file. 1, or 0 if the file can't be written.
    int SavePNG(char const * path) const;
#endif

  private:
    CSize m_size;
    CBitmap m_bitmap;
    HGDIOBJ m_oldBitmap = nullptr;
};

#if !defined(_WIN32)

/// The file forms of a page.
enum class EPageForm
{
    Svg,
    Pdf
};

/// A page of scalable graphics in a file. Lines, hatches and texts are kept as such and don't depend on the
/// resolution. There are no pixels to read back, so raster operations other than R2_COPYPEN, R2_NOP, R2_BLACK
/// and R2_WHITE draw like R2_COPYPEN.
class KX7_API CPageDC : public CDC
{
    DECLARE_DYNAMIC(CPageDC)

  public:
    /// Starts the file. Width and height are in device units of 1/`dotsPerInch` inch, 1 to 32767 each. If the
    /// file can't be made there is no context (m_hDC is null).
    CPageDC(char const * path, EPageForm form, int width, int height, int dotsPerInch = 96);
    /// Closes the file if Close hasn't.
    ~CPageDC() override;

    /// Ends the page and writes the file out; there is no context afterwards. 1, or 0 if the file couldn't be
    /// written or is closed already.
    int Close();
};

#endif

#endif
