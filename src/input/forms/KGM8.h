#pragma once

#include "widgets/steel_dialog.h"

#include <memory>

namespace Ui {
class KGM8;
}

namespace ferna {

/// Describes the user's own steel for the anchors.
class KGM8 : public SteelDialog {
    Q_OBJECT

public:
    KGM8(Stan& stan, Dialogs& dialogs, QWidget* parent);
    ~KGM8() override;

private:
    std::optional<SteelField> take() override;

    std::unique_ptr<Ui::KGM8> ui_;
};

} // namespace ferna
