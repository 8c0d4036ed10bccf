#pragma once

#include "capacity/forms/CapacityWindow.h"
#include "smallest/forms/SmallestWindow.h"

namespace ferna {

class Ferna3;

/// The windows of the capacity and of the smallest base, and their entries in the menus of the main
/// form. To be made before the form is shown first.
class ReserveEntries {
public:
    /// `others`: loads that the chart of the capacity can show beside those of the load table.
    ReserveEntries(Ferna3& form, Stan& stan,
                   std::function<CapacityWindow::OtherLoads()> others = {});

    /// Opens the chart of the capacity with the other loads in it.
    void showOtherLoads();

    CapacityWindow& capacity() { return capacity_; }
    SmallestWindow& smallest() { return smallest_; }

private:
    void take(const smallest::Design& design, const smallest::DesignRange& range);

    Ferna3& form_;
    Stan& stan_;
    CapacityWindow capacity_;
    SmallestWindow smallest_;
};

} // namespace ferna
