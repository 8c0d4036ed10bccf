// The exact equilibrium of a base beside a general solver of equations, on the same problems: 2000
// combinations of a plate of 600 x 400 mm with six anchors. section_solver.py runs it, checks that
// they agree and makes the table.
//
// The general solver is Powell's hybrid method of MINPACK, which takes any three equations in three
// unknowns. It gets them twice: with the pressure integrated exactly, so that the problem is the
// very same, and over fibres of 10 x 10 mm, as a program for sections of any shape has them. It
// begins at the plane of an uncracked section.
#include "equilibrium/equilibrium.h"
#include "support/random_tasks.h"

#include <cminpack.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace ferna;
using equilibrium::Anchor;
using equilibrium::Load;

namespace {

constexpr double length = 600; // mm
constexpr double width = 400;
constexpr double ratio = 7.5;
constexpr int problems = 2000;
constexpr int repetitions = 7;
constexpr double tolerance = 1e-10; // of the residual, as a share of the load

std::vector<Anchor> sixAnchors() {
    std::vector<Anchor> anchors;
    for (const double x : {-250.0, 250.0})
        for (const double y : {-150.0, 0.0, 150.0})
            anchors.push_back({x, y, 353});
    return anchors;
}

/// Stresses in MPa: in the middle, and what they grow by to the edges along x and y.
using Unknowns = std::array<double, 3>;

struct Vertex {
    double x, y, s;
};

double stressAt(const Unknowns& u, double x, double y) {
    return u[0] + u[1] * x / (length / 2) + u[2] * y / (width / 2);
}

/// N in N, M1 and M2 in Nmm.
struct Sums {
    double N = 0, M1 = 0, M2 = 0;
    void add(double force, double x, double y) {
        N += force;
        M1 += force * x;
        M2 += force * y;
    }
};

/// The compressed part of the plate, cut off along the line of no stress and divided into
/// triangles.
void addConcrete(const Unknowns& u, Sums& sums) {
    const std::array<std::array<double, 2>, 4> corners{{{length / 2, width / 2},
                                                        {-length / 2, width / 2},
                                                        {-length / 2, -width / 2},
                                                        {length / 2, -width / 2}}};
    std::array<Vertex, 8> zone;
    std::size_t count = 0;
    for (std::size_t k = 0; k < 4; ++k) {
        const auto& [x, y] = corners[k];
        const auto& [x2, y2] = corners[(k + 1) % 4];
        const double s = stressAt(u, x, y);
        const double s2 = stressAt(u, x2, y2);
        if (s >= 0)
            zone[count++] = {x, y, s};
        if ((s >= 0) != (s2 >= 0)) {
            const double t = s / (s - s2);
            zone[count++] = {x + t * (x2 - x), y + t * (y2 - y), 0};
        }
    }
    for (std::size_t k = 1; k + 1 < count; ++k) {
        const Vertex& p = zone[0];
        const Vertex& q = zone[k];
        const Vertex& r = zone[k + 1];
        const double area = ((q.x - p.x) * (r.y - p.y) - (r.x - p.x) * (q.y - p.y)) / 2;
        const double s = p.s + q.s + r.s;
        sums.N += area / 3 * s;
        sums.M1 += area / 12 * (s * (p.x + q.x + r.x) + p.s * p.x + q.s * q.x + r.s * r.x);
        sums.M2 += area / 12 * (s * (p.y + q.y + r.y) + p.s * p.y + q.s * q.y + r.s * r.y);
    }
}

void addFibres(const Unknowns& u, Sums& sums) {
    constexpr double side = 10; // mm
    for (double x = -length / 2 + side / 2; x < length / 2; x += side)
        for (double y = -width / 2 + side / 2; y < width / 2; y += side)
            if (const double s = stressAt(u, x, y); s > 0)
                sums.add(s * side * side, x, y);
}

struct Problem {
    Load load;
    double size = 0; ///< N
    const std::vector<Anchor>* anchors = nullptr;
    bool fibres = false;
};

int residuals(void* given, int /*n*/, const double* x, double* f, int /*flag*/) {
    const auto& problem = *static_cast<const Problem*>(given);
    const Unknowns u{x[0], x[1], x[2]};
    Sums sums;
    if (problem.fibres)
        addFibres(u, sums);
    else
        addConcrete(u, sums);
    for (const Anchor& anchor : *problem.anchors)
        if (const double s = stressAt(u, anchor.x, anchor.y); s < 0)
            sums.add(ratio * s * anchor.area, anchor.x, anchor.y);
    f[0] = (sums.N - 1e3 * problem.load.N) / problem.size;
    f[1] = (sums.M1 - 1e6 * problem.load.M1) / (problem.size * length / 2);
    f[2] = (sums.M2 - 1e6 * problem.load.M2) / (problem.size * width / 2);
    return 0;
}

Problem problemOf(const Load& load, const std::vector<Anchor>& anchors, bool fibres) {
    const double size =
        1e3 * std::fabs(load.N)
        + 1e6 * (std::fabs(load.M1) / (length / 2) + std::fabs(load.M2) / (width / 2));
    return {load, size, &anchors, fibres};
}

struct Solved {
    Unknowns u{};
    bool converged = false;
};

Solved solveGenerally(Problem problem) {
    const Load& load = problem.load;
    Solved solved{{1e3 * load.N / (length * width), 6e6 * load.M1 / (length * length * width),
                   6e6 * load.M2 / (length * width * width)},
                  false};
    constexpr int workspace = 3 * (3 * 3 + 13) / 2;
    std::array<double, 3> f{};
    std::array<double, workspace> work{};
    hybrd1(residuals, &problem, 3, solved.u.data(), f.data(), 1e-12, work.data(), workspace);
    solved.converged =
        std::fabs(f[0]) < tolerance && std::fabs(f[1]) < tolerance && std::fabs(f[2]) < tolerance;
    return solved;
}

/// How far two planes are apart in the corners, as a share of the largest stress there.
double difference(const Unknowns& u, const equilibrium::Plane& plane) {
    double largest = 0;
    double apart = 0;
    for (const double x : {-length / 2, length / 2})
        for (const double y : {-width / 2, width / 2}) {
            const double exact = plane.at({x, y});
            largest = std::max(largest, std::fabs(exact));
            apart = std::max(apart, std::fabs(stressAt(u, x, y) - exact));
        }
    return apart / largest;
}

double processorSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

/// Seconds a problem in the median of the repetitions.
template <typename Work>
double timed(const Work& work) {
    std::array<double, repetitions> seconds{};
    for (double& one : seconds) {
        const double begin = processorSeconds();
        work();
        one = (processorSeconds() - begin) / problems;
    }
    std::sort(seconds.begin(), seconds.end());
    return seconds[repetitions / 2];
}

void printGeneral(const char* name, bool fibres, const std::vector<Load>& loads,
                  const std::vector<Anchor>& anchors, const equilibrium::Base& base) {
    int converged = 0;
    double apart = 0;
    for (const Load& load : loads) {
        const Solved solved = solveGenerally(problemOf(load, anchors, fibres));
        if (!solved.converged)
            continue;
        ++converged;
        apart = std::max(apart, difference(solved.u, base.solve(load).plane));
    }
    double sink = 0;
    const double seconds = timed([&] {
        for (const Load& load : loads)
            sink += solveGenerally(problemOf(load, anchors, fibres)).u[0];
    });
    std::printf(",\n \"%s\": {\"seconds\": %.4g, \"converged\": %d, \"apart\": %.3g, \"sum\": %g}",
                name, seconds, converged, apart, sink);
}

} // namespace

