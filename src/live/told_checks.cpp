#include "live/told_checks.h"

#include "analysis/case_results.h"
#include "analysis/clauses.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <cmath>

namespace ferna::live {

namespace {

/// The area of the anchors that take the shear, cm2.
Single shearedArea(const notes::ToldCase& told, const Stan& stan, bool tensionSideAlone) {
    Single area = 0;
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        if (!tensionSideAlone || !notes::hasLine(told)
            || told.sigmaAnchor.at(static_cast<std::size_t>(i - 1)) < 0)
            area = CSng(area + stan.plyta.Pole_kotwy(i));
    return area;
}

/// The check of the horizontal forces, by the formulas of the calculation. Among the stresses are
/// those that an earlier calculation left for the case, as it takes them.
void takeShear(Utilisation& used, const notes::ToldCase& told, const Stan& stan, int c) {
    constexpr Double none = 0.01; // kN
    const Obciazenia& loads = stan.obciazenia;
    const Single V = horizontalForce(loads.Sila_Vx(c), loads.Sila_Vy(c));
    if (V <= none || frictionForce(loads.Sila_N(c)) > V)
        return;
    const bool tensionSideAlone = stan.opcje.Hsily_wszystkie != 0;
    const Single tau = anchorShear(V, shearedArea(told, stan, tensionSideAlone));
    const Materialy& steel = stan.materialy;
    if (tensionSideAlone) {
        used.shear = shearUtilisation(tau, steel.Fv_kotwy);
        return;
    }
    Single most = 0;
    const ByAnchor<Single> stresses = stressesOf(stan, c);
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        most = std::min(most, stresses(i));
    used.interaction = interactionUtilisation(most, steel.Fd2_kotwy, tau, steel.Fv_kotwy);
}

std::optional<Utilisation> toldOfCase(const notes::Record& record, const Stan& stan, int c) {
    const notes::ToldCase& told = record.told(c);
    if (!notes::solved(told))
        return std::nullopt;
    Utilisation used;
    used.concrete = told.sigmaConcrete / record.pressureLimit();
    used.bearingFactor = 2 * used.concrete;
    for (std::size_t i = 0; i < told.sigmaAnchor.size(); ++i)
        if (const Double share = -told.sigmaAnchor[i] / record.anchorLimit();
            share > used.tension) {
            used.tension = share;
            used.anchor = static_cast<int>(i) + 1;
        }
    try {
        takeShear(used, told, stan, c);
    } catch (const RunTimeError&) {
        return std::nullopt; // as where no anchor takes the shear: the calculation has stopped
                             // there
    }
    return used;
}

} // namespace

ToldChecks toldChecks(const notes::Record& record, const Stan& stan) {
    ToldChecks told;
    if (!record.begun() || !(record.anchorLimit() > 0) || !(record.pressureLimit() > 0))
        return told;
    for (int c = 1; c <= record.given().cases; ++c)
        told.at(static_cast<std::size_t>(c - 1)) = toldOfCase(record, stan, c);
    return told;
}

bool differ(Double told, Double exact) {
    constexpr Double bearable = 0.02;
    constexpr Double nothing = 0.001;
    const Double larger = std::max(told, exact);
    if (std::isinf(larger))
        return told != exact;
    return larger > nothing && !(std::fabs(told - exact) <= bearable * larger);
}

} // namespace ferna::live
