#pragma once

#include "design/clause.h"
#include "runtime/numbers.h"

#include <QStringList>

#include <optional>

namespace ferna {

/// Nominal diameters of anchors on offer, mm.
inline constexpr Integer anchorDiameters[] = {12, 16, 20, 24, 30, 36, 42, 48, 52, 56, 64, 72, 80};

/// Design strengths of an anchor steel, MPa.
struct AnchorSteel {
    Single Fd_kotwy;  ///< tension
    Single Fd2_kotwy; ///< tensile term of the interaction check
    Single Fv_kotwy;  ///< shear
    const char* Klasa_stali;
};

/// A concrete class for one norm.
struct Concrete {
    const char* name;
    Single Rb_plain;                  ///< design compressive strength in a plain footing, MPa
    Single Rb_reinforced;             ///< in a reinforced footing, MPa
    Single Eb_betonu;                 ///< modulus, MPa
    std::optional<Single> Rbz_betonu; ///< tensile strength, MPa; the newer norm leaves it unchanged
    Single Mnoznik_dlugosci;          ///< anchorage coefficients
    Single Wsp_dlugosci;
};

inline constexpr Integer userSteel = 7; ///< Nr_stali of "inna stal"

/// The seven items of the steel list.
const QStringList& steelNames();

/// The items of the concrete list of a norm.
const QStringList& concreteNames(Integer Nr_normy);

/// Steel 1..6 for the largest diameter of the layout, mm (PN-90/B-03200, table 2).
/// Empty where the norm has no strength for the diameter.
std::optional<AnchorSteel> anchorSteel(Integer Nr_stali, Integer Fi_max);

/// Concrete by norm and position in its list. The fifth class of the newer norm, which its list
/// does not offer, is that of the older one. Error 9 for a position in neither list.
const Concrete& concrete(Integer Nr_normy, Integer Nr_betonu);

/// Core area of an anchor, cm2, by nominal diameter in mm; empty off the series.
std::optional<Double> coreArea(Integer fi);

/// Ratio n of Es = 205000 MPa to Eb in MPa, rounded to two decimals.
Single ratioN(Single Eb_betonu);
inline constexpr Clause ratioNClause{
    {}, {u"n", u""}, u"int(20500000 / {Eb} + 0.5) / 100", {{{u"Eb", u"MPa"}}}};

} // namespace ferna
