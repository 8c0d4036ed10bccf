#include "statics/forms/Statyka_sch.h"

#include "ui_Statyka_sch.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"

namespace ferna {

namespace {

/// Shows the options and chooses one; -1 for none.
template <std::size_t N>
void showOptions(const std::array<QRadioButton*, N>& options, const std::array<bool, N>& visible,
                 int chosen) {
    for (std::size_t i = 0; i < N; ++i) {
        options[i]->setVisible(visible[i]);
        options[i]->setAutoExclusive(false);
        options[i]->setChecked(static_cast<int>(i) == chosen);
        options[i]->setAutoExclusive(true);
    }
}

} // namespace

Statyka_sch::Statyka_sch(Integer Liczba_przyp, QWidget* parent)
    : QDialog(parent), Liczba_przyp_(Liczba_przyp), dialog_(openSchemeDialog(Liczba_przyp)),
      ui_(std::make_unique<Ui::Statyka_sch>()) {
    ui_->setupUi(this);
    optZapis_ = {ui_->optZapis_0, ui_->optZapis_1, ui_->optZapis_2};
    optNumer_ = {ui_->optNumer_0, ui_->optNumer_1, ui_->optNumer_2,
                 ui_->optNumer_3, ui_->optNumer_4, ui_->optNumer_5};
    for (QRadioButton* number : optNumer_) { // the frame keeps its size whatever is offered
        QSizePolicy policy = number->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        number->setSizePolicy(policy);
    }
    showDialog();
    for (int i = 0; i < 3; ++i)
        connectGuarded(optZapis_.at(static_cast<std::size_t>(i)), &QRadioButton::clicked, this,
                       [this, i] {
                           chooseMode(dialog_, i, Liczba_przyp_);
                           showDialog();
                       });
    connect(ui_->cmdZapisz, &QPushButton::clicked, this, &Statyka_sch::accept);
    connect(ui_->cmdAnuluj, &QPushButton::clicked, this, &Statyka_sch::reject);
    centreOnScreen(this);
}

Statyka_sch::~Statyka_sch() = default;

void Statyka_sch::showDialog() {
    showOptions(optZapis_, dialog_.optZapis_visible, dialog_.optZapis);
    showOptions(optNumer_, dialog_.optNumer_visible, dialog_.optNumer);
    ui_->cmdZapisz->setText(dialog_.cmdZapisz);
}

} // namespace ferna
