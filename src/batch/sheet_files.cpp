#include "batch/sheet_files.h"

#include "sheet/make_sheet.h"
#include "sheet/sheet_file.h"

namespace ferna::batch {

namespace {

/// Every box that the calculation has shown, and the run-time error that stopped it.
QStringList messagesOf(const ComputedTask& done) {
    QStringList messages;
    for (const ScriptedDialogs::Box& box : done.dialogs.messages)
        messages += lineOf(box);
    if (done.failure.is_object() && done.failure.contains("tekst"))
        messages += QString::fromStdString(done.failure["tekst"].get<std::string>());
    return messages;
}

} // namespace

QStringList sheetEndings() {
    return sheet::sheetEndings();
}

bool isSheetFile(const QString& file) {
    return sheet::isSheetFile(file);
}

sheet::Sheet sheetOf(const ComputedTask& done, const combinations::Digest* table) {
    return sheet::makeSheet({.stan = done.task.stan,
                             .record = done.record,
                             .hasResults = done.reportReady,
                             .messages = messagesOf(done),
                             .project = done.task.fields.txtNaz_proj,
                             .program = QStringLiteral("ferna-wsad " FERNA_VERSION),
                             .now = done.now,
                             .combinations = table});
}

void writeSheet(const ComputedTask& done, const QString& file) {
    sheet::saveSheet(sheetOf(done), file);
}

} // namespace ferna::batch
