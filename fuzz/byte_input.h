#ifndef KX7_FUZZ_BYTE_INPUT_H
#define KX7_FUZZ_BYTE_INPUT_H

// What the geometry fuzz targets share: numbers and points from raw bytes, and the check that ends a run.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "geometry/records.h"

namespace fuzz {
/// Takes numbers from the input; zeros behind its end.
class ByteInput
{
  public:
    ByteInput(std::uint8_t const * data, std::size_t size) : m_data(data), m_left(size) {}

    bool IsEmpty() const { return m_left == 0; }

    std::uint8_t Byte()
    {
        if (m_left == 0)
            return 0;
        --m_left;
        return *m_data++;
    }

    /// Mostly small round numbers, so that elements meet; sometimes any double.
    double Number()
    {
        std::uint8_t const kind = Byte();
        if (kind >= 16)
            return (kind - 128) / 16.0;
        std::uint64_t bits = 0;
        for (int i = 0; i < 8; ++i)
            bits |= static_cast<std::uint64_t>(Byte()) << (8 * i);
        double number;
        std::memcpy(&number, &bits, sizeof number);
        return number;
    }

    TUVect3D Point()
    {
        double const x = Number();
        double const y = Number();
        return {{x, y, Byte() % 4 ? 0.0 : Number()}};
    }

  private:
    std::uint8_t const * m_data;
    std::size_t m_left;
};

inline void Require(bool holds)
{
    if (!holds)
        std::abort();
}
}  // namespace fuzz

#endif
