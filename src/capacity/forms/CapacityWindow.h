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

/// Up to which loads the base that is entered is borne, as a chart with the load cases in it, or
/// with the loads of another table. Follows what is entered while it stands open.
class CapacityWindow : public QDialog {
    Q_OBJECT

public:
    /// Loads beside those of the load table: what they are of ("kombinacje.csv"), and they.
    struct OtherLoads {
        QString source;
        std::vector<NamedLoad> loads;
    };
    /// What the window shows. Without other loads there are those of the load table alone.
    struct Entered {
        const Stan& stan;
        std::function<InputFields()> fields;
        std::function<OtherLoads()> others = {};
    };

    CapacityWindow(Entered entered, QWidget* parent);
    ~CapacityWindow() override;

    /// To be called where something was entered, or the other loads have become others: the chart
    /// follows in a moment.
    void renewSoon();
    /// Reads what is entered and shows it.
    void renew();

    /// Shows the other loads, where there are any.
    void showOthers();

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool showsOthers() const;
    void readLoads();
    void listLoads();
    void takeForces();
    void forcesTyped();
    void showPlane();
    void showChart();
    void showReserve(const Chart& chart);
    void save();

    Entered entered_;
    std::unique_ptr<Ui::CapacityWindow> ui_;
    QTimer soon_;
    std::optional<Strength> strength_;
    std::vector<NamedLoad> loads_;   ///< that are shown
    std::vector<ChartPoint> points_; ///< the same, weighed; none without a strength
    bool areTyped_ = false;          ///< N and V of the line
};

} // namespace ferna
