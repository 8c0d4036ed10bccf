#include "capacity/capacity_line.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferna {

namespace {

using equilibrium::Load;

constexpr double infinity = std::numeric_limits<double>::infinity();

/// The largest share of a limit that the line goes by; infinite where no equilibrium exists.
double share(const std::optional<Utilisation>& used) {
    return used ? std::max({used->concrete, used->tension, used->interaction}) : infinity;
}

/// A load on a ray: `centre` and `times` the way from there.
Load along(const Load& centre, const Load& way, double times) {
    return {centre.N + times * way.N, centre.M1 + times * way.M1, centre.M2 + times * way.M2};
}

Border borderOf(const Utilisation& used) {
    if (used.interaction >= std::max(used.concrete, used.tension))
        return Border::Interaction;
    return used.tension >= used.concrete ? Border::Tension : Border::Concrete;
}

/// A place on a ray: how far, and how much above what is borne, from -1 to 1: near the verge of
/// tipping over the reciprocal of the share falls evenly to 0.
struct Place {
    double at = 0;
    double share = 0;
    double excess = -1; ///< may be weighed less than it is

    Place() = default;
    Place(double where, double how)
        : at(where), share(how), excess(how <= 1 ? how - 1 : 1 - 1 / how) {}
    bool isBorne() const { return share <= 1; }
    bool isOnBorder(double within) const { return std::fabs(share - 1) <= within; }
};

/// The end of a ray: regula falsi between a place that is borne and one that is not. An end that
/// stays is weighed half (Illinois), every fourth step halves.
class BorderSearch {
public:
    BorderSearch(const Strength& strength, const Load& centre, const Load& way, const Shear& shear)
        : strength_(strength), centre_(centre), way_(way), shear_(shear) {}

    LinePoint find() {
        inside_ = look(0);
        outside_ = look(1);
        while (outside_.isBorne() && outside_.at < farthest) {
            inside_ = outside_;
            outside_ = look(2 * inside_.at);
        }
        for (int step = 1; step <= mostSteps; ++step)
            if (inside_.isOnBorder(enough) || outside_.isOnBorder(enough) || !narrow(step))
                break;
        return pointAt(outside_.isOnBorder(enough) ? outside_ : inside_);
    }

private:
    Place look(double at) const {
        return {at, share(strength_.used(along(centre_, way_, at), shear_))};
    }

    /// Brings the ends nearer to one another; false where there are no numbers left between them.
    bool narrow(int step) {
        const double low = inside_.at;
        const double high = outside_.at;
        const double middle = low + (high - low) / 2;
        const double chord =
            low - inside_.excess * (high - low) / (outside_.excess - inside_.excess);
        if (!(middle > low && middle < high))
            return false;
        const bool halve = step % 4 == 0 || !(chord > low && chord < high);
        const Place place = look(halve ? middle : chord);
        Place& stays = place.isBorne() ? outside_ : inside_;
        if (stayed_ == &stays)
            stays.excess /= 2;
        stayed_ = &stays;
        (place.isBorne() ? inside_ : outside_) = place;
        return true;
    }

    LinePoint pointAt(const Place& place) const {
        const Load load = along(centre_, way_, place.at);
        const Utilisation used = *strength_.used(load, shear_);
        constexpr double reached = 1e-9;
        return {load, used, place.isOnBorder(reached) ? borderOf(used) : Border::Tipping};
    }

