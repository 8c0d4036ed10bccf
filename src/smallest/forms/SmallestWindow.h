#pragma once

#include "smallest/confirmation.h"

#include <QDialog>

#include <memory>

namespace Ui {
class SmallestWindow;
}

namespace ferna {

class DesignTable;

/// Looks for the lightest base that bears the entered loads, and hands one over.
class SmallestWindow : public QDialog {
    Q_OBJECT

public:
    /// What the window works with: the state, the fields as they stand, and who takes a design.
    struct Links {
        const Stan& stan;
        std::function<InputFields()> fields;
        std::function<void(const smallest::Design&, const smallest::DesignRange&)> take;
    };

    SmallestWindow(Links links, QWidget* parent);
    ~SmallestWindow() override;

    /// To be called where something was entered: what was found is of other loads then.
    void loadsChanged();

    /// Looks for the designs of the range in the fields.
    void search();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    void showLoads();
    void showSearching(bool searching);
    bool goesOn(double share);
    void showFound(const smallest::Winners& winners);
    void showChoice();
    void takeChosen();

    static constexpr std::size_t wanted = 10; ///< confirmed designs

    Links links_;
    std::unique_ptr<Ui::SmallestWindow> ui_;
    DesignTable* found_;
    smallest::DesignRange range_; ///< of what was found
    bool searching_ = false;
    bool stopped_ = false;
    bool isShownBefore_ = false;
};

} // namespace ferna
