#ifndef KX7_TESTS_GEOMETRY_ALLOCATION_COUNTER_H
#define KX7_TESTS_GEOMETRY_ALLOCATION_COUNTER_H

// Counts allocations of this program and of the library, which takes its operator new from the program, and
// makes them fail on request. The Windows library has an operator new of its own, out of reach.

/// Allocations of this program and of the library so far.
extern long g_allocationCount;

/// Those of them that haven't been given back yet.
long LiveAllocations();

/// From now on only this many more allocations succeed; below 0 all do.
void AllowAllocations(long count);

/// The allocations that a call makes.
template <typename Call>
long AllocationsOf(Call call)
{
    long const before = g_allocationCount;
    call();
    return g_allocationCount - before;
}

#endif
