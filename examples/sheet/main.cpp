// Draws the sheet into files: sheet STEM writes STEM.bmp, and on Linux STEM.png, STEM.svg and STEM.pdf too.
#include <cstdio>
#include <string>

#include "sheet.h"

namespace {
bool WriteImage(std::string const & stem)
{
    CImageDC image(kSheetWidth, kSheetHeight);
    if (!image.GetSafeHdc())
        return false;
    DrawSheet(image);
#if !defined(_WIN32)
    if (!image.SavePNG((stem + ".png").c_str()))
        return false;
#endif
    return image.SaveBMP((stem + ".bmp").c_str()) != 0;
}

#if !defined(_WIN32)
bool WritePage(std::string const & file, EPageForm form)
{
    CPageDC page(file.c_str(), form, kSheetWidth, kSheetHeight);
    if (!page.GetSafeHdc())
        return false;
    DrawSheet(page);
    return page.Close() != 0;
}
#endif
}  // namespace

int main(int argc, char ** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: sheet STEM\n");
        return 2;
    }
    std::string const stem = argv[1];
    bool written = WriteImage(stem);
#if !defined(_WIN32)
    written = written && WritePage(stem + ".svg", EPageForm::Svg) && WritePage(stem + ".pdf", EPageForm::Pdf);
#endif
    if (!written)
        std::fprintf(stderr, "sheet: %s.* can't be written\n", stem.c_str());
    return written ? 0 : 1;
}
