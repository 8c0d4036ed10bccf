#pragma once

#include "smallest/design_range.h"

namespace Ui {
class SmallestWindow;
}

namespace ferna {

/// Fills the lists of the range's fields.
void fillRangeLists(Ui::SmallestWindow& ui);

/// Puts a range into its fields, and reads it there. Diameters are all from one to another of the
/// series.
void showRange(Ui::SmallestWindow& ui, const smallest::DesignRange& range);
smallest::DesignRange rangeIn(const Ui::SmallestWindow& ui);

} // namespace ferna
