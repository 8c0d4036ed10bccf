// Rounds on the real forms, as many as FERNA_ROUNDS says (1000 unless told): open the main form,
// calculate, look at the report, save it as text and as RTF, return, close. The memory must not
// grow.
#include "design/start_up.h"
#include "input/forms/Ferna3.h"
#include "protocol/renderer_files.h"
#include "report/forms/FernaWyn.h"
#include "runtime/text_file.h"
#include "soak/process_memory.h"
#include "support/decimal_comma.h"
#include "support/modal_answers.h"
#include "support/places.h"
#include "support/printing.h"
#include "widgets/qt_dialogs.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// Real boxes, but for the question where to save: the toolkit's own file dialog keeps some KB of
/// each of its openings, which would hide what the program keeps.
class SoakDialogs : public QtDialogs {
public:
    std::optional<QString> saveFile(const SaveQuestion&) override { return answer; }
    QString answer;
};

class Rounds : public ::testing::Test {
protected:
    Rounds() {
        const QDir built(places::bin());
        for (const QString& file : built.entryList(
                 {QStringLiteral("*.txt"), QStringLiteral("*.cfg"), QStringLiteral("*.bmp")},
                 QDir::Files))
            QFile::copy(built.filePath(file), path(file));
        QFile::link(built.filePath(QStringLiteral("Wyd_drk")), path(QStringLiteral("Wyd_drk")));
    }

    QString path(const QString& file) const { return folder.filePath(file); }

    template <typename Widget>
    static Widget* the(const QObject& form, const char* name) {
        return form.findChild<Widget*>(QString::fromLatin1(name));
    }

    void round() {
        Stan stan;
        startUp(stan, folder.path());
        std::unique_ptr<FernaWyn> results;
        int backs = 0;
        Ferna3 input(stan, folder.path(), dialogs, [&] {
            auto session = std::make_unique<ResultsSession>(
                stan, dialogs, folder.path(), input.firstNorm(),
                [] { return QDateTime::currentDateTime(); },
                [this] { return runRenderer(folder.path()); });
            results = std::make_unique<FernaWyn>(stan, std::move(session),
                                                 FernaWyn::Links{{},
                                                                 {},
                                                                 {},
                                                                 [&] {
                                                                     ++backs;
                                                                     input.show();
                                                                 },
                                                                 {}});
            input.hide();
            results->open();
        });
        for (const int sign : {1, -1})
            for (const int other : {1, -1}) {
                Plyta_i_kotwy& plate = stan.plyta;
                plate.Liczba_srub = CInt(plate.Liczba_srub + 1);
                storeAnchorAt(plate, plate.Liczba_srub, sign * 250, other * 150, 24);
            }
        Lista_srub(stan);
        input.load();
        input.show();
        the<QLineEdit>(input, "Text3")->setText(QStringLiteral("600"));
        the<QLineEdit>(input, "Text4")->setText(QStringLiteral("400"));
        the<QLineEdit>(input, "Text1")->setText(QStringLiteral("1"));
        answers.input(QStringLiteral("Ferna 2005 Pr"),
                      QStringLiteral("Podaj oznaczenie stopy (max 32 znaki)"), QString(),
                      QStringLiteral("F-1"));
        the<QPushButton>(input, "cmdOblicz")->click();
        ASSERT_TRUE(results);
        ASSERT_TRUE(results->isVisible());
        dialogs.answer = path(QStringLiteral("raport.txt"));
        the<QAction>(*results, "mnuZapisztxt")->trigger();
        dialogs.answer = path(QStringLiteral("raport.rtf"));
        the<QAction>(*results, "mnuZapiszrtf")->trigger();
        ASSERT_GT(QFileInfo(path(QStringLiteral("raport.txt"))).size(), 500);
        ASSERT_GT(QFileInfo(path(QStringLiteral("raport.rtf"))).size(), 500);
        the<QAction>(*results, "mnuPowrot")->trigger();
        ASSERT_EQ(backs, 1);
        for (const char* file : {"raport.txt", "raport.rtf"})
            QFile::remove(path(QLatin1String(file)));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QTemporaryDir folder;
    WithDecimalSign comma{u','};
    SoakDialogs dialogs;
    ModalAnswers answers;
};

TEST_F(Rounds, OnTheRealFormsKeepTheMemoryFlat) {
    bool told = false;
    int count = qEnvironmentVariableIntValue("FERNA_ROUNDS", &told);
    if (!told)
        count = 1000;
    MemoryCurve memory;
    QElapsedTimer clock;
    clock.start();
    std::printf("%8s %10s %10s\n", "rounds", "s", "MB");
    for (int i = 1; i <= count; ++i) {
        round();
        if (HasFatalFailure())
            return;
        if (i % 5 == 0)
            memory.sample(i);
        if (i == 10 || i % 100 == 0) {
            std::printf("%8d %10.1f %10.2f\n", i, static_cast<double>(clock.elapsed()) / 1000,
                        residentMb());
            std::fflush(stdout);
        }
    }
    const double perRound = memory.slope() * 1024;
    std::printf("%d rounds in %.1f s; growth over the second half %.2f KB a round\n", count,
                static_cast<double>(clock.elapsed()) / 1000, perRound);
    if (count >= 300) {
        EXPECT_LT(perRound, 4) << "KB a round";
    }
}

} // namespace
