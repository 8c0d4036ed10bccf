#include "equilibrium/newton.h"

#include <algorithm>
#include <cmath>

namespace ferna::equilibrium {

namespace {

constexpr int mostSteps = 400;

/// A plane with what the section answers to it.
struct Trial {
    CornerPlane plane;
    Response response;
    Vector3 error; ///< load less the force carried, about the corner
    double size;   ///< of the error
    double energy; ///< the function that is least at the equilibrium
};

Trial trialOf(const Section& section, const Vector3& load, const CornerPlane& plane) noexcept {
    Trial trial;
    trial.plane = plane.facingLargest();
    trial.response = responseOf(section, trial.plane);
    const Vector3 about = trial.plane.aboutCorner(load);
    for (std::size_t k = 0; k < 3; ++k)
        trial.error[k] = about[k] - trial.response.force[k];
    trial.size = sizeAboutCentre(trial.error);
    trial.energy = dot(trial.plane.z, trial.response.force) / 2 - dot(trial.plane.z, about);
    return trial;
}

CornerPlane moved(const CornerPlane& plane, const Vector3& way, double share) noexcept {
    CornerPlane result = plane;
    for (std::size_t k = 0; k < 3; ++k)
        result.z[k] += share * way[k];
    return result;
}

/// Newton's way; where nothing resists some turn of the plate, the uncracked plate does a little.
Vector3 wayFrom(const Trial& trial) noexcept {
    Vector3 way{};
    if (solve(trial.response.stiffness, trial.error, way))
        return way;
    for (double share = 1e-6;; share *= 100) {
        Moments m = trial.response.stiffness;
        m.one += share * wholeSquare.one;
        m.u += share * wholeSquare.u;
        m.v += share * wholeSquare.v;
        m.uu += share * wholeSquare.uu;
        m.uv += share * wholeSquare.uv;
        m.vv += share * wholeSquare.vv;
        if (solve(m, trial.error, way) || share > 1e6)
            return way;
    }
}

/// True where the step brings the energy down enough, or the energies no longer tell.
bool accepts(const Trial& from, const Trial& to, double slope) noexcept {
    const double noise = 1e-14 * std::fabs(from.energy);
    return to.energy <= from.energy - 1e-4 * slope + noise
           && (slope > noise || to.size < from.size);
}

/// Goes along the way, halving it until the energy falls enough.
Trial stepFrom(const Section& section, const Vector3& load, const Trial& from,
               int& steps) noexcept {
    const Vector3 way = wayFrom(from);
    const double slope = dot(from.error, way);
    double share = 1;
    Trial to = trialOf(section, load, moved(from.plane, way, share));
    ++steps;
    for (int cut = 0; cut < 60 && !accepts(from, to, slope * share); ++cut) {
        share /= 2;
        to = trialOf(section, load, moved(from.plane, way, share));
        ++steps;
    }
    return to;
}

} // namespace

double sizeAboutCentre(const Vector3& error) noexcept {
    return std::max(
        {std::fabs(error[0]), std::fabs(error[0] - error[1]), std::fabs(error[0] - error[2])});
}

Balance balance(const Section& section, const Vector3& load) noexcept {
    constexpr double enough = 1e-14;
    constexpr double nearlyEnough = 1e-11;
    Vector3 start{};
    solve(section.whole, load, start);
    int steps = 1;
    Trial best = trialOf(section, load, fromCentre(start));
    Trial now = best;
    while (now.size > enough && steps < mostSteps) {
        const double before = now.size;
        now = stepFrom(section, load, now, steps);
        if (now.size < best.size)
            best = now;
        else if (best.size < nearlyEnough)
            break;
        if (now.size < nearlyEnough && now.size > before / 2)
            break;
    }
    return {best.plane, best.size, steps};
}

} // namespace ferna::equilibrium
