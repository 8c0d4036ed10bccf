#include "app/sheet_entry.h"

#include "analysis/stan_przypadku.h"
#include "command/quiet_host.h"
#include "runtime/format.h"
#include "runtime/run_time_error.h"
#include "sheet/make_sheet.h"
#include "sheet/sheet_file.h"
#include "widgets/environment_stop.h"
#include "widgets/hourglass.h"

#include <QAction>
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

const QString& programName() {
    static const QString name = QStringLiteral("Ferna 2005 Pr " FERNA_VERSION);
    return name;
}

void saveSheet(FernaWyn& results, const Stan& stan, notes::Record& record, Dialogs& dialogs,
               const DigestOfCases& digestOf) {
    const std::optional<QString> path = dialogs.saveFile(sheetQuestion());
    if (!path)
        return;
    const QString file = withSheetEnding(*path);
    record.labelled(results.session().typedLabel());
    const auto digest = digestOf ? digestOf() : std::nullopt;
    {
        const Hourglass hourglass;
        sheet::saveSheet(sheet::makeSheet({.stan = stan,
                                           .record = record,
                                           .hasResults = true,
                                           .project = stan.opcje.Nazwa_projektu,
                                           .program = programName(),
                                           .now = QDateTime::currentDateTime(),
                                           .combinations = digest ? &*digest : nullptr}),
                         file);
    }
    results.tellWritten({file});
}

/// Takes a calculation down that shows nothing.
class RecordingHost : public QuietHost {
public:
    RecordingHost(Dialogs& dialogs, const Stan& stan, notes::Record& record)
        : QuietHost(dialogs), stan_(stan), record_(record) {}

    void caseEnded(int c) override { record_.caseEnded(stan_, c); }
    void caseRefused(int c) override { record_.caseRefused(stan_, c); }

private:
    const Stan& stan_;
    notes::Record& record_;
};

/// What is entered, with the rows of a digest as its load cases.
InputFields fieldsOf(const combinations::Digest& digest, InputFields fields) {
    for (LoadRow<QString>& row : fields.loads)
        row = {};
    std::size_t r = 0;
    for (const combinations::DigestRow& taken : digest.taken) {
        const auto& [name, load, shear] = taken.combination;
        fields.loads.at(r++) = {general(load.N), general(load.M1), general(load.M2),
                                general(shear.Vx), general(shear.Vy)};
    }
    return fields;
}

} // namespace

std::optional<QString> saveSheetOf(const combinations::Digest& digest, const Stan& stan,
                                   const InputFields& entered, Dialogs& dialogs) {
    const std::optional<QString> path = dialogs.saveFile(sheetQuestion());
    if (!path)
        return std::nullopt;
    const Hourglass hourglass;
    const InputFields fields = fieldsOf(digest, entered);
    Stan fresh = freshState(stan);
    fresh.plyta = stan.plyta;
    fresh.Teksty = stan.Teksty;
    fresh.obciazenia.Liczba_przyp = CInt(static_cast<int>(digest.taken.size()));
    notes::Record record;
    record.begin(notes::entered(fresh, fields));
    ScriptedDialogs told;
    RecordingHost host(told, fresh, record);
    Stan_przypadku working;
    QStringList messages;
    bool hasResults = false;
    try {
        hasResults = Oblicz(fresh, working, fields, told, host) == CalculationEnd::Computed;
    } catch (const RunTimeError& failure) {
        record.stopped();
        messages += failure.text();
    }
    for (const ScriptedDialogs::Box& box : told.messages)
        messages += box.text;
    const QString file = withSheetEnding(*path);
    sheet::saveSheet(sheet::makeSheet({.stan = fresh,
                                       .record = record,
                                       .hasResults = hasResults,
                                       .messages = messages,
                                       .project = fields.txtNaz_proj,
                                       .program = programName(),
                                       .now = QDateTime::currentDateTime(),
                                       .combinations = &digest}),
                     file);
    return file;
}

void addSheetEntry(FernaWyn& results, const Stan& stan, notes::Record& record, Dialogs& dialogs,
                   DigestOfCases digest) {
    QAction* const entry = results.moreMenu()->addAction(QStringLiteral("&Arkusz obliczeniowy..."));
    entry->setStatusTip(
        QStringLiteral("Zapisuje wszystkie liczby obliczenia ze wzorami i normami"));
    connectGuarded(entry, &QAction::triggered, &results,
                   [&results, &stan, &record, &dialogs, digest = std::move(digest)] {
                       saveSheet(results, stan, record, dialogs, digest);
                   });
}

} // namespace ferna
