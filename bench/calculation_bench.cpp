// Aims: an evaluation with 8 anchors below 50 ns, a median case below 15 us and its exact
// equilibrium below 1.5 us, a task of six median cases with its report lines below 0.5 ms.
#include "analysis/equilibrium.h"
#include "command/entered_equilibria.h"
#include "report/text_writer.h"
#include "support/column_base.h"
#include "support/random_tasks.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <iostream>
#include <numeric>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// Anchors around the edge of a plate of 1000 x 800 mm.
void anchorsAround(ColumnBase& base, int count) {
    base.plate(1000, 800);
    for (int i = 0; i < count; ++i) {
        const Double angle = 2 * Pi * (i + 0.5) / count;
        base.anchor(static_cast<int>(440 * std::cos(angle)),
                    static_cast<int>(340 * std::sin(angle)), 24);
    }
}

void Evaluation(benchmark::State& state) {
    ColumnBase base;
    anchorsAround(base, static_cast<int>(state.range(0)));
    base.loads(200, 120, 60);
    base.calculate();
    const CaseInput in = inputOf(base.stan);
    const Double c = base.solver.C_linii;
    Double shift = 0;
    for (auto _ : state) {
        base.solver.Liczba_ocen = 0;
        base.solver.C_linii = c + shift;
        shift = shift > 1 ? 0 : shift + 0.001;
        Rownowaga_c(base.solver, in);
        benchmark::DoNotOptimize(base.solver.Reszta_c);
    }
}
BENCHMARK(Evaluation)->Arg(4)->Arg(8)->Arg(20);

struct Loads {
    Double N, M1, M2;
};

/// Microseconds of this thread, whatever else the machine does.
Double threadTime() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<Double>(now.tv_sec) * 1e6 + static_cast<Double>(now.tv_nsec) * 1e-3;
}

/// One case with eight anchors, by the shape of its zone 1..5.
void Case(benchmark::State& state) {
    constexpr Loads ofZone[] = {{},           {100, 60, 40}, {100, 6, 60},
                                {100, 60, 4}, {300, 45, 25}, {500, 10, 5}};
    const auto zone = static_cast<std::size_t>(state.range(0));
    ColumnBase base;
    anchorsAround(base, 8);
    base.loads(ofZone[zone].N, ofZone[zone].M1, ofZone[zone].M2, 5, 2);
    base.calculate();
    if (static_cast<std::size_t>(base.solver.Typ_strefy) != zone) {
        state.SkipWithError("the loads do not give this zone");
        return;
    }
    state.counters["evaluations"] = zone == 5 ? 0 : base.solver.Liczba_ocen;
    for (auto _ : state) {
        base.stan.wyniki.Nr_wiersza = 0;
        base.stan.wyniki.Liczba_przekroczen = 0;
        Oblicz_przypadek(base.stan, base.solver, true, base.dialogs);
    }
}
BENCHMARK(Case)->DenseRange(1, 5)->Unit(benchmark::kMicrosecond);

/// The exact equilibrium of the same cases.
void ExactCase(benchmark::State& state) {
    constexpr Loads ofZone[] = {{},           {100, 60, 40}, {100, 6, 60},
                                {100, 60, 4}, {300, 45, 25}, {500, 10, 5}};
    const Loads& loads = ofZone[static_cast<std::size_t>(state.range(0))];
    ColumnBase column;
    anchorsAround(column, 8);
    const equilibrium::Base base = enteredBase(column.stan, column.fields).value();
    const equilibrium::Load load{loads.N, loads.M1, loads.M2};
    state.counters["evaluations"] = base.solve(load).steps;
    for (auto _ : state)
        benchmark::DoNotOptimize(base.solve(load).sigmaConcrete);
}
BENCHMARK(ExactCase)->DenseRange(1, 5)->Unit(benchmark::kMicrosecond);

