#pragma once

#include "capacity/forms/CapacityWindow.h"

namespace ferna {

class CombinationEntries;

/// The combinations of the window "Kombinacje" as loads of the capacity's chart: all but the
/// refused ones, by their names, a nameless one by its row. None where the window has no table.
CapacityWindow::OtherLoads loadsOf(const CombinationEntries* entries);

} // namespace ferna
