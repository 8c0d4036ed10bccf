#pragma once

#include <QStyledItemDelegate>

namespace ferna {

/// The role under which a cell holds a utilisation as a Double; infinite where nothing could carry.
inline constexpr int useRole = Qt::UserRole + 1;

/// The colour of a utilisation: calm, near the limit, over it.
QColor useColour(double use, const QPalette& palette);

/// Draws a utilisation as a bar behind its number, full at 1; red beyond.
class UseBar : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace ferna
