#include "plate/forms/KGM8b.h"

#include "ui_KGM8b.h"

namespace ferna {

KGM8b::KGM8b(Stan& stan, Dialogs& dialogs, QWidget* parent)
    : SteelDialog(stan, dialogs, parent), ui_(std::make_unique<Ui::KGM8b>()) {
    ui_->setupUi(this);
    const PlateSteelFields fields = rememberedPlateSteel(stan.materialy);
    ui_->Text1->setText(fields.name);
    ui_->Text2_0->setText(fields.fd);
    ui_->Text2_1->setText(fields.t_max);
    wire(ui_->Text1, ui_->lblZnaki, {ui_->Text2_0, ui_->Text2_1}, ui_->cmdOK, ui_->cmdCancel);
}

KGM8b::~KGM8b() = default;

std::optional<SteelField> KGM8b::take() {
    return acceptPlateSteel(stan_, {ui_->Text1->text(), ui_->Text2_0->text(), ui_->Text2_1->text()},
                            dialogs_);
}

} // namespace ferna
