#pragma once

#include "equilibrium/wide.h"

#include <array>

namespace ferna::equilibrium {

// A section in the frame in which the plate is the square from -1 to 1 in both directions and the
// load has the size 1. So a plate of any shape and a load of any size are the same problem.

inline constexpr int mostAnchors = 20;

/// Evaluations of the section after which the search for a plane is given up. Measured: anchors at
/// the four corners and between them take 6 in the median and 10 at most; a few anchors anywhere,
/// tension included, up to 99; loads within 1e-7 of tipping over, which are finished in wider
/// numbers, up to some 1500. No load has been met that comes to the end.
inline constexpr int mostSteps = 5000;

// Computed in doubles; the few planes that these cannot hold finely enough, which press on a sliver
// of the plate or pull anchors far stiffer than it, are finished in 113 bits, and those on the
// verge of tipping over, where an anchor decides by its last digits, in 226.

template <typename Number>
using Triple = std::array<Number, 3>;
using Vector3 = Triple<double>;

template <typename Number>
constexpr Number dot(const Triple<Number>& a, const Triple<Number>& b) noexcept {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

template <typename Number>
constexpr Number magnitude(const Number& value) noexcept {
    return value < 0 ? -value : value;
}

/// A symmetric matrix over (1, u, v): the integrals of 1, u, v, uu, uv, vv.
template <typename Number>
struct Moments {
    Number one = 0;
    Number u = 0;
    Number v = 0;
    Number uu = 0;
    Number uv = 0;
    Number vv = 0;
};

template <typename Number>
constexpr Triple<Number> product(const Moments<Number>& m, const Triple<Number>& z) noexcept {
    return {m.one * z[0] + m.u * z[1] + m.v * z[2], m.u * z[0] + m.uu * z[1] + m.uv * z[2],
            m.v * z[0] + m.uv * z[1] + m.vv * z[2]};
}

template <typename Number>
constexpr Moments<Number> sum(const Moments<Number>& a, const Moments<Number>& b) noexcept {
    return {a.one + b.one, a.u + b.u, a.v + b.v, a.uu + b.uu, a.uv + b.uv, a.vv + b.vv};
}

template <typename Number>
constexpr Moments<Number> scaled(const Moments<Number>& m, const Number& by) noexcept {
    return {by * m.one, by * m.u, by * m.v, by * m.uu, by * m.uv, by * m.vv};
}

/// The z with m z = right; false where m is singular to working precision.
template <typename Number>
bool solve(const Moments<Number>& m, const Triple<Number>& right, Triple<Number>& z) noexcept;

/// A plane s = z[0] + z[1] u + z[2] v, seen from the corner of the square where s is largest:
/// u = 1 - signX x, v = 1 - signY y. So z[1] and z[2] are not positive, and a small zone of
/// pressure at the corner keeps all its digits, which it would lose when seen from the centre.
template <typename Number>
struct CornerPlane {
    Triple<Number> z{};
    int signX = 1;
    int signY = 1;

    Number at(double x, double y) const noexcept {
        return z[0] + z[1] * (1 - signX * Number(x)) + z[2] * (1 - signY * Number(y));
    }
    /// Force and moments about the centre as about the corner.
    Triple<Number> aboutCorner(const Vector3& load) const noexcept {
        const Number force = load[0];
        return {force, force - signX * load[1], force - signY * load[2]};
    }
    /// The same plane seen from the corner where s is largest.
    CornerPlane facingLargest() const noexcept;
};

/// The plane s = s[0] + s[1] x + s[2] y.
CornerPlane<double> fromCentre(const Vector3& s) noexcept;

/// A force and its moments about the corner of `from`, as about the corner of `to`.
template <typename Number>
Triple<Number> turned(const Triple<Number>& force, const CornerPlane<Number>& from,
                      const CornerPlane<Number>& to) noexcept {
    return {force[0], from.signX == to.signX ? force[1] : 2 * force[0] - force[1],
            from.signY == to.signY ? force[2] : 2 * force[0] - force[2]};
}

/// Where the line s = 0 crosses the square: two points (u, v).
struct Crossing {
    bool crosses = false;
    double u1 = 0;
    double v1 = 0;
    double u2 = 0;
    double v2 = 0;
};
Crossing crossingOf(const CornerPlane<double>& plane) noexcept;

struct Section {
    int count = 0;
    std::array<double, mostAnchors> x{};
    std::array<double, mostAnchors> y{};
    std::array<double, mostAnchors> weight{}; ///< n A over the area of a quarter of the plate
    Moments<double> whole;                    ///< uncracked, with every anchor, about the centre

    /// To be called once when the anchors stand.
    void prepare() noexcept;
};

/// What a plane does to a section: stiffness and the forces it carries, about the plane's corner.
template <typename Number>
struct Response {
    Moments<Number> stiffness;
    Triple<Number> force;
};
/// Over the part of the square where s > 0 in closed form, a rectangle and a trapezium, so that no
/// difference of larger areas is formed; and over the anchors where s < 0.
template <typename Number>
Response<Number> responseOf(const Section& section, const CornerPlane<Number>& plane) noexcept;

/// The uncracked square about any of its corners.
template <typename Number>
inline constexpr Moments<Number> wholeSquare{4, 4, 4, Number(16) / 3, 4, Number(16) / 3};

} // namespace ferna::equilibrium
