#pragma once

#include "design/user_steels.h"

#include <QDialog>

#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace ferna {

/// What the two dialogs of the user's own steels have in common: a name, numbers, OK and Anuluj. A
/// refused field gets the focus and is selected whole.
class SteelDialog : public QDialog {
protected:
    SteelDialog(Stan& stan, Dialogs& dialogs, QWidget* parent)
        : QDialog(parent), stan_(stan), dialogs_(dialogs) {}

    /// To be called once the controls are there; the first two numbers are those that can be
    /// refused.
    void wire(QLineEdit* name, QLabel* note, QList<QLineEdit*> numbers, QPushButton* ok,
              QPushButton* cancel);

    /// Takes the fields into the state. The field that was refused, with its message shown.
    virtual std::optional<SteelField> take() = 0;

    void accept() override;
    void reject() override;

    Stan& stan_;
    Dialogs& dialogs_;

private:
    QLineEdit* fieldOf(SteelField field) const;

    QLineEdit* name_ = nullptr;
    QList<QLineEdit*> numbers_;
};

} // namespace ferna
