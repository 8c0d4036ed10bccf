#include "batch/report_files.h"

#include "protocol/renderer_start.h"
#include "report/document_writer.h"
#include "report/rtf_writer.h"
#include "report/text_writer.h"
#include "report/wyd_writer.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace ferna::batch {

namespace {

void writeText(const ComputedTask& done, const QString& file, const QString& /*pictures*/) {
    textReport(done.task.stan, done.raport).commit(file);
}

/// The print commands; their pictures go into the same folder.
void writeCommands(const ComputedTask& done, const QString& file, const QString& pictures) {
    const QString folder = QFileInfo(file).absolutePath();
    Buduj_wyd(done.task.stan, done.raport, pictures); // saves the anchor's sketch among the others
    WydWriter writer(done.task.stan, done.raport, folder);
    writer.body();
    for (const QString& picture : writer.pictures())
        writeFileWhole(folder + u'/' + picture, readFileWhole(pictures + u'/' + picture));
    writer.file().commit(file);
}

/// Pages by the renderer, which is asked for them by `option`.
template <const char* option>
void writePages(const ComputedTask& done, const QString& file, const QString& pictures) {
    Buduj_wyd(done.task.stan, done.raport, pictures);
    writeJob(pictures, RenderMode::ScreenPicture, done.task.stan.opcje.Nr_strony);
    runRenderer(pictures, {QString::fromLatin1(option), QFileInfo(file).absoluteFilePath()});
}

void writeRtf(const ComputedTask& done, const QString& file, const QString& /*pictures*/) {
    Stan stan = done.task.stan; // the writer counts pages on
    Raport raport = done.raport;
    saveRtfReport(stan, raport, done.now, file);
}

void writeWordDocument(const ComputedTask& done, const QString& file, const QString& pictures) {
    writeDocument(done.task.stan, done.raport, pictures, file);
}

constexpr char pdf[] = "--pdf";
constexpr char emf[] = "--emf";
constexpr char svg[] = "--svg";

struct ReportFormat {
    const char* ending;
    bool pictures;
    void (*write)(const ComputedTask& done, const QString& file, const QString& pictures);
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

void writeReport(const ComputedTask& done, const QString& file, const QString& pictures) {
    formatOf(file)->write(done, file, pictures);
}

} // namespace ferna::batch