    static constexpr int mostSteps = 300;
    static constexpr double enough = 1e-12;
    static constexpr double farthest = 1e300;
    const Strength& strength_;
    const Load& centre_;
    const Load& way_;
    const Shear& shear_;
    Place inside_;
    Place outside_;
    const Place* stayed_ = nullptr; ///< the end that the last step left where it was
};

/// A way in the plane of the moments, as long as a base of this size may bear.
Load momentWay(const Strength& strength, double N, double M1, double M2) {
    double pull = 0; // kN
    for (const equilibrium::Anchor& anchor : strength.anchors())
        pull += anchor.area * strength.limits().fd / 1e3;
    const double force = std::fabs(N) + pull;
    const double size = std::max(force, std::numeric_limits<double>::min()) / 2e3;
    return {0, size * M1, size * M2};
}

/// Anything borne at this N at all.
bool bearsAnything(const Strength& strength, const Load& centre, const Shear& shear) {
    return share(strength.used(centre, shear)) <= 1;
}

/// The sine and cosine of the nth of so many directions, exact on the axes.
struct Direction {
    double cosine;
    double sine;
};
Direction directionOf(int nth, int directions) {
    const double turn = 2.0 * nth / directions; // of half a circle
    const auto exact = [](double value) { return std::fabs(value) < 1e-15 ? 0 : value; };
    return {exact(std::cos(M_PI * turn)), exact(std::sin(M_PI * turn))};
}

/// How far a ray from the origin is borne: `of` what the checks are used at its way, without shear,
/// and `idle` what the shear uses without any load.
double rayLength(const Utilisation& of, const Utilisation& idle, const CheckLimits& limits) {
    const double room = idle.interaction > 0 ? std::sqrt(std::max(1 - idle.interaction, 0.0))
                                                   * limits.fd2 / limits.fd
                                             : 1.0;
    return std::min(1 / of.concrete, std::min(1.0, room) / of.tension);
}

std::optional<LinePoint> rayEnd(const Strength& strength, const Load& way, const Shear& shear,
                                const Utilisation& idle) {
    const std::optional<Utilisation> of = strength.used(way, {});
    if (!of)
        return std::nullopt;
    const auto pointAt = [&](double times) {
        const Load there = along({}, way, times);
        const std::optional<Utilisation> used = strength.used(there, shear);
        return used ? std::optional(LinePoint{there, *used, borderOf(*used)}) : std::nullopt;
    };
    const std::optional<LinePoint> sheared = pointAt(rayLength(*of, idle, strength.limits()));
    // Where friction takes the shear before the anchors are used up, the ray goes on without it.
    if (sheared && idle.interaction > 0 && sheared->used.interaction == 0)
        return pointAt(rayLength(*of, {}, strength.limits()));
    return sheared;
}

} // namespace

Load easiestLoad(const Strength& strength, double N) {
    Load centre{N, 0, 0};
    double areas = 0;
    for (const equilibrium::Anchor& anchor : strength.anchors())
        areas += anchor.area;
    if (N < 0 && areas > 0)
        for (const equilibrium::Anchor& anchor : strength.anchors()) {
            centre.M1 += N * anchor.x / 1e3 * anchor.area / areas;
            centre.M2 += N * anchor.y / 1e3 * anchor.area / areas;
        }
    return centre;
}

CapacityLine momentLine(const Strength& strength, double N, const Shear& shear, int directions) {
    CapacityLine line{easiestLoad(strength, N), {}};
    if (!bearsAnything(strength, line.centre, shear))
        return line;
    line.points.reserve(static_cast<std::size_t>(directions));
    for (int k = 0; k < directions; ++k) {
        const Direction direction = directionOf(k, directions);
        const Load way = momentWay(strength, N, direction.cosine * strength.length(),
                                   direction.sine * strength.width());
        line.points.push_back(BorderSearch(strength, line.centre, way, shear).find());
    }
    return line;
}

std::optional<LinePoint> onMomentLine(const Strength& strength, const Load& load,
                                      const Shear& shear) {
    const Load centre = easiestLoad(strength, load.N);
    const Load way{0, load.M1 - centre.M1, load.M2 - centre.M2};
    if ((way.M1 == 0 && way.M2 == 0) || !bearsAnything(strength, centre, shear))
        return std::nullopt;
    return BorderSearch(strength, centre, way, shear).find();
}

CapacityLine axialLine(const Strength& strength, Moment moment, const Shear& shear,
                       int directions) {
    CapacityLine line;
    const std::optional<Utilisation> idle = strength.used({}, shear);
    if (!idle || idle->interaction >= 1)
        return line;
    const double force = 2 * strength.limits().Rb * strength.length() * strength.width() / 1e3;
    const double side = moment == Moment::M1 ? strength.length() : strength.width();
    line.points.reserve(static_cast<std::size_t>(directions));
    for (int k = 0; k < directions; ++k) {
        const Direction direction = directionOf(k, directions);
        Load way{force * direction.cosine, 0, 0};
        (moment == Moment::M1 ? way.M1 : way.M2) = force * side / 6e3 * direction.sine;
        // Where nothing balances the ray, it ends in the origin.
        line.points.push_back(
            rayEnd(strength, way, shear, *idle).value_or(LinePoint{{}, *idle, Border::Tipping}));
    }
    return line;
}

double loadFactor(const Strength& strength, const Load& load, const Shear& shear) {
    constexpr double counted = 0.01; // kN, what counts as a horizontal force
    const double V = std::hypot(shear.Vx, shear.Vy);
    // Grown so far that V counts.
    const double grown = V > 0 ? std::max(1.0, 2 * counted / V) : 1;
    const std::optional<Utilisation> used =
        strength.used(along({}, load, grown), {grown * shear.Vx, grown * shear.Vy});
    if (!used)
        return 0;
    const double stress = std::max(used->concrete, used->tension);
    const double whole = std::max({stress, used->shear, std::sqrt(used->interaction)});
    const double unsheared = V > 0 ? std::min(grown / stress, counted / V) : 0;
    return std::max(grown / whole, unsheared);
}

} // namespace ferna
