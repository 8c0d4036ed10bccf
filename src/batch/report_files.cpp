#include "batch/report_files.h"

#include "batch/report_pictures.h"
#include "pages/sketch_files.h"
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

ReportModel modelOf(const ComputedTask& done) {
    return reportModel(done.task.stan, done.raport);
}

QString writeText(const ComputedTask& done, const QString& file, const QString& /*pictures*/) {
    textReport(modelOf(done)).commit(file);
    return {};
}

/// The print commands; their pictures go into the same folder, under names of their own.
QString writeCommands(const ComputedTask& done, const QString& file, const QString& pictures) {
    const QString folder = QFileInfo(file).absolutePath();
    Buduj_wyd(modelOf(done), pictures); // saves the anchor's sketch among the others
    WydWriter writer(modelOf(done), folder, picturePrefix(file));
    writer.body();
    copyPictures(writer.pictures(), pictures, folder, picturePrefix(file));
    writer.file().commit(file);
    return {};
}

/// Pages by the renderer, which is asked for them by `option`.
template <const char* option>
QString writePages(const ComputedTask& done, const QString& file, const QString& pictures) {
    Buduj_wyd(modelOf(done), pictures);
    writeJob(pictures, RenderMode::ScreenPicture, done.task.stan.opcje.Nr_strony);
    runRenderer(pictures, {QString::fromLatin1(option), QFileInfo(file).absoluteFilePath()});
    return {};
}

/// The RTF report and the pictures that its text links to.
QString writeRtf(const ComputedTask& done, const QString& file, const QString& pictures) {
    const ReportModel report = modelOf(done);
    RtfWriter writer = rtfReport(report, done.task.stan.opcje.Tryb_RTF, done.now);
    if (report.anchor)
        saveAnchorSketch(pictures, report.anchor->sketch);
    const RtfPlace place = placeOfRtfPictures(file, writer.pictures(), pictures);
    if (place.isOwn)
        QDir().mkdir(place.pictures);
    copyPictures(writer.pictures(), pictures, place.pictures);
    writer.file().commit(file);
    if (!place.isOwn)
        return {};
    writer.file().commit(place.copyOfReport);
    return QStringLiteral("%1: the pictures beside it belong to another report; with its own "
                          "pictures the report is %2")
        .arg(QDir::toNativeSeparators(file), QDir::toNativeSeparators(place.copyOfReport));
}

QString writeWordDocument(const ComputedTask& done, const QString& file, const QString& pictures) {
    writeDocument(modelOf(done), pictures, file);
    return {};
}

constexpr char pdf[] = "--pdf";
constexpr char emf[] = "--emf";
constexpr char svg[] = "--svg";

struct ReportFormat {
    const char* ending;
    bool pictures;
    QString (*write)(const ComputedTask& done, const QString& file, const QString& pictures);
};

// One row a format.
constexpr std::array formats{
    ReportFormat{".txt", false, writeText},        ReportFormat{".rtf", true, writeRtf},
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

QString writeReport(const ComputedTask& done, const QString& file, const QString& pictures) {
    return formatOf(file)->write(done, file, pictures);
}

} // namespace ferna::batch
