// Pictures in files: they exist, have the right form and size, and hold what was drawn.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/device/picture.h"

namespace {
/// A file in the test's working folder that goes away with the object.
class TemporaryFile
{
  public:
    explicit TemporaryFile(char const * name) : m_path(name) { std::filesystem::remove(m_path); }
    ~TemporaryFile() { std::filesystem::remove(m_path); }

    char const * Path() const { return m_path.c_str(); }

    std::string Bytes() const
    {
        std::ifstream file(m_path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::string m_path;
};

unsigned Number(std::string const & bytes, std::size_t at, int count)
{
    unsigned value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
    return value;
}

TEST(BmpFile, HasTheDocumentedHeaderAndRowsFromTheBottom)
{
    // 3 pixels of 3 bytes make rows of 12 bytes; 2 rows and 54 bytes of headers make 78 bytes.
    CImageDC image(3, 2);
    image.SetPixel(0, 0, RGB(1, 2, 3));
    image.SetPixel(2, 1, RGB(250, 251, 252));
    TemporaryFile const file("picture_test_small.bmp");
    ASSERT_EQ(image.SaveBMP(file.Path()), 1);
    std::string const bytes = file.Bytes();
    ASSERT_EQ(bytes.size(), 78u);
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(Number(bytes, 2, 4), 78u);
    EXPECT_EQ(Number(bytes, 10, 4), 54u);
    EXPECT_EQ(Number(bytes, 14, 4), 40u);
    EXPECT_EQ(Number(bytes, 18, 4), 3u);
    EXPECT_EQ(Number(bytes, 22, 4), 2u);
    EXPECT_EQ(Number(bytes, 26, 2), 1u);
    EXPECT_EQ(Number(bytes, 28, 2), 24u);
    EXPECT_EQ(Number(bytes, 30, 4), 0u);
    EXPECT_EQ(Number(bytes, 34, 4), 24u);
    EXPECT_EQ(bytes.substr(54, 12), std::string("\xFF\xFF\xFF\xFF\xFF\xFF\xFC\xFB\xFA\0\0\0", 12));
    EXPECT_EQ(bytes.substr(66, 12), std::string("\x03\x02\x01\xFF\xFF\xFF\xFF\xFF\xFF\0\0\0", 12));
}

TEST(BmpFile, FolderThatIsNotThereFails)
{
    CImageDC image(3, 2);
    EXPECT_EQ(image.SaveBMP("no_such_folder/picture.bmp"), 0);
    EXPECT_EQ(image.SaveBMP(nullptr), 0);
}

TEST(Image, TellsItsSizeAndBitmap)
{
    CImageDC image(30, 20);
    EXPECT_EQ(image.GetSize(), CSize(30, 20));
    BITMAP bitmap;
    ASSERT_NE(image.GetBitmap()->GetBitmap(&bitmap), 0);
    EXPECT_EQ(bitmap.bmWidth, 30);
    EXPECT_EQ(bitmap.bmHeight, 20);
}

#if !defined(_WIN32)

void DrawSample(CDC & dc)
{
    CPen pen(PS_DASH, 0, RGB(255, 0, 0));
    CBrush brush(HS_FDIAGONAL, RGB(0, 0, 255));
    CPen * const oldPen = dc.SelectObject(&pen);
    CBrush * const oldBrush = dc.SelectObject(&brush);
    dc.Rectangle(10, 10, 90, 60);
    dc.Ellipse(100, 10, 150, 60);
    dc.MoveTo(0, 0);
    dc.LineTo(199, 99);
    dc.TextOut(20, 70, "\xE8\xE1ra");
    dc.SelectObject(oldBrush);
    dc.SelectObject(oldPen);
}

TEST(PngFile, HasItsSignatureAndSize)
{
    CImageDC image(200, 100);
    DrawSample(image);
    TemporaryFile const file("picture_test.png");
    ASSERT_EQ(image.SavePNG(file.Path()), 1);
    std::string const bytes = file.Bytes();
    EXPECT_EQ(bytes.substr(1, 3), "PNG");
    // Width and height stand in the first chunk, highest byte first.
    EXPECT_EQ(bytes.substr(16, 8), std::string("\0\0\0\xC8\0\0\0\x64", 8));
    EXPECT_EQ(image.SavePNG("no_such_folder/picture.png"), 0);
}

TEST(SvgPage, HasItsSizeInPointsAndItsPaths)
{
    TemporaryFile const file("picture_test.svg");
    CPageDC page(file.Path(), EPageForm::Svg, 200, 100);
    ASSERT_NE(page.GetSafeHdc(), nullptr);
    EXPECT_EQ(page.GetDeviceCaps(TECHNOLOGY), DT_RASPRINTER);
    EXPECT_EQ(page.GetDeviceCaps(HORZRES), 200);
    DrawSample(page);
    EXPECT_EQ(page.Close(), 1);
    EXPECT_EQ(page.Close(), 0);
    std::string const text = file.Bytes();
    // 200 by 100 pixels at 96 dots per inch are 150 by 75 points.
    EXPECT_NE(text.find("width=\"150pt\" height=\"75pt\""), std::string::npos);
    EXPECT_NE(text.find("<path"), std::string::npos);
    EXPECT_NE(text.find("stroke-dasharray"), std::string::npos);
    EXPECT_NE(text.find("</svg>"), std::string::npos);
}

TEST(PdfPage, IsAPdfOfThePagesSize)
{
    TemporaryFile const file("picture_test.pdf");
    CPageDC page(file.Path(), EPageForm::Pdf, 400, 300, 72);
    DrawSample(page);
    EXPECT_EQ(page.Close(), 1);
    std::string const bytes = file.Bytes();
    EXPECT_EQ(bytes.substr(0, 5), "%PDF-");
    EXPECT_NE(bytes.find("[ 0 0 400 300 ]"), std::string::npos);
}

TEST(Page, HasNoPixelsToReadOrCopy)
{
    TemporaryFile const file("picture_test_pixels.svg");
    CPageDC page(file.Path(), EPageForm::Svg, 20, 20);
    CImageDC image(10, 10);
    EXPECT_EQ(page.GetPixel(1, 1), CLR_INVALID);
    EXPECT_FALSE(image.BitBlt(0, 0, 5, 5, &page, 0, 0, SRCCOPY));
    EXPECT_TRUE(page.BitBlt(0, 0, 5, 5, &image, 0, 0, SRCCOPY));
}

TEST(Page, ThatCannotBeMadeHasNoContext)
{
    EXPECT_EQ(CPageDC("no_such_folder/page.svg", EPageForm::Svg, 20, 20).GetSafeHdc(), nullptr);
    EXPECT_EQ(CPageDC(nullptr, EPageForm::Pdf, 20, 20).GetSafeHdc(), nullptr);
    EXPECT_EQ(CPageDC("page.pdf", EPageForm::Pdf, 0, 20).GetSafeHdc(), nullptr);
}

#endif
}  // namespace
