#pragma once

#include "live/picture.h"

#include <QRectF>

namespace ferna::live {

/// What plate and anchors take, mm, y upwards.
QRectF extentOf(const PictureValues& values);

/// Where everything of a picture lies: the plate true to scale in the middle, dimensions under it
/// and at its left, the scale of the pressures at the right, texts above and below.
class Frame {
public:
    Frame(const PictureValues& values, const PictureOptions& options);

    /// Units of the picture a mm.
    qreal scale() const { return scale_; }
    /// The place of a point given in mm from the centre of the plate.
    QPointF at(equilibrium::Point mm) const;
    /// The point at a place of the picture, mm.
    equilibrium::Point mmAt(QPointF place) const;

    const QRectF& whole() const { return whole_; }
    const QRectF& title() const { return title_; }
    /// Row of the signs' meanings, and the line below it.
    const QRectF& legend() const { return legend_; }
    const QRectF& foot() const { return foot_; }
    /// The bar of the pressures and its numbers.
    const QRectF& pressures() const { return pressures_; }
    /// Where the plate, its anchors and their labels may lie.
    const QRectF& room() const { return room_; }
    const QRectF& plate() const { return plate_; }
    /// What plate and anchors take together.
    const QRectF& extent() const { return extent_; }
    /// Rows of the dimensions along x and along y: each has room for two.
    const QRectF& along() const { return along_; }
    const QRectF& up() const { return up_; }
    /// Radius of an anchor in the picture; the thinnest can still be seen.
    qreal radius(const PictureAnchor& anchor) const;
    qreal letter() const { return letter_; }

private:
    QRectF whole_;
    QRectF title_;
    QRectF legend_;
    QRectF foot_;
    QRectF pressures_;
    QRectF room_;
    QRectF plate_;
    QRectF extent_;
    QRectF along_;
    QRectF up_;
    qreal letter_ = 0;
    qreal scale_ = 0;
    QPointF origin_;
};

/// The anchor under a place of the picture, from 1; 0 for none. Of several the nearest.
int anchorAt(const Frame& frame, const PictureValues& values, QPointF place);

/// An edge of the plate.
enum class Edge { None, Left, Right, Top, Bottom };
Edge edgeAt(const Frame& frame, QPointF place);

} // namespace ferna::live
