#pragma once

#include "live/live_values.h"
#include "live/told_checks.h"
#include "live/verdict.h"

namespace ferna::live {

/// One check of one case, as the table shows it.
struct CheckCell {
    std::optional<Verdict> verdict; ///< none where the check does not apply or was not formed
    QString exact;                  ///< "93,1 %"
    QString bearing;                ///< the bearing factor that is needed, where it is
    QString told;                   ///< "Oblicz: 91,0 %"; empty before a calculation
    bool differs = false;           ///< the told value is off by more than 2 %
    QString words;                  ///< all of it in a sentence
    int anchor = 0;                 ///< the anchor it is about, from 1; 0: none

    bool operator==(const CheckCell&) const = default;
};

/// The checks of a case in the order of `Check`.
using CheckRow = std::array<CheckCell, 4>;

/// A row for each case, in order.
std::vector<CheckRow> checksTable(const LiveValues& values, const ToldChecks& told);

/// Headings of the columns.
QStringList checkNames();

} // namespace ferna::live
