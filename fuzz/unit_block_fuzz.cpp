// Reads the units' block of a project file from arbitrary bytes and shows every unit that came of it.
#include <cstdlib>
#include <vector>

#include "platform/base/archive.h"
#include "platform/base/file.h"
#include "units/units.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::vector<std::uint8_t> bytes(data, data + size);
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive archive(&file, CArchive::load);
    CVARDUnits units;
    int const result = units.ReadElements(archive);
    if (result != 0 && result != 1)
        std::abort();
    for (int unit = 0; unit < CVARDUnits::kRoom; ++unit)
        units.GetFormatedString(1.5, static_cast<TEUnit>(unit), 1, -1, -1);
    for (int unit = 0; unit < 40; ++unit)
        units.GetFormatedString(1.5, static_cast<TEUnitExt>(unit), 1, 12, 2);
    return 0;
}
