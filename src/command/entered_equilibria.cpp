#include "command/entered_equilibria.h"

#include "design/material_tables.h"
#include "runtime/run_time_error.h"

#include <algorithm>

namespace ferna {

namespace {

/// A field as typed, with all its digits.
std::optional<Double> number(const QString& field) {
    try {
        return CDbl(field);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// A place in mm. The state holds the whole millimetres that were typed as a Single in cm, which
/// cannot hold most tenths; a place that a calculation has moved is no whole number.
Double millimetres(Single cm) {
    const Double mm = 10.0 * static_cast<Double>(cm);
    const Double whole = std::nearbyint(mm);
    return static_cast<Single>(whole / 10.0) == cm ? whole : mm;
}

/// The anchors, in that room; empty where a diameter is off the series.
std::optional<std::span<const equilibrium::Anchor>>
anchorsIn(std::span<equilibrium::Anchor, MaxAnchors> room, const Plyta_i_kotwy& plate) {
    std::size_t count = 0;
    for (int i = 1; i <= plate.Liczba_srub; ++i) {
        const std::optional<Double> area = coreArea(plate.Fi_kotwy(i));
        if (!area)
            return std::nullopt;
        room[count++] = {millimetres(plate.X_kotwy(i)), millimetres(plate.Y_kotwy(i)), *area * 100};
    }
    return room.first(count);
}

} // namespace

std::optional<std::vector<equilibrium::Anchor>> enteredAnchors(const Plyta_i_kotwy& plate) {
    std::array<equilibrium::Anchor, MaxAnchors> room;
    const auto anchors = anchorsIn(room, plate);
    return anchors ? std::optional<std::vector<equilibrium::Anchor>>(
               std::in_place, anchors->begin(), anchors->end())
                   : std::nullopt;
}

std::optional<equilibrium::Base> enteredBase(const Stan& stan, const InputFields& fields) {
    const std::optional<Double> length = number(fields.Text3);
    const std::optional<Double> width = number(fields.Text4);
    const std::optional<Double> n = number(fields.Text2);
    if (!length || !width || !n)
        return std::nullopt;
    std::array<equilibrium::Anchor, MaxAnchors> room;
    const auto anchors = anchorsIn(room, stan.plyta);
    if (!anchors)
        return std::nullopt;
    const equilibrium::Base base(*length, *width, *n, *anchors);
    return base.usable() ? std::optional(base) : std::nullopt;
}

std::optional<equilibrium::Load> enteredLoad(const InputFields& fields, int c) {
    constexpr Double most = 1e100;
    const LoadRow<QString>& row = fields.loads.at(static_cast<std::size_t>(c - 1));
    const std::optional<Double> N = number(row.N);
    const std::optional<Double> M1 = number(row.M1);
    const std::optional<Double> M2 = number(row.M2);
    if (!N || !M1 || !M2 || std::max({std::fabs(*N), std::fabs(*M1), std::fabs(*M2)}) > most)
        return std::nullopt;
    return equilibrium::Load{*N, *M1, *M2};
}

EnteredEquilibria enteredEquilibria(const Stan& stan, const InputFields& fields) {
    EnteredEquilibria result;
    result.cases = std::clamp<int>(stan.obciazenia.Liczba_przyp, 0, MaxCases);
    result.anchors = stan.plyta.Liczba_srub;
    const std::optional<equilibrium::Base> base = enteredBase(stan, fields);
    if (!base)
        return result;
    result.hasBase = true;
    for (int c = 1; c <= result.cases; ++c)
        if (const std::optional<equilibrium::Load> load = enteredLoad(fields, c))
            result.byCase.at(static_cast<std::size_t>(c - 1)) = base->solve(*load);
    return result;
}

} // namespace ferna
