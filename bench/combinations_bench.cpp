// Aim: 10,000 combinations with six anchors below 0.1 s, from the rows of the table to the six that
// go into the load table.
#include "combinations/answered_table.h"
#include "combinations/table_reader.h"
#include "support/column_base.h"
#include "support/random_tasks.h"

#include <QBuffer>
#include <QCoreApplication>

#include <benchmark/benchmark.h>

using namespace ferna;
using namespace ferna::combinations;
using namespace ferna::testing;

namespace {

Evaluator sixAnchors() {
    ColumnBase base;
    base.fourAnchors(250, 150).anchor(250, 0).anchor(-250, 0);
    return std::get<Evaluator>(Evaluator::of(base.stan, base.fields));
}

/// As a frame program gives them: compression, moments that go from the kern to far outside.
Combination combination(Dice& dice) {
    return {QStringLiteral("KO"),
            {dice.between(50, 900), dice.between(-150, 150), dice.between(-60, 60)},
            {dice.between(-80, 80), dice.between(-40, 40)}};
}

void Answers(benchmark::State& state) {
    const Evaluator evaluator = sixAnchors();
    Dice dice(21);
    AnsweredTable table;
    for (std::int64_t i = 0; i < state.range(0); ++i)
        table.add(combination(dice));
    for (auto _ : state) {
        table.forgetAnswers();
        table.answerNext(evaluator, table.size());
        benchmark::DoNotOptimize(table.choice().six());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(Answers)->Arg(300)->Arg(10'000)->Unit(benchmark::kMillisecond);

QByteArray text(std::int64_t rows) {
    Dice dice(21);
    QString lines = QStringLiteral("Nazwa;N [kN];My [kNm];Mz [kNm];Ty [kN];Tz [kN]\n");
    for (std::int64_t i = 1; i <= rows; ++i) {
        const Combination one = combination(dice);
        lines += QStringLiteral("KO-%1;%2;%3;%4;%5;%6\n")
                     .arg(i)
                     .arg(one.load.N, 0, 'f', 2)
                     .arg(one.load.M1, 0, 'f', 2)
                     .arg(one.load.M2, 0, 'f', 2)
                     .arg(one.shear.Vx, 0, 'f', 2)
                     .arg(one.shear.Vy, 0, 'f', 2);
    }
    return lines.toUtf8();
}

void ReadAndAnswered(benchmark::State& state) {
    const Evaluator evaluator = sixAnchors();
    const QByteArray bytes = text(state.range(0));
    for (auto _ : state) {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        TextSource source(buffer);
        TableReader reader(source);
        AnsweredTable table;
        while (auto row = reader.next())
            table.add(*std::move(row));
        table.answerNext(evaluator, table.size());
        benchmark::DoNotOptimize(table.choice().six());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(ReadAndAnswered)->Arg(300)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
