#pragma once

#include "widgets/steel_dialog.h"

#include <memory>

namespace Ui {
class KGM8b;
}

namespace ferna {

/// Describes the user's own steel for the plate.
class KGM8b : public SteelDialog {
    Q_OBJECT

public:
    KGM8b(Stan& stan, Dialogs& dialogs, QWidget* parent);
    ~KGM8b() override;

private:
    std::optional<SteelField> take() override;

    std::unique_ptr<Ui::KGM8b> ui_;
};

} // namespace ferna
