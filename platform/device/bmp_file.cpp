#include "platform/device/bmp_file.h"

#include <cstdio>
#include <memory>
#include <vector>

namespace detail {
namespace {
constexpr std::size_t kHeaderBytes = 14 + 40;  // file header and picture header
constexpr int kBytesPerPixel = 3;

struct FileCloser
{
    void operator()(std::FILE * file) const { std::fclose(file); }
};

using Bytes = std::vector<unsigned char>;

/// Appends a number of `count` bytes, lowest byte first.
void Append(Bytes & bytes, std::uint64_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<unsigned char>(value >> 8 * i));
}

Bytes Headers(int width, int height, std::size_t pixelBytes)
{
    Bytes bytes;
    Append(bytes, 'B' | 'M' << 8, 2);
    Append(bytes, kHeaderBytes + pixelBytes, 4);
    Append(bytes, 0, 4);
    Append(bytes, kHeaderBytes, 4);
    Append(bytes, 40, 4);
    Append(bytes, static_cast<std::uint64_t>(width), 4);
    Append(bytes, static_cast<std::uint64_t>(height), 4);
    Append(bytes, 1, 2);
    Append(bytes, std::uint64_t{8} * kBytesPerPixel, 2);
    Append(bytes, 0, 4);
    Append(bytes, pixelBytes, 4);
    bytes.resize(kHeaderBytes);  // resolution and colour counts stay 0
    return bytes;
}
}  // namespace

bool WriteBmpFile(char const * path, int width, int height,
                  std::function<std::uint32_t const *(int row)> const & rowAt)
{
    std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path, "wb"));
    if (!file)
        return false;
    std::size_t const rowBytes = (static_cast<std::size_t>(width) * kBytesPerPixel + 3) / 4 * 4;
    Bytes row = Headers(width, height, rowBytes * static_cast<std::size_t>(height));
    bool good = std::fwrite(row.data(), 1, row.size(), file.get()) == row.size();
    for (int y = height - 1; good && y >= 0; --y) {
        std::uint32_t const * const pixels = rowAt(y);
        row.clear();
        for (int x = 0; x < width; ++x)
            Append(row, pixels[x], kBytesPerPixel);
        row.resize(rowBytes);
        good = std::fwrite(row.data(), 1, row.size(), file.get()) == row.size();
    }
    return std::fclose(file.release()) == 0 && good;
}
}  // namespace detail
