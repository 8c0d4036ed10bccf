#pragma once

#include <array>
#include <string>
#include <vector>

namespace ferna::testing {

/// One published figure beside the one computed here.
struct Compared {
    std::string what; ///< with its unit
    double published = 0;
    double here = 0;
    double exact = 0; ///< the exact equilibrium

    /// Share of the published figure; where that is 0, the difference.
    double deviation() const { return deviationOf(here); }
    double deviationOf(double figure) const;
};

/// Biaxial bending, four anchors M12 of 84.3 mm2, which the program's table has at 85 mm2: its
/// equilibrium functions, solved here for the line at which both moment errors vanish.
std::vector<Compared> biaxialFourAnchors();

/// The same with the whole program and its 85 mm2.
std::vector<Compared> biaxialFourAnchorsOfTheTable();

/// Biaxial bending, eight anchors: the whole program, from the fields of the form to the stored
/// results.
std::vector<Compared> biaxialEightAnchors();

/// Bending about one axis, one row of anchors in tension: the cubic equation of the bearing length.
struct UniaxialSolution {
    double bearing = 0;  ///< Y, in the unit of length of the input
    double tension = 0;  ///< T, in its unit of force
    double concrete = 0; ///< stress at the compressed edge
};
/// Plate `D` long and `B` wide, anchors of the area `As` at `f` from the centre, load `P` with the
/// moment `M`.
UniaxialSolution uniaxial(double D, double B, double f, double As, double n, double P, double M);

/// That equation at its published figures.
std::vector<Compared> uniaxialEquation();

/// The whole program beside that equation: two M20 in tension.
std::vector<Compared> uniaxialProgram();

} // namespace ferna::testing
