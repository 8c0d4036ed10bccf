#pragma once

#include "combinations/answered_table.h"

#include <QWidget>

#include <array>

namespace ferna {

/// How many combinations use their worst check how far: a bar for each tenth, the last for all
/// beyond.
class Histogram : public QWidget {
    Q_OBJECT

public:
    static constexpr int bins = 21; ///< 0..0.1, ... 1.9..2.0, beyond

    explicit Histogram(QWidget* parent = nullptr);

    void show(const combinations::AnsweredTable& table);
    /// How many combinations stand in a bar.
    int count(int bin) const { return counts_.at(static_cast<std::size_t>(bin)); }
    /// The bar of a utilisation.
    static int binOf(Double use);

    QSize sizeHint() const override { return {360, 260}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawBars(QPainter& painter, const QRectF& room) const;
    void drawAxis(QPainter& painter, const QRectF& room) const;

    std::array<int, bins> counts_{};
};

} // namespace ferna
