#include "app/command_line.h"
#include "design/configuration.h"
#include "design/start_up.h"
#include "desktop/forms/Help_window.h"
#include "desktop/program_folder.h"
#include "input/forms/Ferna3.h"
#include "plate/forms/Grub_bla.h"
#include "protocol/renderer_files.h"
#include "report/forms/FernaWyn.h"
#include "report/forms/renderer_wait.h"
#include "runtime/qt_remarks.h"
#include "selection/forms/Dobor_fer.h"
#include "widgets/hourglass.h"
#include "widgets/qt_dialogs.h"

#include <QApplication>
#include <QIcon>
#include <QLockFile>
#include <QMessageBox>
#include <QPushButton>

#include <cstdio>

namespace {

using namespace ferna;

/// Tells why the last task cannot be restored. True where the engineer wants the delivered
/// settings.
bool wantsDeliveredSettings(const RunTimeError& failure) {
    QMessageBox box(
        QMessageBox::Critical, programTitle,
        QStringLiteral("Błąd wykonania '%1':\n%2").arg(failure.number()).arg(failure.text()));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        QStringLiteral("Program może zacząć pracę z ustawieniami początkowymi. Uszkodzony plik "
                       "Ferna.cfg zostanie zachowany jako Ferna.cfg.uszkodzony."));
    const QPushButton* const restore =
        box.addButton(QStringLiteral("&Ustawienia początkowe"), QMessageBox::AcceptRole);
    QPushButton* const end =
        box.addButton(QStringLiteral("&Zakończ program"), QMessageBox::RejectRole);
    box.setDefaultButton(end);
    box.setEscapeButton(end);
    box.exec();
    return box.clickedButton() == restore;
}

/// Reads the last task; a configuration that cannot be read is told, and may be replaced.
bool restoreLastTask(Stan& stan, const QString& folder) {
    try {
        startUp(stan, folder);
        return true;
    } catch (const RunTimeError& failure) {
        if (!wantsDeliveredSettings(failure))
            return false;
    }
    restoreDelivered(folder + QStringLiteral("/Ferna.cfg"), QStringLiteral(":/dane/Ferna.cfg"));
    startUp(stan, folder);
    return true;
}

constexpr int helpContext = 100;

/// The forms of the program and how one leads to another.
class Program {
public:
    Program(Stan& stan, QString folder)
        : stan_(stan), folder_(std::move(folder)),
          input_(stan_, folder_, dialogs_, [this] { openResults(); }) {}

    int run() {
        input_.load();
        input_.show();
        return QApplication::exec();
    }

private:
    void openResults() {
        auto session = std::make_unique<ResultsSession>(
            stan_, dialogs_, folder_, input_.firstNorm(),
            [] { return QDateTime::currentDateTime(); }, [this] { render(); });
        results_ = std::make_unique<FernaWyn>(stan_, std::move(session), links());
        input_.hide();
        results_->open();
    }

    void render() {
        const Hourglass hourglass;
        RendererWait wait(results_.get());
        runRenderer(folder_, {},
                    [&wait](std::chrono::milliseconds worked) { return wait.goOn(worked); });
    }

    FernaWyn::Links links() {
        return {
            .plateForm =
                [this](QWidget* parent) { Grub_bla(stan_, folder_, dialogs_, parent).exec(); },
            .anchorForm =
                [this](QWidget* parent) { Dobor_fer(stan_, folder_, dialogs_, parent).exec(); },
            .help = [this] { openHelp(folder_, helpContext); },
            .back = [this] { input_.show(); },
            .endProgram =
                [this] {
                    Zapisz_cfg(stan_, folder_ + QStringLiteral("/Ferna.cfg"),
                               folder_ + u'/' + wyd::replyFile);
                    QCoreApplication::exit(0);
                },
        };
    }

    Stan& stan_;
    QString folder_;
    QtDialogs dialogs_;
    Ferna3 input_;
    std::unique_ptr<FernaWyn> results_;
};

int runProgram() {
    const QString folder = enterProgramFolder();
    const std::unique_ptr<QLockFile> lock = lockProgramFolder(folder);
    Stan stan;
    if (!restoreLastTask(stan, folder))
        return 1;
    return Program(stan, folder).run();
}

int leave(const Leave& answer) {
    std::fputs(answer.text.toLocal8Bit().constData(), answer.exitCode == 0 ? stdout : stderr);
    return answer.exitCode;
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    if (const auto answer = answerCall(arguments))
        return leave(*answer);
    hushMissingRuntimeFolder();
    const QApplication application(argc, argv);
    if (const auto refusal = refuseArguments(QApplication::arguments().mid(1)))
        return leave(*refusal);
    QApplication::setApplicationName(QStringLiteral("ferna"));
    QApplication::setApplicationVersion(QStringLiteral(FERNA_VERSION));
    // The desktop entry and the icon of the windows go by this name.
    QApplication::setDesktopFileName(QStringLiteral("ferna"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/szkice/ferna.svg")));
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        return runProgram();
    } catch (const ferna::RunTimeError& failure) {
        QMessageBox::critical(
            nullptr, ferna::programTitle,
            QStringLiteral("Błąd wykonania '%1':\n%2").arg(failure.number()).arg(failure.text()));
        return 1;
    }
}
