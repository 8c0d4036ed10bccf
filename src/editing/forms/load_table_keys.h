#pragma once

#include "editing/load_cells.h"

#include <QObject>

#include <array>
#include <optional>

class QContextMenuEvent;
class QKeyEvent;
class QLineEdit;

namespace ferna {

class Ferna3;

/// Makes a table of the load fields of the main form, by keys and by the menu of each field. Paste
/// with more than one cell fills rows from the field that has the focus; the number of cases
/// follows. Ctrl+A in a field whose text is chosen already, or Shift with Up and Down, choose cells
/// as a block, and Copy takes the block; with nothing chosen Copy takes the whole table.
class LoadTableKeys : public QObject {
public:
    /// `form` owns it.
    explicit LoadTableKeys(Ferna3* form);

    /// Puts a table into the load table from a field on. What is wrong or left out is said beside
    /// the field.
    void paste(QLineEdit* field, const QString& table);
    /// Puts the cells chosen, or all rows that show, on the clipboard.
    void copy();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool keyPressed(QLineEdit* field, const QKeyEvent& key);
    void showMenu(QLineEdit* field, const QContextMenuEvent& event);
    QLineEdit* fieldOf(editing::LoadCell cell) const;
    std::optional<editing::LoadCell> cellOf(const QObject* field) const;
    int rows() const;
    editing::LoadBlock whole() const;
    void choose(const editing::LoadBlock& block);
    void extend(editing::LoadCell from, int by);
    void forget();

    Ferna3* form_;
    std::array<std::array<QLineEdit*, editing::loadColumns.size()>, MaxCases> fields_{};
    std::optional<editing::LoadBlock> chosen_; ///< more than one cell
};

} // namespace ferna
