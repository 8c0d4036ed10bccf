#include "widgets/steel_dialog.h"

#include "design/typed_names.h"
#include "widgets/codepage_note.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"
#include "widgets/number_field.h"

#include <QLineEdit>
#include <QPushButton>

namespace ferna {

void SteelDialog::wire(QLineEdit* name, QLabel* note, QList<QLineEdit*> numbers, QPushButton* ok,
                       QPushButton* cancel) {
    name_ = name;
    numbers_ = std::move(numbers);
    for (QLineEdit* field : std::as_const(numbers_))
        allowOnlyNumbers(field);
    keepTablesOut(this, {name});
    showNote(name, note, steelNote);
    keepRoomForNote(note);
    connect(ok, &QPushButton::clicked, this, &SteelDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &SteelDialog::reject);
    centreOnScreen(this);
}

void SteelDialog::accept() {
    guarded(this, [this] {
        const std::optional<SteelField> refused = take();
        if (!refused) {
            QDialog::accept();
            return;
        }
        QLineEdit* const field = fieldOf(*refused);
        field->setFocus();
        field->selectAll();
    });
}

void SteelDialog::reject() {
    cancelSteel(stan_);
    QDialog::reject();
}

QLineEdit* SteelDialog::fieldOf(SteelField field) const {
    switch (field) {
    case SteelField::Name:
        return name_;
    case SteelField::Strength:
        return numbers_[0];
    case SteelField::Largest:
        return numbers_[1];
    }
    return name_;
}

} // namespace ferna
