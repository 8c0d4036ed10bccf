#include "editing/forms/anchor_editors.h"

#include "design/material_tables.h"
#include "editing/anchor_edits.h"
#include "editing/forms/anchor_model.h"
#include "runtime/format.h"
#include "widgets/field_note.h"
#include "widgets/number_field.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace ferna {

QComboBox* diameterList(int fi, QWidget* parent) {
    auto* const list = new QComboBox(parent);
    for (const Integer one : anchorDiameters)
        list->addItem(general(one));
    list->setCurrentIndex(list->findText(general(fi)));
    return list;
}

bool coordinateIsTaken(QWidget* field, const QString& text) {
    const editing::TypedCoordinate typed = editing::typedCoordinate(text);
    if (!typed.refusal.isEmpty())
        showFieldNote(field, typed.refusal + u'.');
    return typed.refusal.isEmpty();
}

QWidget* AnchorEditors::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                     const QModelIndex& index) const {
    if (index.column() == AnchorModel::Diameter) {
        QComboBox* const list = diameterList(index.data(Qt::EditRole).toInt(), parent);
        list->setObjectName(QStringLiteral("srednica"));
        return list;
    }
    auto* const field = new QLineEdit(parent);
    field->setObjectName(QStringLiteral("wspolrzedna"));
    field->setAlignment(Qt::AlignRight);
    field->setFrame(false);
    return field;
}

void AnchorEditors::setEditorData(QWidget* editor, const QModelIndex& index) const {
    if (auto* const field = qobject_cast<QLineEdit*>(editor)) {
        field->setText(index.data(Qt::EditRole).toString());
        field->selectAll();
    }
}

void AnchorEditors::setModelData(QWidget* editor, QAbstractItemModel* model,
                                 const QModelIndex& index) const {
    if (const auto* const field = qobject_cast<QLineEdit*>(editor)) {
        if (coordinateIsTaken(editor->parentWidget(), field->text()))
            model->setData(index, field->text());
    } else if (const auto* const list = qobject_cast<QComboBox*>(editor);
               list && list->currentIndex() >= 0) {
        model->setData(index, list->currentText().toInt());
    }
}

// A key that would close the cell closes it only with a text that is taken.
bool AnchorEditors::eventFilter(QObject* editor, QEvent* event) {
    if (auto* const field = qobject_cast<QLineEdit*>(editor);
        field && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool closes = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab
                            || key == Qt::Key_Backtab;
        if (closes && !coordinateIsTaken(field, field->text())) {
            field->selectAll();
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

} // namespace ferna
