#pragma once

#include "design/input_fields.h"
#include "equilibrium/equilibrium.h"

#include <vector>

namespace ferna {

// What an engineer has entered, as the exact equilibrium takes it: plate, anchors, ratio n and
// loads as typed, whether the calculation accepts them or not. To be read before a calculation,
// which may move an anchor or raise a moment.

/// A base as entered. Empty where it has no areas: a diameter off the series, a plate or a ratio n
/// that is no number, a plate without size, a negative n. No anchors at all is concrete alone.
std::optional<equilibrium::Base> enteredBase(const Stan& stan, const InputFields& fields);

/// The anchors as entered, areas of their cores. Empty where a diameter is off the series.
std::optional<std::vector<equilibrium::Anchor>> enteredAnchors(const Plyta_i_kotwy& plate);

/// The loads of case `c`, 1..6, as entered; empty where one of them is no number or no load that
/// anything could carry (above 1e100).
std::optional<equilibrium::Load> enteredLoad(const InputFields& fields, int c);

/// The equilibria of all cases as entered, in order.
using Equilibria = std::array<std::optional<equilibrium::Result>, MaxCases>;
struct EnteredEquilibria {
    bool hasBase = false; ///< false: the base has no areas, no case is computed
    int cases = 0;
    int anchors = 0;
    Equilibria byCase; ///< by case - 1; empty where a load is no number
};
EnteredEquilibria enteredEquilibria(const Stan& stan, const InputFields& fields);

} // namespace ferna
