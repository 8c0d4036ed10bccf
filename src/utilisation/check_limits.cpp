#include "utilisation/check_limits.h"

#include "design/material_tables.h"
#include "design/user_steels.h"

#include <algorithm>

namespace ferna {

namespace {

std::optional<AnchorSteel> usersSteel(const Materialy& remembered) {
    if (!(remembered.Stal_fd > 0 && remembered.Stal_Re > 0 && remembered.Stal_Rm > 0))
        return std::nullopt;
    return userStrengths(remembered);
}

Integer largestDiameter(const Plyta_i_kotwy& plate) {
    Integer largest = 0;
    for (int i = 1; i <= plate.Liczba_srub; ++i)
        largest = std::max(largest, plate.Fi_kotwy(i));
    return largest;
}

} // namespace

std::optional<CheckLimits> enteredLimits(const Stan& stan, const InputFields& fields) {
    const int steelNumber = fields.cmbStal >= 0 ? fields.cmbStal + 1 : stan.opcje.Nr_stali;
    const std::optional<AnchorSteel> steel =
        steelNumber == userSteel ? usersSteel(stan.materialy)
                                 : anchorSteel(CInt(steelNumber), largestDiameter(stan.plyta));
    if (!steel)
        return std::nullopt;
    const Concrete& row = concrete(stan.opcje.Nr_normy, stan.opcje.Nr_betonu);
    return CheckLimits{.Rb = fields.Option1_0 ? row.Rb_plain : row.Rb_reinforced,
                       .fd = steel->Fd_kotwy,
                       .fd2 = steel->Fd2_kotwy,
                       .fv = steel->Fv_kotwy,
                       .tensionSideAlone = !fields.optHsruby_0};
}

} // namespace ferna
