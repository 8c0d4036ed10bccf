#pragma once

#include "runtime/numbers.h"

namespace ferna {

/// Integrals of the stress field s(x, y) = (y - m x - p) / D over the triangle between the neutral
/// line y = m x + p and the corner (u, y = b) or (x = a, t): the volume and its first moments in x
/// and y. `u` and `s` lie on the edges of the plate, `v` and `t` on the line. Powers are products
/// from the left. A Number is a Double, or several of them side by side.
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

} // namespace ferna
