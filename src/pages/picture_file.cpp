#include "pages/picture_file.h"

#include "pages/drawing.h"
#include "runtime/lengths.h"
#include "runtime/run_time_error.h"
#include "runtime/saved_file.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>

namespace ferna::pages {

namespace {

constexpr int unitsPerInch = static_cast<int>(mmPerInch * drawing::unitsPerMm);

QSize unitsOf(const DrawnPicture& picture) {
    return (picture.size * drawing::unitsPerMm).toSize();
}

void drawOn(QPaintDevice& device, const DrawnPicture& picture, double scale) {
    QPainter painter;
    if (!painter.begin(&device))
        throw RunTimeError(error::DeviceIO, QStringLiteral("nie można narysować rysunku"));
    const QRectF place(QPointF(), QSizeF(unitsOf(picture)));
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(place, Qt::white);
    picture.draw(painter, place);
}

void png(const DrawnPicture& picture, QIODevice& file) {
    constexpr double dotsPerMm = 300 / mmPerInch;
    QImage image((picture.size * dotsPerMm).toSize(), QImage::Format_RGB32);
    image.setDotsPerMeterX(static_cast<int>(std::lround(dotsPerMm * 1000)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.setText(QStringLiteral("Title"), picture.title);
    drawOn(image, picture, dotsPerMm / drawing::unitsPerMm);
    image.save(&file, "PNG");
}

void svg(const DrawnPicture& picture, QIODevice& file) {
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(unitsPerInch);
    generator.setSize(unitsOf(picture));
    generator.setViewBox(QRect(QPoint(0, 0), unitsOf(picture)));
    generator.setTitle(picture.title.toHtmlEscaped()); // written as it stands
    drawOn(generator, picture, 1);
}

void pdf(const DrawnPicture& picture, QIODevice& file) {
    QPdfWriter writer(&file);
    writer.setPageLayout(QPageLayout(QPageSize(picture.size, QPageSize::Millimeter, picture.title),
                                     QPageLayout::Portrait, QMarginsF()));
    writer.setResolution(unitsPerInch);
    writer.setTitle(picture.title);
    writer.setCreator(QStringLiteral("ferna"));
    drawOn(writer, picture, 1);
}

} // namespace

QByteArray bytesOf(const DrawnPicture& picture, const QString& ending) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (ending == u"png")
        png(picture, buffer);
    else if (ending == u"svg")
        svg(picture, buffer);
    else if (ending == u"pdf")
        pdf(picture, buffer);
    else
        throw RunTimeError(error::BadFileName, ending);
    return bytes;
}

bool isPictureFile(const QString& path) {
    static const QStringList endings{QStringLiteral("png"), QStringLiteral("svg"),
                                     QStringLiteral("pdf")};
    return endings.contains(QFileInfo(path).suffix().toLower());
}

void savePicture(const DrawnPicture& picture, const QString& path) {
    writeFileWhole(path, bytesOf(picture, QFileInfo(path).suffix().toLower()));
}

} // namespace ferna::pages
