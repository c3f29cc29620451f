#include "platform/device/object_map.h"

#include <memory>
#include <mutex>
#include <unordered_map>

namespace detail {
namespace {
/// Temporary objects whose handle is gone are swept when there are this many.
constexpr std::size_t kSweepAt = 64;

/// A temporary object gives its handle away before it goes, so that the handle isn't deleted with it.
struct TemporaryDeleter
{
    void operator()(CGdiObject * object) const
    {
        object->m_hObject = nullptr;
        delete object;
    }
};

/// Both maps of the process. They are never destroyed, because objects of static lifetime in a host may still
/// look for themselves at its end.
struct Maps
{
    std::mutex mutex;
    std::unordered_map<HGDIOBJ, CGdiObject *> owners;
    std::unordered_map<HGDIOBJ, std::unique_ptr<CGdiObject, TemporaryDeleter>> temporaries;
};

Maps & TheMaps()
{
    static Maps * const maps = new Maps;
    return *maps;
}
}  // namespace

void EnterOwner(HGDIOBJ handle, CGdiObject * owner)
{
    // A temporary object for the handle stays: a caller may hold it as the one to put back.
    Maps & maps = TheMaps();
    std::lock_guard const lock(maps.mutex);
    maps.owners[handle] = owner;
}

void RemoveOwner(HGDIOBJ handle, CGdiObject const * owner)
{
    Maps & maps = TheMaps();
    std::lock_guard const lock(maps.mutex);
    auto const found = maps.owners.find(handle);
    if (found != maps.owners.end() && found->second == owner)
        maps.owners.erase(found);
}

CGdiObject * FindOwner(HGDIOBJ handle)
{
    Maps & maps = TheMaps();
    std::lock_guard const lock(maps.mutex);
    auto const found = maps.owners.find(handle);
    return found == maps.owners.end() ? nullptr : found->second;
}

CGdiObject * FindTemporary(HGDIOBJ handle, CGdiObject * (*make)())
{
    Maps & maps = TheMaps();
    std::lock_guard const lock(maps.mutex);
    auto const found = maps.temporaries.find(handle);
    if (found != maps.temporaries.end())
        return found->second.get();
    if (maps.temporaries.size() >= kSweepAt)
        std::erase_if(maps.temporaries, [](auto const & entry) { return GetObjectType(entry.first) == 0; });
    CGdiObject * const object = make();
    object->m_hObject = handle;
    maps.temporaries[handle].reset(object);
    return object;
}
}  // namespace detail
