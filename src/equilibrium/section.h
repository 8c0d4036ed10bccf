#pragma once

#include <array>

namespace ferna::equilibrium {

// A section in the frame in which the plate is the square from -1 to 1 in both directions and the
// load has the size 1. So a plate of any shape and a load of any size are the same problem.

inline constexpr int mostAnchors = 20;

using Vector3 = std::array<double, 3>;

constexpr double dot(const Vector3& a, const Vector3& b) noexcept {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/// A symmetric matrix over (1, u, v): the integrals of 1, u, v, uu, uv, vv.
struct Moments {
    double one = 0;
    double u = 0;
    double v = 0;
    double uu = 0;
    double uv = 0;
    double vv = 0;
};

Vector3 operator*(const Moments& m, const Vector3& z) noexcept;
/// The z with m z = right; empty (false) where m is singular to working precision.
bool solve(const Moments& m, const Vector3& right, Vector3& z) noexcept;

/// A plane s = z[0] + z[1] u + z[2] v, seen from the corner of the square where s is largest:
/// u = 1 - signX x, v = 1 - signY y. So z[1] and z[2] are not positive, and a small zone of
/// pressure at the corner keeps all its digits, which it loses when seen from the centre.
struct CornerPlane {
    Vector3 z{};
    double signX = 1;
    double signY = 1;

    double at(double x, double y) const noexcept {
        return z[0] + z[1] * (1 - signX * x) + z[2] * (1 - signY * y);
    }
    /// The same with a load (N, M1, M2) for s: as force and moments about the corner.
    Vector3 aboutCorner(const Vector3& load) const noexcept {
        return {load[0], load[0] - signX * load[1], load[0] - signY * load[2]};
    }
    /// Turns to the corner where s is largest; values about the old corner follow by `turned`.
    CornerPlane facingLargest() const noexcept;
};

/// The plane over the centre: s = s[0] + s[1] x + s[2] y.
CornerPlane fromCentre(const Vector3& s) noexcept;

/// A force and its moments about the corner of `from`, as about the corner of `to`.
Vector3 turned(const Vector3& force, const CornerPlane& from, const CornerPlane& to) noexcept;

/// Where the line s = 0 crosses the square: two points (u, v).
struct Crossing {
    bool crosses = false;
    double u1 = 0;
    double v1 = 0;
    double u2 = 0;
    double v2 = 0;
};
Crossing crossingOf(const CornerPlane& plane) noexcept;

/// Integrals over the part of the square where s > 0, in closed form: a rectangle and a trapezium.
/// No difference of larger areas is formed.
Moments pressedPart(const CornerPlane& plane) noexcept;

struct Section {
    int count = 0;
    std::array<double, mostAnchors> x{};
    std::array<double, mostAnchors> y{};
    std::array<double, mostAnchors> weight{}; ///< n A over the area of a quarter of the plate
    Moments whole;                            ///< uncracked, with every anchor, about the centre

    /// To be called once when the anchors stand.
    void prepare() noexcept;
};

/// What a plane does to a section: stiffness and the forces it carries, about the plane's corner.
struct Response {
    Moments stiffness;
    Vector3 force;
};
Response responseOf(const Section& section, const CornerPlane& plane) noexcept;

/// The uncracked square about any of its corners.
inline constexpr Moments wholeSquare{4, 4, 4, 16.0 / 3, 4, 16.0 / 3};

} // namespace ferna::equilibrium
