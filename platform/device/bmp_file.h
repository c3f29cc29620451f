#ifndef KX7_PLATFORM_DEVICE_BMP_FILE_H
#define KX7_PLATFORM_DEVICE_BMP_FILE_H

#include <cstdint>
#include <functional>

namespace detail {
/// Writes an uncompressed BMP file of 24 bits per pixel. `rowAt` gives a row of pixels as 0x00RRGGBB, rows
/// counted from the top. Whether all bytes went out.
bool WriteBmpFile(char const * path, int width, int height,
                  std::function<std::uint32_t const *(int row)> const & rowAt);
}  // namespace detail

#endif
