#include "platform/device/cairo/handle_table.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <vector>

namespace detail {
namespace {
constexpr std::size_t kSlots = 65536;  // as many objects as the system allows a session
constexpr int kIndexBits = 16;

/// A live slot has an odd generation.
struct Slot
{
    std::atomic<std::uint32_t> generation = 0;
    std::unique_ptr<GraphicsObject> object;
};

struct Table
{
    std::mutex mutex;  // guards making and removing; finding reads one slot only
    std::vector<std::uint32_t> freeSlots;
    std::uint32_t usedSlots = 0;
    std::array<Slot, kSlots> slots;
};

Table & TheTable()
{
    // Never destroyed: objects of static lifetime in a host may still delete their handles at its end.
    static Table * const table = new Table;
    return *table;
}

HGDIOBJ HandleOf(std::uint32_t index, std::uint32_t generation)
{
    // The handle is a number that looks like a pointer; nobody follows it.
    return reinterpret_cast<HGDIOBJ>(std::uintptr_t{generation} << kIndexBits | index);
}

Slot * FindSlot(void const * handle)
{
    auto const value = reinterpret_cast<std::uintptr_t>(handle);
    auto const generation = static_cast<std::uint32_t>(value >> kIndexBits);
    Slot & slot = TheTable().slots[value % kSlots];
    bool const live = generation % 2 == 1 && value >> kIndexBits == slot.generation;
    return live ? &slot : nullptr;
}
}  // namespace

HGDIOBJ AddObject(std::unique_ptr<GraphicsObject> object)
{
    Table & table = TheTable();
    std::lock_guard const lock(table.mutex);
    std::uint32_t index = table.usedSlots;
    if (!table.freeSlots.empty()) {
        index = table.freeSlots.back();
        table.freeSlots.pop_back();
    } else if (index < kSlots)
        ++table.usedSlots;
    else
        return nullptr;
    Slot & slot = table.slots[index];
    slot.object = std::move(object);
    return HandleOf(index, ++slot.generation);
}

GraphicsObject * FindObject(void const * handle)
{
    Slot * const slot = FindSlot(handle);
    return slot ? slot->object.get() : nullptr;
}

void RemoveObject(void const * handle)
{
    Slot * const slot = FindSlot(handle);
    if (!slot)
        return;
    Table & table = TheTable();
    std::lock_guard const lock(table.mutex);
    ++slot->generation;
    slot->object.reset();
    table.freeSlots.push_back(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(handle) % kSlots));
}

int CountObjects()
{
    Table & table = TheTable();
    std::lock_guard const lock(table.mutex);
    int count = 0;
    for (std::uint32_t i = 0; i < table.usedSlots; ++i)
        count += table.slots[i].object && !table.slots[i].object->m_stock;
    return count;
}
}  // namespace detail
