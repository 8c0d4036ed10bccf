#include "renderer/delivery.h"

#include "pages/emf_writer.h"
#include "pages/metafile.h"
#include "protocol/renderer_files.h"
#include "renderer/printing.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
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

/// True where none of the files exists yet or the user wants them replaced.
bool mayWrite(const QStringList& names) {
    QStringList existing;
    for (const QString& name : names)
        if (QFileInfo::exists(name))
            existing += QFileInfo(name).fileName();
    return existing.isEmpty()
           || QMessageBox::question(nullptr, QStringLiteral("Zapisz jako EMF"),
                                    QStringLiteral("Zastąpić istniejące pliki: %1?")
                                        .arg(existing.join(QStringLiteral(", "))))
                  == QMessageBox::Yes;
}

/// Asks for a name until it is a new one, may be replaced, or the dialog is cancelled.
void saveAsEmf(const pages::Report& report, const Call& call, const Job& job) {
    const OutputFormat& emf = *outputFormat(QStringLiteral("emf"));
    QFileDialog dialog(nullptr, QStringLiteral("Zapisz jako EMF"), job.folder,
                       QStringLiteral("Metapliki (*.emf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("emf"));
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // asked for the names of the pages
    dialog.selectFile(QStringLiteral("Raport.emf"));
    QString name;
    do {
        if (dialog.exec() != QDialog::Accepted)
            throw RunTimeError(error::Cancelled, QStringLiteral("okno zapisu pliku EMF"));
        name = dialog.selectedFiles().constFirst();
    } while (!mayWrite(fileNames(report, emf, name)));
    writeReport(report, emf, name, call.dpi);
}

} // namespace

bool needsScreen(const Call& call, const Job& job) {
    return call.format == nullptr
           && (job.mode == RenderMode::PrintChosen || job.mode == RenderMode::Emf
               || job.mode == RenderMode::Clipboard);
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
        printOnDefault(report);
        break;
    case RenderMode::PrintChosen:
        printOnChosen(report);
        break;
    case RenderMode::Emf:
        saveAsEmf(report, call, job);
        break;
    case RenderMode::Clipboard:
        toClipboard(report);
        break;
    }
}

} // namespace ferna::renderer
