#pragma once

#include "statics/load_list.h"
#include "widgets/field_place.h"

#include <QDialog>

#include <memory>

namespace Ui {
class Obciazenie;
}

namespace ferna {

/// The values of one load, with the fields that its direction and kind need.
class Obciazenie : public QDialog, public ValueFields {
    Q_OBJECT

public:
    /// `form` is the list's form: its options are read here, and it takes the load.
    Obciazenie(Stan_statyki& loads, StaticsForm& form, QWidget* parent);
    ~Obciazenie() override;

    QLineEdit* fieldOf(const TypedValue& value) const override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showDialog();
    void addLoad();

    Stan_statyki& loads_;
    StaticsForm& form_;
    LoadDialog dialog_;
    std::unique_ptr<Ui::Obciazenie> ui_;
};

} // namespace ferna
