#include "combinations/evaluation.h"

#include "command/entered_equilibria.h"

namespace ferna::combinations {

std::variant<Evaluator, Unready> Evaluator::of(const Stan& stan, const InputFields& fields) {
    const std::optional<equilibrium::Base> base = enteredBase(stan, fields);
    auto anchors = enteredAnchors(stan.plyta);
    if (!base || !anchors)
        return Unready::NoAreas;
    const std::optional<CheckLimits> limits = enteredLimits(stan, fields);
    if (!limits)
        return Unready::NoStrengths;
    return Evaluator(*base, std::move(*anchors), *limits);
}

Evaluator::Evaluator(equilibrium::Base base, std::vector<equilibrium::Anchor> anchors,
                     CheckLimits limits)
    : base_(base), anchors_(std::move(anchors)), limits_(limits) {}

equilibrium::Result Evaluator::equilibriumOf(const Combination& combination) const noexcept {
    return base_.solve(combination.load);
}

std::optional<Utilisation> Evaluator::answer(const Combination& combination) const noexcept {
    return utilisation(equilibriumOf(combination), combination.load, combination.shear, limits_,
                       anchors_);
}

} // namespace ferna::combinations
