#include "combinations/comparison.h"

#include <algorithm>
#include <cmath>

namespace ferna::combinations {

namespace {

/// The calculation takes loads as Singles.
bool isSame(Double computed, Double put) {
    constexpr Double single = 1e-6;
    return std::fabs(computed - put) <= single * std::max(1.0, std::fabs(put));
}

bool isOfCase(const Obciazenia& loads, int c, const Combination& put) {
    return isSame(loads.Sila_N(c), put.load.N) && isSame(loads.Moment_M1(c), put.load.M1)
           && isSame(loads.Moment_M2(c), put.load.M2) && isSame(loads.Sila_Vx(c), put.shear.Vx)
           && isSame(loads.Sila_Vy(c), put.shear.Vy);
}

bool hasStresses(CaseOutcome outcome) {
    return outcome == CaseOutcome::WholePlate || outcome == CaseOutcome::Found
           || outcome == CaseOutcome::FoundWithRaisedMoment
           || outcome == CaseOutcome::FoundWithMovedAnchor || outcome == CaseOutcome::OneMoment;
}

/// The anchors of a whole plate keep what an earlier calculation left for them.
Double largestTension(const Stan& stan, int c) {
    Double largest = 0;
    if (stan.wyniki.outcomes(c) != CaseOutcome::WholePlate)
        for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
            largest = std::max<Double>(largest, -stan.wyniki.Sigma_kotwy(i)(c));
    return largest;
}

bool farApart(Double told, Double exact) {
    constexpr Double share = 0.02;
    constexpr Double visible = 0.01;
    if ((told > 1) != (exact > 1))
        return true;
    const Double apart = std::fabs(told - exact);
    return apart > visible && apart > share * exact;
}

} // namespace

bool Compared::differs() const {
    if (!isComputed || !exact)
        return isComputed != exact.has_value();
    return farApart(concrete, exact->concrete) || farApart(tension, exact->tension);
}

std::vector<Compared> compared(const Stan& stan, const Evaluator& evaluator,
                               const std::vector<std::pair<RowNumber, Combination>>& put) {
    std::vector<Compared> all;
    const int cases = std::min<int>(stan.obciazenia.Liczba_przyp, static_cast<int>(put.size()));
    for (int c = 1; c <= cases; ++c) {
        const auto& [row, combination] = put.at(static_cast<std::size_t>(c - 1));
        const CaseOutcome outcome = stan.wyniki.outcomes(c);
        if (outcome == CaseOutcome::NotComputed || !isOfCase(stan.obciazenia, c, combination))
            continue;
        Compared one{c, row, hasStresses(outcome), 0, 0, evaluator.answer(combination)};
        if (one.isComputed) {
            one.concrete = stan.wyniki.Sigma_b(c) / (2 * evaluator.limits().Rb);
            one.tension = largestTension(stan, c) / evaluator.limits().fd;
        }
        all.push_back(one);
    }
    return all;
}

} // namespace ferna::combinations
