#include "live/pressure_field.h"

#include <QImage>
#include <QLinearGradient>
#include <QPaintEngine>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace ferna::live {

namespace {

using equilibrium::Plane;
using equilibrium::Point;
using Outline = std::vector<Point>;

Plane difference(const Plane& a, const Plane& b) {
    return {a.s0 - b.s0, a.sx - b.sx, a.sy - b.sy};
}

bool isLevelAtNought(const Plane& plane) {
    return plane.s0 == 0 && plane.sx == 0 && plane.sy == 0;
}

/// The part of a convex outline where the plane is not negative.
Outline above(const Plane& plane, const Outline& outline) {
    Outline kept;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Point& a = outline[i];
        const Point& b = outline[(i + 1) % outline.size()];
        const Double atA = plane.at(a);
        const Double atB = plane.at(b);
        if (atA >= 0)
            kept.push_back(a);
        if ((atA < 0) != (atB < 0)) {
            const Double share = atA / (atA - atB);
            kept.push_back({a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)});
        }
    }
    return kept.size() < 3 ? Outline{} : kept;
}

/// The part of the plate where a case's plane is the largest and presses. Of equal planes the first
/// case has it.
Outline partOf(const PictureValues& values, std::size_t of) {
    const Plane& plane = values.cases[of].found.plane;
    const Point corner{values.length / 2, values.width / 2};
    Outline part = above(
        plane, {corner, {-corner.x, corner.y}, {-corner.x, -corner.y}, {corner.x, -corner.y}});
    for (std::size_t other = 0; other < values.cases.size() && !part.empty(); ++other) {
        if (other == of || !values.cases[other].found.exists)
            continue;
        const Plane over = difference(plane, values.cases[other].found.plane);
        if (isLevelAtNought(over)) {
            if (other < of)
                return {};
        } else {
            part = above(over, part);
        }
    }
    return part;
}

/// The colours of a piece. The gradient runs from its lowest pressure to its highest, so that all
/// its points lie near the plate also where the pressure is almost even.
QBrush brushOf(const FieldPiece& piece, const QPolygonF& places, Double largest, Theme theme,
               bool greyed) {
    constexpr Double even = 1e-6; // of the largest pressure: one colour
    std::size_t low = 0;
    std::size_t high = 0;
    std::vector<Double> shares;
    for (const Point& point : piece.outline) {
        shares.push_back(std::clamp(piece.plane.at(point) / largest, 0.0, 1.0));
        const std::size_t last = shares.size() - 1;
        low = shares[last] < shares[low] ? last : low;
        high = shares[last] > shares[high] ? last : high;
    }
    const Double from = shares[low];
    const Double to = shares[high];
    if (!(to - from > even))
        return pressureColour(to, theme, greyed);
    // Along the slope of the plane, in which upwards is downwards in the picture.
    const Double steep = std::max(std::fabs(piece.plane.sx), std::fabs(piece.plane.sy));
    const QPointF slope(piece.plane.sx / steep, -piece.plane.sy / steep);
    const QPointF start = places[static_cast<qsizetype>(low)];
    const QPointF reach = places[static_cast<qsizetype>(high)] - start;
    const qreal length = QPointF::dotProduct(reach, slope) / QPointF::dotProduct(slope, slope);
    QLinearGradient gradient(start, start + length * slope);
    gradient.setStops(pressureStops(from, to, theme, greyed));
    return gradient;
}

/// Draws the field as shapes filled with gradients, for what is scaled later.
void drawShapes(QPainter& painter, const PictureValues& values, const Frame& frame, Double largest,
                Theme theme, bool greyed) {
    constexpr qreal seam = 0.7; // so that the paper does not shine through between two pieces
    const std::vector<FieldPiece> pieces = fieldPieces(values);
    painter.setClipRect(frame.plate());
    for (const FieldPiece& piece : pieces) {
        QPolygonF places;
        for (const Point& point : piece.outline)
            places += frame.at(point);
        const QBrush brush = brushOf(piece, places, largest, theme, greyed);
        painter.setPen(pieces.size() > 1 ? QPen(brush, seam) : QPen(Qt::NoPen));
        painter.setBrush(brush);
        painter.drawPolygon(places);
    }
}

/// The colours of so many shares from 0 to 1.
std::vector<QRgb> colourTable(Theme theme, bool greyed) {
    constexpr int last = 2047;
    std::vector<QRgb> table;
    for (int i = 0; i <= last; ++i)
        table.push_back(pressureColour(Double{1} * i / last, theme, greyed).rgb());
    return table;
}

/// How much of the pixel from `from` on lies between `low` and `high`.
qreal coverage(qreal from, qreal low, qreal high) {
    return std::clamp(std::min(from + 1, high) - std::max(from, low), 0.0, 1.0);
}

/// Draws the field pixel by pixel: a gradient of the painter is stepped along a line of pixels and
/// is half a per cent off at the end of a long one.
void drawPixels(QPainter& painter, const PictureValues& values, const Frame& frame, Double largest,
                Theme theme, bool greyed) {
    const QTransform toPixels = painter.deviceTransform();
    const QTransform fromPixels = toPixels.inverted();
    const QRectF plate = toPixels.mapRect(frame.plate());
    const QRect pixels = plate.toAlignedRect();
    QImage image(pixels.size(), QImage::Format_ARGB32);
    if (image.isNull())
        return;
    image.fill(Qt::transparent);
    const std::vector<QRgb> table = colourTable(theme, greyed);
    const auto last = static_cast<Double>(table.size() - 1);
    // The planes at the middle of the first pixel, and their steps to the next one, in shares.
    const auto place = [&](qreal x, qreal y) {
        return frame.mmAt(fromPixels.map(QPointF(pixels.x() + x + 0.5, pixels.y() + y + 0.5)));
    };
    const Double stepX = place(1, 0).x - place(0, 0).x;
    for (int y = 0; y < pixels.height(); ++y) {
        const Point start = place(0, y);
        const qreal rows = coverage(pixels.y() + y, plate.top(), plate.bottom());
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < pixels.width(); ++x) {
            Double pressure = 0;
            for (const PictureCase& one : values.cases)
                if (one.found.exists)
                    pressure =
                        std::max(pressure, one.found.plane.at({start.x + x * stepX, start.y}));
            if (!(pressure > 0))
                continue;
            const qreal part = rows * coverage(pixels.x() + x, plate.left(), plate.right());
            const QRgb colour =
                table[static_cast<std::size_t>(qRound(std::min(pressure / largest, 1.0) * last))];
            line[x] = (colour & 0xffffffU) | static_cast<QRgb>(std::lround(255 * part)) << 24U;
        }
    }
    painter.drawImage(fromPixels.mapRect(QRectF(pixels)), image);
}

} // namespace

std::vector<FieldPiece> fieldPieces(const PictureValues& values) {
    std::vector<FieldPiece> pieces;
    for (std::size_t i = 0; i < values.cases.size(); ++i)
        if (values.cases[i].found.exists)
            if (Outline part = partOf(values, i); !part.empty())
                pieces.push_back({std::move(part), values.cases[i].found.plane});
    return pieces;
}

void drawField(QPainter& painter, const PictureValues& values, const Frame& frame, Theme theme,
               bool greyed) {
    const std::optional<PressedCorner> most = governingCorner(values);
    if (!most)
        return;
    const bool onPixels = painter.paintEngine()->type() == QPaintEngine::Raster
                          && painter.deviceTransform().type() <= QTransform::TxScale;
    painter.save();
    (onPixels ? drawPixels : drawShapes)(painter, values, frame, most->pressure, theme, greyed);
    painter.restore();
}

} // namespace ferna::live
