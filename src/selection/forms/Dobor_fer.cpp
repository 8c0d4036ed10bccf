#include "selection/forms/Dobor_fer.h"

#include "pages/sketch_files.h"
#include "ui_Dobor_fer.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"

#include <QShowEvent>

namespace ferna {

namespace {

constexpr int largeSketch = 3;

} // namespace

Dobor_fer::Dobor_fer(Stan& stan, const QString& folder, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), stan_(stan), folder_(folder), ui_(std::make_unique<Ui::Dobor_fer>()) {
    ui_->setupUi(this);
    loadSelection(stan, form_, dialogs);
    showForm();
    addTabKeys(this, ui_->SSTab1);
    connectGuarded(ui_->SSTab1, &QTabWidget::currentChanged, this,
                   [this](int tab) { bringToFront(form_, tab); });
    connectGuarded(ui_->cmdOK, &QPushButton::clicked, this, [this] { writeSection(); });
    connect(ui_->cmdAnuluj, &QPushButton::clicked, this, &Dobor_fer::reject);
    centreOnScreen(this);
}

Dobor_fer::~Dobor_fer() = default;

void Dobor_fer::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        ui_->cmdOK->setFocus();
}

void Dobor_fer::showForm() {
    const auto showPair = [](const std::array<QString, 2>& texts, QLabel* hooked, QLabel* plate) {
        hooked->setText(texts[0]);
        plate->setText(texts[1]);
    };
    showPair(form_.lblNazwa, ui_->lblNazwa_0, ui_->lblNazwa_1);
    showPair(form_.lbldia, ui_->lbldia_0, ui_->lbldia_1);
    showPair(form_.lblNosnosc, ui_->lblNosnosc_0, ui_->lblNosnosc_1);
    showPair(form_.lblLd, ui_->lblLd_0, ui_->lblLd_1);
    showPair(form_.lblLo, ui_->lblLo_0, ui_->lblLo_1);
    showPair(form_.lblLcalk, ui_->lblLcalk_0, ui_->lblLcalk_1);
    ui_->lblLh->setText(form_.lblLh);
    ui_->lblD->setText(form_.lblD);
    ui_->lbla->setText(form_.lbla);
    ui_->lblt->setText(form_.lblt);
    ui_->lblL1->setText(form_.lblL1);
    ui_->lblL1->setVisible(form_.lblL1_visible);
    ui_->Picture2->setSketch(QStringLiteral(":/szkice/rys3f.svg"));
    ui_->Picture1->setSketch(form_.Picture1 == largeSketch ? QStringLiteral(":/szkice/rys2pd.svg")
                                                           : QStringLiteral(":/szkice/rys2pm.svg"));
    for (int tab = 0; tab < 2; ++tab) {
        const auto i = static_cast<std::size_t>(tab);
        ui_->SSTab1->setTabText(tab, form_.SSTab1[i]);
        ui_->SSTab1->setTabEnabled(tab, form_.tabEnabled[i]);
    }
    ui_->SSTab1->setCurrentIndex(form_.tab);
}

void Dobor_fer::writeSection() {
    acceptSelection(stan_, form_);
    try {
        saveAnchorSketch(folder_, CInt(form_.Picture1));
    } catch (...) { // back in the form, "Anuluj" must leave no section
        stan_.raport.Liczba_wierszy_kotwy = 0;
        throw;
    }
    accept();
}

} // namespace ferna
