#include "batch/report_files.h"

#include "batch/report_pictures.h"
#include "editable/editable_report.h"
#include "pages/sketch_files.h"
#include "protocol/renderer_start.h"
#include "report/document_writer.h"
#include "report/report_words.h"
#include "report/rtf_writer.h"
#include "report/text_writer.h"
#include "report/wyd_writer.h"
#include "runtime/run_time_error.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace ferna::batch {

namespace {

/// Where a report goes.
struct Destination {
    QString file;
    QString pictures; ///< the folder where the run has left them
    OutputFiles& outputs;
};

ReportModel modelOf(const ComputedTask& done) {
    return reportModel(done.task.stan, done.raport);
}

QString writeText(const ComputedTask& done, const Destination& to) {
    textReport(modelOf(done)).commit(to.file);
    return {};
}

/// The print commands; their pictures go into the same folder, under names of their own.
QString writeCommands(const ComputedTask& done, const Destination& to) {
    const QString folder = QFileInfo(to.file).absolutePath();
    Buduj_wyd(modelOf(done), to.pictures); // saves the anchor's sketch too
    WydWriter writer(modelOf(done), folder, picturePrefix(to.file));
    writer.body();
    copyPictures(writer.pictures(), to.pictures, folder, picturePrefix(to.file));
    writer.file().commit(to.file);
    return {};
}

/// Pages by the renderer, which is asked for them by `option`. It makes them in a folder of its
/// own, so that every file of the call is written here.
template <const char* option>
QString writePages(const ComputedTask& done, const Destination& to) {
    const QString stem = QStringLiteral("raport");
    const QString made = to.pictures + QStringLiteral("/strony");
    QDir(made).removeRecursively();
    QDir().mkpath(made);
    Buduj_wyd(modelOf(done), to.pictures);
    writeJob(to.pictures, RenderMode::ScreenPicture, done.task.stan.opcje.Nr_strony);
    runRenderer(to.pictures,
                documentOptions(modelOf(done))
                    + QStringList{QString::fromLatin1(option),
                                  made + u'/' + stem + to.file.mid(to.file.lastIndexOf(u'.'))});
    const QStringList pages = QDir(made).entryList(QDir::Files);
    if (pages.size() > 1)
        for (const QString& page : pages)
            to.outputs.claim(pageName(to.file, stem, page));
    for (const QString& page : pages)
        writeFileWhole(pageName(to.file, stem, page), readFileWhole(made + u'/' + page));
    return {};
}

/// The RTF report and the pictures that its text links to.
QString writeRtf(const ComputedTask& done, const Destination& to) {
    const ReportModel report = modelOf(done);
    RtfWriter writer = rtfReport(report, done.task.stan.opcje.Tryb_RTF, done.now);
    if (report.anchor)
        saveAnchorSketch(to.pictures, report.anchor->sketch);
    const RtfPlace place = placeOfRtfPictures(to.file, writer.pictures(), to.pictures);
    if (place.isOwn)
        QDir().mkdir(place.pictures);
    copyPictures(writer.pictures(), to.pictures, place.pictures);
    writer.file().commit(to.file);
    if (!place.isOwn)
        return {};
    writer.file().commit(place.copyOfReport);
    return QStringLiteral("%1: the pictures beside it belong to another report; with its own "
                          "pictures the report is %2")
        .arg(QDir::toNativeSeparators(to.file), QDir::toNativeSeparators(place.copyOfReport));
}

QString writeWordDocument(const ComputedTask& done, const Destination& to) {
    writeDocument(modelOf(done), to.pictures, to.file);
    return {};
}

/// The report as an editable document, made here.
QString writeEditable(const ComputedTask& done, const Destination& to) {
    const editable::Document document = editable::editableReport(modelOf(done), to.pictures);
    writeFileWhole(to.file, editable::writerFor(to.file)(document));
    return {};
}

constexpr char pdf[] = "--pdf";
constexpr char emf[] = "--emf";
constexpr char svg[] = "--svg";

struct ReportFormat {
    const char* ending;
    bool pictures;
    QString (*write)(const ComputedTask& done, const Destination& to);
};

// One row a format.
constexpr std::array formats{
    ReportFormat{".txt", false, writeText},        ReportFormat{".rtf", true, writeRtf},
    ReportFormat{".wyd", true, writeCommands},     ReportFormat{".pdf", true, writePages<pdf>},
    ReportFormat{".emf", true, writePages<emf>},   ReportFormat{".svg", true, writePages<svg>},
    ReportFormat{".doc", true, writeWordDocument}, ReportFormat{".odt", true, writeEditable},
    ReportFormat{".docx", true, writeEditable},
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
    for (const QString& picture :
         QDir(dataFolder).entryList({QStringLiteral("*.bmp"), QStringLiteral("*.svg")}))
        writeFileWhole(folder + u'/' + picture, readFileWhole(dataFolder + u'/' + picture));
}

QString writeReport(const ComputedTask& done, const QString& file, const QString& pictures,
                    OutputFiles& outputs) {
    return formatOf(file)->write(done, {file, pictures, outputs});
}

} // namespace ferna::batch
