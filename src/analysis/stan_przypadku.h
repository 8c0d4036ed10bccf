#pragma once

#include "design/stan.h"

namespace ferna {

/// Shape of the compressed zone: 1 triangle at the corner (a, b); 2 trapezium on the edges x = -a,
/// y = b, x = a; 3 trapezium on the edges y = b, x = a, y = -b; 4 the plate less a triangle at
/// (-a, -b); 5 the whole plate.
namespace zone {
inline constexpr Integer Triangle = 1;
inline constexpr Integer AlongLength = 2;
inline constexpr Integer AlongWidth = 3;
inline constexpr Integer LessTriangle = 4;
inline constexpr Integer WholePlate = 5;
} // namespace zone

/// Working state of the solver for one load case, in kG, cm and radians; outlives the case.
/// The frame has its origin at the plate centre, x along the length, y along the width, and is
/// mirrored so that both moments are non-negative. The neutral line is
/// x cos(Beta) + y sin(Beta) = C_linii; the side beyond it holds the corner (a, b) and is
/// compressed.
struct Stan_przypadku {
    // Preparation
    Double M1n = 0; ///< moments after sign normalisation, kNm
    Double M2n = 0;
    Double M1k = 0; ///< working moments, kG cm: substituted where they vanish, raised by a retry
    Double M2k = 0;
    ByAnchor<Double> Xn; ///< anchors after sign normalisation, cm
    ByAnchor<Double> Yn;
    Double Plyta_L = 0;
    Double Plyta_B = 0;
    Double Pol_a = 0;  ///< half length a, cm
    Double Pol_b = 0;  ///< half width b, cm
    Double Kat_fi = 0; ///< angle of the plate diagonal
    Double Prom_R = 0; ///< half diagonal, cm
    Double Ex = 0;     ///< eccentricities, cm: the point of the axial force
    Double Ey = 0;
    Double Alfa = 0;     ///< direction of the eccentricity
    Double Mimosrod = 0; ///< its length, cm
    Double Rdzen = 0;    ///< radius of the kern in that direction, cm
    Double Wx_plyty = 0; ///< section moduli of the plate, cm3
    Double Wy_plyty = 0;

    // Search
    Double Beta = 0;      ///< angle of the normal of the neutral line
    Double Krok_beta = 0; ///< its step
    Double C_linii = 0;   ///< distance of the neutral line from the centre, cm
    Double Krok_c = 0;    ///< its step, cm
    Double Sin_beta = 0;
    Double Cos_beta = 0;
    Double Nachylenie = 0; ///< slope m of the line held as y = m x + p
    Double Reszta_c_poprz = 0;
    Double Reszta_beta_poprz = 0;
    Integer Kroki_c = 0; ///< evaluations since the last reduction of Krok_c; 32000 becomes 10
    Integer Nawroty = 0; ///< reversals; one field serves both searches
    Integer Drugie_wejscie = 0; ///< 0 before the first search of the distance in an attempt, then 1
    bool Jest_rozw = false;     ///< the angle is admissible and a distance was found
    bool Dane_skorygowane = false;    ///< the last anchor has been moved in this calculation
    bool Przerwij_obliczenia = false; ///< a case ended without a solution
    int Liczba_ocen = 0;              ///< evaluations of Rownowaga_c in this attempt

    // Compressed zone and equilibrium at the last evaluation
    ByAnchor<Double> Odl_kotwy; ///< distances of the anchors from the line, cm
    Integer Typ_strefy = 0;
    Double Pk_xT = 0; ///< x where the line meets y = b
    Double Pk_yR = 0; ///< y where the line meets x = a
    Double Pk_yL = 0; ///< y where the line meets x = -a
    Double Pk_xB = 0; ///< x where the line meets y = -b
    Double V_strefy =
        0; ///< integral over the zone of the field that is 1 at the corner (a, b), cm2
    Double Xs_strefy = 0; ///< centroid of that field, cm
    Double Ys_strefy = 0;
    Double Suma_Ad = 0;     ///< sum of A d over the anchors with d < 0, cm3
    Double Suma_Add = 0;    ///< sum of A d^2 over the same, cm4
    Double Wsp_k = 0;       ///< concrete stress per cm of distance from the line, kG/cm3
    Double Sila_C = 0;      ///< resultant of the concrete, kG
    Double Sila_T = 0;      ///< resultant of the anchors, positive, kG
    Double Ramie_C = 0;     ///< distance of the concrete resultant from the line, cm
    Double Os_C = 0;        ///< its offset along the line from the axial force, cm
    Double Reszta_c = 0;    ///< moment error about the line, kG cm
    Double Reszta_beta = 0; ///< moment error along the line, kG cm
};

} // namespace ferna
