#include "live/label_places.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ferna::live {

namespace {

constexpr int rings = 12;

/// Where a label may lie around what it names: the side of its rectangle that is turned there.
constexpr std::array<QPointF, 12> sides{{{1, -0.4},
                                         {-1, -0.4},
                                         {1, 0.4},
                                         {-1, 0.4},
                                         {0, -1},
                                         {0, 1},
                                         {0.8, -1},
                                         {-0.8, -1},
                                         {0.8, 1},
                                         {-0.8, 1},
                                         {1, 0},
                                         {-1, 0}}};

QRectF candidate(const Label& label, QPointF side, int ring) {
    const qreal away = label.radius + ring * 0.6 * label.size.height();
    const QPointF centre = label.of
                           + QPointF(side.x() * (away + label.size.width() / 2),
                                     side.y() * (away + label.size.height() / 2));
    return {centre - QPointF(label.size.width() / 2, label.size.height() / 2), label.size};
}

/// The same place pushed into the room.
QRectF inside(QRectF place, const QRectF& room) {
    if (place.right() > room.right())
        place.moveRight(room.right());
    if (place.bottom() > room.bottom())
        place.moveBottom(room.bottom());
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    return place;
}

qreal covered(const QRectF& place, const std::vector<QRectF>& taken) {
    qreal area = 0;
    for (const QRectF& other : taken) {
        const QRectF both = place.intersected(other);
        area += both.isValid() ? both.width() * both.height() : 0;
    }
    return area;
}

/// Puts one label where it covers least and lies near. What it covers.
qreal placeOne(Label& label, const QRectF& room, const std::vector<QRectF>& taken,
               const std::vector<QRectF>& lines) {
    constexpr qreal coverCost = 100;
    constexpr qreal distanceCost = 0.15; // a ring, of the square of the label's height
    const qreal ringCost = distanceCost * label.size.height() * label.size.height();
    qreal best = -1;
    qreal hidden = 0;
    for (int ring = 0; ring < rings && (best < 0 || ring * ringCost < best); ++ring)
        for (const QPointF& side : sides) {
            const QRectF wished = candidate(label, side, ring);
            if (best >= 0 && !room.contains(wished))
                continue;
            const QRectF place = inside(wished, room);
            const qreal hides = covered(place, taken);
            const qreal cost = coverCost * hides + covered(place, lines) + ring * ringCost;
            if (best < 0 || cost < best) {
                best = cost;
                hidden = hides;
                label.place = place;
            }
        }
    return hidden;
}

} // namespace

qreal placeLabels(std::vector<Label>& labels, const QRectF& room, std::vector<QRectF> taken,
                  const std::vector<QRectF>& lines) {
    qreal all = 0;
    for (Label& label : labels) {
        all += placeOne(label, room, taken, lines);
        taken.push_back(label.place);
    }
    return all;
}

} // namespace ferna::live
