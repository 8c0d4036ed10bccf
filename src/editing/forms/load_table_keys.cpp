#include "editing/forms/load_table_keys.h"

#include "editing/forms/clipboard_table.h"
#include "input/forms/Ferna3.h"
#include "tables/cells.h"
#include "tables/load_headings.h"
#include "widgets/field_note.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

namespace ferna {

using editing::LoadBlock;
using editing::LoadCell;

namespace {

/// More rows than the load table holds, a heading left out.
bool isTooLarge(const QString& table) {
    const QList<tables::Row> rows = tables::rowsOf(table);
    const bool hasHeading = !rows.isEmpty() && tables::isHeadingRow(rows.front().cells);
    return rows.size() - (hasHeading ? 1 : 0) > MaxCases;
}

constexpr int lastColumn = static_cast<int>(editing::loadColumns.size()) - 1;

} // namespace

LoadTableKeys::LoadTableKeys(Ferna3* form) : QObject(form), form_(form) {
    for (int r = 0; r < MaxCases; ++r)
        for (std::size_t column = 0; column < editing::loadColumns.size(); ++column) {
            QLineEdit* const field = form->fieldOf({editing::loadColumns[column], r});
            fields_.at(static_cast<std::size_t>(r)).at(column) = field;
            field->installEventFilter(this);
        }
}

QLineEdit* LoadTableKeys::fieldOf(LoadCell cell) const {
    return fields_.at(static_cast<std::size_t>(cell.row)).at(static_cast<std::size_t>(cell.column));
}

std::optional<LoadCell> LoadTableKeys::cellOf(const QObject* field) const {
    for (int r = 0; r < MaxCases; ++r)
        for (int column = 0; column <= lastColumn; ++column)
            if (fieldOf({r, column}) == field)
                return LoadCell{r, column};
    return std::nullopt;
}

/// Rows that show.
int LoadTableKeys::rows() const {
    int shown = 0;
    while (shown < MaxCases && !fieldOf({shown, 0})->isHidden())
        ++shown;
    return shown;
}

LoadBlock LoadTableKeys::whole() const {
    return {{0, 0}, {rows() - 1, lastColumn}};
}

void LoadTableKeys::paste(QLineEdit* field, const QString& table) {
    forget();
    if (isTooLarge(table) && form_->largeTable && form_->largeTable(table))
        return;
    const editing::LoadPaste paste = editing::pasteLoads(table, *cellOf(field));
    if (!paste.refusal.isEmpty()) {
        showFieldNote(field, paste.refusal);
        return;
    }
    form_->takeLoads(paste.rows, [&] {
        for (const editing::LoadPaste::Entry& entry : paste.entries)
            fieldOf(entry.cell)->setText(entry.text);
    });
    Q_EMIT form_->stepped(QStringLiteral("wklejenie tabeli obciążeń"));
    field->selectAll();
    if (!paste.remark.isEmpty())
        showFieldNote(field, paste.remark);
}

void LoadTableKeys::copy() {
    QApplication::clipboard()->setText(
        editing::copiedLoads(form_->fields().loads, chosen_.value_or(whole()), rows()));
}

bool LoadTableKeys::eventFilter(QObject* watched, QEvent* event) {
    auto* const field = qobject_cast<QLineEdit*>(watched);
    if (field == nullptr)
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return keyPressed(field, static_cast<const QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
        forget();
        break;
    case QEvent::FocusOut:
        if (const auto reason = static_cast<const QFocusEvent*>(event)->reason();
            reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            forget();
        break;
    case QEvent::ContextMenu:
        showMenu(field, static_cast<const QContextMenuEvent&>(*event));
        return true;
    default:
        break;
    }
    return false;
}

bool LoadTableKeys::keyPressed(QLineEdit* field, const QKeyEvent& key) {
    const LoadCell cell = *cellOf(field);
    if (key.matches(QKeySequence::Paste)) {
        const QString table = clipboardTable(QApplication::clipboard()->mimeData());
        if (!tables::isTable(table))
            return false;
        paste(field, table);
        return true;
    }
    if (key.matches(QKeySequence::Copy)) {
        if (!chosen_ && field->hasSelectedText())
            return false;
        copy();
        return true;
    }
    if (key.matches(QKeySequence::SelectAll) && field->selectedText() == field->text()) {
        choose(whole());
        return true;
    }
    if (key.modifiers() == Qt::ShiftModifier
        && (key.key() == Qt::Key_Down || key.key() == Qt::Key_Up)) {
        extend(cell, key.key() == Qt::Key_Down ? 1 : -1);
        return true;
    }
    const bool onlyAModifier = key.key() == Qt::Key_Shift || key.key() == Qt::Key_Control
                               || key.key() == Qt::Key_Alt || key.key() == Qt::Key_AltGr;
    if (!onlyAModifier)
        forget();
    return false;
}

/// Grows the block by rows of its own columns, or shrinks it again towards the field.
void LoadTableKeys::extend(LoadCell from, int by) {
    LoadBlock block = chosen_.value_or(LoadBlock{from, from});
    int& moving = block.first.row < from.row || (by < 0 && block.last.row == from.row)
                      ? block.first.row
                      : block.last.row;
    moving = qBound(0, moving + by, rows() - 1);
    choose(block);
}

/// Shows a block by the selection of its fields.
void LoadTableKeys::choose(const LoadBlock& block) {
    forget();
    for (int r = block.first.row; r <= block.last.row; ++r)
        for (int column = block.first.column; column <= block.last.column; ++column)
            fieldOf({r, column})->selectAll();
    if (!block.isOneCell())
        chosen_ = block;
}

void LoadTableKeys::forget() {
    if (!chosen_)
        return;
    chosen_.reset();
    for (const auto& row : fields_)
        for (QLineEdit* field : row)
            if (!field->hasFocus())
                field->deselect();
}

void LoadTableKeys::showMenu(QLineEdit* field, const QContextMenuEvent& event) {
    QMenu* const menu = field->createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString table = clipboardTable(QApplication::clipboard()->mimeData());
    menu->addSeparator();
    QAction* const pasting = menu->addAction(QStringLiteral("Wklej &tabelę od tej komórki"), this,
                                             [this, field, table] { paste(field, table); });
    pasting->setEnabled(tables::isTable(table));
    const QString copying = chosen_ ? QStringLiteral("Kopiuj &zaznaczone komórki")
                                    : QStringLiteral("Kopiuj całą ta&belę");
    menu->addAction(copying, this, [this] { copy(); });
    menu->popup(event.globalPos());
}

} // namespace ferna
