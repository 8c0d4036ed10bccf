#pragma once

#include "combinations/answered_table.h"

#include <QAbstractTableModel>

namespace ferna {

/// The combinations of a table with their answers, a row each.
class AnswersModel : public QAbstractTableModel {
public:
    enum Column {
        Row,
        Name,
        Worst,
        Concrete,
        Tension,
        Shear,
        Interaction,
        Anchor,
        Case,
        N,
        M1,
        M2,
        Vx,
        Vy,
        Remark,
        ColumnTotal
    };
    /// The role of the number by which a column is sorted.
    static constexpr int sortRole = Qt::UserRole + 2;

    explicit AnswersModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

    /// The table shown from now on, which outlives the model.
    void show(const combinations::AnsweredTable& table);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    const combinations::AnsweredTable* table() const { return table_; }
    /// The place of a row in the load table, from 1; 0 for none.
    int caseOf(combinations::RowNumber row) const;

private:
    QString text(combinations::RowNumber row, Column column) const;
    QVariant number(combinations::RowNumber row, Column column) const;

    const combinations::AnsweredTable* table_ = nullptr;
    std::vector<combinations::RowNumber> six_;
};

/// The check that a column of utilisations shows; empty for the others.
std::optional<Check> checkOf(int column);

} // namespace ferna
