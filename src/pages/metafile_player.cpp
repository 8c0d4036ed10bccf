#include "pages/metafile_player.h"

#include "pages/drawing.h"
#include "pages/emf_format.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace ferna {

namespace {

QColor colorOf(quint32 reference) {
    return QColor(static_cast<int>(reference & 0xFF), static_cast<int>(reference >> 8 & 0xFF),
                  static_cast<int>(reference >> 16 & 0xFF));
}

Qt::PenStyle penStyle(quint32 style) {
    constexpr Qt::PenStyle styles[] = {Qt::SolidLine,   Qt::DashLine,       Qt::DotLine,
                                       Qt::DashDotLine, Qt::DashDotDotLine, Qt::NoPen};
    const quint32 index = style & emf::penStyleMask;
    return index < std::size(styles) ? styles[index] : Qt::SolidLine;
}

Qt::PenCapStyle penCap(quint32 style) {
    switch (style & emf::capMask) {
    case emf::capFlat:
        return Qt::FlatCap;
    case emf::capSquare:
        return Qt::SquareCap;
    default:
        return Qt::RoundCap;
    }
}

/// True for letters of a size on the device that font engines can draw: they fail on huge ones, and
/// on ones that damage has pulled out of all shape.
bool drawable(QSizeF letters) {
    constexpr double tallest = 4000; // pixels
    constexpr double flattest = 50;
    const double longer = qMax(letters.width(), letters.height());
    return longer <= tallest && longer <= flattest * qMin(letters.width(), letters.height());
}

bool isPlain24Bit(quint16 bits, quint32 compression) {
    return bits == 24 && compression == 0;
}

} // namespace

MetafilePlayer::MetafilePlayer(const Metafile& file, QPainter& painter)
    : file_(file), reader_(file.bytes_), painter_(painter),
      font_(drawing::fontOf(static_cast<int>(3.2 * drawing::unitsPerMm))) {}

bool MetafilePlayer::holds(const Record& record, quint32 offset, quint64 length) const {
    const auto size = static_cast<quint64>(record.size);
    return offset <= size && length <= size - offset;
}

QPointF MetafilePlayer::point(qsizetype offset) const {
    // Far beyond any sheet; damaged bytes must not make endless lines.
    constexpr qint32 farthest = 10000000;
    return {static_cast<double>(qBound(-farthest, reader_.i32(offset), farthest)),
            static_cast<double>(qBound(-farthest, reader_.i32(offset + 4), farthest))};
}

void MetafilePlayer::play(const QRectF& target) {
    const QRectF frame = file_.frameMm_;
    painter_.save();
    painter_.setClipRect(target, Qt::IntersectClip);
    painter_.translate(target.topLeft());
    painter_.scale(target.width() / frame.width(), target.height() / frame.height());
    painter_.translate(-frame.topLeft());
    painter_.scale(file_.unitMm_.width(), file_.unitMm_.height());
    base_ = painter_.transform();
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const Record& record : file_.records_)
        step(record);
    painter_.restore();
}

void MetafilePlayer::step(const Record& record) {
    const qsizetype at = record.offset;
    switch (record.type) {
    case emf::SetTextColor:
        if (has(record, 12))
            textColor_ = colorOf(reader_.u32(at + 8));
        break;
    case emf::SetTextAlign:
        if (has(record, 12))
            textAlign_ = reader_.u32(at + 8);
        break;
    case emf::MoveToEx:
        if (has(record, 16))
            position_ = point(at + 8);
        break;
    case emf::LineTo:
        lineTo(record);
        break;
    case emf::Rectangle:
        rectangle(record);
        break;
    case emf::PolyPolygon:
        polygons(record);
        break;
    case emf::SetPolyFillMode:
        if (has(record, 12))
            fillRule_ = reader_.u32(at + 8) == emf::fillWinding ? Qt::WindingFill : Qt::OddEvenFill;
        break;
    case emf::ExtTextOutW:
        text(record);
        break;
    case emf::StretchDiBits:
        bitmap(record);
        break;
    case emf::SelectObject:
        if (has(record, 12))
            selectObject(reader_.u32(at + 8));
        break;
    case emf::DeleteObject:
        if (has(record, 12))
            objects_.remove(reader_.u32(at + 8));
        break;
    case emf::SetMapMode:
    case emf::SetWindowExtEx:
    case emf::SetWindowOrgEx:
    case emf::SetViewportExtEx:
    case emf::SetViewportOrgEx:
        mapping(record);
        break;
    default:
        createObject(record);
    }
}

void MetafilePlayer::mapping(const Record& record) {
    const qsizetype at = record.offset;
    if (record.type == emf::SetMapMode) {
        if (has(record, 12))
            mapMode_ = reader_.u32(at + 8);
    } else if (has(record, 16)) {
        const QPointF pair = point(at + 8);
        const bool extent =
            record.type == emf::SetWindowExtEx || record.type == emf::SetViewportExtEx;
        if (extent && (pair.x() == 0 || pair.y() == 0))
            return;
        (record.type == emf::SetWindowExtEx     ? windowExtent_
         : record.type == emf::SetWindowOrgEx   ? windowOrigin_
         : record.type == emf::SetViewportExtEx ? viewportExtent_
                                                : viewportOrigin_) = pair;
    }
    applyMapping();
}

