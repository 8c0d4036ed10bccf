#include "equilibrium/independent_check.h"

#include <algorithm>
#include <cmath>

namespace ferna::testing {

namespace {

using Long = long double;

struct Corner {
    Long x;
    Long y;
    Long s;
};

/// The part of the plate where s > 0.
std::vector<Corner> pressedPart(const std::vector<Corner>& plate) {
    std::vector<Corner> part;
    for (std::size_t i = 0; i < plate.size(); ++i) {
        const Corner& a = plate[i];
        const Corner& b = plate[(i + 1) % plate.size()];
        if (a.s > 0)
            part.push_back(a);
        if ((a.s > 0) != (b.s > 0)) {
            const Long t = a.s / (a.s - b.s);
            part.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y), 0});
        }
    }
    return part;
}

struct Forces {
    Long N = 0;
    Long M1 = 0;
    Long M2 = 0;

    void add(Long force, Long x, Long y) {
        N += force;
        M1 += force * x;
        M2 += force * y;
    }
};

/// A linear pressure over a triangle: exact at the middles of its sides.
void addTriangle(Forces& forces, const Corner& a, const Corner& b, const Corner& c) {
    const Long area = std::fabs((b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y)) / 2;
    for (const auto& [p, q] : {std::pair{&a, &b}, std::pair{&b, &c}, std::pair{&c, &a}})
        forces.add(area / 3 * (p->s + q->s) / 2, (p->x + q->x) / 2, (p->y + q->y) / 2);
}

std::vector<Corner> plateOf(const BaseAndLoad& problem, const equilibrium::Plane& plane) {
    std::vector<Corner> plate;
    for (const auto& [signX, signY] :
         {std::pair{1, 1}, std::pair{-1, 1}, std::pair{-1, -1}, std::pair{1, -1}}) {
        const Long x = signX * static_cast<Long>(problem.length) / 2;
        const Long y = signY * static_cast<Long>(problem.width) / 2;
        plate.push_back({x, y, plane.s0 + plane.sx * x + plane.sy * y});
    }
    return plate;
}

/// As a force at the edge, the largest of the three.
Long sizeOf(const BaseAndLoad& problem, const Forces& forces) {
    return std::max({std::fabs(forces.N), std::fabs(forces.M1) / (problem.length / 2),
                     std::fabs(forces.M2) / (problem.width / 2)});
}

Forces applied(const BaseAndLoad& problem) {
    return {problem.load.N * 1e3L, problem.load.M1 * 1e6L, problem.load.M2 * 1e6L};
}

using Vector = std::array<double, 3>;

Vector cross(const Vector& a, const Vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double inner(const Vector& a, const Vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/// Forces of unit size at corners and anchors: (N, M1 / (L/2), M2 / (B/2)).
std::vector<Vector> bearingForces(const BaseAndLoad& problem) {
    std::vector<Vector> forces{{1, 1, 1}, {1, -1, 1}, {1, -1, -1}, {1, 1, -1}};
    for (const equilibrium::Anchor& anchor : problem.anchors)
        if (anchor.area > 0 && problem.n > 0)
            forces.push_back(
                {-1, -anchor.x / (problem.length / 2), -anchor.y / (problem.width / 2)});
    return forces;
}

} // namespace

double BaseAndLoad::size() const {
    return static_cast<double>(sizeOf(*this, applied(*this)));
}

Imbalance imbalanceOf(const BaseAndLoad& problem, const equilibrium::Result& result) {
    const std::vector<Corner> plate = plateOf(problem, result.plane);
    const std::vector<Corner> part = pressedPart(plate);
    Forces carried;
    for (std::size_t i = 2; i < part.size(); ++i)
        addTriangle(carried, part[0], part[i - 1], part[i]);
    // What a last digit of the plane weighs: its largest part, pressing everywhere.
    const equilibrium::Plane& plane = result.plane;
    const auto partsAt = [&plane](double x, double y) {
        return std::fabs(plane.s0) + std::fabs(plane.sx * x) + std::fabs(plane.sy * y);
    };
    const double half[] = {problem.length / 2, problem.width / 2};
    double weight = partsAt(half[0], half[1]) * problem.length * problem.width;
    for (const equilibrium::Anchor& anchor : problem.anchors) {
        const Long s = plane.s0 + static_cast<Long>(plane.sx) * anchor.x
                       + static_cast<Long>(plane.sy) * anchor.y;
        carried.add(problem.n * anchor.area * std::min<Long>(s, 0), anchor.x, anchor.y);
        weight += problem.n * anchor.area * partsAt(anchor.x, anchor.y)
                  * std::max({1.0, std::fabs(anchor.x) / half[0], std::fabs(anchor.y) / half[1]});
    }
    const Forces load = applied(problem);
    const Forces error{carried.N - load.N, carried.M1 - load.M1, carried.M2 - load.M2};
    const Long size = sizeOf(problem, load);
    return {static_cast<double>(sizeOf(problem, error) / size),
            static_cast<double>(weight * 1e-15L / size)};
}

bool forcesCarry(const BaseAndLoad& problem, double pressed) {
    const Forces load = applied(problem);
    const auto size = static_cast<double>(sizeOf(problem, load));
    const Vector sought{static_cast<double>(load.N) / size - pressed,
                        static_cast<double>(load.M1) / (problem.length / 2) / size,
                        static_cast<double>(load.M2) / (problem.width / 2) / size};
    const std::vector<Vector> forces = bearingForces(problem);
    for (std::size_t i = 0; i < forces.size(); ++i)
        for (std::size_t j = i + 1; j < forces.size(); ++j)
            for (std::size_t k = j + 1; k < forces.size(); ++k) {
                const Vector& a = forces[i];
                const Vector& b = forces[j];
                const Vector& c = forces[k];
                const double volume = inner(a, cross(b, c));
                if (std::fabs(volume) < 1e-9)
                    continue;
                constexpr double least = -1e-13;
                if (inner(sought, cross(b, c)) / volume >= least
                    && inner(a, cross(sought, c)) / volume >= least
                    && inner(a, cross(b, sought)) / volume >= least)
                    return true;
            }
    return false;
}

bool turnsFreely(const BaseAndLoad& problem, const equilibrium::Segment& axis) {
    const equilibrium::Point& from = axis[0];
    const equilibrium::Point& to = axis[1];
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    // Distance from the axis, positive on the side that the load presses.
    double normalX = (to.y - from.y) / length;
    double normalY = -(to.x - from.x) / length;
    double offset = normalX * from.x + normalY * from.y;
    if (offset < 0) { // the centre of the plate goes up
        normalX = -normalX;
        normalY = -normalY;
        offset = -offset;
    }
    const double reach = std::max(problem.length, problem.width);
    const double slack = 1e-9 * (reach + offset);
    for (const Corner& corner : plateOf(problem, {}))
        if (normalX * static_cast<double>(corner.x) + normalY * static_cast<double>(corner.y)
            > offset + slack)
            return false;
    for (const equilibrium::Anchor& anchor : problem.anchors)
        if (anchor.area > 0 && problem.n > 0
            && normalX * anchor.x + normalY * anchor.y
                   < offset - slack - 1e-9 * (std::fabs(anchor.x) + std::fabs(anchor.y)))
            return false;
    const Forces load = applied(problem);
    const auto moment =
        static_cast<double>(normalX * load.M1 + normalY * load.M2 - offset * load.N);
    return moment > -1e-9 * problem.size() * reach;
}

} // namespace ferna::testing
