#pragma once

#include "equilibrium/equilibrium.h"
#include "utilisation/utilisation.h"

#include <optional>
#include <span>
#include <vector>

namespace ferna {

/// A base, and what its checks are held against.
class Strength {
public:
    /// Plate in mm, ratio n of the moduli, anchors as `equilibrium::Base` takes them.
    Strength(double length, double width, double n, std::vector<equilibrium::Anchor> anchors,
             const CheckLimits& limits);

    /// False where there is nothing to compute with: no load has a utilisation then.
    bool usable() const noexcept { return base_.usable(); }
    double length() const noexcept { return length_; } ///< mm, along x
    double width() const noexcept { return width_; }   ///< mm, along y
    std::span<const equilibrium::Anchor> anchors() const noexcept { return anchors_; }
    const CheckLimits& limits() const noexcept { return limits_; }

    /// How far the checks are used. Empty where the column tips over.
    std::optional<Utilisation> used(const equilibrium::Load& load,
                                    const Shear& shear) const noexcept {
        return utilisation(base_.solve(load), load, shear, limits_, anchors_);
    }

private:
    double length_;
    double width_;
    std::vector<equilibrium::Anchor> anchors_;
    CheckLimits limits_;
    equilibrium::Base base_;
};

/// The base and the strengths that a calculation of what is entered would take. Empty where the
/// base has no areas (`enteredBase`) or the steel no strength (`enteredLimits`).
std::optional<Strength> enteredStrength(const Stan& stan, const InputFields& fields);

/// The horizontal forces of case `c`, 1..6, as entered; empty where one of them is no number.
std::optional<Shear> enteredShear(const InputFields& fields, int c);

} // namespace ferna
