#include "report/results_session.h"

#include "design/configuration.h"
#include "design/typed_names.h"
#include "pages/sketch_files.h"
#include "protocol/renderer_files.h"
#include "report/document_writer.h"
#include "report/text_writer.h"
#include "report/title_lines.h"
#include "report/wyd_writer.h"
#include "report/zone_sketch.h"
#include "runtime/format.h"
#include "runtime/text_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace ferna {

ResultsSession::ResultsSession(Stan& stan, Dialogs& dialogs, QString folder, bool norm0,
                               std::function<QDateTime()> now,
                               std::function<RendererReport()> render)
    : stan_(stan), dialogs_(dialogs), folder_(std::move(folder)), norm0_(norm0),
      now_(std::move(now)), render_(std::move(render)) {}

void ResultsSession::saveSketches() {
    writeFileWhole(inFolder(QStringLiteral("ferogol.bmp")),
                   readFileWhole(inFolder(generalViewFile)));
    for (int c = 1; c <= stan_.obciazenia.Liczba_przyp; ++c)
        if (!wholePlate(stan_, c))
            Rysuj_strefe(raport_, stan_, c, inFolder(zoneSketchFile(c)));
}

void ResultsSession::open() {
    Wypelnij_wiersze(raport_, stan_);
    saveSketches();
    retitle();
}

QByteArray ResultsSession::screenPicture() {
    const QString picture = inFolder(wyd::screenPicture);
    QFile::remove(picture);
    Buduj_wyd(model(), folder_);
    writeJob(folder_, RenderMode::ScreenPicture, stan_.opcje.Nr_strony);
    render_();
    QByteArray bytes = readFileWhole(picture);
    QFile::remove(picture);
    return bytes;
}

void ResultsSession::print(RenderMode mode) {
    retitle();
    writeJob(folder_, mode, stan_.opcje.Nr_strony);
    Buduj_wyd(model(), folder_);
    for (const QString& file : render_().written)
        noteWritten(file);
}

void ResultsSession::printOnChosenPrinter() {
    try {
        print(RenderMode::PrintChosen);
    } catch (const RunTimeError&) {
        dialogs_.message(QStringLiteral("Problem z wyborem drukarki"), QStringLiteral("Ferna Pr"),
                         MessageStyle::Stop);
    }
}

void ResultsSession::askPageNumber() {
    stan_.opcje.Nr_strony = CInt(dialogs_.input(QStringLiteral("Podaj nr strony"), programTitle,
                                                general(stan_.opcje.Nr_strony)));
    behindThePage_.clear();
}

void ResultsSession::askProjectName() {
    stan_.opcje.Nazwa_projektu =
        oneLine(dialogs_.input(QStringLiteral("Podaj nazwe projektu"), programTitle,
                               stan_.opcje.Nazwa_projektu, std::nullopt, projectNote));
}

void ResultsSession::retitle() {
    raport_.titleLines = titleLines(folder_, stan_.opcje.Nr_jezyka);
    Naglowek(raport_, stan_, norm0_, now_(), dialogs_);
}

QString ResultsSession::askWhereToSave(const SaveQuestion& question) {
    const std::optional<QString> chosen = dialogs_.saveFile(question);
    const bool reported = reportsCancel_;
    reportsCancel_ = true;
    if (!chosen && reported)
        throw RunTimeError(error::Cancelled);
    return chosen.value_or(QDir::current().filePath(question.preset));
}

void ResultsSession::noteWritten(const QString& path) {
    written_ += QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

void ResultsSession::saveText() {
    const QString path =
        askWhereToSave({QStringLiteral("Podaj nazwę pliku tekstowego"), QStringLiteral("Wyniki"),
                        QStringLiteral(".txt"),
                        QStringLiteral("plik wyników (*.txt)|*.txt|wszystkie pliki (*.*)|*.*")});
    try {
        textReport(model()).commit(path);
        noteWritten(path);
    } catch (const RunTimeError&) { // ends silently
    }
    QDir::setCurrent(folder_);
}

void ResultsSession::keep(const RtfPages& reached) {
    if (stan_.opcje.Nr_strony != reached.Nr_strony)
        behindThePage_ = QStringLiteral(" ");
    stan_.opcje.Nr_strony = reached.Nr_strony;
    raport_.Wiersze_naglowka(6) = reached.pageLine;
}

void ResultsSession::saveRtf() {
    const QString path = askWhereToSave(rtfQuestion());
    try {
        keep(saveRtfReport(model(), stan_.opcje.Tryb_RTF, now_(), path));
        noteWritten(path);
    } catch (const RunTimeError&) { // ends silently
    }
    QDir::setCurrent(folder_);
}

std::unique_ptr<WordProcessor> ResultsSession::buildDocument() const {
    std::unique_ptr<WordProcessor> document = openWord_();
    ferna::buildDocument(*document, model(), folder_);
    return document;
}

void ResultsSession::saveDocument(std::unique_ptr<WordProcessor> document) {
    const QString path = askWhereToSave(documentQuestion());
    try {
        ferna::saveDocument(*document, path);
        noteWritten(path);
    } catch (const RunTimeError&) { // ends silently
        QDir::setCurrent(folder_);
        return;
    }
    dialogs_.message(documentAdvice(), documentAdviceTitle(), MessageStyle::Plain);
    QDir::setCurrent(folder_);
}

void ResultsSession::leave() {
    raport_.Nazwa_stopy.clear();
    takeNextPage(stan_, readRendererReply(inFolder(wyd::replyFile)));
}

QString ResultsSession::pagePanel() const {
    return QStringLiteral(" Strona ") + general(stan_.opcje.Nr_strony) + behindThePage_;
}

bool ResultsSession::exceeded() const {
    return stan_.wyniki.Kotwy_OK == False || !stan_.wyniki.Beton_OK;
}

QString ResultsSession::statePanel() const {
    return exceeded() ? QStringLiteral(" Przekroczone naprezenia !! ") : QStringLiteral("OK");
}

} // namespace ferna
