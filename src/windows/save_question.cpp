#include "windows/save_question.h"

#include "runtime/settings.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

namespace ferna {

namespace {

constexpr int namedAtMost = 6; // files of a question; a report can have dozens of pages

QString existingAmong(const QStringList& files) {
    QStringList names;
    for (const QString& file : files)
        if (QFileInfo::exists(file))
            names += QFileInfo(file).fileName();
    const qsizetype more = names.size() - namedAtMost;
    if (more > 0)
        names = names.mid(0, namedAtMost) << QStringLiteral("... (jeszcze %1)").arg(more);
    return names.join(QStringLiteral(", "));
}

int runBox(const SaveSurroundings& surroundings, QDialog& dialog) {
    return surroundings.run ? surroundings.run(dialog) : dialog.exec();
}

/// True where none of the files exists yet or the user wants them replaced.
bool mayReplace(const QStringList& files, const QString& title,
                const SaveSurroundings& surroundings) {
    const QString existing = existingAmong(files);
    if (existing.isEmpty())
        return true;
    QMessageBox box(QMessageBox::Question, title,
                    QStringLiteral("Zastąpić istniejące pliki: %1?").arg(existing),
                    QMessageBox::NoButton, surroundings.parent);
    box.setObjectName(QStringLiteral("replaceQuestion"));
    box.setTextFormat(Qt::PlainText);
    const QPushButton* const yes = box.addButton(QStringLiteral("&Tak"), QMessageBox::YesRole);
    QPushButton* const no = box.addButton(QStringLiteral("&Nie"), QMessageBox::NoRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    runBox(surroundings, box);
    return box.clickedButton() == yes;
}

QStringList nameFilters(const QString& filter) {
    QStringList filters;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters += parts[i];
    return filters;
}

/// The ending of a filter's files, with its point; empty where it stands for several or for all.
QString endingOf(const QString& nameFilter) {
    static const QRegularExpression files(
        QStringLiteral("\\(\\*(\\.[A-Za-z][A-Za-z0-9]{0,7})\\)$"));
    return files.match(nameFilter).captured(1);
}

/// The name in the question with the ending of the format that was chosen; one that was typed with
/// an ending of none of the formats is left alone.
void followFilter(QFileDialog& dialog, const QString& chosen) {
    const QString ending = endingOf(chosen);
    if (ending.isEmpty() || dialog.selectedFiles().isEmpty())
        return;
    dialog.setDefaultSuffix(ending);
    const QString name = dialog.selectedFiles().constFirst();
    for (const QString& filter : dialog.nameFilters()) {
        const QString other = endingOf(filter);
        if (!other.isEmpty() && name.endsWith(other, Qt::CaseInsensitive))
            dialog.selectFile(name.chopped(other.size()) + ending);
    }
}

} // namespace

bool hasEnding(const QString& name) {
    static const QRegularExpression ending(QStringLiteral("\\.[A-Za-z][A-Za-z0-9]{0,7}$"));
    return ending.match(QFileInfo(name).fileName()).hasMatch();
}

std::optional<QString> askWhereToSave(const SaveQuestion& question,
                                      const SaveSurroundings& surroundings) {
    QFileDialog dialog(surroundings.parent, question.title, settings::saveFolder());
    dialog.setObjectName(QStringLiteral("saveQuestion"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // asked for every file that is meant
    dialog.setNameFilters(nameFilters(question.filter));
    dialog.setDefaultSuffix(question.extension);
    dialog.selectFile(question.preset);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString& chosen) { followFilter(dialog, chosen); });
    QString name;
    do {
        if (runBox(surroundings, dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
            return std::nullopt;
        name = dialog.selectedFiles().constFirst();
        if (!hasEnding(name)) {
            const QString ending = endingOf(dialog.selectedNameFilter());
            name += ending.isEmpty() ? question.extension : ending;
        }
    } while (!mayReplace(surroundings.files(name), question.title, surroundings));
    settings::rememberSaveFolder(QFileInfo(name).path());
    return name;
}

} // namespace ferna
