#include "input/forms/KGM8.h"

#include "runtime/widgets/codepage_note.h"
#include "runtime/widgets/environment_stop.h"
#include "runtime/widgets/form_tools.h"
#include "ui_KGM8.h"

namespace ferna {

KGM8::KGM8(Stan& stan, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), stan_(stan), dialogs_(dialogs), ui_(std::make_unique<Ui::KGM8>()) {
    ui_->setupUi(this);
    const AnchorSteelFields fields = rememberedAnchorSteel(stan.materialy);
    ui_->Text1->setText(fields.Text1);
    ui_->Text2_0->setText(fields.Text2[0]);
    ui_->Text2_1->setText(fields.Text2[1]);
    ui_->Text2_2->setText(fields.Text2[2]);
    ui_->Text2_3->setText(fields.Text2[3]);
    for (QLineEdit* field : {ui_->Text2_0, ui_->Text2_1, ui_->Text2_2, ui_->Text2_3})
        allowOnlyNumbers(field);
    showCodepageNote(ui_->Text1, ui_->lblZnaki);
    connect(ui_->cmdOK, &QPushButton::clicked, this, &KGM8::accept);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &KGM8::reject);
    centreOnScreen(this);
}

KGM8::~KGM8() = default;

void KGM8::accept() {
    guarded(this, [this] {
        const AnchorSteelFields fields{ui_->Text1->text(),
                                       {ui_->Text2_0->text(), ui_->Text2_1->text(),
                                        ui_->Text2_2->text(), ui_->Text2_3->text()}};
        const std::optional<SteelField> refused = acceptAnchorSteel(stan_, fields, dialogs_);
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

void KGM8::reject() {
    cancelSteel(stan_);
    QDialog::reject();
}

} // namespace ferna
