// What follows a calculation, for the delivered task of six cases: the lines of the report, its
// sketches, and each of its writers; and the picture of its pages as the results form paints it.
#include "batch/report_files.h"
#include "batch/task_run.h"
#include "pages/metafile.h"
#include "protocol/renderer_start.h"
#include "report/report_lines.h"
#include "report/rtf_writer.h"
#include "report/text_writer.h"
#include "report/wyd_writer.h"
#include "report/zone_sketch.h"
#include "runtime/format.h"
#include "runtime/text_file.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace ferna;
using namespace ferna::batch;

namespace {

const QDateTime noon(QDate(2026, 1, 1), QTime(12, 0), Qt::UTC);

/// The delivered task, computed, its pictures in a folder of its own.
class SixCases {
public:
    SixCases() {
        const QByteArray text =
            readFileWhole(QStringLiteral(FERNA_DATA_DIR "/przyklady/szesc-przypadkow.json"));
        const QString programs = QStringLiteral(FERNA_BIN_DIR);
        deliverPictures(programs, folder_.path());
        QFile::link(programs + QStringLiteral("/Wyd_drk"),
                    folder_.filePath(QStringLiteral("Wyd_drk")));
        done_ = std::make_unique<ComputedTask>(
            run(readTask(parsed(text.toStdString())), {{}, programs, noon, folder_.path()}));
    }

    ComputedTask& done() { return *done_; }
    Stan& stan() { return done_->task.stan; }
    QString folder() const { return folder_.path(); }

private:
    QTemporaryDir folder_;
    std::unique_ptr<ComputedTask> done_;
};

SixCases& sixCases() {
    static SixCases task;
    return task;
}

void ReportLines(benchmark::State& state) {
    for (auto _ : state) {
        Raport raport = sixCases().done().raport;
        Wypelnij_wiersze(raport, sixCases().stan());
        benchmark::DoNotOptimize(raport);
    }
}
BENCHMARK(ReportLines)->Unit(benchmark::kMillisecond);

void TextReport(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(
            textReport(reportModel(sixCases().stan(), sixCases().done().raport)).bytes().size());
}
BENCHMARK(TextReport)->Unit(benchmark::kMillisecond);

void RtfReport(benchmark::State& state) {
    const auto pattern = static_cast<Integer>(state.range(0));
    for (auto _ : state) {
        const ReportModel report = reportModel(sixCases().stan(), sixCases().done().raport);
        benchmark::DoNotOptimize(rtfReport(report, pattern, noon).file().bytes().size());
    }
}
BENCHMARK(RtfReport)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void PrintCommands(benchmark::State& state) {
    for (auto _ : state)
        Buduj_wyd(reportModel(sixCases().stan(), sixCases().done().raport), sixCases().folder());
}
BENCHMARK(PrintCommands)->Unit(benchmark::kMillisecond);

/// All sketches of the zones, drawn and saved at print quality.
void Sketches(benchmark::State& state) {
    Raport raport = sixCases().done().raport;
    for (auto _ : state)
        for (int c = 1; c <= sixCases().stan().obciazenia.Liczba_przyp; ++c)
            Rysuj_strefe(raport, sixCases().stan(), c,
                         sixCases().folder() + u'/' + zoneSketchFile(c));
}
BENCHMARK(Sketches)->Unit(benchmark::kMillisecond);

/// The renderer as a process, from its start to the picture for the screen.
void Renderer(benchmark::State& state) {
    Buduj_wyd(reportModel(sixCases().stan(), sixCases().done().raport), sixCases().folder());
    writeJob(sixCases().folder(), RenderMode::ScreenPicture, 1);
    for (auto _ : state)
        runRenderer(sixCases().folder());
}
BENCHMARK(Renderer)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Reading the pages' metafile and painting it at the width of a screen.
void MetafileLoading(benchmark::State& state) {
    Buduj_wyd(reportModel(sixCases().stan(), sixCases().done().raport), sixCases().folder());
    writeJob(sixCases().folder(), RenderMode::ScreenPicture, 1);
    runRenderer(sixCases().folder());
    const QString path = sixCases().folder() + QStringLiteral("/$a1.emf");
    for (auto _ : state) {
        const Metafile pages = Metafile::fromFile(path);
        const QSizeF mm = pages.sizeMm();
        QImage image(1000, qRound(1000 * mm.height() / mm.width()), QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        pages.paint(painter, QRectF(image.rect()));
    }
}
BENCHMARK(MetafileLoading)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    setDecimalSign(u',');
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
