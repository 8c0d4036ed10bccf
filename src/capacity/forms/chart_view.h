#pragma once

#include "capacity/chart.h"

#include <QWidget>

namespace ferna {

/// Shows a chart as large as its room, its letters as large as those of the window. The mouse over
/// a point tells which load it is.
class ChartView : public QWidget {
public:
    explicit ChartView(QWidget* parent = nullptr);

    void setChart(Chart chart);
    const Chart& chart() const { return chart_; }
    /// Shows no chart, but why there is none.
    void setNothing(const QString& why);

    /// What the mouse over this place is told; empty off the points.
    QString wordsAt(QPointF place) const;

    QSize sizeHint() const override { return {680, 560}; }
    QSize minimumSizeHint() const override { return {460, 380}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    qreal letter() const;

    Chart chart_;
    QString nothing_;
};

} // namespace ferna
