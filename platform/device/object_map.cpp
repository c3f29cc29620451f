#include "platform/device/object_map.h"

#include <memory>
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

// Graphics objects belong to the thread that made them.
using Owners = std::unordered_map<HGDIOBJ, CGdiObject *>;
using Temporaries = std::unordered_map<HGDIOBJ, std::unique_ptr<CGdiObject, TemporaryDeleter>>;

Owners & TheOwners()
{
    static thread_local Owners owners;
    return owners;
}

Temporaries & TheTemporaries()
{
    static thread_local Temporaries temporaries;
    return temporaries;
}
}  // namespace

void EnterOwner(HGDIOBJ handle, CGdiObject * owner)
{
    TheTemporaries().erase(handle);
    TheOwners()[handle] = owner;
}

void RemoveOwner(HGDIOBJ handle)
{
    TheOwners().erase(handle);
}

CGdiObject * FindOwner(HGDIOBJ handle)
{
    auto const found = TheOwners().find(handle);
    return found == TheOwners().end() ? nullptr : found->second;
}

CGdiObject * FindTemporary(HGDIOBJ handle, CGdiObject * (*make)())
{
    Temporaries & temporaries = TheTemporaries();
    auto const found = temporaries.find(handle);
    if (found != temporaries.end())
        return found->second.get();
    if (temporaries.size() >= kSweepAt)
        std::erase_if(temporaries, [](auto const & entry) { return GetObjectType(entry.first) == 0; });
    CGdiObject * const object = make();
    object->m_hObject = handle;
    temporaries[handle].reset(object);
    return object;
}
}  // namespace detail
