#include "pages/drawing.h"

#include <QPaintEngine>
#include <QPainter>

namespace ferna::drawing {

QFont fontOf(int height, int weight, const QString& face) {
    QFont font(face);
    font.setPixelSize(qMax(1, height));
    font.setWeight(static_cast<QFont::Weight>(qBound(1, weight, 1000)));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferOutline);
    return font;
}

void drawPicture(QPainter& painter, const QRectF& target, const QImage& picture) {
    if (picture.isNull() || target.isEmpty())
        return;
    painter.save();
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    const QSize pixels = painter.deviceTransform().mapRect(target).size().toSize();
    // A painter's own smoothing looks at four pixels only and loses lines below half size.
    const bool shrinks = pixels.width() < picture.width() && pixels.height() < picture.height();
    const bool raster = painter.paintEngine()->type() == QPaintEngine::Raster;
    if (raster && shrinks && !pixels.isEmpty() && !painter.deviceTransform().isRotating())
        painter.drawImage(target,
                          picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    else
        painter.drawImage(target, picture);
    painter.restore();
}

} // namespace ferna::drawing
