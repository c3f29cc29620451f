// Reads the input as the raw block of a name table and works with whatever comes in.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "foundation/name_array.h"
#include "platform/base/archive.h"
#include "platform/base/file.h"

namespace {
constexpr int kHandles = 40;  // handles and positions that are tried, more than a small block has

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void LookAround(CNameArr & names)
{
    TSName name{};
    for (int i = -1; i < kHandles; ++i) {
        names.GetNameStrBySort(i);
        if (names.GetNameByPos(i, name))
            Require(names.FindName(name) >= 0);
    }
}

void Change(CNameArr & names)
{
    TSName name{};
    for (int i = 0; i < kHandles; i += 3) {
        names.GetNameByPos(i, name);
        names.IsFeeName(name, i);
        names.AddNameDirect();
        names.AddName(name, i);
        CString text = names.GetNameStrByPos(i);
        names.GetFirstFreeNameStr(text, i);
        names.DeleteNameBySort(i);
        names.UnDeleteNameBySort(i / 2);
    }
    names.NameArrayCompress();
    names.DeleteNameByPos(1);
    names.AddNameDirect();
    names.NameArrayCompress();
}

/// What stands in the table must be written as a block that is read back.
void WriteAndReadAgain(CNameArr const & names)
{
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        names.WriteElements(archive);
    }
    file.SeekToBegin();
    CNameArr copy;
    CArchive archive(&file, CArchive::load);
    Require(copy.ReadElements(archive) == 1);
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    CMemFile file;
    file.Write(data, static_cast<UINT>(size));
    file.SeekToBegin();
    CNameArr names;
    CArchive archive(&file, CArchive::load);
    if (names.ReadElements(archive) == 0)
        Require(names.GetNameStrByPos(0).IsEmpty());
    LookAround(names);
    WriteAndReadAgain(names);
    Change(names);
    LookAround(names);
    WriteAndReadAgain(names);
    return 0;
}
