#pragma once

#include "notes/record.h"

namespace ferna::notes {

// Numbers and stresses in the words of the notes, with the locale's decimal sign.

/// "444,3", "12,8", "0,05": as many digits as an engineer reads.
QString number(Double value);
/// The same with as many digits more as it takes to differ from the text of `other`.
QString numberBeside(Double value, Double other);
/// A place in mm, without needless decimals: "(250; -148,75)".
QString place(Double x, Double y);
/// A share as "12,3 %".
QString percent(Double share);

/// The exact stresses of a case against their limits.
struct Exact {
    Double pressure = 0;
    Double pressureLimit = 0;
    int anchor = 0; ///< the most stressed one, 0 where none is in tension
    Double stress = 0;
    Double stressLimit = 0;

    bool pressurePasses() const { return !(pressure > pressureLimit); }
    bool stressPasses() const { return !(stress > stressLimit); }
};
Exact exactOf(const equilibrium::Result& result, int anchors, const Record& record);

/// "docisk 5,20 MPa (dopuszczalne 2Rb = 14,2 MPa), kotwa 2: 110,2 MPa (dopuszczalne fd = 215,0
/// MPa)"
QString stressesOf(const Exact& exact);
/// A sentence that says whether they pass.
QString verdictOf(const Exact& exact);

} // namespace ferna::notes
