#include "batch/report_files.h"

#include "platform/renderer_start.h"
#include "report/document_writer.h"
#include "report/rtf_writer.h"
#include "report/text_writer.h"
#include "report/wyd_writer.h"
#include "runtime/codepage.h"
#include "runtime/run_time_error.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace ferna::batch {

namespace {

/// Name of the folder of a command file's pictures, in letters that the command file can hold.
QString pictureFolderOf(const QString& file) {
    return codepage::decoded(codepage::encoded(QFileInfo(file).completeBaseName()))
               .value_or(QStringLiteral("raport"))
               .replace(u'?', u'_')
           + QStringLiteral("-rysunki");
}

/// Where a report goes.
struct Destination {
    QString file;
    QString pictures; ///< the folder where the run has left them
    OutputFiles& outputs;
};

void writeText(const ComputedTask& done, const Destination& to) {
    textReport(done.task.stan, done.raport).commit(to.file);
}

/// The print commands. Their pictures go into a folder of their own beside them: those of another
/// report in the same folder have the same names.
void writeCommands(const ComputedTask& done, const Destination& to) {
    const QFileInfo file(to.file);
    Buduj_wyd(done.task.stan, done.raport, to.pictures); // saves the anchor's sketch too
    const QString folder = file.absolutePath() + u'/' + pictureFolderOf(to.file);
    if (!QDir().mkpath(folder))
        throw RunTimeError(error::PathAccess, QDir::toNativeSeparators(folder));
    WydWriter writer(done.task.stan, done.raport, file.absolutePath(), pictureFolderOf(to.file));
    writer.body();
    for (const QString& picture : writer.pictures()) {
        const QString target = folder + u'/' + picture;
        to.outputs.claim(target);
        writeFileWhole(target, readFileWhole(to.pictures + u'/' + picture));
    }
    writer.file().commit(to.file);
}

/// Pages by the renderer, which is asked for them by `option`. It makes them in a folder of its
/// own, so that every file of the call is written here.
template <const char* option>
void writePages(const ComputedTask& done, const Destination& to) {
    const QString stem = QStringLiteral("raport");
    const QString made = to.pictures + QStringLiteral("/strony");
    QDir(made).removeRecursively();
    QDir().mkpath(made);
    Buduj_wyd(done.task.stan, done.raport, to.pictures);
    writeJob(to.pictures, RenderMode::ScreenPicture, done.task.stan.opcje.Nr_strony);
    runRenderer(to.pictures, {QString::fromLatin1(option),
                              made + u'/' + stem + to.file.mid(to.file.lastIndexOf(u'.'))});
    const QStringList pages = QDir(made).entryList(QDir::Files);
    if (pages.size() > 1)
        for (const QString& page : pages)
            to.outputs.claim(pageName(to.file, stem, page));
    for (const QString& page : pages)
        writeFileWhole(pageName(to.file, stem, page), readFileWhole(made + u'/' + page));
}

void writeRtf(const ComputedTask& done, const Destination& to) {
    Stan stan = done.task.stan; // the writer counts pages on
    Raport raport = done.raport;
    saveRtfReport(stan, raport, done.now, to.file);
}

void writeWordDocument(const ComputedTask& done, const Destination& to) {
    writeDocument(done.task.stan, done.raport, to.pictures, to.file);
}

constexpr char pdf[] = "--pdf";
constexpr char emf[] = "--emf";
constexpr char svg[] = "--svg";

struct ReportFormat {
    const char* ending;
    bool pictures;
    void (*write)(const ComputedTask& done, const Destination& to);
};

// One row a format.
constexpr std::array formats{
    ReportFormat{".txt", false, writeText},        ReportFormat{".rtf", false, writeRtf},
    ReportFormat{".wyd", true, writeCommands},     ReportFormat{".pdf", true, writePages<pdf>},
    ReportFormat{".emf", true, writePages<emf>},   ReportFormat{".svg", true, writePages<svg>},
    ReportFormat{".doc", true, writeWordDocument}, ReportFormat{".odt", true, writeWordDocument},
};

const ReportFormat* formatOf(const QString& file) {
    for (const ReportFormat& format : formats)
        if (file.endsWith(QLatin1String(format.ending), Qt::CaseInsensitive))
            return &format;
    return nullptr;
}

} // namespace

QStringList reportEndings() {
    QStringList endings;
    for (const ReportFormat& format : formats)
        endings += QString::fromLatin1(format.ending);
    return endings;
}

bool isReportFile(const QString& file) {
    return formatOf(file) != nullptr;
}

bool needsPictures(const QString& file) {
    const ReportFormat* const format = formatOf(file);
    return format != nullptr && format->pictures;
}

void deliverPictures(const QString& dataFolder, const QString& folder) {
    for (const QString& picture : QDir(dataFolder).entryList({QStringLiteral("*.bmp")}))
        writeFileWhole(folder + u'/' + picture, readFileWhole(dataFolder + u'/' + picture));
}

void writeReport(const ComputedTask& done, const QString& file, const QString& pictures,
                 OutputFiles& outputs) {
    formatOf(file)->write(done, {file, pictures, outputs});
}

} // namespace ferna::batch
