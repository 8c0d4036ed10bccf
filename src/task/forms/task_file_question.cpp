#include "task/forms/task_file_question.h"

#include "runtime/settings.h"
#include "widgets/environment_stop.h"
#include "windows/file_folder.h"
#include "windows/save_question.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace ferna {

namespace {

const QString taskName = QStringLiteral("zadanie programu Ferna (*.ferna)");

/// The address of a file as an element of an array, whose elements commas part.
QString elementOfArray(const QString& file) {
    return QUrl::fromLocalFile(file)
        .toString(QUrl::FullyEncoded)
        .replace(u',', QStringLiteral("%2C"));
}

} // namespace

std::optional<QString> askWhichTask(QWidget* parent) {
    QFileDialog dialog(parent, QStringLiteral("Otwórz zadanie"), settings::saveFolder());
    dialog.setObjectName(QStringLiteral("openQuestion"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(
        {taskName, QStringLiteral("zadanie JSON (*.json)"), QStringLiteral("wszystkie pliki (*)")});
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    QString file = dialog.selectedFiles().constFirst();
    settings::rememberSaveFolder(QFileInfo(file).path());
    return file;
}

std::optional<QString> askWhereToSaveTask(QWidget* parent, const QString& preset) {
    SaveSurroundings surroundings;
    surroundings.parent = parent;
    surroundings.run = [](QDialog& dialog) { return dialog.exec(); };
    return askWhereToSave({QStringLiteral("Zapisz zadanie jako"), preset, taskFileEnding,
                           taskName + QStringLiteral("|*.ferna|wszystkie pliki (*)|*")},
                          surroundings);
}

void showInFileManager(QWidget* form, const QString& file) {
    const QString folder = QFileInfo(file).path();
    const QStringList call{QStringLiteral("--session"),
                           QStringLiteral("--dest=org.freedesktop.FileManager1"),
                           QStringLiteral("--type=method_call"),
                           QStringLiteral("/org/freedesktop/FileManager1"),
                           QStringLiteral("org.freedesktop.FileManager1.ShowItems"),
                           QStringLiteral("array:string:") + elementOfArray(file),
                           QStringLiteral("string:")};
    auto* const manager = new QProcess(form);
    const auto openIt = [form, folder] { guarded(form, [&] { openFolder(folder); }); };
    QObject::connect(manager, &QProcess::finished, manager, [manager, openIt](int code) {
        if (code != 0)
            openIt();
        manager->deleteLater();
    });
    QObject::connect(manager, &QProcess::errorOccurred, manager,
                     [manager, openIt](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart) // else it has finished too
                             return;
                         openIt();
                         manager->deleteLater();
                     });
    manager->start(QStringLiteral("dbus-send"),
                   QStringList(QStringLiteral("--print-reply")) + call);
}

} // namespace ferna
