// Drives CVARDString::Str with any double, width and number of decimals, and the way back from its text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "foundation/vard_string.h"

namespace {
/// Takes values off the front of the input; zeroes once it is at its end.
class Input
{
  public:
    Input(std::uint8_t const * data, std::size_t size) : m_data(data), m_size(size) {}

    template <class Value>
    Value Take()
    {
        Value value{};
        std::size_t const count = m_size < sizeof value ? m_size : sizeof value;
        std::memcpy(&value, m_data, count);
        m_data += count;
        m_size -= count;
        return value;
    }

    bool IsEmpty() const { return m_size == 0; }

  private:
    std::uint8_t const * m_data;
    std::size_t m_size;
};

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckOne(double value, std::int32_t width, std::int32_t decimals)
{
    constexpr int kLongest = 127;
    CVARDString text;
    CVARDString const result = text.Str(value, width, decimals, 1);
    int const length = result.GetCS().GetLength();
    Require(result.GetCS() == text.GetCS());
    Require(length <= kLongest);
    Require(width == -1 || length <= (width > 0 ? width : 0));
    text.StrPoint(value, width, decimals, 1);
    text.ToDouble();
    text.ToInt();
    text.ToLong();
    CString prefix;
    text.GetNumInString(prefix);
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    Input input(data, size);
    while (!input.IsEmpty()) {
        auto const value = input.Take<double>();
        auto const width = input.Take<std::int32_t>();
        auto const decimals = input.Take<std::int32_t>();
        CheckOne(value, width, decimals);
        // Most widths and decimals of four bytes are far out: the same bytes as small numbers.
        CheckOne(value, width % 130, decimals % 130);
    }
    return 0;
}
