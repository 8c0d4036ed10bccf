#pragma once

#include "design/stan.h"
#include "runtime/dialogs.h"

#include <QDialog>

#include <memory>

namespace Ui {
class FernaPon;
}

namespace ferna {

/// Offers the ratio n: the recommended one, the computed one, or another.
class FernaPon : public QDialog {
    Q_OBJECT

public:
    FernaPon(Stan& stan, Dialogs& dialogs, QWidget* parent);
    ~FernaPon() override;

private:
    std::unique_ptr<Ui::FernaPon> ui_;
};

} // namespace ferna
