#pragma once

#include "live/picture.h"

#include <QImage>
#include <QPainter>

namespace ferna::testing {

/// True where a picture of the live view that is drawn in the middle of a larger image leaves its
/// margin alone.
inline bool staysInside(const live::PictureValues& values, const live::PictureOptions& options) {
    constexpr int margin = 60;
    const QRgb untouched = qRgb(255, 0, 255);
    const QSize size = options.size.toSize();
    QImage image(size + QSize(2 * margin, 2 * margin), QImage::Format_RGB32);
    image.fill(untouched);
    QPainter painter(&image);
    painter.translate(margin, margin);
    live::drawPicture(painter, values, options);
    painter.end();
    const QRect inside(QPoint(margin, margin), size);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (!inside.contains(x, y) && image.pixel(x, y) != untouched)
                return false;
    return true;
}

} // namespace ferna::testing
