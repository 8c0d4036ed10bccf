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

bool farApart(Double told, Double exact) {
    constexpr Double share = 0.02;
    constexpr Double visible = 0.01;
    if ((told > 1) != (exact > 1))
        return true;
    const Double apart = std::fabs(told - exact);
    return apart > visible && apart > share * exact;
}

} // namespace

std::vector<Check> Compared::differing() const {
    std::vector<Check> checks;
    if (state == State::Compared && told && exact)
        for (const Check check : allChecks)
            if (farApart(told->of(check), exact->of(check)))
                checks.push_back(check);
    return checks;
}

bool Compared::differs() const {
    return state == State::Compared
           && (told.has_value() != exact.has_value() || !differing().empty());
}

std::vector<Compared> compared(const Stan& stan, const ToldUses& told, const Evaluator& evaluator,
                               const std::vector<std::pair<RowNumber, Combination>>& put) {
    std::vector<Compared> all;
    int c = 0;
    for (const auto& [row, combination] : put) {
        ++c;
        Compared one;
        one.caseNumber = c;
        one.row = row;
        if (c > stan.obciazenia.Liczba_przyp || !isOfCase(stan.obciazenia, c, combination)) {
            one.state = Compared::State::OtherLoads;
        } else if (stan.wyniki.outcomes(c) == CaseOutcome::NotComputed) {
            one.state = Compared::State::NotReached;
        } else {
            one.told = told.at(static_cast<std::size_t>(c - 1));
            one.exact = evaluator.answer(combination);
        }
        all.push_back(one);
    }
    return all;
}

} // namespace ferna::combinations
