#include "input/forms/KGM8b.h"

#include "runtime/widgets/codepage_note.h"
#include "runtime/widgets/environment_stop.h"
#include "runtime/widgets/form_tools.h"
#include "ui_KGM8b.h"

namespace ferna {

KGM8b::KGM8b(Stan& stan, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), stan_(stan), dialogs_(dialogs), ui_(std::make_unique<Ui::KGM8b>()) {
    ui_->setupUi(this);
    const PlateSteelFields fields = rememberedPlateSteel(stan.materialy);
    ui_->Text1->setText(fields.Text1);
    ui_->Text2_0->setText(fields.Text2[0]);
    ui_->Text2_1->setText(fields.Text2[1]);
    for (QLineEdit* field : {ui_->Text2_0, ui_->Text2_1})
        allowOnlyNumbers(field);
    showCodepageNote(ui_->Text1, ui_->lblZnaki);
    connect(ui_->cmdOK, &QPushButton::clicked, this, &KGM8b::accept);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &KGM8b::reject);
    centreOnScreen(this);
}

KGM8b::~KGM8b() = default;

void KGM8b::accept() {
    guarded(this, [this] {
        const PlateSteelFields fields{ui_->Text1->text(),
                                      {ui_->Text2_0->text(), ui_->Text2_1->text()}};
        const std::optional<SteelField> refused = acceptPlateSteel(stan_, fields, dialogs_);
        if (!refused) {
            QDialog::accept();
            return;
        }
        QLineEdit* const field = *refused == SteelField::Text1     ? ui_->Text1
                                 : *refused == SteelField::Text2_0 ? ui_->Text2_0
                                                                   : ui_->Text2_1;
        field->setFocus();
        field->selectAll();
    });
}

void KGM8b::reject() {
    cancelSteel(stan_);
    QDialog::reject();
}

} // namespace ferna
