#pragma once

#include "capacity/chart.h"
#include "capacity/chart_scale.h"

#include <QRectF>

namespace ferna {

/// Where everything of a chart lies.
class ChartFrame {
public:
    ChartFrame(const QRectF& place, const Chart& chart, qreal letter);

    const QRectF& title() const { return title_; }
    const QRectF& field() const { return field_; } ///< of the axes
    const QRectF& legend() const { return legend_; }
    const ChartScale& across() const { return across_; }
    const ChartScale& up() const { return up_; }
    qreal letter() const { return letter_; }

    /// The place of a load.
    QPointF at(const equilibrium::Load& load) const;
    /// The place of a point, at the edge of the field where its load lies outside.
    QPointF atPoint(const ChartPoint& point) const;
    bool isOutside(const ChartPoint& point) const;

    /// Values of a load along the axes: kNm across, kNm or kN upwards.
    double acrossOf(const equilibrium::Load& load) const;
    double upOf(const equilibrium::Load& load) const;

private:
    void takeScales(const Chart& chart);

    ChartPlane plane_;
    qreal letter_;
    QRectF title_;
    QRectF field_;
    QRectF legend_;
    ChartScale across_;
    ChartScale up_;
};

} // namespace ferna
