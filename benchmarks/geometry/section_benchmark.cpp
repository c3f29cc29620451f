// Cross-sections with n vertices. Each counts sections per call; the peer of the level integration is the
// same integration by one walk round the outline for each level, that of the least width one walk for each
// height.
#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "geometry/mathematics.h"
#include "geometry/section_levels.h"
#include "platform/base/array.h"

namespace {
using OutlineArray = CArray<TUVect2D, TUVect2D &>;

// A closed ring with a wavy rim of 40 waves: many crossings of a level, as a profiled sheet has.
void FillWavy(OutlineArray & outline, int count)
{
    for (int i = 0; i <= count; ++i) {
        double const angle = 2.0 * std::numbers::pi * (i % count) / count;
        double const radius = 1.0 + 0.05 * std::sin(40.0 * angle);
        TUVect2D vertex = {{radius * std::cos(angle), radius * std::sin(angle)}};
        outline.Add(vertex);
    }
}

void PlasticModulus(benchmark::State & state)
{
    CMathematics mathematics;
    OutlineArray outline;
    FillWavy(outline, static_cast<int>(state.range(0)));
    double modulus = 0.0;
    for (auto _ : state) {
        mathematics.ComputePlastMoment(outline, modulus);
        benchmark::DoNotOptimize(modulus);
    }
}

void ShearCoefficient(benchmark::State & state)
{
    CMathematics mathematics;
    OutlineArray outline;
    FillWavy(outline, static_cast<int>(state.range(0)));
    double coefficient = 0.0;
    for (auto _ : state) {
        mathematics.ComputeShearCoef(outline, coefficient);
        benchmark::DoNotOptimize(coefficient);
    }
}

void LevelsTogether(benchmark::State & state)
{
    OutlineArray outline;
    FillWavy(outline, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        detail::SectionTable table = detail::BuildSectionTable(outline.View());
        bool const done = detail::SectionIntegrator(outline.View(), -1.0).Integrate(table.levels);
        benchmark::DoNotOptimize(done);
    }
}

void LevelsOneByOne(benchmark::State & state)
{
    OutlineArray outline;
    FillWavy(outline, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        detail::SectionTable table = detail::BuildSectionTable(outline.View());
        bool const done = detail::SectionIntegrator(outline.View(), -1.0).IntegratePlainly(table.levels);
        benchmark::DoNotOptimize(done);
    }
}

void LeastWidth(benchmark::State & state)
{
    CMathematics mathematics;
    OutlineArray outline;
    FillWavy(outline, static_cast<int>(state.range(0)));
    double width = 0.0;
    for (auto _ : state) {
        mathematics.FindMinimalB0(outline, 0.1, 0.1, 0.0, width);
        benchmark::DoNotOptimize(width);
    }
}

void LeastWidthOneByOne(benchmark::State & state)
{
    CMathematics mathematics;
    OutlineArray outline;
    FillWavy(outline, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        double best = 1e100;
        for (TUVect2D const & vertex : outline)
            for (double const offset : {-1e-10, 1e-10}) {
                double width = 0.0;
                mathematics.GetWidthInPosition(outline, vertex.y + offset, width);
                best = width > 0.0 && width < best ? width : best;
            }
        benchmark::DoNotOptimize(best);
    }
}

void Characteristics(benchmark::State & state)
{
    CMathematics mathematics;
    OutlineArray outline;
    FillWavy(outline, static_cast<int>(state.range(0)));
    double w[14] = {};
    double p[14] = {};
    int direction = 0;
    for (auto _ : state) {
        mathematics.GetThoseCharacteristics(
            outline.GetData(), 0, direction, static_cast<unsigned int>(state.range(0)), 1.0, w[0], w[1], w[2],
            w[3], w[4], w[5], w[6], w[7], w[8], w[9], w[10], w[11], w[12], w[13], p[0], p[1], p[2], p[3],
            p[4], p[5], p[6], p[7], p[8], p[9], p[10], p[11], p[12], p[13]);
        benchmark::DoNotOptimize(p);
    }
}
}  // namespace

BENCHMARK(Characteristics)->Arg(1000);
BENCHMARK(PlasticModulus)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ShearCoefficient)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LevelsTogether)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LevelsOneByOne)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LeastWidth)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LeastWidthOneByOne)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMicrosecond);