void MetafilePlayer::applyMapping() {
    constexpr double largestScale = 1000;
    painter_.setTransform(base_);
    painter_.translate(viewportOrigin_);
    const QPointF scale(viewportExtent_.x() / windowExtent_.x(),
                        viewportExtent_.y() / windowExtent_.y());
    const auto sensible = [](double factor) {
        return std::fabs(factor) < largestScale && std::fabs(factor) > 1 / largestScale;
    };
    if (mapMode_ != emf::mapModeText && sensible(scale.x()) && sensible(scale.y()))
        painter_.scale(scale.x(), scale.y());
    painter_.translate(-windowOrigin_);
}

void MetafilePlayer::createObject(const Record& record) {
    switch (record.type) {
    case emf::CreatePen:
        createPen(record);
        break;
    case emf::ExtCreatePen:
        createExtendedPen(record);
        break;
    case emf::CreateBrushIndirect:
        createBrush(record);
        break;
    case emf::ExtCreateFontIndirectW:
        createFont(record);
        break;
    default:
        break; // what reports do not need is passed over
    }
}

void MetafilePlayer::createPen(const Record& record) {
    if (!has(record, 28))
        return;
    const qsizetype at = record.offset;
    QPen pen(colorOf(reader_.u32(at + 24)), qMax(1, reader_.i32(at + 16)));
    pen.setStyle(penStyle(reader_.u32(at + 12)));
    objects_[reader_.u32(at + 8)] = pen;
}

void MetafilePlayer::createExtendedPen(const Record& record) {
    if (!has(record, 52))
        return;
    const qsizetype at = record.offset;
    const quint32 style = reader_.u32(at + 28);
    QPen pen(colorOf(reader_.u32(at + 40)), qMax(1.0, static_cast<double>(reader_.u32(at + 32))));
    pen.setStyle(penStyle(style));
    pen.setCapStyle(penCap(style));
    pen.setJoinStyle(Qt::MiterJoin);
    objects_[reader_.u32(at + 8)] = pen;
}

void MetafilePlayer::createBrush(const Record& record) {
    if (!has(record, 24))
        return;
    const qsizetype at = record.offset;
    constexpr quint32 hollow = 1;
    objects_[reader_.u32(at + 8)] = reader_.u32(at + 12) == hollow
                                        ? QBrush(Qt::NoBrush)
                                        : QBrush(colorOf(reader_.u32(at + 16)));
}

void MetafilePlayer::createFont(const Record& record) {
    constexpr qsizetype logFont = 12;
    constexpr int faceLength = 32;
    if (!has(record, logFont + 92))
        return;
    const qsizetype at = record.offset + logFont;
    QString face;
    for (int i = 0; i < faceLength; ++i) {
        const quint16 letter = reader_.u16(at + 28 + 2 * i);
        if (letter == 0)
            break;
        face += QChar(letter);
    }
    // A negative height is that of the letters, a positive one that of the line.
    constexpr double lineToLetters = 0.87;
    constexpr qint32 tallest = 4000; // font engines fail on huge letters
    const qint32 height = qBound(-tallest, reader_.i32(at), tallest);
    const int letters =
        height < 0 ? -height : static_cast<int>(std::lround(height * lineToLetters));
    const qint32 weight = reader_.i32(at + 16);
    QFont font = drawing::fontOf(letters, weight > 0 ? weight : QFont::Normal, face);
    font.setItalic((reader_.bytes()[at + 20]) != 0);
    font.setUnderline((reader_.bytes()[at + 21]) != 0);
    objects_[reader_.u32(record.offset + 8)] = font;
}

void MetafilePlayer::selectObject(quint32 handle) {
    if ((handle & emf::stockObject) != 0) {
        selectStock(handle);
        return;
    }
    const auto found = objects_.constFind(handle);
    if (found == objects_.constEnd())
        return;
    if (const auto* pen = std::get_if<QPen>(&*found))
        pen_ = *pen;
    else if (const auto* brush = std::get_if<QBrush>(&*found))
        brush_ = *brush;
    else if (const auto* font = std::get_if<QFont>(&*found))
        font_ = *font;
}

void MetafilePlayer::selectStock(quint32 handle) {
    switch (handle) {
    case emf::whiteBrush:
        brush_ = Qt::white;
        break;
    case emf::blackBrush:
        brush_ = Qt::black;
        break;
    case emf::nullBrush:
        brush_ = Qt::NoBrush;
        break;
    case emf::blackPen:
        pen_ = QPen(Qt::black);
        break;
    case emf::nullPen:
        pen_ = Qt::NoPen;
        break;
    default:
        break;
    }
}

void MetafilePlayer::lineTo(const Record& record) {
    if (!has(record, 16))
        return;
    const QPointF end = point(record.offset + 8);
    painter_.setPen(pen_);
    painter_.drawLine(position_, end);
    position_ = end;
}

