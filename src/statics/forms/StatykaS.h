#pragma once

#include "statics/load_list.h"
#include "statics/load_scheme.h"
#include "widgets/field_place.h"

#include <QDialog>

#include <functional>
#include <memory>

class QRadioButton;

namespace Ui {
class StatykaS;
}

namespace ferna {

/// The list of loads on the column and their forces at the base.
class StatykaS : public QDialog, public ValueFields {
    Q_OBJECT

public:
    /// Opens with an empty list. `loads` outlives the form; `table` takes the totals at the end.
    StatykaS(Stan& stan, Stan_statyki& loads, LoadTable& table, Dialogs& dialogs, QWidget* parent);
    ~StatykaS() override;

    QLineEdit* fieldOf(const TypedValue& value) const override;

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void connectOptions();
    void putTotalsUnderTheirHeadings();
    void addLoad();
    void save();

    /// Runs a command of the core on the form as it stands and shows what comes of it.
    void work(const std::function<void()>& core);
    void readForm();
    void showForm();

    Stan& stan_;
    Stan_statyki& loads_;
    LoadTable& table_;
    Dialogs& dialogs_;
    StaticsForm form_;
    std::unique_ptr<Ui::StatykaS> ui_;
    std::array<QLineEdit*, 5> Text1_{};
    std::array<QRadioButton*, 3> optTypObciaz_{};
    std::array<QRadioButton*, 3> optTypsily_{};
};

} // namespace ferna
