#pragma once

#include <QFont>
#include <QImage>
#include <QRectF>
#include <QString>

class QPainter;

namespace ferna::drawing {

/// Units of every page drawing: one unit is 0.01 mm, so that letter heights are whole pixel sizes.
inline constexpr double unitsPerMm = 100;

/// The proportional face of reports.
inline const QString textFace = QStringLiteral("Liberation Sans");

/// Font with letters of `height` units, without hinting: its widths are the same on every device.
QFont fontOf(int height, int weight = QFont::Normal, const QString& face = textFace);

/// The rule under a text, `height` being that of its letters: distance of its middle below the
/// baseline and its thickness, same units.
inline constexpr double underlineDrop(double height) {
    return 0.13 * height;
}
inline constexpr double underlineWidth(double height) {
    return 0.06 * height;
}

/// The picture scaled into `target`; on a raster device fine lines survive being made smaller.
void drawPicture(QPainter& painter, const QRectF& target, const QImage& picture);

} // namespace ferna::drawing
