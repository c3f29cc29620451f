#include "allocation_counter.h"

#if !defined(_WIN32)

#include <cstdlib>
#include <new>

long g_allocationCount = 0;

namespace {
long liveCount = 0;
long allowedCount = -1;

void * Allocate(std::size_t size)
{
    if (allowedCount == 0)
        return nullptr;
    if (allowedCount > 0)
        --allowedCount;
    void * const memory = std::malloc(size ? size : 1);
    g_allocationCount += memory ? 1 : 0;
    liveCount += memory ? 1 : 0;
    return memory;
}

void * AllocateOrThrow(std::size_t size)
{
    if (void * const memory = Allocate(size))
        return memory;
    throw std::bad_alloc();
}

void Release(void * memory)
{
    liveCount -= memory ? 1 : 0;
    std::free(memory);
}
}  // namespace

long LiveAllocations()
{
    return liveCount;
}

void AllowAllocations(long count)
{
    allowedCount = count;
}

void * operator new(std::size_t size)
{
    return AllocateOrThrow(size);
}
void * operator new[](std::size_t size)
{
    return AllocateOrThrow(size);
}
void * operator new(std::size_t size, std::nothrow_t const &) noexcept
{
    return Allocate(size);
}
void * operator new[](std::size_t size, std::nothrow_t const &) noexcept
{
    return Allocate(size);
}
void operator delete(void * memory) noexcept
{
    Release(memory);
}
void operator delete[](void * memory) noexcept
{
    Release(memory);
}
void operator delete(void * memory, std::size_t) noexcept
{
    Release(memory);
}
void operator delete[](void * memory, std::size_t) noexcept
{
    Release(memory);
}

#endif
