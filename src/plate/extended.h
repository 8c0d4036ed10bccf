#pragma once

#include "runtime/numbers.h"
#include "runtime/run_time_error.h"

#include <cmath>
#include <limits>

namespace ferna {

/// The charts are read in the 80-bit format: a Single result can hang on its last bits.
using Extended = long double;
static_assert(std::numeric_limits<Extended>::digits == 64);

/// Rounded once, from the widest precision to 32 bits. Error 6 beyond the range.
inline Single storedSingle(Extended value) {
    const auto single = static_cast<Single>(value);
    if (!std::isfinite(single))
        throw RunTimeError(error::Overflow);
    return single;
}

} // namespace ferna
