#include "combinations/forms/case_picture.h"

#include <QPainter>

namespace ferna {

void CasePicture::show(live::PictureValues values) {
    values_ = std::move(values);
    update();
}

void CasePicture::showNothing(const QString& why) {
    values_.reset();
    why_ = why;
    update();
}

void CasePicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!values_) {
        painter.drawText(rect().adjusted(12, 12, -12, -12), int(Qt::AlignCenter | Qt::TextWordWrap),
                         why_);
        return;
    }
    live::PictureOptions options;
    options.size = size();
    options.letter = fontMetrics().ascent();
    if (palette().color(QPalette::Base).lightness() < 128)
        options.theme = live::Theme::Dark;
    live::drawPicture(painter, *values_, options);
}

} // namespace ferna