void MetafilePlayer::rectangle(const Record& record) {
    if (!has(record, 24))
        return;
    painter_.setPen(pen_);
    painter_.setBrush(brush_);
    painter_.drawRect(QRectF(point(record.offset + 8), point(record.offset + 16)));
}

void MetafilePlayer::polygons(const Record& record) {
    constexpr qsizetype counts = 32; // offset of the lengths
    if (!has(record, counts))
        return;
    const qsizetype at = record.offset;
    const quint64 parts = reader_.u32(at + 24);
    const quint64 points = reader_.u32(at + 28);
    const quint64 bytes = 4 * parts + 8 * points;
    if (parts > points || !holds(record, counts, bytes))
        return;
    QPainterPath path;
    path.setFillRule(fillRule_);
    qsizetype next = at + counts + 4 * static_cast<qsizetype>(parts);
    quint64 left = points;
    for (quint64 part = 0; part < parts; ++part) {
        const quint64 count = reader_.u32(at + counts + 4 * static_cast<qsizetype>(part));
        if (count > left)
            return;
        left -= count;
        for (quint64 i = 0; i < count; ++i, next += 8) {
            if (i == 0)
                path.moveTo(point(next));
            else
                path.lineTo(point(next));
        }
        path.closeSubpath();
    }
    painter_.setPen(pen_);
    painter_.setBrush(brush_);
    painter_.drawPath(path);
}

void MetafilePlayer::text(const Record& record) {
    if (!has(record, 76))
        return;
    const qsizetype at = record.offset;
    const quint32 count = reader_.u32(at + 44);
    const quint32 textOffset = reader_.u32(at + 48);
    const quint32 dxOffset = reader_.u32(at + 72);
    if (count == 0 || !holds(record, textOffset, quint64{count} * 2))
        return;
    QString letters;
    for (quint32 i = 0; i < count; ++i)
        letters += QChar(reader_.u16(at + textOffset + 2 * qsizetype{i}));
    double width = 0;
    if (dxOffset != 0 && holds(record, dxOffset, quint64{count} * 4))
        for (quint32 i = 0; i < count; ++i)
            width += reader_.i32(at + dxOffset + 4 * qsizetype{i});
    QPointF place = point(at + 36);
    const QFontMetricsF metrics(font_);
    if ((textAlign_ & emf::alignBaseline) != emf::alignBaseline)
        place.ry() += metrics.ascent();
    painter_.setFont(font_);
    painter_.setPen(textColor_);
    // The file's own widths rule where this system's font has others.
    const double natural = metrics.horizontalAdvance(letters);
    constexpr double sameWidth = 0.005;
    constexpr double widest = 4; // a factor beyond is damage
    const double stretch = natural > 0 ? width / natural : 1;
    const bool stretched =
        std::fabs(stretch - 1) > sameWidth && stretch > 1 / widest && stretch < widest;
    const QSizeF size =
        painter_.deviceTransform().mapRect(QRectF(0, 0, 1, 1)).size() * font_.pixelSize();
    if (!drawable({size.width() * (stretched ? stretch : 1), size.height()}))
        return;
    if (!stretched) {
        painter_.drawText(place, letters);
        return;
    }
    const QTransform before = painter_.transform();
    painter_.translate(place);
    painter_.scale(stretch, 1);
    painter_.drawText(QPointF(0, 0), letters);
    painter_.setTransform(before);
}

void MetafilePlayer::bitmap(const Record& record) {
    constexpr quint32 infoSize = 40;
    constexpr qint32 largestSide = 32767;
    if (!has(record, 80))
        return;
    const qsizetype at = record.offset;
    const quint32 info = reader_.u32(at + 48);
    const quint32 bits = reader_.u32(at + 56);
    if (!holds(record, info, infoSize))
        return;
    const qsizetype header = at + info;
    const qint32 width = reader_.i32(header + 4);
    const qint32 rows = reader_.i32(header + 8); // negative where the top row comes first
    const bool known = isPlain24Bit(reader_.u16(header + 14), reader_.u32(header + 16));
    if (!known || width <= 0 || width > largestSide || rows == 0 || rows < -largestSide
        || rows > largestSide)
        return;
    const qint32 height = std::abs(rows);
    const qsizetype stride = (qsizetype{width} * 3 + 3) / 4 * 4;
    if (!holds(record, bits, static_cast<quint64>(stride) * static_cast<quint64>(height)))
        return;
    const auto* first = reinterpret_cast<const uchar*>(reader_.bytes().constData()) + at + bits;
    const QImage view(first, width, height, stride, QImage::Format_BGR888);
    const QImage picture =
        (rows > 0 ? view.mirrored() : view).convertToFormat(QImage::Format_RGB32);
    const QPointF size = point(at + 72);
    const QRectF target(point(at + 24), QSizeF(size.x(), size.y()));
    drawing::drawPicture(painter_, target, picture);
}

} // namespace ferna
