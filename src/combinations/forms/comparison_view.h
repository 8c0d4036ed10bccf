#pragma once

#include "combinations/comparison.h"

#include <QTableWidget>

namespace ferna {

/// What Oblicz found for the rows that were put into the load table, beside the exact equilibrium.
class ComparisonView : public QTableWidget {
    Q_OBJECT

public:
    explicit ComparisonView(QWidget* parent = nullptr);

    void show(const std::vector<combinations::Compared>& all);
};

} // namespace ferna
