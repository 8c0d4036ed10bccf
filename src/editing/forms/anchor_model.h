#pragma once

#include "editing/anchor_edits.h"

#include <QAbstractTableModel>

namespace ferna {

class Ferna3;

/// The anchors of the task as a table: a row an anchor, columns x, y and diameter, mm, as they are
/// computed. It follows every change of the task, and what is typed into it changes the task.
class AnchorModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { X, Y, Diameter, Columns };

    AnchorModel(Ferna3& form, const Stan& stan, QObject* parent);

    int anchors() const { return anchors_; }
    /// What is doubtful about an anchor, 1..20; empty where nothing is.
    QString doubt(int anchor) const;

    /// Moves anchors by whole millimetres.
    void move(const editing::Anchors& anchors, int dx, int dy);
    void remove(const editing::Anchors& anchors);
    /// Gives an anchor place and diameter.
    void set(int anchor, editing::AnchorPlace place, Integer fi);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    /// Anchors or what is doubtful about them may have changed.
    void renewed();

private:
    void renew();

    Ferna3& form_;
    const Stan& stan_;
    int anchors_ = 0; ///< as the views know it
    std::map<int, QString> doubtful_;
};

} // namespace ferna