/// A base made ready for its loads.
void ExactBase(benchmark::State& state) {
    ColumnBase column;
    anchorsAround(column, 8);
    for (auto _ : state)
        benchmark::DoNotOptimize(enteredBase(column.stan, column.fields)->usable());
}
BENCHMARK(ExactBase)->Unit(benchmark::kMicrosecond);

void reportOf(ColumnBase& base) {
    Raport raport;
    Wypelnij_wiersze(raport, base.stan);
    for (int c = 1; c <= base.cases; ++c)
        if (!wholePlate(base.stan, c))
            raport.Wiersze_strefy(c - 1) = Wiersz_strefy(base.stan, c);
    base.dialogs.answers.push_back(QStringLiteral("F-1"));
    Naglowek(raport, base.stan, true, QDateTime(QDate(2026, 1, 1), QTime(12, 0)), base.dialogs);
    benchmark::DoNotOptimize(textReport(reportModel(base.stan, raport)).bytes().size());
    base.dialogs.questions.clear();
}

/// A load outside the kern whose search takes about as long as the median of all, `nth` of them.
Loads medianLoads(int nth) {
    for (int step = 0;; ++step) {
        const Loads one{100.0 + step, 30 + 0.7 * step, 20 + 0.3 * step};
        ColumnBase base;
        anchorsAround(base, 20);
        base.loads(one.N, one.M1, one.M2);
        base.calculate();
        const int evaluations = base.solver.Liczba_ocen;
        if (base.solver.Jest_rozw && evaluations > 140 && evaluations < 200 && --nth < 0)
            return one;
    }
}

/// Six median cases with twenty anchors, as typed, to the bytes of the text report.
void TaskOfSixCases(benchmark::State& state) {
    ColumnBase base;
    anchorsAround(base, 20);
    for (int nth = 0; nth < MaxCases; ++nth) {
        const Loads one = medianLoads(nth);
        base.loads(one.N, one.M1, one.M2, 5, 2);
    }
    for (auto _ : state) {
        if (base.calculate() != CalculationEnd::Computed)
            state.SkipWithError("not computed");
        reportOf(base);
    }
}
BENCHMARK(TaskOfSixCases)->Unit(benchmark::kMicrosecond);

/// The spread over the cases of 20 000 ordinary tasks: the search of some takes thousands of
/// evaluations, which a mean over chosen cases would hide.
void spreadOfCases() {
    std::vector<Double> microseconds;
    std::vector<Double> evaluations;
    for (std::uint64_t number = 1; number <= 20'000; ++number) {
        if (isNasty(number))
            continue;
        ColumnBase base;
        randomTask(base, number);
        Double start = threadTime();
        base.host.afterCase = [&](int c) {
            const Double now = threadTime();
            // The first case carries the reading of the form as well.
            if (c > 1 && base.stan.wyniki.Przyp_policzony(c) != True) {
                microseconds.push_back(
                    std::chrono::duration<Double, std::micro>(now - start).count());
                evaluations.push_back(base.solver.Liczba_ocen);
            }
            start = threadTime();
        };
        try {
            base.calculate();
        } catch (const RunTimeError&) { // no anchor takes the shear
        }
    }
    std::sort(microseconds.begin(), microseconds.end());
    std::sort(evaluations.begin(), evaluations.end());
    const auto at = [](const std::vector<Double>& sorted, Double share) {
        return sorted[static_cast<std::size_t>(share * static_cast<Double>(sorted.size() - 1))];
    };
    const auto mean = [](const std::vector<Double>& values) {
        return std::accumulate(values.begin(), values.end(), Double{0})
               / static_cast<Double>(values.size());
    };
    std::cout << microseconds.size() << " cases outside the kern:\n  mean: " << mean(microseconds)
              << " us, " << std::llround(mean(evaluations)) << " evaluations of the last attempt\n";
    for (const Double share : {0.5, 0.9, 0.95, 0.99, 1.0})
        std::cout << "  " << share * 100 << " %: " << at(microseconds, share) << " us, "
                  << at(evaluations, share) << " evaluations of the last attempt\n";
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    spreadOfCases();
    return 0;
}
