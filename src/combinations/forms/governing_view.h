#pragma once

#include "combinations/answered_table.h"

#include <QTableWidget>

#include <functional>

namespace ferna {

/// For each check the largest use and the combinations that govern it, ties included. A chosen line
/// leads to its first combination.
class GoverningView : public QTableWidget {
    Q_OBJECT

public:
    explicit GoverningView(std::function<void(combinations::RowNumber)> follow,
                           QWidget* parent = nullptr);

    void show(const combinations::AnsweredTable& table);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    std::function<void(combinations::RowNumber)> follow_;
    std::array<combinations::RowNumber, allChecks.size()> rows_{};
};

} // namespace ferna
