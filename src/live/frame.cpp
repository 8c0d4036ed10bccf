#include "live/frame.h"

#include <algorithm>
#include <cmath>

namespace ferna::live {

namespace {

// Of the height of a letter.
constexpr qreal margin = 0.8;
constexpr qreal titleRow = 2.0;
constexpr qreal textRow = 1.6;
constexpr qreal dimensionRow = 1.8;
constexpr qreal gap = 0.5; // above the legend
constexpr qreal scaleWidth = 6.0;
constexpr qreal axisEnd = 1.5;   // beyond the plate, with the axis' letter
constexpr qreal labelRoom = 2.4; // above the plate and at its right
constexpr qreal leastRadius = 0.25;
constexpr qreal reach = 0.5; // around what is to be hit

} // namespace

QRectF extentOf(const PictureValues& values) {
    Double x0 = -values.length / 2;
    Double x1 = values.length / 2;
    Double y0 = -values.width / 2;
    Double y1 = values.width / 2;
    for (const PictureAnchor& anchor : values.anchors) {
        const Double r = std::max(anchor.diameter, 0) / 2.0;
        x0 = std::min(x0, anchor.x - r);
        x1 = std::max(x1, anchor.x + r);
        y0 = std::min(y0, anchor.y - r);
        y1 = std::max(y1, anchor.y + r);
    }
    return {x0, y0, x1 - x0, y1 - y0};
}

Frame::Frame(const PictureValues& values, const PictureOptions& options)
    : whole_(QPointF(), options.size), letter_(options.letter) {
    const qreal h = letter_;
    const QRectF inner = whole_.adjusted(margin * h, margin * h, -margin * h, -margin * h);
    title_ = {inner.left(), inner.top(), inner.width(), titleRow * h};
    qreal bottom = inner.bottom();
    const auto rowAtTheFoot = [&](bool isThere) {
        const qreal height = isThere ? textRow * h : 0;
        bottom -= height;
        return QRectF(inner.left(), bottom, inner.width(), height);
    };
    foot_ = rowAtTheFoot(!options.words.view.isEmpty());
    legend_ = rowAtTheFoot(true);
    const qreal top = title_.bottom();
    bottom -= gap * h;
    pressures_ = {inner.right() - scaleWidth * h, top, scaleWidth * h, bottom - top};
    room_ = {inner.left(), top, pressures_.left() - inner.left() - margin * h, bottom - top};

    const qreal besides = (2 * dimensionRow + axisEnd) * h;
    const QRectF free = room_.adjusted(besides, labelRoom * h, -labelRoom * h, -besides);
    const QRectF mm = extentOf(values).united(options.shown);
    scale_ =
        std::min(std::max(free.width(), h) / mm.width(), std::max(free.height(), h) / mm.height());
    const QPointF middle(mm.center().x(), -mm.center().y());
    origin_ = free.center() - scale_ * middle;
    const QPointF half(values.length / 2 * scale_, values.width / 2 * scale_);
    plate_ = {origin_ - half, origin_ + half};
    extent_ = QRectF(at({mm.left(), mm.bottom()}), at({mm.right(), mm.top()})).united(plate_);
    along_ = {extent_.left(), extent_.bottom() + axisEnd * h, extent_.width(),
              2 * dimensionRow * h};
    up_ = {extent_.left() - besides, extent_.top(), 2 * dimensionRow * h, extent_.height()};
}

QPointF Frame::at(equilibrium::Point mm) const {
    return {origin_.x() + scale_ * mm.x, origin_.y() - scale_ * mm.y};
}

equilibrium::Point Frame::mmAt(QPointF place) const {
    return {(place.x() - origin_.x()) / scale_, (origin_.y() - place.y()) / scale_};
}

qreal Frame::radius(const PictureAnchor& anchor) const {
    return std::max(anchor.diameter / 2.0 * scale_, leastRadius * letter_);
}

int anchorAt(const Frame& frame, const PictureValues& values, QPointF place) {
    int found = 0;
    qreal nearest = 0;
    for (std::size_t i = 0; i < values.anchors.size(); ++i) {
        const PictureAnchor& anchor = values.anchors[i];
        const QPointF off = place - frame.at({anchor.x, anchor.y});
        const qreal distance = std::hypot(off.x(), off.y());
        if (distance > frame.radius(anchor) + reach * frame.letter())
            continue;
        if (found == 0 || distance < nearest) {
            found = static_cast<int>(i) + 1;
            nearest = distance;
        }
    }
    return found;
}

Edge edgeAt(const Frame& frame, QPointF place) {
    const QRectF& plate = frame.plate();
    const qreal near = reach * frame.letter();
    if (!plate.adjusted(-near, -near, near, near).contains(place))
        return Edge::None;
    const auto isNear = [near](qreal a, qreal b) { return std::fabs(a - b) <= near; };
    if (isNear(place.x(), plate.right()))
        return Edge::Right;
    if (isNear(place.x(), plate.left()))
        return Edge::Left;
    if (isNear(place.y(), plate.top()))
        return Edge::Top;
    return isNear(place.y(), plate.bottom()) ? Edge::Bottom : Edge::None;
}

} // namespace ferna::live
