#pragma once

#include "equilibrium/section.h"
#include "equilibrium/tipping.h"

#include <array>
#include <optional>
#include <span>

namespace ferna::equilibrium {

// The exact equilibrium of a rigid base plate. The plate stays plane, so the pressure under it is
//     s(x, y) = s0 + sx x + sy y,   compression positive, origin at the centre of the plate;
// concrete takes max(s, 0), an anchor has the stress n min(s, 0). The three unknowns balance N, M1
// and M2, which push and press down towards x > 0 and y > 0 where they are positive:
//     N  = integral max(s, 0) dA   + sum n A_i min(s_i, 0)
//     M1 = integral max(s, 0) x dA + sum n A_i min(s_i, 0) x_i,   M2 the same with y.
// They are where the convex function
//     F(s) = 1/2 integral max(s, 0)^2 dA + 1/2 sum n A_i min(s_i, 0)^2 - (N s0 + M1 sx + M2 sy)
// is least, and Newton's method finds that place.
//
// Why it always ends there. F is convex with a Lipschitz, piecewise smooth gradient, so a
// semismooth one. `Tipping` has refused the loads for which F falls for ever; for the others the
// sets F <= c are bounded. Steps are cut until F falls in proportion to its slope (Armijo), and a
// singular matrix is shifted: so every limit is a minimum (Pang and Qi, A globally convergent
// Newton method for convex SC1 minimization problems, J. Optim. Theory Appl. 85, 1995). Where some
// of the plate is compressed the matrix there is positive definite, and full steps converge
// superlinearly (Qi and Sun, A nonsmooth version of Newton's method, Math. Programming 58, 1993).
//
// Nothing here allocates or throws, and a Base may be used from several threads at once.

/// An anchor: its place in mm from the centre of the plate, its area in mm2.
struct Anchor {
    double x = 0;
    double y = 0;
    double area = 0;
};

/// N in kN, positive in compression; M1 and M2 in kNm, which shift it to x = M1 / N, y = M2 / N.
struct Load {
    double N = 0;
    double M1 = 0;
    double M2 = 0;

    bool operator==(const Load&) const = default;
};

/// mm, from the centre of the plate.
struct Point {
    double x = 0;
    double y = 0;
};
using Segment = std::array<Point, 2>;

/// s(x, y) = s0 + sx x + sy y in MPa and MPa/mm, compression positive.
struct Plane {
    double s0 = 0;
    double sx = 0;
    double sy = 0;

    double at(Point p) const noexcept { return s0 + sx * p.x + sy * p.y; }
};

struct Result {
    /// False: no state of stress carries the load, the column tips over about `tippingAxis`, and
    /// the other values are 0.
    bool exists = false;
    Plane plane;
    double sigmaConcrete = 0; ///< largest pressure under the plate, MPa, 0 where nothing is pressed
    std::array<double, mostAnchors> sigmaAnchor{}; ///< MPa, negative in tension, else 0
    std::optional<Segment>
        neutralLine; ///< s = 0 inside the plate; empty where it does not cross it
    /// Largest error of balance, a share of the load: of max(abs N, abs M1 / (L/2), abs M2 /
    /// (B/2)).
    double residual = 0;
    int steps = 0;       ///< evaluations of the section
    Segment tippingAxis; ///< as far as plate and anchors reach along it
};

struct Balance;

/// A base made ready for any number of loads.
class Base {
public:
    /// Length along x and width along y in mm; `n` is the ratio of the moduli of steel and
    /// concrete. Anchors may lie anywhere, coincide, or be missing; those behind the twentieth are
    /// left out.
    Base(double length, double width, double n, std::span<const Anchor> anchors) noexcept;

    /// False where there is nothing to compute with: a plate without an area, a negative n or area,
    /// a value that is not finite. `solve` then finds no equilibrium.
    bool usable() const noexcept { return usable_; }

    /// For finite loads of any size and sign. The result has an equilibrium, with a residual under
    /// 1e-10, wherever the load lies farther than 1e-12 of its size from those that have none, and
    /// none where it lies beyond them. Between a hundred-millionth and that it is the mathematics'
    /// answer alone: an edge is pressed with 1e7 times the load's mean pressure and more, which
    /// no concrete bears, so a stress check fails there just as surely as where nothing holds.
    Result solve(const Load& load) const noexcept;

private:
    Result tippedOver(const Vector3& load) const noexcept;
    Result resultOf(const Balance& found, double scale) const noexcept;

    double halfLength_ = 0;
    double halfWidth_ = 0;
    double n_ = 0;
    bool usable_ = false;
    Section section_; ///< in the frame in which the plate is the square from -1 to 1
    Tipping tipping_;
};

} // namespace ferna::equilibrium
