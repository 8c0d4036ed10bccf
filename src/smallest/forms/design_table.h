#pragma once

#include "smallest/confirmation.h"

#include <QAbstractTableModel>

namespace ferna {

/// The designs that were found, a row each, lightest first.
class DesignTable : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(std::vector<smallest::Winner> winners, double pressureLimit);
    const smallest::Winner& at(int row) const { return winners_.at(static_cast<std::size_t>(row)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const smallest::Winner& winner, int column) const;

    std::vector<smallest::Winner> winners_;
    double pressureLimit_ = 1;
};

} // namespace ferna
