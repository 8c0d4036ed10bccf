#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <vector>

namespace ferna::live {

/// A label that looks for a place beside what it names.
struct Label {
    QPointF of;       ///< what it names
    qreal radius = 0; ///< around which the label keeps off it
    QSizeF size;
    QRectF place; ///< where it has come to lie
};

/// Gives every label a place inside `room`, as near to what it names as it can lie without covering
/// another label or anything of `taken`, and rather not over `lines`. Labels that no free place is
/// left for cover as little as they can. Returns what is covered of `taken` and labels in all,
/// square units: 0 where all are free.
qreal placeLabels(std::vector<Label>& labels, const QRectF& room, std::vector<QRectF> taken,
                  const std::vector<QRectF>& lines);

} // namespace ferna::live
