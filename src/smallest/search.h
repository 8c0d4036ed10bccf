#pragma once

#include "design/input_fields.h"
#include "smallest/design_range.h"
#include "utilisation/utilisation.h"

#include <array>
#include <functional>

namespace ferna::smallest {

/// A load case, kN and kNm.
struct LoadCase {
    equilibrium::Load load;
    Shear shear;
};

/// What stands beside the base that is looked for: loads, concrete, strengths.
struct Task {
    double n = 0; ///< ratio of the moduli
    std::vector<LoadCase> cases;
    Single anchorageCoefficient = 0; ///< of the concrete, for the length of thick anchors
    /// What the checks are held against by steel - 1 and place in the series of diameters; empty
    /// where the steel has no strength for the diameter.
    std::array<std::array<std::optional<CheckLimits>, std::size(anchorDiameters)>, userSteel>
        limits;
};

/// The task of what is entered, plate and anchors apart. Empty where the ratio n or a load is no
/// number, n is negative, and without load cases.
std::optional<Task> enteredTask(const Stan& stan, const InputFields& fields);

/// A base that passes every check in every case.
struct Design {
    int length = 0; ///< of the plate, mm
    int width = 0;
    int thickness = 0;
    int layout = 0; ///< number of anchors
    Integer diameter = 0;
    Integer steel = 0;
    int edge = 0;         ///< distance of the anchors from the edges, mm
    int anchorLength = 0; ///< mm
    double plateMass = 0; ///< kg
    double anchorMass = 0;
    Utilisation used;  ///< largest of each check over the cases; its anchor that of the tension
    int worstCase = 0; ///< from 1: the case with the largest utilisation, pressure to its limit

    double mass() const { return plateMass + anchorMass; }
    bool operator==(const Design&) const = default;
};

/// By mass; of equal masses the smaller plate, the fewer and thinner anchors, the earlier steel.
bool isLighter(const Design& one, const Design& other);

struct Found {
    std::vector<Design> best; ///< the lightest ones, in order
    long candidates = 0;      ///< looked at
    long placed = 0;          ///< whose anchors keep their distances and whose steel has a strength
    long tooThick = 0; ///< that pass but for a plate thicker than its steel's strength holds for
    long passed = 0;
    bool stopped = false;
};

/// Told from time to time, with the share done; false stops the search.
using GoesOn = std::function<bool(double share)>;

/// The lightest designs of a range without a wrong part, `most` of them, by the exact equilibrium:
/// every case has one, the pressure is within the range's limit, anchors in tension, in shear and
/// in both are within theirs, and the plate needs no thickness beyond its steel's. Shear and
/// interaction must be below 1, as the calculation asks for it.
Found lightest(const DesignRange& range, const Task& task, std::size_t most,
               const GoesOn& goesOn = {});

/// The utilisation that the search judges by: pressure to the range's limit, shear and interaction
/// as they are; above 1 fails.
double judged(const Utilisation& used, double pressureLimit);
/// True where a case with this utilisation passes.
bool passes(const Utilisation& used, double pressureLimit);

} // namespace ferna::smallest
