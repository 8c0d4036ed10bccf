#pragma once

#include "combinations/comparison.h"

#include <QWidget>

class QLabel;
class QTableWidget;

namespace ferna {

/// What Oblicz found for the rows that were put into the load table, beside the exact equilibrium:
/// each check that applies, and what cannot be compared.
class ComparisonView : public QWidget {
    Q_OBJECT

public:
    explicit ComparisonView(QWidget* parent = nullptr);

    /// `byTensionSide`: the shear is checked of the anchors on the tension side, else together with
    /// the tension.
    void show(const std::vector<combinations::Compared>& all, bool byTensionSide);
    /// Shows no table, but why there is none.
    void showNothing(const QString& why);

private:
    QLabel* about_ = nullptr;
    QTableWidget* table_ = nullptr;
};

} // namespace ferna
