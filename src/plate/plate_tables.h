#pragma once

#include "runtime/numbers.h"

#include <QStringList>

#include <span>

namespace ferna {

/// A plate steel of the list.
struct PlateSteel {
    const char* name;
    Single Fd_blachy;    ///< design strength, MPa
    Integer Max_grubosc; ///< thickness up to which it holds, mm
};

inline constexpr Integer userPlateSteel = 6; ///< Nr_stali_blachy of "inna stal"

/// The six items of `cmbStalb`.
const QStringList& plateSteelNames();

/// Grade 1..5. Error 9 for another number.
const PlateSteel& plateSteel(Integer Nr_stali_blachy);

/// A column profile of the check without stiffeners.
struct ColumnProfile {
    const char* name;
    Integer h; ///< height, mm
    Integer s; ///< width of the flange, mm
    Double k;  ///< coefficient of the formula
};

/// The 25 items of `cmbProfil`.
const QStringList& profileNames();

/// Profile 1..25. Error 9 for another number.
const ColumnProfile& columnProfile(Integer Nr_profilu);

/// A node of a coefficient table (PN-B-03215:1998, table B.2): r = b/l and the coefficient.
struct FragmentNode {
    Double r;
    Double coefficient;
};

/// Nodes of the fragment supported on four, three or two edges: check 3, 5 or 6.
std::span<const FragmentNode> fragmentNodes(int check);

/// The interval of a coefficient table that holds r: `y0` at `r0`, `y1` at its end, and the step
/// `d` that the interpolation divides by.
struct FragmentInterval {
    Double r0;
    Double y0;
    Double y1;
    Double d;
};

/// An interval holds its start and not its end; the last one holds both. `r` is within the table.
FragmentInterval fragmentInterval(int check, Single r);

} // namespace ferna
