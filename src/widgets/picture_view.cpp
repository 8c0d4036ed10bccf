#include "widgets/picture_view.h"

#include <QPainter>
#include <QSvgRenderer>

namespace ferna {

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

PictureView::~PictureView() = default;

void PictureView::setSketch(const QString& svg) {
    sketch_ = std::make_unique<QSvgRenderer>(svg);
    updateGeometry();
    update();
}

void PictureView::setDrawing(QSize size, Drawing drawing) {
    drawingSize_ = size;
    drawing_ = std::move(drawing);
    renew();
}

void PictureView::setOverlay(Overlay overlay) {
    overlay_ = std::move(overlay);
    update();
}

void PictureView::renew() {
    image_ = QImage();
    update();
}

QSize PictureView::sizeHint() const {
    return sketch_ ? sketch_->defaultSize().expandedTo(minimumSize()) : minimumSize();
}

QRectF PictureView::placeOf(QSizeF picture) const {
    picture.scale(size(), Qt::KeepAspectRatio);
    const QPointF corner((width() - picture.width()) / 2, (height() - picture.height()) / 2);
    return {corner, picture};
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (sketch_) {
        sketch_->render(&painter, placeOf(sketch_->defaultSize()));
    } else if (drawing_) {
        const QRectF place = placeOf(drawingSize_);
        const qreal ratio = place.width() * devicePixelRatioF() / drawingSize_.width();
        if (image_.devicePixelRatio() != ratio || image_.isNull())
            image_ = drawing_(ratio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, image_);
        if (overlay_) {
            painter.save();
            overlay_(painter);
            painter.restore();
        }
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace ferna
