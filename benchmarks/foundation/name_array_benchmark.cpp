// Time of entering N names into a table, for N of 100, 1,000 and 10,000: with a search each (AddName) and as
// one run without (AddNameDirect). The peer is a sorted std::vector of the same records with a table of
// handles, searched by halves. Items are names.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "foundation/name_array.h"

namespace {
TSName NameOf(std::int64_t number)
{
    return {"beam", static_cast<std::int32_t>(number)};
}

/// Numbers from 1 to N in an order that jumps about (7,919 shares no factor with the sizes).
std::int64_t NumberAt(std::int64_t index, std::int64_t size)
{
    return 1 + index * 7919 % size;
}

void CountNames(benchmark::State & state)
{
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_AddName(benchmark::State & state)
{
    for (auto _ : state) {
        CNameArr names;
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            TSName name = NameOf(NumberAt(i, state.range(0)));
            benchmark::DoNotOptimize(names.AddName(name, 1));
        }
    }
    CountNames(state);
}

void BM_AddNameDirect(benchmark::State & state)
{
    for (auto _ : state) {
        CNameArr names;
        names.IsFeeName(NameOf(1), static_cast<int>(state.range(0)));
        for (std::int64_t i = 0; i < state.range(0); ++i)
            benchmark::DoNotOptimize(names.AddNameDirect());
    }
    CountNames(state);
}

bool IsBefore(TSName const & a, TSName const & b)
{
    int const order = std::strcmp(a.text, b.text);
    return order != 0 ? order < 0 : a.number < b.number;
}

void BM_SortedVector(benchmark::State & state)
{
    for (auto _ : state) {
        std::vector<TSName> names;
        std::vector<std::int32_t> handles;
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            TSName const name = NameOf(NumberAt(i, state.range(0)));
            auto const place = std::lower_bound(names.begin(), names.end(), name, IsBefore);
            auto const position = static_cast<std::int32_t>(place - names.begin());
            names.insert(place, name);
            for (std::int32_t & handle : handles)
                handle += handle >= position;
            handles.push_back(position);
        }
        benchmark::DoNotOptimize(handles.data());
    }
    CountNames(state);
}
}  // namespace

BENCHMARK(BM_AddName)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK(BM_AddNameDirect)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK(BM_SortedVector)->Arg(100)->Arg(1000)->Arg(10000);
