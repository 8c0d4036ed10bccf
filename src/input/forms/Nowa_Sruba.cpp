#include "input/forms/Nowa_Sruba.h"

#include "design/material_tables.h"
#include "runtime/format.h"
#include "ui_Nowa_Sruba.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"
#include "widgets/number_field.h"

#include <QKeyEvent>

namespace ferna {

Nowa_Sruba::Nowa_Sruba(Stan& stan, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), dialogs_(dialogs), ui_(std::make_unique<Ui::Nowa_Sruba>()) {
    ui_->setupUi(this);
    for (const Integer fi : anchorDiameters)
        ui_->cmbFi->addItem(general(fi));
    ui_->cmbFi->setCurrentIndex(-1);
    const auto millimetres = [](Single cm) { return general(Int(CSng(cm * 10.0))); };
    ui_->Text1->setText(millimetres(stan.plyta.X_kotwy(1)));
    ui_->Text2->setText(millimetres(stan.plyta.Y_kotwy(1)));
    keepTablesOut(this);
    connect(ui_->cmdOK, &QPushButton::clicked, this, &Nowa_Sruba::accept);
}

Nowa_Sruba::~Nowa_Sruba() = default;

NewAnchor Nowa_Sruba::ask(const QString& caption) {
    setWindowTitle(caption);
    centreOnScreen(this);
    ui_->Text1->setFocus();
    ui_->Text1->selectAll();
    exec();
    return anchor_;
}

QLineEdit* Nowa_Sruba::fieldOf(const TypedValue& value) const {
    switch (value.value) {
    case Value::AnchorX:
        return ui_->Text1;
    case Value::AnchorY:
        return ui_->Text2;
    default:
        return nullptr;
    }
}

// Esc would look like a cancel, and store anchors all the same.
void Nowa_Sruba::keyPressEvent(QKeyEvent* event) {
    if (!event->matches(QKeySequence::Cancel))
        QDialog::keyPressEvent(event);
}

void Nowa_Sruba::accept() {
    guarded(this, [this] {
        if (ui_->cmbFi->currentIndex() < 0) {
            dialogs_.message(QStringLiteral("Musisz okreslic średnicę śruby"),
                             QStringLiteral("Ferna 2005 Pr - Błąd"), MessageStyle::Stop);
            ui_->cmbFi->setFocus();
            return;
        }
        const auto number = [this](Value value) {
            return taking({value}, [&] { return CInt(fieldOf({value})->text()); });
        };
        anchor_ = {CInt(ui_->cmbFi->currentText()), number(Value::AnchorX), number(Value::AnchorY)};
        QDialog::accept();
    });
}

} // namespace ferna
