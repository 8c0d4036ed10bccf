#include "input/forms/FernaPon.h"

#include "input/material_fields.h"
#include "ui_FernaPon.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"

#include <array>

namespace ferna {

FernaPon::FernaPon(Stan& stan, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::FernaPon>()) {
    ui_->setupUi(this);
    const RatioOffer offer = ratioOffer(stan);
    ui_->Label1->setText(offer.Label1);
    ui_->cmdn_1->setText(offer.cmdn_1);
    const std::array buttons{ui_->cmdn_0, ui_->cmdn_1, ui_->cmdn_2};
    for (int i = 0; i < static_cast<int>(buttons.size()); ++i)
        connectGuarded(buttons.at(static_cast<std::size_t>(i)), &QPushButton::clicked, this,
                       [this, &stan, &dialogs, i] {
                           chooseRatio(stan, i, dialogs);
                           accept();
                       });
    ui_->cmdn_0->setFocus();
    centreOnScreen(this);
}

FernaPon::~FernaPon() = default;

} // namespace ferna
