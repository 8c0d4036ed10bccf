#include "capacity/strength.h"

#include "command/entered_equilibria.h"
#include "runtime/run_time_error.h"

namespace ferna {

Strength::Strength(double length, double width, double n, std::vector<equilibrium::Anchor> anchors,
                   const CheckLimits& limits)
    : length_(length), width_(width), anchors_(std::move(anchors)), limits_(limits),
      base_(length, width, n, anchors_) {}

std::optional<Strength> enteredStrength(const Stan& stan, const InputFields& fields) {
    const auto anchors = enteredAnchors(stan.plyta);
    const std::optional<CheckLimits> limits = enteredLimits(stan, fields);
    if (!anchors || !limits)
        return std::nullopt;
    try {
        Strength found(CDbl(fields.Text3), CDbl(fields.Text4), CDbl(fields.Text2), *anchors,
                       *limits);
        return found.usable() ? std::optional(std::move(found)) : std::nullopt;
    } catch (const RunTimeError&) { // a field that is no number
        return std::nullopt;
    }
}

std::optional<Shear> enteredShear(const InputFields& fields, int c) {
    const LoadRow<QString>& row = fields.loads.at(static_cast<std::size_t>(c - 1));
    try {
        return Shear{CDbl(row.Vx), CDbl(row.Vy)};
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

} // namespace ferna
