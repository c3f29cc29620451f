#ifndef KX7_TESTS_SUPPORT_WINDOW_PICTURE_H
#define KX7_TESTS_SUPPORT_WINDOW_PICTURE_H

#include <windows.h>

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

/// What a window shows, frame and all.
struct WindowPicture
{
    int width = 0, height = 0;
    std::vector<std::uint32_t> pixels;  ///< 0x00RRGGBB, rows from the bottom up.

    /// Of the pixel counted from the left and the top.
    std::uint32_t At(int x, int y) const
    {
        return pixels[static_cast<std::size_t>(height - 1 - y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)] &
               0xFFFFFF;
    }
};

inline BITMAPINFOHEADER PictureHeader(int width, int height)
{
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = 32;
    return header;
}

/// Paints the window with all its controls and takes its picture.
inline WindowPicture TakePicture(HWND window)
{
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    RECT place;
    GetWindowRect(window, &place);
    WindowPicture picture;
    picture.width = place.right - place.left;
    picture.height = place.bottom - place.top;
    picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
    HDC const source = GetWindowDC(window);
    HDC const memory = CreateCompatibleDC(source);
    HBITMAP const bitmap = CreateCompatibleBitmap(source, picture.width, picture.height);
    HGDIOBJ const former = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, picture.width, picture.height, source, 0, 0, SRCCOPY);
    SelectObject(memory, former);
    BITMAPINFO information = {PictureHeader(picture.width, picture.height), {}};
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(picture.height), picture.pixels.data(), &information,
              DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, source);
    return picture;
}

/// Writes the picture as a bitmap file.
inline void SavePicture(WindowPicture const & picture, std::string const & path)
{
    auto const imageSize = static_cast<DWORD>(picture.pixels.size() * sizeof(std::uint32_t));
    constexpr DWORD kHeaderSize = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;  // "BM"
    file.bfSize = kHeaderSize + imageSize;
    file.bfOffBits = kHeaderSize;
    BITMAPINFOHEADER const header = PictureHeader(picture.width, picture.height);
    std::ofstream stream(path, std::ios::binary);
    stream.write(reinterpret_cast<char const *>(&file), sizeof file);
    stream.write(reinterpret_cast<char const *>(&header), sizeof header);
    stream.write(reinterpret_cast<char const *>(picture.pixels.data()), imageSize);
}

#endif
