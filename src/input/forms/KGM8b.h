#pragma once

#include "design/user_steels.h"

#include <QDialog>

#include <memory>

namespace Ui {
class KGM8b;
}

namespace ferna {

/// Describes the user's own steel for the plate.
class KGM8b : public QDialog {
public:
    KGM8b(Stan& stan, Dialogs& dialogs, QWidget* parent);
    ~KGM8b() override;

private:
    void accept() override;
    void reject() override;

    Stan& stan_;
    Dialogs& dialogs_;
    std::unique_ptr<Ui::KGM8b> ui_;
};

} // namespace ferna
