#include "equilibrium/equilibrium.h"

#include "equilibrium/newton.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferna::equilibrium {

namespace {

bool isAmount(double value) noexcept {
    return std::isfinite(value) && value >= 0;
}

} // namespace

Base::Base(double length, double width, double n, std::span<const Anchor> anchors) noexcept
    : halfLength_(length / 2), halfWidth_(width / 2), n_(n) {
    usable_ = isAmount(length) && isAmount(width) && length > 0 && width > 0 && isAmount(n);
    section_.count = static_cast<int>(std::min<std::size_t>(anchors.size(), mostAnchors));
    for (std::size_t i = 0; i < static_cast<std::size_t>(section_.count); ++i) {
        const Anchor& anchor = anchors[i];
        usable_ =
            usable_ && isAmount(anchor.area) && std::isfinite(anchor.x) && std::isfinite(anchor.y);
        section_.x[i] = anchor.x / halfLength_;
        section_.y[i] = anchor.y / halfWidth_;
        section_.weight[i] = n * anchor.area / (halfLength_ * halfWidth_);
    }
    if (!usable_)
        return;
    section_.prepare();
    tipping_.prepare(section_);
}

Result Base::solve(const Load& load) const noexcept {
    if (!usable_ || !std::isfinite(load.N) || !std::isfinite(load.M1) || !std::isfinite(load.M2))
        return {};
    // In N: what the load would be as a force at the edge of the plate.
    Vector3 forces{load.N * 1e3, load.M1 * 1e6 / halfLength_, load.M2 * 1e6 / halfWidth_};
    const double size =
        std::max({std::fabs(forces[0]), std::fabs(forces[1]), std::fabs(forces[2])});
    if (size == 0) {
        Result unloaded;
        unloaded.exists = true;
        return unloaded;
    }
    for (double& force : forces)
        force /= size;
    Vector3 carried = forces;
    if (!tipping_.carries(section_, carried))
        return tippedOver(forces);
    const Balance found = balance(section_, carried);
    // So near the verge that no plane of finite digits holds it.
    constexpr double balanced = 5e-11;
    if (!(found.residual < balanced) && tipping_.leavesTurns()) {
        Result beyond = tippedOver(forces);
        beyond.steps = found.steps;
        return beyond;
    }
    Result result = resultOf(found, size / (halfLength_ * halfWidth_));
    result.residual += std::fabs(carried[0] - forces[0]);
    return result;
}

Result Base::resultOf(const Balance& found, double scale) const noexcept {
    Result result;
    result.exists = true;
    const CornerPlane<double>& plane = found.plane;
    const Vector3& z = plane.z;
    const double s0 = found.finer ? static_cast<double>(found.finer->at(0, 0)) : plane.at(0, 0);
    result.plane = {scale * s0, -scale * plane.signX * z[1] / halfLength_,
                    -scale * plane.signY * z[2] / halfWidth_};
    result.sigmaConcrete = scale * std::max(z[0], 0.0);
    for (std::size_t i = 0; i < static_cast<std::size_t>(section_.count); ++i) {
        const double x = section_.x[i];
        const double y = section_.y[i];
        const double s = found.finer ? static_cast<double>(found.finer->at(x, y)) : plane.at(x, y);
        result.sigmaAnchor[i] = s < 0 ? n_ * scale * s : 0;
    }
    const Crossing line = crossingOf(plane);
    if (line.crosses) {
        const auto point = [&](double u, double v) {
            return Point{halfLength_ * plane.signX * (1 - u), halfWidth_ * plane.signY * (1 - v)};
        };
        result.neutralLine = Segment{point(line.u1, line.v1), point(line.u2, line.v2)};
    }
    result.residual = found.residual;
    result.steps = found.steps;
    return result;
}

Result Base::tippedOver(const Vector3& load) const noexcept {
    const Turn turn = tipping_.governing(load, halfLength_, halfWidth_);
    // turn.x x / a + turn.y y / b = 1, as far as corners and anchors reach along it.
    const double slopeX = turn.x / halfLength_;
    const double slopeY = turn.y / halfWidth_;
    const double steepness = slopeX * slopeX + slopeY * slopeY;
    const Point foot{slopeX / steepness, slopeY / steepness};
    const Point along{-slopeY / std::sqrt(steepness), slopeX / std::sqrt(steepness)};
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    const auto reach = [&](double x, double y) {
        const double place = along.x * x * halfLength_ + along.y * y * halfWidth_;
        least = std::min(least, place);
        most = std::max(most, place);
    };
    for (const double x : {-1.0, 1.0})
        for (const double y : {-1.0, 1.0})
            reach(x, y);
    for (std::size_t i = 0; i < static_cast<std::size_t>(section_.count); ++i)
        reach(section_.x[i], section_.y[i]);
    Result result;
    result.tippingAxis = {{{foot.x + least * along.x, foot.y + least * along.y},
                           {foot.x + most * along.x, foot.y + most * along.y}}};
    return result;
}

} // namespace ferna::equilibrium
