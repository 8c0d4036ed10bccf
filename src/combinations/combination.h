#pragma once

#include "equilibrium/equilibrium.h"
#include "utilisation/utilisation.h"

#include <QString>

#include <cstdint>

namespace ferna::combinations {

/// The number of a data row of a table of combinations, from 1 as it stands there; 0 for none.
using RowNumber = std::int64_t;

/// One combination of actions as the frame program gives it: what acts together, in kN and kNm.
struct Combination {
    QString name;
    equilibrium::Load load;
    Shear shear;
};

} // namespace ferna::combinations
