// Reads typed lines from raw bytes: the first byte gives how many of the rest are the allowed characters.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "byte_input.h"
#include "geometry/mathematics.h"
#include "platform/base/string.h"

using fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (size == 0)
        return 0;
    std::string_view const bytes(reinterpret_cast<char const *>(data + 1), size - 1);
    std::size_t const allowedLength = data[0] % 8;
    CString const allowed(bytes.substr(0, allowedLength));
    CString const line(bytes.substr(allowedLength < bytes.size() ? allowedLength : bytes.size()));

    CMathematics math;
    double const untouched = -77.0;
    double values[3] = {untouched, untouched, untouched};
    int form = 0;
    int const read = math.StripString(line, allowed, values, form);
    Require(read == 0 ? form == 0 && values[0] == untouched : form >= 1 && form <= 8);
    Require(form != 7 || (values[1] == untouched && values[2] == untouched));

    double value = untouched;
    int const parsed = math.SimpleFloatParse(std::string(bytes).c_str(), value);
    Require(parsed == 0 || parsed == 1);

    CString text = line;
    Require(math.SpacesOutOfString(text) == !line.IsEmpty());
    Require(text.Find(' ') < 0);
    return 0;
}
