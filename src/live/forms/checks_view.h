#pragma once

#include "live/checks_table.h"

#include <QIcon>
#include <QTableWidget>

namespace ferna {

/// The sign of a verdict as an icon, sharp at the scale of a widget's screen; without its colour
/// where it is greyed.
QIcon verdictIcon(live::Verdict verdict, const QWidget* of, bool greyed = false);

/// The table of the checks: a row a case, a column a check, each with its sign.
class ChecksView : public QTableWidget {
    Q_OBJECT

public:
    explicit ChecksView(QWidget* parent = nullptr);

    /// The checks shown from now on; greyed where they are those of an earlier input.
    void setChecks(const std::vector<live::CheckRow>& rows, bool greyed);

    /// Brings a cell under selection, without telling of it.
    void select(int caseNumber, Check check);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {200, sizeHint().height()}; }

Q_SIGNALS:
    void checkChosen(int caseNumber, ferna::Check check, int anchor);

private:
    void fill(int row, int column, const live::CheckCell& cell, bool greyed);

    std::vector<live::CheckRow> rows_;
    bool greyed_ = false;
};

} // namespace ferna
