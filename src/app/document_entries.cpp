#include "app/document_entries.h"

#include "editable/editable_report.h"
#include "report/forms/FernaWyn.h"
#include "report/report_words.h"
#include "report/wyd_writer.h"
#include "runtime/saved_file.h"
#include "widgets/environment_stop.h"
#include "widgets/hourglass.h"

#include <QAction>
#include <QMenu>

namespace ferna {

namespace {

SaveQuestion questionFor(const QString& title, const QString& ending, const QString& kind) {
    return {title, QStringLiteral("Wyniki"), ending,
            QStringLiteral("%1 (*%2)|*%2|wszystkie pliki (*.*)|*.*").arg(kind, ending)};
}

void savePdf(FernaWyn& form, const DocumentEntries& entries, const QString& path) {
    const ReportModel report = form.session().model();
    Buduj_wyd(report, entries.folder);
    writeJob(entries.folder, RenderMode::ScreenPicture, report.firstPage);
    entries.render(documentOptions(report) + QStringList{QStringLiteral("--pdf"), path});
}

void saveEditable(FernaWyn& form, const DocumentEntries& entries, const QString& path,
                  editable::Writer writer) {
    const Hourglass hourglass;
    writeFileWhole(path, writer(editable::editableReport(form.session().model(), entries.folder)));
}

} // namespace

void addDocumentEntries(FernaWyn& form, const DocumentEntries& entries) {
    const auto add = [&form, entries](const char* name, const QString& caption,
                                      const SaveQuestion& question, auto save) {
        QAction* const entry = form.moreMenu()->addAction(caption + QStringLiteral("..."));
        entry->setObjectName(QString::fromLatin1(name));
        connectGuarded(entry, &QAction::triggered, &form, [&form, entries, question, save] {
            const std::optional<QString> path = entries.dialogs.saveFile(question);
            if (!path)
                return;
            save(form, entries, *path);
            form.tellWritten({*path});
        });
    };
    add("mnuZapiszPDF", QStringLiteral("Zapisz jako &PDF"),
        questionFor(QStringLiteral("Zapisz jako PDF"), QStringLiteral(".pdf"),
                    QStringLiteral("raport")),
        savePdf);
    const auto editableAs = [&](const char* name, const QString& caption, const QString& ending) {
        add(name, caption,
            questionFor(QStringLiteral("Zapisz raport edytowalny"), ending,
                        QStringLiteral("raport edytowalny")),
            [writer = editable::writerFor(ending)](FernaWyn& target, const DocumentEntries& to,
                                                   const QString& path) {
                saveEditable(target, to, path, writer);
            });
    };
    editableAs("mnuZapiszODT", QStringLiteral("Raport edytowalny &ODT"), QStringLiteral(".odt"));
    editableAs("mnuZapiszDOCX", QStringLiteral("Raport edytowalny &DOCX"), QStringLiteral(".docx"));
}

} // namespace ferna
