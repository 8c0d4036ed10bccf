#include "runtime/picture_box.h"

#include "runtime/lengths.h"
#include "runtime/picture_twin.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QBuffer>
#include <QFontMetricsF>

#include <array>
#include <cmath>

namespace ferna {

namespace {

constexpr qreal printDotsPerInch = 600;

QFont pictureFont(int letterHeight, bool bold) {
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
    shapes_.clear();
}

void PictureBox::draw(const PictureShape& shape) {
    painter_.setPen(shape.pen);
    painter_.setBrush(shape.fill.isValid() ? QBrush(shape.fill) : QBrush(Qt::NoBrush));
    painter_.drawPath(shape.path);
    shapes_.push_back(shape);
}

void PictureBox::line(QPointF from, QPointF to) {
    QPainterPath path(pixel(from));
    path.lineTo(pixel(to));
    draw({path, pen(), {}});
}

void PictureBox::box(QPointF corner, QPointF opposite) {
    QPainterPath path;
    path.addRect(QRectF(pixel(corner), pixel(opposite)).normalized());
    draw({path, pen(), {}});
}

void PictureBox::circle(QPointF centre, qreal radius) {
    const qreal r = radius * std::fabs(pixelsPerUnit_.x());
    QPainterPath path;
    path.addEllipse(pixel(centre), r, r);
    draw({path, pen(), filled_ ? fillColour_ : QColor()});
}

/// The corner moved so that the letters lie in the picture; where nothing of them does, as it was.
QPointF PictureBox::insidePicture(QPointF corner, const QRectF& letters) const {
    const QRectF picture(QPointF(0, 0), QSizeF(size_));
    const QRectF box = letters.translated(corner);
    if (!picture.intersects(box))
        return corner;
    corner.rx() -= qMax(0.0, box.right() - picture.right());
    corner.ry() -= qMax(0.0, box.bottom() - picture.bottom());
    corner.rx() += qMax(0.0, picture.left() - letters.translated(corner).left());
    corner.ry() += qMax(0.0, picture.top() - letters.translated(corner).top());
    return corner;
}

void PictureBox::text(QPointF at, const QString& text) {
    constexpr qreal rimShare = 0.28; // of the letters' height, both sides together
    const QFont font = pictureFont(letterHeight_, bold_);
    QPainterPath letters;
    letters.addText(QPointF(0, QFontMetricsF(font).ascent()), font, text);
    QPointF corner = pixel(at);
    if (rim_) {
        const qreal rim = rimShare * letterHeight_;
        corner = insidePicture(
            corner, letters.boundingRect().adjusted(-rim / 2, -rim / 2, rim / 2, rim / 2));
        draw({letters.translated(corner),
              QPen(Qt::white, rim, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin), Qt::white});
    }
    draw({letters.translated(corner), QPen(Qt::NoPen), colour_});
}

QImage PictureBox::image() {
    painter_.end();
    return image_;
}

void PictureBox::saveBitmap(const QString& path, qreal printedWidth) {
    QImage picture = image();
    constexpr qreal pixelsPerInch = 96;
    const qreal width = printedWidth > 0 ? printedWidth : size_.width() / pixelsPerInch * mmPerInch;
    const int dotsPerMetre = qRound(picture.width() / width * 1000);
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    picture.setDevicePixelRatio(1);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "BMP"))
        throw RunTimeError(error::DeviceIO, path);
    writeFileWhole(path, bytes, Lasting::UntilNextUse);
    writeFileWhole(twinPath(path), twinOf(svgOf(size_, shapes_), bytes), Lasting::UntilNextUse);
}

qreal printRatio(int widthPixels, qreal millimetres) {
    return std::ceil(millimetres / mmPerInch * printDotsPerInch / widthPixels);
}

} // namespace ferna
