#pragma once

#include "capacity/forms/CapacityWindow.h"
#include "smallest/forms/SmallestWindow.h"

namespace ferna {

class Ferna3;

/// The windows of the capacity and of the smallest base, and their entries in the menus of the main
/// form. To be made before the form is shown first.
class ReserveEntries {
public:
    ReserveEntries(Ferna3& form, Stan& stan);

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
