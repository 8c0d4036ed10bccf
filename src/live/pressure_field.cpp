#include "live/pressure_field.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace ferna::live {

namespace {

using equilibrium::Plane;
using equilibrium::Point;
using Outline = std::vector<Point>;

Plane difference(const Plane& a, const Plane& b) {
    return {a.s0 - b.s0, a.sx - b.sx, a.sy - b.sy};
}

bool isLevelAtNought(const Plane& plane) {
    return plane.s0 == 0 && plane.sx == 0 && plane.sy == 0;
}

/// The part of a convex outline where the plane is not negative.
Outline above(const Plane& plane, const Outline& outline) {
    Outline kept;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Point& a = outline[i];
        const Point& b = outline[(i + 1) % outline.size()];
        const Double atA = plane.at(a);
        const Double atB = plane.at(b);
        if (atA >= 0)
            kept.push_back(a);
        if ((atA < 0) != (atB < 0)) {
            const Double share = atA / (atA - atB);
            kept.push_back({a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)});
        }
    }
    return kept.size() < 3 ? Outline{} : kept;
}

/// The part of the plate where a case's plane is the largest and presses. Of equal planes the first
/// case has it.
Outline partOf(const PictureValues& values, std::size_t of) {
    const Plane& plane = values.cases[of].found.plane;
    const Point corner{values.length / 2, values.width / 2};
    Outline part = above(
        plane, {corner, {-corner.x, corner.y}, {-corner.x, -corner.y}, {corner.x, -corner.y}});
    for (std::size_t other = 0; other < values.cases.size() && !part.empty(); ++other) {
        if (other == of || !values.cases[other].found.exists)
            continue;
        const Plane over = difference(plane, values.cases[other].found.plane);
        if (isLevelAtNought(over)) {
            if (other < of)
                return {};
        } else {
            part = above(over, part);
        }
    }
    return part;
}

/// The colours of a piece. The gradient runs from its lowest pressure to its highest, so that all
/// its points lie near the plate also where the pressure is almost even.
QBrush brushOf(const FieldPiece& piece, const QPolygonF& places, Double largest, Theme theme,
               bool greyed) {
    constexpr Double even = 1e-6; // of the largest pressure: one colour
    std::size_t low = 0;
    std::size_t high = 0;
    std::vector<Double> shares;
    for (const Point& point : piece.outline) {
        shares.push_back(std::clamp(piece.plane.at(point) / largest, 0.0, 1.0));
        const std::size_t last = shares.size() - 1;
        low = shares[last] < shares[low] ? last : low;
        high = shares[last] > shares[high] ? last : high;
    }
    const Double from = shares[low];
    const Double to = shares[high];
    if (!(to - from > even))
        return pressureColour(to, theme, greyed);
    // Along the slope of the plane, in which upwards is downwards in the picture.
    const Double steep = std::max(std::fabs(piece.plane.sx), std::fabs(piece.plane.sy));
    const QPointF slope(piece.plane.sx / steep, -piece.plane.sy / steep);
    const QPointF start = places[static_cast<qsizetype>(low)];
    const QPointF reach = places[static_cast<qsizetype>(high)] - start;
    const qreal length = QPointF::dotProduct(reach, slope) / QPointF::dotProduct(slope, slope);
    QLinearGradient gradient(start, start + length * slope);
    gradient.setStops(pressureStops(from, to, theme, greyed));
    return gradient;
}

} // namespace

std::vector<FieldPiece> fieldPieces(const PictureValues& values) {
    std::vector<FieldPiece> pieces;
    for (std::size_t i = 0; i < values.cases.size(); ++i)
        if (values.cases[i].found.exists)
            if (Outline part = partOf(values, i); !part.empty())
                pieces.push_back({std::move(part), values.cases[i].found.plane});
    return pieces;
}

void drawField(QPainter& painter, const PictureValues& values, const Frame& frame, Theme theme,
               bool greyed) {
    const std::optional<PressedCorner> most = governingCorner(values);
    if (!most)
        return;
    painter.save();
    // Whole pixels, so that no seam shows between two pieces. The lines over the edges are smooth.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    for (const FieldPiece& piece : fieldPieces(values)) {
        QPolygonF places;
        for (const Point& point : piece.outline)
            places += frame.at(point);
        painter.setBrush(brushOf(piece, places, most->pressure, theme, greyed));
        painter.drawPolygon(places);
    }
    painter.restore();
}

} // namespace ferna::live
