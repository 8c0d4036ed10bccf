#include "equilibrium/tipping.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferna::equilibrium {

namespace {

/// Places nearer than this, in half plates, count as one.
constexpr double touching = 1e-12;
/// Share of the load by which it may miss the verge.
constexpr double verge = 1e-12;

double workOf(const Vector3& load, const Turn& turn) noexcept {
    return turn.x * load[1] + turn.y * load[2] - load[0];
}

double liftAt(const Turn& turn, double x, double y) noexcept {
    return turn.x * x + turn.y * y - 1;
}

double sizeAt(const Turn& turn, double x, double y) noexcept {
    return 1 + std::fabs(turn.x * x) + std::fabs(turn.y * y);
}

bool isFree(const Section& section, const Turn& turn) noexcept {
    if (std::fabs(turn.x) + std::fabs(turn.y) > 1 + touching)
        return false;
    for (std::size_t i = 0; i < static_cast<std::size_t>(section.count); ++i)
        if (section.weight[i] > 0
            && liftAt(turn, section.x[i], section.y[i])
                   < -touching * sizeAt(turn, section.x[i], section.y[i]))
            return false;
    return true;
}

bool holdsFast(double x, double y) noexcept {
    return std::max(std::fabs(x), std::fabs(y)) < 1 - touching;
}

} // namespace

void Tipping::consider(const Section& section, const Vector3& first,
                       const Vector3& second) noexcept {
    // The axis through both points: first x second.
    const double constant = first[1] * second[2] - first[2] * second[1];
    const double byX = first[2] - second[2];
    const double byY = second[1] - first[1];
    if (std::fabs(byX) + std::fabs(byY) < touching || constant == 0)
        return;
    const Turn turn{-byX / constant, -byY / constant};
    if (!isFree(section, turn))
        return;
    for (std::size_t k = 0; k < static_cast<std::size_t>(count_); ++k)
        if (std::fabs(turns_[k].x - turn.x) + std::fabs(turns_[k].y - turn.y) < touching)
            return;
    if (count_ < static_cast<int>(turns_.size()))
        turns_[static_cast<std::size_t>(count_++)] = turn;
}

void Tipping::prepare(const Section& section) noexcept {
    count_ = 0;
    std::array<Vector3, mostAnchors + 4> points{{{1, 1, 1}, {1, -1, 1}, {1, -1, -1}, {1, 1, -1}}};
    std::size_t size = 4;
    for (std::size_t i = 0; i < static_cast<std::size_t>(section.count); ++i) {
        if (!(section.weight[i] > 0))
            continue;
        if (holdsFast(section.x[i], section.y[i]))
            return;
        points[size++] = {1, section.x[i], section.y[i]};
    }
    for (std::size_t i = 0; i < size; ++i)
        for (std::size_t j = i + 1; j < size; ++j)
            consider(section, points[i], points[j]);
}

bool Tipping::carries(const Section& section, Vector3& load) const noexcept {
    std::array<Turn, mostAnchors + 8> onVerge;
    std::size_t verging = 0;
    for (std::size_t k = 0; k < static_cast<std::size_t>(count_); ++k) {
        const double work = workOf(load, turns_[k]);
        if (work > verge)
            return false;
        if (work > -verge)
            onVerge[verging++] = turns_[k];
    }
    if (verging == 0)
        return true;
    // Only anchors on all these axes can carry it, and they pull.
    if (!(load[0] < -1e-9))
        return false;
    const double x = load[1] / load[0];
    const double y = load[2] / load[0];
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    const double alongX = -onVerge[0].y;
    const double alongY = onVerge[0].x;
    for (std::size_t i = 0; i < static_cast<std::size_t>(section.count); ++i) {
        const double ax = section.x[i];
        const double ay = section.y[i];
        bool onAll = section.weight[i] > 0;
        for (std::size_t k = 0; k < verging; ++k)
            onAll =
                onAll
                && std::fabs(liftAt(onVerge[k], ax, ay)) < touching * sizeAt(onVerge[k], ax, ay);
        if (!onAll)
            continue;
        const double along = alongX * ax + alongY * ay;
        least = std::min(least, along);
        most = std::max(most, along);
    }
    const double along = alongX * x + alongY * y;
    constexpr double slack = 1e-9;
    if (!(along > least - slack && along < most + slack))
        return false;
    load[0] += verge;
    return true;
}

Turn Tipping::governing(const Vector3& load, double halfLength, double halfWidth) const noexcept {
    Turn worst;
    double largest = -std::numeric_limits<double>::infinity();
    for (std::size_t k = 0; k < static_cast<std::size_t>(count_); ++k) {
        const Turn& turn = turns_[k];
        const double moment =
            workOf(load, turn) / std::hypot(turn.x / halfLength, turn.y / halfWidth);
        if (moment > largest) {
            largest = moment;
            worst = turn;
        }
    }
    return worst;
}

} // namespace ferna::equilibrium
