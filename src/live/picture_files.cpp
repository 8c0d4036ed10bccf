#include "live/picture_files.h"

#include "runtime/lengths.h"
#include "runtime/run_time_error.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <array>
#include <cmath>

namespace ferna::live {

namespace {

constexpr double unitsPerInch = 96;

[[noreturn]] void cannotDraw(const char* format) {
    throw RunTimeError(
        error::DeviceIO,
        QStringLiteral("nie można narysować obrazu (%1)").arg(QLatin1String(format)));
}

QString documentTitle(const PictureValues& values) {
    return values.loads.isEmpty() ? values.title
                                  : values.title + QStringLiteral(": ") + values.loads;
}

QByteArray png(const PictureValues& values, const PictureOptions& options) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!pictureImage(values, options).save(&buffer, "PNG"))
        cannotDraw("PNG");
    return bytes;
}

QByteArray svg(const PictureValues& values, const PictureOptions& options) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(static_cast<int>(unitsPerInch));
    generator.setSize(options.size.toSize());
    generator.setViewBox(QRectF(QPointF(), options.size));
    generator.setTitle(documentTitle(values).toHtmlEscaped()); // written as it stands
    QPainter painter;
    if (!painter.begin(&generator))
        cannotDraw("SVG");
    drawPicture(painter, values, options);
    painter.end();
    return bytes;
}

QByteArray pdf(const PictureValues& values, const PictureOptions& options) {
    constexpr int resolution = 1200;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    const QSizeF inches = options.size / unitsPerInch;
    writer.setPageLayout(QPageLayout(QPageSize(inches, QPageSize::Inch, {}, QPageSize::ExactMatch),
                                     QPageLayout::Portrait, QMarginsF()));
    writer.setResolution(resolution);
    writer.setTitle(documentTitle(values));
    QPainter painter;
    if (!painter.begin(&writer))
        cannotDraw("PDF");
    painter.scale(resolution / unitsPerInch, resolution / unitsPerInch);
    drawPicture(painter, values, options);
    painter.end();
    return bytes;
}

struct PictureFormat {
    const char* ending;
    QByteArray (*bytes)(const PictureValues& values, const PictureOptions& options);
};
constexpr std::array formats{PictureFormat{".svg", svg}, PictureFormat{".png", png},
                             PictureFormat{".pdf", pdf}};

const PictureFormat* formatOf(const QString& file) {
    for (const PictureFormat& format : formats)
        if (file.endsWith(QLatin1String(format.ending), Qt::CaseInsensitive))
            return &format;
    return nullptr;
}

} // namespace

QStringList pictureEndings() {
    QStringList endings;
    for (const PictureFormat& format : formats)
        endings += QString::fromLatin1(format.ending);
    return endings;
}

bool isPictureFile(const QString& file) {
    return formatOf(file) != nullptr;
}

QImage pictureImage(const PictureValues& values, const PictureOptions& options) {
    constexpr double pixels = 2.5; // a unit: 240 dots an inch
    QImage image((options.size * pixels).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixels);
    image.fill(Qt::white);
    QPainter painter;
    if (!painter.begin(&image))
        cannotDraw("PNG");
    drawPicture(painter, values, options);
    painter.end();
    image.setDevicePixelRatio(1);
    image.setDotsPerMeterX(static_cast<int>(std::lround(pixels * unitsPerInch * 1000 / mmPerInch)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.setText(QStringLiteral("Title"), documentTitle(values));
    return image;
}

QByteArray pictureBytes(const QString& file, const PictureValues& values,
                        const PictureOptions& options) {
    const PictureFormat* const format = formatOf(file);
    if (format == nullptr)
        throw RunTimeError(error::BadFileName, file);
    return format->bytes(values, options);
}

} // namespace ferna::live
