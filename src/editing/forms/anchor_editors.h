#pragma once

#include <QStyledItemDelegate>

class QComboBox;

namespace ferna {

/// A list of the diameters on offer, the given one chosen; none where it is not of the series.
QComboBox* diameterList(int fi, QWidget* parent);

/// Says beside a field of a coordinate why its text is not taken; true where it is.
bool coordinateIsTaken(QWidget* field, const QString& text);

/// Edits the cells of the anchors in place: coordinates as text, the diameter from the series. A
/// text that is no coordinate is told beside the cell, which stays open.
class AnchorEditors : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;
};

} // namespace ferna
