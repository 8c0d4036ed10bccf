#include "app/sheet_entry.h"

#include "sheet/make_sheet.h"
#include "sheet/sheet_file.h"
#include "widgets/environment_stop.h"
#include "widgets/hourglass.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>

namespace ferna {

namespace {

const SaveQuestion& sheetQuestion() {
    static const SaveQuestion question{
        QStringLiteral("Zapisz arkusz obliczeniowy"), QStringLiteral("Arkusz"),
        QStringLiteral(".pdf"),
        QStringLiteral("Dokument PDF (*.pdf)|*.pdf|Strona HTML (*.html)|*.html|"
                       "Tekst OpenDocument (*.odt)|*.odt|Dokument Word (*.docx)|*.docx")};
    return question;
}

/// What was asked for, or the same as PDF where no format has the ending.
QString withSheetEnding(const QString& file) {
    return sheet::isSheetFile(file) ? file : file + sheetQuestion().extension;
}

void saveSheet(FernaWyn& results, const Stan& stan, notes::Record& record, Dialogs& dialogs) {
    record.labelled(results.session().typedLabel());
    const std::optional<QString> file = askAndSaveSheet(
        {.stan = stan, .record = record, .hasResults = true, .project = stan.opcje.Nazwa_projektu},
        dialogs);
    if (file)
        results.tellWritten({*file});
}

} // namespace

std::optional<QString> askAndSaveSheet(const sheet::SheetInput& input, Dialogs& dialogs) {
    const std::optional<QString> path = dialogs.saveFile(sheetQuestion());
    if (!path)
        return std::nullopt;
    const QString file = withSheetEnding(*path);
    if (file != *path && QFileInfo::exists(file)
        && !dialogs.confirm(QStringLiteral("Zastąpić istniejące pliki: %1?").arg(file),
                            sheetQuestion().title))
        return std::nullopt; // the question has asked about another name
    const Hourglass hourglass;
    sheet::SheetInput whole = input;
    whole.program = QStringLiteral("Ferna 2005 Pr " FERNA_VERSION);
    whole.now = QDateTime::currentDateTime();
    sheet::saveSheet(sheet::makeSheet(whole), file);
    return file;
}

void addSheetEntry(FernaWyn& results, const Stan& stan, notes::Record& record, Dialogs& dialogs) {
    QAction* const entry = results.moreMenu()->addAction(QStringLiteral("&Arkusz obliczeniowy..."));
    entry->setStatusTip(
        QStringLiteral("Zapisuje wszystkie liczby obliczenia ze wzorami i normami"));
    connectGuarded(entry, &QAction::triggered, &results,
                   [&] { saveSheet(results, stan, record, dialogs); });
}

} // namespace ferna
