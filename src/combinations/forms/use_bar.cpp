#include "combinations/forms/use_bar.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace ferna {

QColor useColour(double use, const QPalette& palette) {
    constexpr double near = 0.9;
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    if (use > 1)
        return dark ? QColor(0xb0, 0x3a, 0x3a) : QColor(0xe8, 0x8f, 0x8a);
    if (use > near)
        return dark ? QColor(0x9a, 0x78, 0x20) : QColor(0xf0, 0xcf, 0x7e);
    return dark ? QColor(0x2f, 0x66, 0x8c) : QColor(0xa9, 0xcd, 0xe6);
}

void UseBar::paint(QPainter* painter, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString text = std::exchange(cell.text, QString());
    const QVariant use = index.data(useRole);
    if (use.isValid())
        cell.state &= ~QStyle::State_Selected; // the bar is to be seen in a chosen row too
    QStyle* const style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    painter->save();
    if (use.isValid()) {
        QRectF bar = QRectF(cell.rect).adjusted(2, 3, -2, -3);
        bar.setWidth(bar.width() * std::clamp(use.toDouble(), 0.0, 1.0));
        painter->fillRect(bar, useColour(use.toDouble(), cell.palette));
    }
    const bool chosen = (cell.state & QStyle::State_Selected) != 0;
    painter->setPen(cell.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(cell.font);
    painter->drawText(cell.rect.adjusted(6, 0, -6, 0), int(Qt::AlignRight | Qt::AlignVCenter),
                      text);
    painter->restore();
}

} // namespace ferna
