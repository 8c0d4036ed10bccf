#include "statics/forms/Obciazenie.h"

#include "ui_Obciazenie.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"
#include "widgets/number_field.h"

#include <QShowEvent>

namespace ferna {

Obciazenie::Obciazenie(Stan_statyki& loads, StaticsForm& form, QWidget* parent)
    : QDialog(parent), loads_(loads), form_(form), dialog_(openLoadDialog(form)),
      ui_(std::make_unique<Ui::Obciazenie>()) {
    ui_->setupUi(this);
    keepTablesOut(this);
    showDialog();
    connectGuarded(ui_->cmdExit, &QPushButton::clicked, this, [this] { addLoad(); });
    connect(ui_->cmdAnuluj, &QPushButton::clicked, this, &Obciazenie::reject);
    centreOnScreen(this);
}

Obciazenie::~Obciazenie() = default;

void Obciazenie::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    ui_->Text1_0->setFocus();
    ui_->Text1_0->selectAll();
}

void Obciazenie::showDialog() {
    const auto showPair = [](QLabel* label, QLineEdit* field, const QString& caption,
                             const QString& text, bool visible) {
        label->setText(caption);
        field->setText(text);
        label->setVisible(visible);
        field->setVisible(visible);
    };
    const LoadDialog& d = dialog_;
    ui_->Label1->setText(d.Label1);
    showPair(ui_->Label2_0, ui_->Text1_0, d.Label2[0], d.Text1[0], d.Text1_visible[0]);
    showPair(ui_->Label2_1, ui_->Text1_1, d.Label2[1], d.Text1[1], d.Text1_visible[1]);
    showPair(ui_->Label3_0, ui_->Text2_0, d.Label3[0], d.Text2[0], d.Text2_visible[0]);
    showPair(ui_->Label3_1, ui_->Text2_1, d.Label3[1], d.Text2[1], d.Text2_visible[1]);
    ui_->Picture1->setSketch(QStringLiteral(":/szkice/obciaz%1.svg").arg(d.sketch));
}

// A load that is stopped leaves the list as it was: the slot it had begun is given back.
void Obciazenie::addLoad() {
    dialog_.Text1 = {ui_->Text1_0->text(), ui_->Text1_1->text()};
    dialog_.Text2 = {ui_->Text2_0->text(), ui_->Text2_1->text()};
    const Stan_statyki before = loads_;
    try {
        acceptLoad(loads_, form_, dialog_);
    } catch (const RunTimeError& failure) {
        loads_ = before;
        if (failure.number() != error::Subscript)
            throw;
        throw RunTimeError(
            error::Subscript,
            QStringLiteral("program przyjmuje najwyżej %1 obciążeń").arg(MaxColumnLoads));
    }
    accept();
}

} // namespace ferna
