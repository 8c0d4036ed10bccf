#include "sheet/sketch_picture.h"

#include <QImageReader>
#include <QPainter>

namespace ferna::sheet {

Picture sketchPicture(const QString& name, double width) {
    const QString file = QStringLiteral(":/arkusz/%1.svg").arg(name);
    QImageReader reader(file);
    const QSize size = reader.size();
    if (!size.isValid() || size.width() <= 0)
        return {};
    const double height = width * size.height() / size.width();
    constexpr double dotsPerMm = 12; // some 300 dpi
    reader.setScaledSize(QSizeF(width * dotsPerMm, height * dotsPerMm).toSize());
    const QImage image = reader.read();
    return {width, height,
            std::make_shared<const Painting>([image, width, height](QPainter& painter) {
                painter.drawImage(QRectF(0, 0, width, height), image);
            })};
}

} // namespace ferna::sheet
