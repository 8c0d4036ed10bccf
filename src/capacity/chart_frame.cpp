#include "capacity/chart_frame.h"

#include <algorithm>
#include <cmath>

namespace ferna {

ChartFrame::ChartFrame(const QRectF& place, const Chart& chart, qreal letter)
    : plane_(chart.plane), letter_(letter) {
    const qreal line = 1.5 * letter;
    const QRectF inner = place.adjusted(letter, 0.8 * letter, -letter, -0.8 * letter);
    title_ = QRectF(inner.topLeft(), QSizeF(inner.width(), 2.2 * line));
    legend_ = QRectF(inner.left(), inner.bottom() - 3 * line, inner.width(), 3 * line);
    field_ = QRectF(QPointF(inner.left() + 4.5 * letter, title_.bottom() + 1.6 * line),
                    QPointF(inner.right() - letter, legend_.top() - 2.4 * line));
    takeScales(chart);
}

void ChartFrame::takeScales(const Chart& chart) {
    struct Reach {
        double least = 0;
        double most = 0;
        void take(double value) {
            least = std::min(least, value);
            most = std::max(most, value);
        }
        double size() const { return most - least; }
    };
    Reach across;
    Reach up;
    for (const LinePoint& point : chart.line.points) {
        across.take(acrossOf(point.load));
        up.take(upOf(point.load));
    }
    // A point far outside must not make the line small.
    constexpr double far = 1.5;
    const Reach lineAcross = across;
    const Reach lineUp = up;
    const auto isNear = [](const Reach& line, double value) {
        return line.size() == 0
               || (value >= line.least - far * line.size()
                   && value <= line.most + far * line.size());
    };
    for (const ChartPoint& point : chart.points)
        if (isNear(lineAcross, acrossOf(point.load)) && isNear(lineUp, upOf(point.load))) {
            across.take(acrossOf(point.load));
            up.take(upOf(point.load));
        }
    across_ = scaleOf(across.least, across.most,
                      std::clamp(static_cast<int>(field_.width() / letter_ / 6), 2, 12));
    up_ = scaleOf(up.least, up.most,
                  std::clamp(static_cast<int>(field_.height() / letter_ / 3), 2, 12));
}

double ChartFrame::acrossOf(const equilibrium::Load& load) const {
    return plane_ == ChartPlane::NM2 ? load.M2 : load.M1;
}

double ChartFrame::upOf(const equilibrium::Load& load) const {
    return plane_ == ChartPlane::M1M2 ? load.M2 : load.N;
}

QPointF ChartFrame::at(const equilibrium::Load& load) const {
    const double x = (acrossOf(load) - across_.least) / (across_.most - across_.least);
    const double y = (upOf(load) - up_.least) / (up_.most - up_.least);
    return {field_.left() + x * field_.width(), field_.bottom() - y * field_.height()};
}

bool ChartFrame::isOutside(const ChartPoint& point) const {
    return !field_.contains(at(point.load));
}

QPointF ChartFrame::atPoint(const ChartPoint& point) const {
    const QPointF place = at(point.load);
    return {std::clamp(place.x(), field_.left(), field_.right()),
            std::clamp(place.y(), field_.top(), field_.bottom())};
}

} // namespace ferna
