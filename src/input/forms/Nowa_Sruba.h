#pragma once

#include "input/anchor_layout.h"
#include "widgets/field_place.h"

#include <QDialog>

#include <memory>

namespace Ui {
class Nowa_Sruba;
}

namespace ferna {

/// Asks for diameter and coordinates of a new anchor. It is hidden at its end and keeps its texts
/// for the next use. It has no cancel: closed by the frame it hands over the values of its last
/// use. Esc does nothing.
class Nowa_Sruba : public QDialog, public ValueFields {
    Q_OBJECT

public:
    Nowa_Sruba(Stan& stan, Dialogs& dialogs, QWidget* parent);
    ~Nowa_Sruba() override;

    QLineEdit* fieldOf(const TypedValue& value) const override;

    /// Shows the dialog under a caption and returns what was accepted last.
    NewAnchor ask(const QString& caption);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void accept() override;

    Dialogs& dialogs_;
    std::unique_ptr<Ui::Nowa_Sruba> ui_;
    NewAnchor anchor_;
};

} // namespace ferna