int main() {
    const std::vector<Anchor> anchors = sixAnchors();
    const equilibrium::Base base(length, width, ratio, anchors);
    testing::Dice dice(21);
    std::vector<Load> loads;
    while (loads.size() < problems) {
        const Load load{dice.between(50, 900), dice.between(-150, 150), dice.between(-60, 60)};
        loads.push_back(load);
    }
    double sink = 0;
    const double seconds = timed([&] {
        for (const Load& load : loads)
            sink += base.solve(load).sigmaConcrete;
    });
    double residual = 0;
    for (const Load& load : loads) {
        const equilibrium::Plane& plane = base.solve(load).plane;
        Problem problem = problemOf(load, anchors, false);
        const Unknowns u{plane.s0, plane.sx * length / 2, plane.sy * width / 2};
        std::array<double, 3> f{};
        residuals(&problem, 3, u.data(), f.data(), 1);
        for (const double one : f)
            residual = std::max(residual, std::fabs(one));
    }
    std::printf(
        "{\"problems\": %d, \"tolerance\": %g,\n \"own\": {\"seconds\": %.4g, \"residual\": "
        "%.3g, \"sum\": %g}",
        problems, tolerance, seconds, residual, sink);
    printGeneral("general", false, loads, anchors, base);
    printGeneral("fibres", true, loads, anchors, base);
    std::puts("}");
}
