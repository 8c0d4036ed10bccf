#include "input/forms/Fernafi.h"

#include "design/material_tables.h"
#include "runtime/format.h"
#include "ui_Fernafi.h"
#include "widgets/form_tools.h"

namespace ferna {

Fernafi::Fernafi(Stan& stan, Integer anchor, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), stan_(stan), Nr_zmienianej(anchor), dialogs_(dialogs),
      ui_(std::make_unique<Ui::Fernafi>()) {
    ui_->setupUi(this);
    for (const Integer fi : anchorDiameters)
        if (fi != anchorDiameters[0]) // 12 mm is offered only when an anchor is added
            ui_->cmbFi->addItem(general(fi));
    ui_->cmbFi->setCurrentIndex(-1);
    ui_->Label1->setText(diameterHeading(stan, anchor));
    connect(ui_->cmdOK, &QPushButton::clicked, this, &Fernafi::accept);
    ui_->cmbFi->setFocus();
    centreOnScreen(this);
}

Fernafi::~Fernafi() = default;

void Fernafi::accept() {
    try {
        if (ui_->cmbFi->currentIndex() < 0) {
            dialogs_.message(QStringLiteral("Musisz okreslic średnicę śruby"),
                             QStringLiteral("Ferna 2005 Pr - Błąd"), MessageStyle::Stop);
            ui_->cmbFi->setFocus();
            return;
        }
        changeDiameter(stan_, Nr_zmienianej, CInt(ui_->cmbFi->currentText()));
        QDialog::accept();
    } catch (const RunTimeError& failure) {
        dialogs_.message(failure.number() == error::TypeMismatch
                             ? errorText(error::TypeMismatch)
                             : Format(failure.number(), u"#####") + QStringLiteral("!!!!"),
                         programTitle, MessageStyle::Plain);
    }
}

} // namespace ferna
