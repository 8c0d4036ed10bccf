// Aims: the capacity line in 360 directions below 20 ms, 50 000 candidates for the smallest base
// under six load cases below 1 s.
#include "capacity/capacity_line.h"
#include "smallest/search.h"

#include <benchmark/benchmark.h>

using namespace ferna;

namespace {

constexpr CheckLimits limits{.Rb = 9, .fd = 205, .fd2 = 191.25, .fv = 168.75};

Strength sixAnchors() {
    std::vector<equilibrium::Anchor> anchors;
    for (const double x : {-250.0, 250.0})
        for (const double y : {-150.0, 0.0, 150.0})
            anchors.push_back({x, y, 353});
    return {600, 400, 7.5, anchors, limits};
}

/// 360 directions at an N in kN.
void MomentLine(benchmark::State& state) {
    const Strength base = sixAnchors();
    for (auto _ : state)
        benchmark::DoNotOptimize(
            momentLine(base, static_cast<double>(state.range(0)), {60, 0}).points.size());
}
BENCHMARK(MomentLine)->Arg(-100)->Arg(0)->Arg(300)->Arg(2000)->Unit(benchmark::kMillisecond);

void AxialLine(benchmark::State& state) {
    const Strength base = sixAnchors();
    for (auto _ : state)
        benchmark::DoNotOptimize(axialLine(base, Moment::M1).points.size());
}
BENCHMARK(AxialLine)->Unit(benchmark::kMillisecond);

/// 31 x 31 plates, four layouts, 13 diameters, one steel: 50 000 candidates, all of which are as
/// long as wide and have room for their anchors where the diameter lets them.
void FiftyThousandCandidates(benchmark::State& state) {
    smallest::DesignRange range;
    range.columnLength = range.columnWidth = 0;
    range.clear = 0;
    range.length = {700, 1300, 20};
    range.width = {100, 700, 20};
    smallest::Task task;
    task.n = 7.5;
    task.anchorageCoefficient = 40;
    for (auto& ofSteel : task.limits)
        ofSteel.fill(limits);
    for (const double M1 : {80.0, -60.0, 40.0})
        for (const double N : {300.0, 700.0})
            task.cases.push_back({{N, M1, M1 / 4}, {30, 10}});
    for (auto _ : state) {
        const smallest::Found found = lightest(range, task, 50);
        state.counters["candidates"] = static_cast<double>(found.candidates);
        state.counters["placed"] = static_cast<double>(found.placed);
        state.counters["passed"] = static_cast<double>(found.passed);
    }
}
BENCHMARK(FiftyThousandCandidates)->Unit(benchmark::kMillisecond);

/// The same where no case fails early: every candidate is weighed in all six.
void FiftyThousandThatPass(benchmark::State& state) {
    smallest::DesignRange range;
    range.clear = 0;
    range.leastEdge = 20;
    range.edge = 1;
    range.spacing = 0;
    range.stiffened = true;
    range.length = {1000, 1600, 20};
    range.width = {400, 1000, 20};
    smallest::Task task;
    task.n = 7.5;
    task.anchorageCoefficient = 40;
    for (auto& ofSteel : task.limits)
        ofSteel.fill(CheckLimits{.Rb = 1e6, .fd = 1e6, .fd2 = 1e6, .fv = 1e6});
    for (const double M1 : {80.0, -60.0, 140.0})
        for (const double N : {100.0, 200.0})
            task.cases.push_back({{N, M1, M1 / 4}, {130, 10}});
    for (auto _ : state) {
        const smallest::Found found = lightest(range, task, 50);
        state.counters["candidates"] = static_cast<double>(found.candidates);
        state.counters["passed"] = static_cast<double>(found.passed);
    }
}
BENCHMARK(FiftyThousandThatPass)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
