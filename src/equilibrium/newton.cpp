#include "equilibrium/newton.h"

#include <algorithm>

namespace ferna::equilibrium {

namespace {

/// What ends a search, as errors of a load of the size 1.
template <typename Number>
struct Accuracy;
template <>
struct Accuracy<double> {
    static constexpr double enough = 1e-15;
    static constexpr double nearby = 1e-9; ///< below it an error that halves no more is rounding
    static constexpr double noise = 1e-14; ///< of an energy
    static constexpr int mostTrials = 60;
};
template <>
struct Accuracy<Quad> {
    static constexpr double enough = 1e-18;
    static constexpr double nearby = 1e-16;
    static constexpr double noise = 1e-30;
    static constexpr double leastBed = 1e-24;
    static constexpr int mostTrials = 300;
};
template <>
struct Accuracy<Wide> {
    static constexpr double enough = 1e-18;
    static constexpr double nearby = 1e-16;
    static constexpr double noise = 1e-60;
    static constexpr double leastBed = 1e-56;
    static constexpr int mostTrials = 300;
};

/// A plane with what the section answers to it.
template <typename Number>
struct Trial {
    CornerPlane<Number> plane;
    Response<Number> response;
    Triple<Number> error; ///< load less the force carried, about the corner
    Number size;          ///< of the error, about the centre
    Number energy;        ///< the function that is least at the equilibrium
};

template <typename Number>
CornerPlane<Number> moved(const CornerPlane<Number>& plane, const Triple<Number>& way,
                          const Number& share) noexcept {
    CornerPlane<Number> result = plane;
    for (std::size_t k = 0; k < 3; ++k)
        result.z[k] += share * way[k];
    return result;
}

/// Newton's method from a plane, over a bed that pushes and pulls under the whole plate with this
/// share of the stiffness of concrete: with 0 that of the section itself.
template <typename Number>
class Search {
public:
    Search(const Section& section, const Vector3& load, const Number& bed, int& steps) noexcept
        : section_(section), load_(load), bed_(bed), steps_(steps) {}

    Trial<Number> from(const CornerPlane<Number>& start) noexcept {
        Trial<Number> now = at(start);
        const int last = steps_ + Accuracy<Number>::mostTrials;
        while (now.size > Accuracy<Number>::enough && steps_ < std::min(last, mostSteps)) {
            Triple<Number> way;
            if (!solve(now.response.stiffness, now.error, way))
                break;
            const Trial<Number> next = stepFrom(now, way);
            // Near the equilibrium every step gains digits, until there are no more to gain.
            const bool isNear = now.size < Accuracy<Number>::nearby;
            const bool gains = next.energy < now.energy || next.size < now.size;
            const bool isLast = !gains || (isNear && next.size > now.size / 2);
            if (next.size < now.size || (gains && !isNear))
                now = next;
            if (isLast)
                break;
        }
        return now;
    }

    Trial<Number> at(const CornerPlane<Number>& plane) noexcept {
        ++steps_;
        Trial<Number> trial;
        trial.plane = plane.facingLargest();
        trial.response = responseOf(section_, trial.plane);
        if (bed_ > 0)
            addBed(trial);
        const Triple<Number> about = trial.plane.aboutCorner(load_);
        for (std::size_t k = 0; k < 3; ++k)
            trial.error[k] = about[k] - trial.response.force[k];
        trial.size =
            std::max({magnitude(trial.error[0]), magnitude(trial.error[0] - trial.error[1]),
                      magnitude(trial.error[0] - trial.error[2])});
        trial.energy = dot(trial.plane.z, trial.response.force) / 2 - dot(trial.plane.z, about);
        return trial;
    }

private:
    void addBed(Trial<Number>& trial) const noexcept {
        const Moments<Number> bed = scaled(wholeSquare<Number>, bed_);
        trial.response.stiffness = sum(trial.response.stiffness, bed);
        const Triple<Number> force = product(bed, trial.plane.z);
        for (std::size_t k = 0; k < 3; ++k)
            trial.response.force[k] += force[k];
    }

    /// True where the energy has fallen in proportion to the slope, or the fall is lost in
    /// rounding.
    static bool fallsEnough(const Trial<Number>& from, const Trial<Number>& to,
                            const Number& expected) noexcept {
        return to.energy
               <= from.energy - expected / 10000 + Accuracy<Number>::noise * magnitude(from.energy);
    }

