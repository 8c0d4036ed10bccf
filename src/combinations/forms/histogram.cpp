#include "combinations/forms/histogram.h"

#include "combinations/forms/use_bar.h"
#include "runtime/format.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ferna {

namespace {

constexpr Double tenths = 10;

} // namespace

Histogram::Histogram(QWidget* parent) : QWidget(parent) {
    setAccessibleName(QStringLiteral("Rozkład wytężeń"));
}

int Histogram::binOf(Double use) {
    if (!(use < (bins - 1) / tenths))
        return bins - 1;
    // 0.3 and the like belong below the line they stand on, as 1 is still kept
    return std::max(0, static_cast<int>(std::ceil(use * tenths - 1e-9)) - 1);
}

void Histogram::show(const combinations::AnsweredTable& table) {
    counts_.fill(0);
    for (combinations::RowNumber row = 1; row <= static_cast<combinations::RowNumber>(table.size());
         ++row)
        if (table.isAnswered(row))
            ++counts_.at(static_cast<std::size_t>(binOf(combinations::worstOf(table.answer(row)))));
    update();
}

void Histogram::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Text));
    const int line = fontMetrics().height();
    painter.drawText(rect().adjusted(8, 4, -8, 0), int(Qt::AlignTop | Qt::AlignLeft),
                     QStringLiteral("Liczba kombinacji według największego wytężenia"));
    const QRectF room = QRectF(rect()).adjusted(12, 2.5 * line, -12, -2.6 * line);
    if (room.width() < 50 || room.height() < 30)
        return;
    drawBars(painter, room);
    drawAxis(painter, room);
}

void Histogram::drawBars(QPainter& painter, const QRectF& room) const {
    const int most = std::max(1, *std::max_element(counts_.begin(), counts_.end()));
    const qreal step = room.width() / bins;
    for (int bin = 0; bin < bins; ++bin) {
        if (count(bin) == 0)
            continue;
        const qreal height = std::max(1.0, room.height() * count(bin) / most);
        const QRectF bar(room.left() + step * bin + 1, room.bottom() - height, step - 2, height);
        painter.fillRect(bar, useColour((bin + 0.5) / tenths, palette()));
        const QString number = QString::number(count(bin));
        if (fontMetrics().horizontalAdvance(number) < step + 4)
            painter.drawText(QRectF(bar.left() - 4, bar.top() - fontMetrics().height(),
                                    bar.width() + 8, fontMetrics().height()),
                             Qt::AlignCenter, number);
    }
}

void Histogram::drawAxis(QPainter& painter, const QRectF& room) const {
    const qreal step = room.width() / bins;
    painter.drawLine(room.bottomLeft(), room.bottomRight());
    const auto label = [&](qreal x, const QString& text) {
        painter.drawLine(QPointF(x, room.bottom()), QPointF(x, room.bottom() + 4));
        painter.drawText(QRectF(x - 30, room.bottom() + 5, 60, fontMetrics().height()),
                         Qt::AlignHCenter, text);
    };
    constexpr int labelled = 5; // every half
    for (int bin = 0; bin < bins; bin += labelled)
        label(room.left() + step * bin, Format(bin / tenths, u"0.0"));
    painter.drawText(QRectF(room.right() - 80, room.bottom() + 5 + fontMetrics().height(), 80,
                            fontMetrics().height()),
                     Qt::AlignRight, QStringLiteral("i więcej"));
    const qreal limit = room.left() + step * tenths;
    painter.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
    painter.drawLine(QPointF(limit, room.top() - fontMetrics().height()),
                     QPointF(limit, room.bottom()));
}

} // namespace ferna
