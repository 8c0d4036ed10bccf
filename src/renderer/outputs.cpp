#include "renderer/outputs.h"

#include "pages/drawing.h"
#include "pages/emf_writer.h"
#include "pages/page_painter.h"
#include "renderer/paper.h"
#include "runtime/lengths.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <array>
#include <cmath>

namespace ferna::renderer {

namespace {

/// Title of a document: what it is, and of which project.
QString documentTitle(const pages::Report& report) {
    if (!report.documentTitle.isEmpty())
        return report.documentTitle;
    return report.project.isEmpty() ? report.title
                                    : report.title + QStringLiteral(" - ") + report.project;
}

[[noreturn]] void cannotDraw(const char* format) {
    throw RunTimeError(
        error::DeviceIO,
        QStringLiteral("nie można narysować strony (%1)").arg(QLatin1String(format)));
}

QByteArray pdf(const pages::Report& report, std::size_t, int) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    writer.setResolution(static_cast<int>(mmPerInch * drawing::unitsPerMm)); // 0.01 mm
    QPainter painter;
    if (!painter.begin(&writer))
        cannotDraw("PDF");
    bool first = true;
    for (const pages::Page& page : report.pages) {
        if (!std::exchange(first, false))
            writer.newPage();
        paintPage(painter, page);
    }
    painter.end();
    return paper().document(bytes, report, documentTitle(report));
}

QByteArray svg(const pages::Report& report, std::size_t page, int) {
    const QSize units = (pages::sheet * drawing::unitsPerMm).toSize();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(static_cast<int>(mmPerInch * drawing::unitsPerMm));
    generator.setSize(units);
    generator.setViewBox(QRect(QPoint(0, 0), units));
    generator.setTitle(documentTitle(report).toHtmlEscaped()); // written as it stands
    QPainter painter;
    if (!painter.begin(&generator))
        cannotDraw("SVG");
    painter.fillRect(QRect(QPoint(0, 0), units), Qt::white);
    paintPage(painter, report.pages[page]);
    painter.end();
    return bytes;
}

QByteArray png(const pages::Report& report, std::size_t page, int dpi) {
    const double scale = dpi / mmPerInch;
    QImage image((pages::sheet * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(static_cast<int>(std::lround(scale * 1000)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.setText(QStringLiteral("Title"), documentTitle(report));
    QPainter painter;
    if (!painter.begin(&image))
        cannotDraw("PNG");
    painter.scale(scale / drawing::unitsPerMm, scale / drawing::unitsPerMm);
    paintPage(painter, report.pages[page]);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        cannotDraw("PNG");
    return bytes;
}

QByteArray emf(const pages::Report& report, std::size_t page, int) {
    return emfOfPage(report, report.pages[page]);
}

constexpr std::array formats{
    OutputFormat{"pdf", false, pdf},
    OutputFormat{"svg", true, svg},
    OutputFormat{"png", true, png},
    OutputFormat{"emf", true, emf},
};

} // namespace

std::span<const OutputFormat> outputFormats() {
    return formats;
}

const OutputFormat* outputFormat(const QString& option) {
    for (const OutputFormat& format : formats)
        if (option == QLatin1String(format.option))
            return &format;
    return nullptr;
}

QString pageFileName(const QString& name, const OutputFormat& format, std::size_t page,
                     std::size_t pages) {
    const QString suffix = u'.' + QString::fromLatin1(format.option);
    const bool has = name.endsWith(suffix, Qt::CaseInsensitive);
    if (pages == 1)
        return name;
    return (has ? name.chopped(suffix.size()) : name)
           + QStringLiteral("-strona-%1-z-%2").arg(page + 1).arg(pages)
           + (has ? name.right(suffix.size()) : suffix);
}

QStringList fileNames(const pages::Report& report, const OutputFormat& format,
                      const QString& name) {
    const std::size_t files = format.onePerPage ? report.pages.size() : 1;
    QStringList names;
    for (std::size_t i = 0; i < files; ++i)
        names += pageFileName(name, format, i, files);
    return names;
}

void writeReport(const pages::Report& report, const OutputFormat& format, const QString& name,
                 int dpi) {
    std::size_t page = 0;
    for (const QString& file : fileNames(report, format, name))
        writeFileWhole(file, format.bytes(report, page++, dpi));
}

} // namespace ferna::renderer
