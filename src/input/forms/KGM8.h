#pragma once

#include "design/user_steels.h"

#include <QDialog>

#include <memory>

namespace Ui {
class KGM8;
}

namespace ferna {

/// Describes the user's own steel for the anchors.
class KGM8 : public QDialog {
public:
    KGM8(Stan& stan, Dialogs& dialogs, QWidget* parent);
    ~KGM8() override;

private:
    void accept() override;
    void reject() override;

    Stan& stan_;
    Dialogs& dialogs_;
    std::unique_ptr<Ui::KGM8> ui_;
};

} // namespace ferna
