#pragma once

#include "statics/load_scheme.h"

#include <QDialog>

#include <memory>

class QRadioButton;

namespace Ui {
class Statyka_sch;
}

namespace ferna {

/// Offers a mode of writing and a scheme. It is a face only: nothing of the choice is kept.
class Statyka_sch : public QDialog {
    Q_OBJECT

public:
    Statyka_sch(Integer Liczba_przyp, QWidget* parent);
    ~Statyka_sch() override;

private:
    void showDialog();

    Integer Liczba_przyp_;
    SchemeDialog dialog_;
    std::unique_ptr<Ui::Statyka_sch> ui_;
    std::array<QRadioButton*, 3> optZapis_{};
    std::array<QRadioButton*, MaxCases> optNumer_{};
};

} // namespace ferna
