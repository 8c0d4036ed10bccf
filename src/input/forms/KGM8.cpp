#include "input/forms/KGM8.h"

#include "ui_KGM8.h"

namespace ferna {

KGM8::KGM8(Stan& stan, Dialogs& dialogs, QWidget* parent)
    : SteelDialog(stan, dialogs, parent), ui_(std::make_unique<Ui::KGM8>()) {
    ui_->setupUi(this);
    const AnchorSteelFields fields = rememberedAnchorSteel(stan.materialy);
    ui_->Text1->setText(fields.name);
    ui_->Text2_0->setText(fields.fd);
    ui_->Text2_1->setText(fields.fi_max);
    ui_->Text2_2->setText(fields.Rm);
    ui_->Text2_3->setText(fields.Re);
    wire(ui_->Text1, ui_->lblZnaki, {ui_->Text2_0, ui_->Text2_1, ui_->Text2_2, ui_->Text2_3},
         ui_->cmdOK, ui_->cmdCancel);
}

KGM8::~KGM8() = default;

std::optional<SteelField> KGM8::take() {
    return acceptAnchorSteel(stan_,
                             {ui_->Text1->text(), ui_->Text2_0->text(), ui_->Text2_1->text(),
                              ui_->Text2_2->text(), ui_->Text2_3->text()},
                             dialogs_);
}

} // namespace ferna
