// What the engineer waits for, for a report of two pages: from the start of the results form's
// opening to the painted picture, aim 0.6 s, and from a click on the status bar to the picture
// drawn anew, aim 60 ms. The renderer is the program of this build, started anew each time; it is
// most of both.
#include "design/language.h"
#include "input/plate_drawing.h"
#include "report/forms/FernaWyn.h"
#include "report/forms/renderer_wait.h"
#include "report/forms/report_view.h"
#include "support/column_base.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QToolButton>

#include <benchmark/benchmark.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// The results form over a calculation of three cases, in a folder with the delivered files.
class ResultsForm {
public:
    ResultsForm() {
        const QDir programs(QStringLiteral(FERNA_BIN_DIR));
        for (const QString& name :
             programs.entryList({QStringLiteral("*.bmp"), QStringLiteral("*.svg")}))
            QFile::copy(programs.filePath(name), folder_.filePath(name));
        QFile::link(programs.filePath(QStringLiteral("Wyd_drk")),
                    folder_.filePath(QStringLiteral("Wyd_drk")));
        Czytaj_teksty(base_.stan, programs.filePath(catalogueFile(0)));
        base_.fourAnchors(250, 150, 30)
            .loads(320, 140, 0, 35)
            .loads(320, 90, 40)
            .loads(410, 92, -8);
        base_.calculate();
        savePlatePicture(base_.stan, base_.fields, base_.dialogs,
                         folder_.filePath(QStringLiteral("Ferrob.bmp")));
    }

    /// Opens the form anew and paints it; the question for the label is answered at once.
    void open() {
        form_ = std::make_unique<FernaWyn>(base_.stan,
                                           std::make_unique<ResultsSession>(
                                               base_.stan, base_.dialogs, folder_.path(), true,
                                               [] { return QDateTime::currentDateTime(); },
                                               [this] { return render(); }),
                                           FernaWyn::Links{});
        form_->open();
        QCoreApplication::processEvents();
    }

    void refresh() {
        form_->findChild<QToolButton*>(QStringLiteral("StatusBar1_5"))->click();
        QCoreApplication::processEvents();
    }

    void close() { form_.reset(); }

    /// Pages of A4 in the picture that is shown.
    int pages() const {
        constexpr int width = 2100;
        constexpr int page = 2970;
        return form_->findChild<ReportView*>(QStringLiteral("Picture2"))->heightFor(width) / page;
    }

private:
    /// As the program waits for it.
    RendererReport render() {
        RendererWait wait(form_.get());
        return runRenderer(folder_.path(), {},
                           [&wait](const RendererState& state) { return wait.goOn(state); });
    }

    ColumnBase base_;
    QTemporaryDir folder_;
    std::unique_ptr<FernaWyn> form_;
};

void countPages(benchmark::State& state, const ResultsForm& results) {
    state.counters["pages"] = results.pages();
    if (results.pages() != 2)
        state.SkipWithError("the report has another number of pages");
}

void Opening(benchmark::State& state) {
    ResultsForm results;
    for (auto _ : state) {
        results.open();
        state.PauseTiming();
        countPages(state, results);
        results.close();
        state.ResumeTiming();
    }
}
BENCHMARK(Opening)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3)->Repetitions(7);

void Refresh(benchmark::State& state) {
    ResultsForm results;
    results.open();
    for (auto _ : state)
        results.refresh();
    countPages(state, results);
}
BENCHMARK(Refresh)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3)->Repetitions(7);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
