#pragma once

#include "selection/selection_form.h"

#include <QDialog>

#include <memory>

namespace Ui {
class Dobor_fer;
}

namespace ferna {

/// Offers the catalogue anchor of the most loaded diameter, hooked or with a plate.
class Dobor_fer : public QDialog {
    Q_OBJECT

public:
    /// Asks for the combined thickness before the form is shown. `folder` is the program folder; OK
    /// saves the sketch of the section there.
    Dobor_fer(Stan& stan, const QString& folder, Dialogs& dialogs, QWidget* parent);
    ~Dobor_fer() override;

    /// The form as it was left.
    const SelectionForm& chosen() const { return form_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showForm();
    void writeSection();

    Stan& stan_;
    QString folder_;
    SelectionForm form_;
    std::unique_ptr<Ui::Dobor_fer> ui_;
};

} // namespace ferna
