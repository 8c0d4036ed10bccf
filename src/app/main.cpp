#include "app/command_line.h"
#include "app/program.h"
#include "desktop/forms/Help_window.h"
#include "desktop/forms/damaged_file_box.h"
#include "desktop/forms/help_key.h"
#include "desktop/program_folder.h"
#include "runtime/passing_folder.h"
#include "runtime/qt_remarks.h"
#include "windows/application.h"

#include <QApplication>
#include <QFileInfo>
#include <QLockFile>
#include <QMessageBox>
#include <QPushButton>

#include <cstdio>

namespace {

using namespace ferna;

/// Tells that a program of another computer has the folder. True where the engineer knows better.
bool wantsFolderOf(const FolderHolder& holder) {
    QMessageBox box(QMessageBox::Warning, programTitle,
                    QStringLiteral("Z folderu programu korzysta program na komputerze \"%1\" "
                                   "(proces nr %2).")
                        .arg(holder.host)
                        .arg(holder.process));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        QStringLiteral("Dwa programy w jednym folderze mieszają sobie rysunki i numery stron. "
                       "Przejmij folder tylko wtedy, gdy tamten program już nie działa.\n%1")
            .arg(holder.lock));
    const QAbstractButton* const take =
        box.addButton(QStringLiteral("&Przejmij folder"), QMessageBox::AcceptRole);
    QPushButton* const end =
        box.addButton(QStringLiteral("&Zakończ program"), QMessageBox::RejectRole);
    box.setDefaultButton(end);
    box.setEscapeButton(end);
    box.exec();
    return box.clickedButton() == take;
}

int runProgram(QApplication& application, const QString& taskFile) {
    const QString folder = enterProgramFolder();
    openHelpByF1(application, [folder](int context) { openHelp(folder, context); });
    const std::unique_ptr<QLockFile> lock = lockProgramFolder(folder, wantsFolderOf);
    Stan stan;
    if (!restoreLastTask(stan, folder, QStringLiteral(":/dane"), wantsDeliveredFile))
        return 1;
    return Program(stan, folder).run(taskFile);
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
    QApplication application(argc, argv);
    const QStringList left = QApplication::arguments().mid(1);
    if (const auto refusal = refuseArguments(left))
        return leave(*refusal);
    // The program folder becomes the current one: a name is taken from where the program was
    // called.
    const QString taskFile = left.isEmpty() ? QString() : QFileInfo(left[0]).absoluteFilePath();
    QApplication::setApplicationName(QStringLiteral("ferna"));
    QApplication::setApplicationVersion(QStringLiteral(FERNA_VERSION));
    dressApplication(application);
    QApplication::setQuitOnLastWindowClosed(false);
    const TidyEnd tidyEnd;
    try {
        return runProgram(application, taskFile);
    } catch (const ferna::RunTimeError& failure) {
        QMessageBox::critical(
            nullptr, ferna::programTitle,
            QStringLiteral("Błąd wykonania '%1':\n%2").arg(failure.number()).arg(failure.text()));
        return 1;
    }
}
