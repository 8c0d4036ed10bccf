#include "renderer/delivery.h"

#include "pages/emf_writer.h"
#include "pages/metafile.h"
#include "protocol/renderer_files.h"
#include "protocol/renderer_news.h"
#include "renderer/news.h"
#include "renderer/paper.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>

namespace ferna::renderer {

namespace {

/// The metafile on the clipboard, and a bitmap for programs that know no metafiles.
void toClipboard(const pages::Report& report) {
    constexpr double pixelsPerMm = 6;
    const QByteArray bytes = emfOfAllPages(report);
    const Metafile file = Metafile::fromBytes(bytes);
    QImage image((file.sizeMm() * pixelsPerMm).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    file.paint(painter, QRectF(image.rect()));
    painter.end();
    auto* data = new QMimeData; // the clipboard takes it over
    data->setData(QStringLiteral("image/x-emf"), bytes);
    data->setImageData(image);
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->setMimeData(data);
    if (!clipboard->ownsClipboard())
        throw RunTimeError(error::DeviceIO, QStringLiteral("nie można zająć schowka"));
}

void saveAsEmf(const pages::Report& report, const Call& call) {
    const OutputFormat& emf = *outputFormat(QStringLiteral("emf"));
    const std::optional<QString> name = paper().askWhereToSave(
        {QStringLiteral("Zapisz jako EMF"), QStringLiteral("Raport.emf"), QStringLiteral(".emf"),
         QStringLiteral("Metapliki (*.emf)|*.emf")},
        [&](const QString& chosen) { return fileNames(report, emf, chosen); });
    if (!name)
        throw RunTimeError(error::Cancelled, QStringLiteral("okno zapisu pliku EMF"));
    writeReport(report, emf, *name, call.dpi);
    for (const QString& file : fileNames(report, emf, *name))
        tell(news::fileWritten(file));
}

} // namespace

bool needsScreen(const Call& call, const Job& job) {
    return call.format == nullptr
           && (job.mode == RenderMode::PrintChosen || job.mode == RenderMode::Emf
               || job.mode == RenderMode::Clipboard);
}

bool keepsLastReply(const Call& call, const Job& job) {
    const bool screenPicture =
        job.mode == RenderMode::ScreenPicture || job.mode == RenderMode::Clipboard;
    return call.format == nullptr && !screenPicture
           && QFileInfo::exists(QDir(job.folder).filePath(wyd::replyFile));
}

void deliver(const pages::Report& report, const Call& call, const Job& job) {
    if (call.format != nullptr) {
        writeReport(report, *call.format, call.outputPath, call.dpi);
        return;
    }
    switch (job.mode) {
    case RenderMode::ScreenPicture:
        writeFileWhole(QDir(job.folder).filePath(wyd::screenPicture), emfOfAllPages(report),
                       Lasting::UntilNextUse);
        break;
    case RenderMode::Print:
        paper().printDefault(report);
        break;
    case RenderMode::PrintChosen:
        paper().printChosen(report);
        break;
    case RenderMode::Emf:
        saveAsEmf(report, call);
        break;
    case RenderMode::Clipboard:
        toClipboard(report);
        break;
    }
}

} // namespace ferna::renderer
