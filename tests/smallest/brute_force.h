#pragma once

#include "smallest/search.h"

namespace ferna::testing {

/// The designs of a range that pass, lightest first: every candidate by itself, from the plain
/// formulas.
std::vector<smallest::Design> byBruteForce(const smallest::DesignRange& range,
                                           const smallest::Task& task);

} // namespace ferna::testing
