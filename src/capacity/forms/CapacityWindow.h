#pragma once

#include "capacity/chart.h"
#include "design/input_fields.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>

namespace Ui {
class CapacityWindow;
}

namespace ferna {

/// Up to which loads the base that is entered is borne, as a chart with the load cases in it.
/// Follows what is entered while it stands open.
class CapacityWindow : public QDialog {
    Q_OBJECT

public:
    /// What the window shows.
    struct Entered {
        const Stan& stan;
        std::function<InputFields()> fields;
    };

    CapacityWindow(Entered entered, QWidget* parent);
    ~CapacityWindow() override;

    /// To be called where something was entered: the chart follows in a moment.
    void renewSoon();
    /// Reads what is entered and shows it.
    void renew();

    /// Shows these loads, not those of the load table; an empty span goes back to them.
    void setPoints(std::span<const ChartPoint> points);

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Case {
        equilibrium::Load load;
        Shear shear;
        int number = 0;
    };
    void readCases(const InputFields& fields);
    void takeCase();
    void showPlane();
    void showChart();
    void showReserve(const Strength& strength, const Chart& chart);
    std::vector<ChartPoint> pointsOf(const Strength& strength) const;
    void save();

    Entered entered_;
    std::unique_ptr<Ui::CapacityWindow> ui_;
    QTimer soon_;
    std::optional<Strength> strength_;
    std::vector<Case> cases_;
    std::vector<ChartPoint> others_; ///< in place of the load cases
};

} // namespace ferna
