#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPen>
#include <QSize>

#include <vector>

namespace ferna {

/// A filled or stroked outline of a picture, in its pixels.
struct PictureShape {
    QPainterPath path;
    QPen pen{Qt::NoPen};
    QColor fill; ///< invalid: not filled
};

/// The shapes as an SVG document of that size, on white.
QByteArray svgOf(QSize size, const std::vector<PictureShape>& shapes);

} // namespace ferna
