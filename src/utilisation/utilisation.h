#pragma once

#include "equilibrium/equilibrium.h"
#include "utilisation/check_limits.h"

#include <array>
#include <optional>
#include <span>

namespace ferna {

/// The checks of a load case.
enum class Check { Concrete, Tension, Shear, Interaction };
inline constexpr std::array<Check, 4> allChecks{Check::Concrete, Check::Tension, Check::Shear,
                                                Check::Interaction};

/// How far each check of a case is used, 1 where it is just kept. A check that does not apply is 0;
/// one that nothing could carry (shear where no anchor takes it) is infinite.
struct Utilisation {
    Double concrete = 0;    ///< largest pressure to twice Rb, to which a pressure is borne
    Double tension = 0;     ///< largest tension of an anchor to fd
    Double shear = 0;       ///< of the anchors on the tension side, where they alone take it
    Double interaction = 0; ///< tension and shear together, where all anchors take the shear
    /// Largest pressure to Rb: the bearing factor that is needed, where it is 1 or more.
    Double bearingFactor = 0;
    int anchor = 0; ///< the one with the largest tension, from 1; 0 where none is in tension

    Double of(Check check) const;
    Double worst() const;
    Check governing() const; ///< the first of the largest

    bool operator==(const Utilisation&) const = default;
};

/// Horizontal forces of a case, kN.
struct Shear {
    Double Vx = 0;
    Double Vy = 0;
};

/// The checks of a case with the stresses of its exact equilibrium, formed as the calculation forms
/// them: no horizontal force up to 0.01 kN, none where friction takes it, then by the anchors that
/// the limits name. In Double. Empty where no equilibrium exists. `anchors` are those of the base.
std::optional<Utilisation> utilisation(const equilibrium::Result& found,
                                       const equilibrium::Load& load, const Shear& shear,
                                       const CheckLimits& limits,
                                       std::span<const equilibrium::Anchor> anchors) noexcept;

} // namespace ferna
