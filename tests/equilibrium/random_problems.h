#pragma once

#include "equilibrium/independent_check.h"
#include "support/random_tasks.h"

namespace ferna::testing {

/// Problem `number` of an endless series: most are ordinary bases under loads around the border of
/// the kern and beyond, in tension too; every fourth is none that anybody builds, with anchors on
/// one point, in a row, on the edges or off the plate, and loads on the verge of tipping over.
BaseAndLoad randomProblem(std::uint64_t number);

} // namespace ferna::testing