    /// The whole step along the way or, where that goes too far, a part of it.
    Trial<Number> stepFrom(const Trial<Number>& from, const Triple<Number>& way) noexcept {
        const Number slope = dot(from.error, way);
        Trial<Number> to = at(moved(from.plane, way, Number(1)));
        if (fallsEnough(from, to, slope))
            return to;
        const auto slopeAt = [&](const Trial<Number>& trial) {
            return dot(turned(trial.error, trial.plane, from.plane), way);
        };
        // The energy is convex along the way, so regula falsi finds where its slope is small; an
        // end that stays is given half its weight (Illinois).
        Number low = 0;
        Number atLow = slope;
        Number high = 1;
        Number atHigh = slopeAt(to);
        for (int cut = 0; cut < 40 && atHigh < 0 && steps_ < mostSteps; ++cut) {
            Number share = (low * atHigh - high * atLow) / (atHigh - atLow);
            if (!(share > low && share < high))
                break;
            share = std::max(share, low + (high - low) / 16);
            to = at(moved(from.plane, way, share));
            const Number here = slopeAt(to);
            if (magnitude(here) <= slope / 2 && fallsEnough(from, to, slope * share))
                break;
            if (here > 0) {
                low = share;
                atLow = here;
                atHigh /= 2;
            } else {
                high = share;
                atHigh = here;
                atLow /= 2;
            }
        }
        return to;
    }

    const Section& section_;
    const Vector3& load_;
    const Number bed_;
    int& steps_;
};

template <typename To, typename From>
CornerPlane<To> converted(const CornerPlane<From>& plane) noexcept {
    return {{static_cast<To>(plane.z[0]), static_cast<To>(plane.z[1]), static_cast<To>(plane.z[2])},
            plane.signX,
            plane.signY};
}

/// Where the plate can turn without resistance, on a bed that is taken away little by little: its
/// plane goes to the flattest of all that balance the load.
template <typename Number>
Trial<Number> softened(const Section& section, const Vector3& load, CornerPlane<Number> plane,
                       int& steps) noexcept {
    for (Number bed = 0.1; bed > Accuracy<Number>::leastBed; bed /= 16)
        plane = Search<Number>(section, load, bed, steps).from(plane).plane;
    return Search<Number>(section, load, 0, steps).from(plane);
}

/// The place to start from: nothing cracked, or without the anchors where the whole plate is
/// pressed by the load, which then is the equilibrium at once.
CornerPlane<double> firstPlane(const Section& section, const Vector3& load) noexcept {
    const Vector3 pressed{load[0] / 4, load[1] * 3 / 4, load[2] * 3 / 4};
    if (pressed[0] >= magnitude(pressed[1]) + magnitude(pressed[2]))
        return fromCentre(pressed);
    Vector3 start{};
    solve(section.whole, load, start);
    return fromCentre(start);
}

/// The plane where the anchors alone pull, all of them: for a load that they carry so, the
/// equilibrium, and the flattest one where they stand in a row.
CornerPlane<double> hangingPlane(const Section& section, const Vector3& load) noexcept {
    const Moments<double>& whole = section.whole;
    const Moments<double> anchors{whole.one - 4,      whole.u,  whole.v,
                                  whole.uu - 4.0 / 3, whole.uv, whole.vv - 4.0 / 3};
    const double bed = 1e-6 * anchors.one;
    const Moments<double> held = sum(anchors, {bed, 0, 0, bed, 0, bed});
    Vector3 plane{};
    for (int refined = 0; refined < 3; ++refined) {
        const Vector3 carried = product(anchors, plane);
        Vector3 more{};
        solve(held, {load[0] - carried[0], load[1] - carried[1], load[2] - carried[2]}, more);
        for (std::size_t k = 0; k < 3; ++k)
            plane[k] += more[k];
    }
    return fromCentre(plane);
}

} // namespace

Balance balance(const Section& section, const Vector3& load) noexcept {
    constexpr double fine = 1e-13;
    constexpr double nearby = 1e-6;
    int steps = 0;
    Search<double> search(section, load, 0, steps);
    if (load[0] < 0) {
        const Trial<double> hanging = search.at(hangingPlane(section, load));
        if (hanging.size < fine)
            return {hanging.plane, std::nullopt, hanging.size, steps};
    }
    const CornerPlane<double> first = firstPlane(section, load);
    const Trial<double> found = search.from(first);
    if (found.size < fine)
        return {found.plane, std::nullopt, found.size, steps};
    // Far from the goal the doubles have only led astray.
    const CornerPlane<Quad> next = converted<Quad>(found.size < nearby ? found.plane : first);
    Trial<Quad> finer = Search<Quad>(section, load, 0, steps).from(next);
    if (finer.size > fine)
        finer = softened(section, load, converted<Quad>(first), steps);
    if (finer.size < fine)
        return {converted<double>(finer.plane), converted<Wide>(finer.plane),
                static_cast<double>(finer.size), steps};
    const Trial<Wide> finest = softened(section, load, converted<Wide>(first), steps);
    return {converted<double>(finest.plane), finest.plane, static_cast<double>(finest.size), steps};
}

} // namespace ferna::equilibrium
