// Aim: 16 ms, one frame, from a key in a load field to the painted live view, with 20 anchors and
// 6 cases. Without a screen: what a screen needs to show the finished picture is not in it.
#include "app/live_entries.h"
#include "design/start_up.h"
#include "input/anchor_layout.h"
#include "live/forms/picture_canvas.h"
#include "live/live_values.h"
#include "widgets/qt_dialogs.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>

#include <benchmark/benchmark.h>

using namespace ferna;

namespace {

/// The main form with the view open beside it.
class Desk {
public:
    Desk() {
        for (const char* file : {"Ferpl.txt", "Ferp2.txt", "Fergb.txt", "Ferfr.txt", "Ferge.txt",
                                 "Ferna.cfg", "W_X.txt"})
            QFile::copy(QStringLiteral(FERNA_DATA_DIR "/") + QString::fromLatin1(file),
                        folder_.filePath(QString::fromLatin1(file)));
        startUp(stan_, folder_.path());
        form_ = std::make_unique<Ferna3>(stan_, folder_.path(), dialogs_, [] {});
        form_->load();
        field("Text3")->setText(QStringLiteral("900"));
        field("Text4")->setText(QStringLiteral("700"));
        stan_.obciazenia.Liczba_przyp = MaxCases;
        for (int r = 0; r < MaxCases; ++r) {
            const QString row = QStringLiteral("_%1").arg(r);
            form_->findChild<QLineEdit*>(QStringLiteral("Text6") + row)
                ->setText(QStringLiteral("300"));
            form_->findChild<QLineEdit*>(QStringLiteral("Text7") + row)
                ->setText(QString::number(260 - 60 * r));
            form_->findChild<QLineEdit*>(QStringLiteral("Text8") + row)
                ->setText(QString::number(-150 + 55 * r));
        }
        form_->editAnchors([](Plyta_i_kotwy& plate) {
            for (int i = 0; i < MaxAnchors; ++i)
                storeAnchorAt(plate, i + 1, -390 + 195 * (i % 5), 290 - 193 * (i / 5), 24);
            plate.Liczba_srub = MaxAnchors;
        });
        form_->show();
        view_ = addLiveView(*form_, stan_, dialogs_);
        view_->setOpen(true);
        QCoreApplication::processEvents();
    }

    QLineEdit* field(const char* name) const {
        return form_->findChild<QLineEdit*>(QString::fromLatin1(name));
    }

    /// 0: the envelope, the fullest picture.
    void showTab(int tab) {
        auto* const tabs = view_->findChild<QTabBar*>(QStringLiteral("przypadki"));
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
    }

    /// One key, until everything is painted.
    void key(Qt::Key key) {
        QTest::keyClick(field("Text7_0"), key);
        QCoreApplication::processEvents();
    }

    Double pressure() const {
        return governingCorner(view_->findChild<PictureCanvas*>()->picture())->pressure;
    }

private:
    QTemporaryDir folder_;
    Stan stan_;
    QtDialogs dialogs_;
    std::unique_ptr<Ferna3> form_;
    std::unique_ptr<Podglad> view_;
};

void KeyToPicture(benchmark::State& state) {
    Desk desk;
    desk.showTab(static_cast<int>(state.range(0)));
    const Double before = desk.pressure();
    bool typed = false;
    for (auto _ : state) {
        desk.key(typed ? Qt::Key_Backspace : Qt::Key_5);
        typed = !typed;
        if (typed && desk.pressure() == before)
            state.SkipWithError("the picture does not follow");
    }
}
// A case, and the envelope of six.
BENCHMARK(KeyToPicture)->Arg(0)->Arg(MaxCases)->Unit(benchmark::kMillisecond)->UseRealTime();

void PictureValuesOfATask(benchmark::State& state) {
    Stan stan;
    InputFields fields;
    fields.Text2 = QStringLiteral("8");
    fields.Text3 = QStringLiteral("900");
    fields.Text4 = QStringLiteral("700");
    for (LoadRow<QString>& row : fields.loads)
        row = {QStringLiteral("300"), QStringLiteral("260"), QStringLiteral("180"),
               QStringLiteral("20"), QStringLiteral("0")};
    for (int i = 0; i < MaxAnchors; ++i)
        storeAnchorAt(stan.plyta, i + 1, -390 + 195 * (i % 5), 290 - 193 * (i / 5), 24);
    stan.plyta.Liczba_srub = MaxAnchors;
    stan.obciazenia.Liczba_przyp = MaxCases;
    for (auto _ : state)
        benchmark::DoNotOptimize(live::liveValues(stan, fields));
}
BENCHMARK(PictureValuesOfATask)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
