#ifndef KX7_PLATFORM_DEVICE_CAIRO_PIXEL_BUFFER_H
#define KX7_PLATFORM_DEVICE_CAIRO_PIXEL_BUFFER_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/base/gdi_types.h"

namespace detail {
/// A pixel: 0x00RRGGBB, as Cairo's RGB24 images have it.
using Pixel = std::uint32_t;

constexpr Pixel kPixelMask = 0x00FFFFFF;

/// Colour to pixel and back: red and blue change places.
constexpr Pixel PixelOf(COLORREF colour)
{
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}
constexpr COLORREF ColourOf(Pixel pixel)
{
    return PixelOf(pixel);
}

/// An image in memory, rows from the top without padding.
struct PixelBuffer
{
    PixelBuffer(int w, int h, Pixel fill)
        : width(w), height(h), pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), fill)
    {
    }

    Pixel * Row(int y) { return &pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)]; }
    Pixel const * Row(int y) const
    {
        return &pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)];
    }
    bool Contains(int x, int y) const { return x >= 0 && x < width && y >= 0 && y < height; }

    int width, height;
    std::vector<Pixel> pixels;
};

/// A raster operation of two operands, pen (or brush) and destination. The operation's number less one is its
/// truth table: bit 0 for pen 0 and destination 0, bit 1 for destination alone, bit 2 for pen alone, bit 3
/// for both.
class BinaryOperation
{
  public:
    explicit BinaryOperation(int operation) : m_copy(operation == R2_COPYPEN)
    {
        auto const table = static_cast<unsigned>(operation - 1);
        for (unsigned i = 0; i < 4; ++i)
            m_masks[i] = table >> i & 1 ? kPixelMask : 0;
    }

    /// Whether the result is the pen's colour whatever the destination holds.
    bool IsCopy() const { return m_copy; }

    Pixel operator()(Pixel pen, Pixel destination) const
    {
        return (m_masks[0] & ~pen & ~destination) | (m_masks[1] & ~pen & destination) |
               (m_masks[2] & pen & ~destination) | (m_masks[3] & pen & destination);
    }

  private:
    bool m_copy;
    Pixel m_masks[4];
};

/// A raster operation of three operands: pattern, source and destination. Byte 2 of its code is its truth
/// table, with the bit number pattern * 4 + source * 2 + destination.
class TernaryOperation
{
  public:
    explicit TernaryOperation(DWORD code) : m_table(code >> 16 & 0xFF) {}

    bool UsesSource() const { return ((m_table >> 2 ^ m_table) & 0x33) != 0; }
    bool UsesPattern() const { return ((m_table >> 4 ^ m_table) & 0x0F) != 0; }

    Pixel operator()(Pixel pattern, Pixel source, Pixel destination) const
    {
        Pixel result = 0;
        for (unsigned i = 0; i < 8; ++i)
            if (m_table >> i & 1)
                result |= (i & 4 ? pattern : ~pattern) & (i & 2 ? source : ~source) &
                          (i & 1 ? destination : ~destination);
        return result & kPixelMask;
    }

  private:
    DWORD m_table;
};
}  // namespace detail

#endif
