#pragma once

#include "runtime/numbers.h"

#include <type_traits>

namespace ferna {

// The formulas of the compressed zone and of the equilibrium at a neutral line, in their order of
// operations: the search depends on their last bits. A Number is a Double, or several of them side
// by side (a vector of the compiler), a Truth what comparing two Numbers gives: bool, or all bits
// or none for each of them.

/// The value where the condition holds, else +0, for Numbers side by side.
template <typename Truth, typename Number>
[[gnu::always_inline]] inline Number where(const Truth& condition, const Number& value) {
    return reinterpret_cast<Number>(condition & reinterpret_cast<Truth>(value));
}

/// Adds the value to the sum where the condition holds.
template <typename Truth, typename Number>
[[gnu::always_inline]] inline void addWhere(const Truth& condition, Number& sum,
                                            const Number& value) {
    if constexpr (!std::is_same_v<Truth, bool>)
        sum += where(condition, value);
    else if (condition)
        sum += value;
}

/// What stays the same on all lines of one angle, cm: the plate of the half sizes a and b, the
/// slope m of the line, sine and cosine of the angle of its normal.
struct LineAngle {
    Double a, b;
    Double m;
    Double sine, cosine;
};

/// The line y = m x + p of a distance c: the height D of the corner (a, b) above it, along y, and
/// its crossings with the edges y = b, x = a, x = -a, y = -b.
template <typename Number>
struct Crossings {
    Number D;
    Number xT;
    Number yR;
    Number yL;
    Number xB;
};

/// A vanishing slope gives crossings that are not finite.
template <typename Number>
[[gnu::always_inline]] inline Crossings<Number> crossings(const LineAngle& line, const Number& c) {
    const Number p = c / line.sine;
    return {line.b - line.m * line.a - p, (line.b - p) / line.m, line.m * line.a + p,
            -line.m * line.a + p, (-line.b - p) / line.m};
}

/// Integrals of the stress field s(x, y) = (y - m x - p) / D over the triangle between the neutral
/// line y = m x + p and the corner (u, y = b) or (x = a, t): the volume and its first moments in x
/// and y. `u` and `s` lie on the edges of the plate, `v` and `t` on the line. Powers are products
/// from the left.
template <typename Number>
struct TriangleIntegrals {
    Number volumeFactor; ///< m^2 / 6 / D
    Number xFactor;      ///< m^2 / 24 / D
    Number yFactor;      ///< 1 / 24 / m / D

    [[gnu::always_inline]] Number T0(Double u, const Number& v) const {
        const Number w = u - v;
        return volumeFactor * (w * w * w);
    }

    [[gnu::always_inline]] Number T1(Double u, const Number& v) const {
        const Number w = u - v;
        return xFactor
               * (6 * (u * u) * (w * w) - 3 * (u * u * u * u - v * v * v * v)
                  + 4 * v * (u * u * u - v * v * v));
    }

    [[gnu::always_inline]] Number T2(Double s, const Number& t) const {
        return yFactor
               * (8 * (s * s * s) * (t - s) - 6 * (s * s) * (t * t - s * s) + t * t * t * t
                  - s * s * s * s);
    }
};

/// Integral of the stress field over the zone, and its first moments.
template <typename Number>
struct ZoneIntegrals {
    Number V;
    Number Mx;
    Number My;
};

/// What lies beyond an edge: all of it on lines that all have it, or +0 for those that do not.
template <typename Truth, typename Number>
[[gnu::always_inline]] inline Number beyond(const Truth& edge, const Number& value) {
    if constexpr (std::is_same_v<Truth, std::true_type>)
        return value;
    else
        return where(edge, value); // to take +0 away changes nothing
}

/// The large triangle less what lies beyond the edge x = -a, where `left`, and beyond the edge
/// y = -b, where `below`. Either is std::true_type or std::false_type for all lines alike, or a
/// Truth.
template <typename Number, typename Left, typename Below>
[[gnu::always_inline]] inline ZoneIntegrals<Number>
zoneIntegrals(const LineAngle& line, const Crossings<Number>& at,
              const TriangleIntegrals<Number>& triangle, const Left& left, const Below& below) {
    const Double a = line.a;
    const Double b = line.b;
    ZoneIntegrals<Number> zone{triangle.T0(a, at.xT), triangle.T1(a, at.xT), triangle.T2(b, at.yR)};
    if constexpr (!std::is_same_v<Left, std::false_type>) {
        zone.V = zone.V - beyond(left, triangle.T0(-a, at.xT));
        zone.Mx = zone.Mx - beyond(left, triangle.T1(-a, at.xT));
        zone.My = zone.My - beyond(left, triangle.T2(b, at.yL));
    }
    if constexpr (!std::is_same_v<Below, std::false_type>) {
        zone.V = zone.V - beyond(below, triangle.T0(a, at.xB));
        zone.Mx = zone.Mx - beyond(below, triangle.T1(a, at.xB));
        zone.My = zone.My - beyond(below, triangle.T2(-b, at.yR));
    }
    return zone;
}

/// Sums over the anchors on the tension side, d < 0: of A d, cm3, and of A d^2, cm4.
template <typename Number>
struct AnchorSums {
    Number Ad;
    Number Add;

    [[gnu::always_inline]] void add(const Number& d, Double area) {
        const auto inTension = d < 0;
        addWhere(inTension, Ad, d * area);
        addWhere(inTension, Add, d * d * area);
    }
};

/// The forces that act at a line: N kG at (Ex, Ey) cm, n = Es / Eb, and the distances from the
/// centre, along the normal, of the corner (a, b) and of the point of N.
struct AxialForce {
    Double N;
    Double Ex, Ey;
    Double n;
    Double corner;
    Double point;
};

/// The equilibrium at a line. Where `forces` is 0 nothing else is a number.
template <typename Number>
struct Equilibrium {
    Number forces; ///< what the stress scale is N over, cm3
    Number k;      ///< stress scale, kG/cm3: the equilibrium of forces, exactly
    Number T;      ///< resultant of the anchors, kG
    Number C;      ///< resultant of the concrete, kG
    Number arm;    ///< of C, about the line, cm
    Number along;  ///< of C, along the line from N, cm
    Number error;  ///< moment error about the line, kG cm
};

/// At the distance `c`: `V` integral of the zone, (Xs, Ys) its centroid.
template <typename Number>
[[gnu::always_inline]] inline Equilibrium<Number>
equilibriumAt(const LineAngle& line, const AxialForce& force, const Number& c, const Number& V,
              const Number& Xs, const Number& Ys, const AnchorSums<Number>& sums) {
    Equilibrium<Number> e;
    const Number W = V * (force.corner - c);
    e.forces = W + force.n * sums.Ad;
    e.k = force.N / e.forces;
    e.T = (-force.n * sums.Ad) * e.k;
    e.C = W * e.k;
    e.arm = (Ys * line.sine + Xs * line.cosine) - c;
    e.along = (Ys - force.Ey) * line.cosine - (Xs - force.Ex) * line.sine;
    e.error = force.N * (force.point - c) - e.C * e.arm;
    addWhere(sums.Ad != 0, e.error, (sums.Add * e.T) / sums.Ad);
    return e;
}

} // namespace ferna
