#pragma once

#include "sheet/maker.h"

namespace ferna::sheet {

/// Plate and anchors with edge and axis distances.
Picture platePicture(const Maker& maker);

/// The plate with its compressed zone, the neutral lines of search and exact equilibrium, the force
/// and the anchors in tension.
Picture pressurePicture(const Maker& maker, const CaseSheet& one);

} // namespace ferna::sheet
