// Time of one number as text: CVARDString::Str beside the C library's snprintf("%.3f") on the same 1,000
// values. Items are numbers.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

#include "foundation/vard_string.h"

namespace {
/// Lengths and forces as tables show them: 0.02 to 20,000 in magnitude, so that all take the fixed form.
std::vector<double> const & Values()
{
    static std::vector<double> const values = [] {
        std::mt19937_64 random(5);
        std::uniform_real_distribution<double> exponent(-1.7, 4.3);
        std::vector<double> made(1000);
        for (double & value : made)
            value = (random() % 2 ? 1 : -1) * std::pow(10.0, exponent(random));
        return made;
    }();
    return values;
}

void CountNumbers(benchmark::State & state)
{
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(Values().size()));
}

void BM_Snprintf(benchmark::State & state)
{
    char buffer[128];
    for (auto _ : state)
        for (double const value : Values()) {
            std::snprintf(buffer, sizeof buffer, "%.3f", value);
            benchmark::DoNotOptimize(buffer[0]);
            benchmark::ClobberMemory();
        }
    CountNumbers(state);
}

void BM_Str(benchmark::State & state)
{
    CVARDString text;
    for (auto _ : state)
        for (double const value : Values()) {
            CVARDString const result = text.Str(value, -1, -1, 0);
            benchmark::DoNotOptimize(result.GetChars());
        }
    CountNumbers(state);
}

/// Values that change to exponent form: two formattings each.
void BM_StrExponent(benchmark::State & state)
{
    CVARDString text;
    for (auto _ : state)
        for (double const value : Values()) {
            CVARDString const result = text.Str(value * 1e20, -1, -1, 0);
            benchmark::DoNotOptimize(result.GetChars());
        }
    CountNumbers(state);
}
}  // namespace

BENCHMARK(BM_Snprintf);
BENCHMARK(BM_Str);
BENCHMARK(BM_StrExponent);
