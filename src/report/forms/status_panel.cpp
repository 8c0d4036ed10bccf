#include "report/forms/status_panel.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace ferna {

StatusPanel::StatusPanel(QWidget* parent) : QToolButton(parent) {
    setAutoRaise(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void StatusPanel::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    const QRect room = rect().adjusted(textMargin, 0, -textMargin, 0);
    painter.drawItemText(room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                         fontMetrics().elidedText(text().trimmed(), Qt::ElideRight, room.width()),
                         QPalette::WindowText);
}

} // namespace ferna
