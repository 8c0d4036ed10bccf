#include "report/forms/report_view.h"

#include <QPaintEvent>
#include <QPainter>

namespace ferna {

void ReportView::setPicture(const QByteArray& emf) {
    picture_ = Metafile::fromBytes(emf);
    update();
}

void ReportView::clear() {
    picture_ = Metafile();
    update();
}

int ReportView::heightFor(int width) const {
    const QSizeF size = picture_.sizeMm();
    return size.isEmpty() ? 0 : qRound(width * size.height() / size.width());
}

void ReportView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    painter.setClipRect(event->rect());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    picture_.paint(painter, QRectF(rect()));
}

} // namespace ferna
