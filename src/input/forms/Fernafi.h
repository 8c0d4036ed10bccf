#pragma once

#include "input/anchor_layout.h"

#include <QDialog>

#include <memory>

namespace Ui {
class Fernafi;
}

namespace ferna {

/// Changes the diameter of one anchor or of all.
class Fernafi : public QDialog {
    Q_OBJECT

public:
    Fernafi(Stan& stan, Integer Nr_zmienianej, Dialogs& dialogs, QWidget* parent);
    ~Fernafi() override;

private:
    void accept() override;

    Stan& stan_;
    Integer Nr_zmienianej;
    Dialogs& dialogs_;
    std::unique_ptr<Ui::Fernafi> ui_;
};

} // namespace ferna
