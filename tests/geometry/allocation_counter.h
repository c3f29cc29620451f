#ifndef KX7_TESTS_GEOMETRY_ALLOCATION_COUNTER_H
#define KX7_TESTS_GEOMETRY_ALLOCATION_COUNTER_H

/// Allocations of this program and of the library so far.
extern long g_allocationCount;

/// The allocations that a call makes.
template <typename Call>
long AllocationsOf(Call call)
{
    long const before = g_allocationCount;
    call();
    return g_allocationCount - before;
}

#endif
