#ifndef KX7_TESTS_NAME_ARRAY_FIXTURE_H
#define KX7_TESTS_NAME_ARRAY_FIXTURE_H

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "foundation/name_array.h"
#include "platform/base/archive.h"
#include "platform/base/file.h"

using NameArrayBytes = std::vector<unsigned char>;

/// Gives the tests a way to the search.
class OpenNameArray : public CNameArr
{
  public:
    using CNameArr::FindName;
};

inline TSName NameRecord(char const * text, std::int32_t number)
{
    TSName name{};
    std::strncpy(name.text, text, sizeof name.text - 1);
    name.number = number;
    return name;
}

/// Adds the names one by one.
inline void Add(CNameArr & names, std::vector<char const *> const & texts)
{
    for (char const * text : texts) {
        CString name(text);
        names.AddName(name, 1);
    }
}

using HandleAndText = std::pair<int, std::string>;

/// What AddName returns and enters.
inline HandleAndText Added(CNameArr & names, char const * text, int count)
{
    CString name(text);
    int const handle = names.AddName(name, count);
    return {handle, std::string(name)};
}

/// All names as texts, in table order.
inline std::vector<std::string> Texts(CNameArr const & names)
{
    std::vector<std::string> texts;
    TSName name{};
    for (int i = 0; names.GetNameByPos(i, name); ++i)
        texts.emplace_back(names.GetNameStrByPos(i));
    return texts;
}

/// The block that the table writes; `result` gets what WriteElements returns.
inline NameArrayBytes Written(CNameArr const & names, int * result = nullptr)
{
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        int const written = names.WriteElements(archive);
        if (result)
            *result = written;
    }
    NameArrayBytes bytes(static_cast<std::size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

/// Reads a block into the table; `left` gets the number of bytes behind it.
inline int ReadInto(CNameArr & names, NameArrayBytes bytes, std::size_t * left = nullptr)
{
    CMemFile file;
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    int const result = names.ReadElements(archive);
    NameArrayBytes rest(bytes.size() + 1);
    if (left)
        *left = archive.Read(rest.data(), static_cast<UINT>(rest.size()));
    return result;
}

/// The values of the handles, out of the block that the table writes.
inline std::vector<std::int32_t> Handles(CNameArr const & names)
{
    constexpr std::size_t kBeforeNames = 13 + 4 + 24 + 24;
    NameArrayBytes const bytes = Written(names);
    std::int32_t count = 0;
    if (bytes.size() <= kBeforeNames)
        return {};
    std::memcpy(&count, bytes.data() + kBeforeNames, 4);
    std::size_t const start = kBeforeNames + 4 + 16 * static_cast<std::size_t>(count) + 4;
    std::vector<std::int32_t> values((bytes.size() - start) / 4);
    std::memcpy(values.data(), bytes.data() + start, 4 * values.size());
    return values;
}

#endif
