#pragma once

#include "statics/load_list.h"

namespace ferna {

/// What a load brings to the base: kN and kNm.
using LoadShares = LoadRow<Single>;

/// Shares of the load in a slot; an empty slot has none. Error 9 for a slot outside 0..15, 6.
LoadShares loadShares(const Stan_statyki& loads, int slot);
/// The same with the direction 1..3 of a slot that does not hold it yet.
LoadShares loadShares(const Stan_statyki& loads, int slot, Integer direction);

/// Line of the list for the load in a slot.
QString loadLine(const Stan_statyki& loads, int slot);

} // namespace ferna
