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
    const auto show = [](QLabel* label, QLineEdit* line, const LoadDialog::Field& field) {
        label->setText(field.caption);
        line->setText(field.text);
        label->setVisible(field.shown());
        line->setVisible(field.shown());
    };
    const LoadDialog& d = dialog_;
    ui_->Label1->setText(d.Label1);
    show(ui_->Label2_0, ui_->Text1_0, d.load);
    show(ui_->Label2_1, ui_->Text1_1, d.secondLoad);
    show(ui_->Label3_0, ui_->Text2_0, d.arm);
    show(ui_->Label3_1, ui_->Text2_1, d.secondArm);
    ui_->Picture1->setSketch(QStringLiteral(":/szkice/obciaz%1.svg").arg(d.sketch));
}

QLineEdit* Obciazenie::fieldOf(const TypedValue& value) const {
    switch (value.value) {
    case Value::ColumnLoad:
        return ui_->Text1_0;
    case Value::ColumnSecondLoad:
        return ui_->Text1_1;
    case Value::ColumnArm:
        return ui_->Text2_0;
    case Value::ColumnSecondArm:
        return ui_->Text2_1;
    default:
        return nullptr;
    }
}

// A load that is stopped leaves the list as it was: the slot it had begun is given back.
void Obciazenie::addLoad() {
    dialog_.load.text = ui_->Text1_0->text();
    dialog_.secondLoad.text = ui_->Text1_1->text();
    dialog_.arm.text = ui_->Text2_0->text();
    dialog_.secondArm.text = ui_->Text2_1->text();
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
