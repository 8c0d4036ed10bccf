#pragma once

#include "combinations/combination.h"
#include "utilisation/check_limits.h"

#include <optional>
#include <variant>
#include <vector>

namespace ferna::combinations {

/// Why no combination can be computed for what is entered.
enum class Unready {
    NoAreas,    ///< plate, ratio n or a diameter from which no base can be made
    NoStrengths ///< the steel has no strength for the largest diameter, or is not described
};

/// A base with its strengths, made ready for any number of combinations. May be used from several
/// threads at once.
class Evaluator {
public:
    /// Of what is entered, whether the calculation accepts it or not.
    static std::variant<Evaluator, Unready> of(const Stan& stan, const InputFields& fields);

    /// How far the combination uses each check, by its exact equilibrium; empty where no state of
    /// stress carries it. The loads are finite and up to 1e100.
    std::optional<Utilisation> answer(const Combination& combination) const noexcept;

    /// The state of stress behind it.
    equilibrium::Result equilibriumOf(const Combination& combination) const noexcept;

    const CheckLimits& limits() const { return limits_; }
    const std::vector<equilibrium::Anchor>& anchors() const { return anchors_; }

private:
    Evaluator(equilibrium::Base base, std::vector<equilibrium::Anchor> anchors, CheckLimits limits);

    equilibrium::Base base_;
    std::vector<equilibrium::Anchor> anchors_;
    CheckLimits limits_;
};

} // namespace ferna::combinations
