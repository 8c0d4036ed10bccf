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

/// Puts one label where it covers least, the nearest of equal places. What it covers.
qreal placeOne(Label& label, const QRectF& room, const std::vector<QRectF>& taken) {
    qreal least = -1;
    for (int ring = 0; ring < rings; ++ring)
        for (const QPointF& side : sides) {
            const QRectF place = candidate(label, side, ring);
            if (!room.contains(place) && (ring > 0 || least >= 0))
                continue;
            const QRectF kept = inside(place, room);
            const qreal area = covered(kept, taken);
            if (least < 0 || area < least) {
                least = area;
                label.place = kept;
            }
            if (least == 0)
                return 0;
        }
    return least;
}

} // namespace

qreal placeLabels(std::vector<Label>& labels, const QRectF& room, std::vector<QRectF> taken) {
    qreal all = 0;
    for (Label& label : labels) {
        all += placeOne(label, room, taken);
        taken.push_back(label.place);
    }
    return all;
}

} // namespace ferna::live
