// Matches arbitrary texts with arbitrary masks: always ends with 0 or 1.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "foundation/vard_string.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (size < 2)
        return 0;
    std::string const bytes(reinterpret_cast<char const *>(data) + 2, size - 2);
    std::size_t const cut = bytes.empty() ? 0 : data[0] % (bytes.size() + 1);
    CVARDString const text(CString(std::string_view(bytes).substr(0, cut)));
    CString const mask(std::string_view(bytes).substr(cut));
    char const * const options[] = {"", "L", "W", "C", "D", "LW", "WCD", "LWCD"};
    int const results[] = {text.Equmask(mask, options[data[1] % 8]),
                           text.EquMultimask(mask, options[data[1] % 8], ";"), text.EquNummask(mask)};
    for (int result : results)
        if (result != 0 && result != 1)
            std::abort();
    return 0;
}
