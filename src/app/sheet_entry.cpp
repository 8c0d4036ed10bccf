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

/// Where to save a sheet; none where the question was cancelled.
std::optional<QString> askForFile(Dialogs& dialogs) {
    const std::optional<QString> path = dialogs.saveFile(sheetQuestion());
    if (!path)
        return std::nullopt;
    const QString file = withSheetEnding(*path);
    if (file != *path && QFileInfo::exists(file)
        && !dialogs.confirm(QStringLiteral("Zastąpić istniejące pliki: %1?").arg(file),
                            sheetQuestion().title))
        return std::nullopt; // the question has asked about another name
    return file;
}

/// Fills program and time in and saves the sheet.
void write(sheet::SheetInput input, const QString& file) {
    const Hourglass hourglass;
    input.program = QStringLiteral("Ferna 2005 Pr " FERNA_VERSION);
    input.now = QDateTime::currentDateTime();
    sheet::saveSheet(sheet::makeSheet(input), file);
}

void saveSheet(FernaWyn& results, const Stan& stan, notes::Record& record, Dialogs& dialogs,
               const DigestOfCases& digestOf) {
    const std::optional<QString> file = askForFile(dialogs);
    if (!file)
        return;
    record.labelled(results.session().typedLabel());
    const auto digest = digestOf ? digestOf() : std::nullopt;
    write({.stan = stan,
           .record = record,
           .hasResults = true,
           .project = stan.opcje.Nazwa_projektu,
           .combinations = digest ? &*digest : nullptr},
          *file);
    results.tellWritten({*file});
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

std::optional<QString> askAndSaveSheet(const sheet::SheetInput& input, Dialogs& dialogs) {
    std::optional<QString> file = askForFile(dialogs);
    if (file)
        write(input, *file);
    return file;
}

std::optional<QString> saveSheetOf(const combinations::Digest& digest, const Stan& stan,
                                   const InputFields& entered, Dialogs& dialogs) {
    std::optional<QString> file = askForFile(dialogs);
    if (!file)
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
    write({.stan = fresh,
           .record = record,
           .hasResults = hasResults,
           .messages = messages,
           .project = fields.txtNaz_proj,
           .combinations = &digest},
          *file);
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
