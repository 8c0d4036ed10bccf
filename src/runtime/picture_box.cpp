#include "runtime/picture_box.h"

#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QBuffer>
#include <QFontMetricsF>

#include <array>
#include <cmath>

namespace ferna {

namespace {

constexpr qreal printDotsPerInch = 300;
constexpr qreal millimetresPerInch = 25.4;

constexpr int letterHeight = 11; // pixels of the picture

QFont pictureFont(bool bold) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(letterHeight);
    font.setBold(bold);
    return font;
}

} // namespace

QColor QBColor(int number) {
    constexpr std::array<QRgb, 16> table{0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                         0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                         0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    if (number < 0 || number >= static_cast<int>(table.size()))
        throw RunTimeError(error::InvalidCall);
    return QColor::fromRgb(table[static_cast<std::size_t>(number)]);
}

PictureBox::PictureBox(QSize size, qreal devicePixelRatio)
    : size_(size), image_(qRound(size.width() * devicePixelRatio),
                          qRound(size.height() * devicePixelRatio), QImage::Format_RGB32) {
    image_.setDevicePixelRatio(devicePixelRatio);
    clear();
    painter_.begin(&image_);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::TextAntialiasing);
}

void PictureBox::setScale(QPointF topLeft, QPointF bottomRight) {
    topLeft_ = topLeft;
    pixelsPerUnit_ = {size_.width() / (bottomRight.x() - topLeft.x()),
                      size_.height() / (bottomRight.y() - topLeft.y())};
}

QPointF PictureBox::pixel(QPointF user) const {
    return {(user.x() - topLeft_.x()) * pixelsPerUnit_.x(),
            (user.y() - topLeft_.y()) * pixelsPerUnit_.y()};
}

QPen PictureBox::pen() const {
    QPen pen(colour_, width_);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    if (style_ == Style::Dotted)
        pen.setDashPattern({1, 2});
    else if (style_ == Style::DashDot)
        pen.setDashPattern({8, 3, 1, 3});
    return pen;
}

void PictureBox::clear() {
    image_.fill(Qt::white);
}

void PictureBox::line(QPointF from, QPointF to) {
    painter_.setPen(pen());
    painter_.drawLine(pixel(from), pixel(to));
}

void PictureBox::box(QPointF corner, QPointF opposite) {
    painter_.setPen(pen());
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(QRectF(pixel(corner), pixel(opposite)).normalized());
}

void PictureBox::circle(QPointF centre, qreal radius) {
    const qreal r = radius * std::fabs(pixelsPerUnit_.x());
    painter_.setPen(pen());
    painter_.setBrush(filled_ ? QBrush(fillColour_) : QBrush(Qt::NoBrush));
    painter_.drawEllipse(pixel(centre), r, r);
}

void PictureBox::text(QPointF at, const QString& text) {
    const QFont font = pictureFont(bold_);
    painter_.setFont(font);
    painter_.setPen(colour_);
    const QPointF corner = pixel(at);
    painter_.drawText(QPointF(corner.x(), corner.y() + QFontMetricsF(font).ascent()), text);
}

QImage PictureBox::image() {
    painter_.end();
    return image_;
}

void PictureBox::saveBitmap(const QString& path) {
    QImage picture = image();
    // Natural size for programs that place the file: a picture pixel is 1/96 inch.
    const int dotsPerMetre = qRound(picture.devicePixelRatio() * 96 / millimetresPerInch * 1000);
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    picture.setDevicePixelRatio(1);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "BMP"))
        throw RunTimeError(error::DeviceIO, path);
    writeFileWhole(path, bytes, Lasting::UntilNextUse);
}

qreal printRatio(int widthPixels, qreal millimetres) {
    return std::ceil(millimetres / millimetresPerInch * printDotsPerInch / widthPixels);
}

} // namespace ferna
