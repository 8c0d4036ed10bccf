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

void PictureView::setDrawing(Drawing drawing) {
    drawing_ = std::move(drawing);
    renew();
}

void PictureView::renew() {
    image_ = QImage();
    update();
}

QSize PictureView::sizeHint() const {
    return sketch_ ? sketch_->defaultSize().expandedTo(minimumSize()) : minimumSize();
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (sketch_) {
        const QSizeF size =
            QSizeF(sketch_->defaultSize()).scaled(this->size(), Qt::KeepAspectRatio);
        const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
        sketch_->render(&painter, QRectF(corner, size));
    } else if (drawing_) {
        const QSize wanted = size() * devicePixelRatioF();
        if (image_.size() != wanted)
            image_ = drawing_(size(), devicePixelRatioF());
        painter.drawImage(0, 0, image_);
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace ferna
