// Shown values with their labels. Peer: snprintf of the divided value and a fixed label, which has neither
// the rules of the number text nor a unit system.
#include <benchmark/benchmark.h>

#include <cstdio>

#include "units/units.h"

namespace {
void FormattedLength(benchmark::State & state)
{
    CVARDBaseUnits baseUnits;
    baseUnits.Create(CZECH);
    CVARDUnits units;
    units.Create(&baseUnits, CZECH);
    double value = 1.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(units.GetFormatedString(value, UN_Length, 1, -1, 3));
        value += 0.7;
    }
}
BENCHMARK(FormattedLength);

void FormattedStiffness(benchmark::State & state)
{
    CVARDBaseUnits baseUnits;
    baseUnits.Create(CZECH);
    CVARDUnits units;
    units.Create(&baseUnits, CZECH);
    double value = 1.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(units.GetFormatedString(value, UE_StiffLine, 1, -1, 3));
        value += 0.7;
    }
}
BENCHMARK(FormattedStiffness);

void SnprintfPeer(benchmark::State & state)
{
    double value = 1.0;
    char text[64];
    for (auto _ : state) {
        std::snprintf(text, sizeof(text), "%.3f %s", value / 1.0, "m");
        benchmark::DoNotOptimize(text);
        value += 0.7;
    }
}
BENCHMARK(SnprintfPeer);
}  // namespace
