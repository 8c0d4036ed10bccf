#include "capacity/forms/chart_view.h"

#include "runtime/format.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <cmath>

namespace ferna {

ChartView::ChartView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartView::setChart(Chart chart) {
    nothing_.clear();
    chart_ = std::move(chart);
    setAccessibleDescription(titleOf(chart_));
    update();
}

void ChartView::setNothing(const QString& why) {
    chart_ = {};
    nothing_ = why;
    setAccessibleDescription(why);
    update();
}

qreal ChartView::letter() const {
    return 0.82 * QFontMetricsF(font()).height();
}

QString ChartView::wordsAt(QPointF place) const {
    const int found = nothing_.isEmpty() ? pointAt(rect(), chart_, letter(), place) : -1;
    if (found < 0)
        return {};
    const ChartPoint& point = chart_.points[static_cast<std::size_t>(found)];
    return QStringLiteral("%1: N = %2 kN, M1 = %3 kNm, M2 = %4 kNm\nwytężenie: %5, "
                          "mnożnik wszystkich sił: %6")
        .arg(point.name, general(point.load.N), general(point.load.M1), general(point.load.M2),
             usedWords(point.used), factorWords(point.factor));
}

void ChartView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (nothing_.isEmpty()) {
        drawChart(painter, rect(), chart_, letter());
    } else {
        painter.setPen(QColor(0x20, 0x20, 0x20));
        painter.drawText(rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap,
                         nothing_);
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

bool ChartView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const QString words = wordsAt(help->pos());
    if (words.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), words, this);
    return true;
}

} // namespace ferna
