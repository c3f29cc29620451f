// The block of CVARDUnits in project files.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include "platform/base/archive.h"
#include "units/units.h"

namespace {
constexpr char kSectionName[13] = "UNITS       ";  // with its NUL, 13 bytes in the file

static_assert(std::endian::native == std::endian::little, "records go into files as they stand in memory");

bool ReadExactly(CArchive & archive, void * bytes, std::size_t size)
{
    return archive.Read(bytes, static_cast<UINT>(size)) == size;
}
}  // namespace

int CVARDUnits::WriteElements(CArchive & archive) const
{
    std::uint32_t const recordSize = sizeof(TSBaseUnit);
    std::uint32_t const count = kUnitCount;
    archive.Write(kSectionName, sizeof(kSectionName));
    archive.Write(&recordSize, sizeof(recordSize));
    archive.Write(&count, sizeof(count));
    archive.Write(m_units, kUnitCount * sizeof(TSBaseUnit));
    return 1;
}

int CVARDUnits::ReadElements(CArchive & archive)
{
    char name[sizeof(kSectionName)];
    if (!ReadExactly(archive, name, sizeof(name)) || std::memcmp(name, kSectionName, sizeof(name)) != 0)
        return 0;
    std::uint32_t recordSize = 0;
    if (!ReadExactly(archive, &recordSize, sizeof(recordSize)) || recordSize != sizeof(TSBaseUnit))
        return 0;
    std::uint32_t count = 0;
    if (!ReadExactly(archive, &count, sizeof(count)) || count > kRoom)
        return 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        TSBaseUnit unit;
        if (!ReadExactly(archive, &unit, sizeof(unit)))
            return 0;
        // A foreign file may lack the label's end.
        unit.name[sizeof(unit.name) - 1] = '\0';
        m_units[i] = unit;
    }
    return 1;
}
