#include "utilisation/utilisation.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferna {

namespace {

/// Of equal tensions the first anchor governs.
void takeTension(Utilisation& result, const equilibrium::Result& found, const CheckLimits& limits,
                 std::size_t anchors) {
    Double largest = 0;
    for (std::size_t i = 0; i < anchors; ++i)
        if (-found.sigmaAnchor[i] > largest) {
            largest = -found.sigmaAnchor[i];
            result.anchor = static_cast<int>(i) + 1;
        }
    result.tension = largest / limits.fd;
}

/// Shear stress over the areas, in mm2, that take V in kN: MPa.
Double stressOfShear(Double V, Double areas) {
    return areas > 0 ? V * 1000 / areas : std::numeric_limits<Double>::infinity();
}

void takeShear(Utilisation& result, const equilibrium::Result& found, Double V,
               const CheckLimits& limits, std::span<const equilibrium::Anchor> anchors) {
    const bool line = found.plane.s0 < 0 || found.neutralLine.has_value();
    Double areas = 0;
    for (const equilibrium::Anchor& anchor : anchors)
        if (!limits.tensionSideAlone || !line || found.plane.at({anchor.x, anchor.y}) < 0)
            areas += anchor.area;
    const Double shear = stressOfShear(V, areas) / limits.fv;
    if (limits.tensionSideAlone) {
        result.shear = shear;
        return;
    }
    const Double tension = result.tension * limits.fd / limits.fd2;
    result.interaction = tension * tension + shear * shear;
}

} // namespace

Double Utilisation::of(Check check) const {
    switch (check) {
    case Check::Concrete:
        return concrete;
    case Check::Tension:
        return tension;
    case Check::Shear:
        return shear;
    case Check::Interaction:
        break;
    }
    return interaction;
}

Double Utilisation::worst() const {
    return std::max({concrete, tension, shear, interaction});
}

Check Utilisation::governing() const {
    const Double most = worst();
    return *std::find_if(allChecks.begin(), allChecks.end(),
                         [&](Check check) { return of(check) >= most; });
}

std::optional<Utilisation> utilisation(const equilibrium::Result& found,
                                       const equilibrium::Load& load, const Shear& shear,
                                       const CheckLimits& limits,
                                       std::span<const equilibrium::Anchor> anchors) noexcept {
    constexpr Double none = 0.01;    // kN
    constexpr Double friction = 0.3; // between plate and concrete
    if (!found.exists)
        return std::nullopt;
    Utilisation result;
    result.bearingFactor = found.sigmaConcrete / limits.Rb;
    result.concrete = result.bearingFactor / 2;
    takeTension(result, found, limits, anchors.size());
    const Double V = std::sqrt(shear.Vx * shear.Vx + shear.Vy * shear.Vy);
    if (V > none && !(friction * load.N > V))
        takeShear(result, found, V, limits, anchors);
    return result;
}

} // namespace ferna
