#include "analysis/march_ahead.h"

#include "analysis/equilibrium.h"

#include <cstring>

namespace ferna {

namespace {

/// So many numbers side by side, and as many truth values: all bits or none. The compiler takes the
/// instructions that the function around them may use.
template <int width>
struct Side {
    using Numbers [[gnu::vector_size(sizeof(Double) * width)]] = Double;
    using Truths [[gnu::vector_size(sizeof(Double) * width)]] = std::int64_t;
};
template <int width>
using Numbers = typename Side<width>::Numbers;
template <int width>
using Truths = typename Side<width>::Truths;

/// The zone of some of the lines: one of the shapes, for all of them alike, or of shapes unknown.
enum class Shapes { Triangle, AlongLength, AlongWidth, Any };

/// Where two lines of a march see the same of these shapes, all between them do.
Shapes shapesBetween(const LineAngle& line, Double first, Double last) {
    const Crossings<Double> one = crossings(line, first);
    const Crossings<Double> other = crossings(line, last);
    const auto both = [&one, &other](auto holds) { return holds(one) && holds(other); };
    const bool right = both([&line](const auto& at) { return at.xT > -line.a; });
    const bool above = both([&line](const auto& at) { return at.yR > -line.b; });
    if (right && above)
        return Shapes::Triangle;
    if (above && both([&line](const auto& at) { return at.xT < -line.a; }))
        return Shapes::AlongLength;
    if (right && both([&line](const auto& at) { return at.yR < -line.b; }))
        return Shapes::AlongWidth;
    return Shapes::Any;
}

/// The integrals of lines whose shapes are known, or of any shapes side by side.
template <Shapes shapes, typename Number>
[[gnu::always_inline]] inline ZoneIntegrals<Number>
integralsOf(const LineAngle& line, const Crossings<Number>& at,
            const TriangleIntegrals<Number>& triangle) {
    constexpr std::true_type yes;
    constexpr std::false_type no;
    if constexpr (shapes == Shapes::Triangle) {
        return zoneIntegrals(line, at, triangle, no, no);
    } else if constexpr (shapes == Shapes::AlongLength) {
        return zoneIntegrals(line, at, triangle, yes, no);
    } else if constexpr (shapes == Shapes::AlongWidth) {
        return zoneIntegrals(line, at, triangle, no, yes);
    } else {
        const auto right = at.xT > -line.a;
        const auto above = at.yR > -line.b;
        const auto onlyLength = (at.xT < -line.a) & above;
        const auto onlyWidth = right & (at.yR < -line.b);
        const auto lessTriangle = ~((right & above) | onlyLength | onlyWidth);
        return zoneIntegrals(line, at, triangle, onlyLength | lessTriangle,
                             onlyWidth | lessTriangle);
    }
}

/// The errors of `Rownowaga_c` at the distances c.
template <int width, Shapes shapes>
[[gnu::always_inline]] inline Numbers<width> errorsOf(const MarchAhead::Angle& angle,
                                                      const Numbers<width>& c) {
    const Crossings<Numbers<width>> at = crossings(angle.line, c);
    const TriangleIntegrals<Numbers<width>> triangle{angle.volume / at.D, angle.x / at.D,
                                                     angle.y / at.D};
    const ZoneIntegrals<Numbers<width>> zone = integralsOf<shapes>(angle.line, at, triangle);
    const Numbers<width> Xs = zone.Mx / zone.V;
    const Numbers<width> Ys = zone.My / zone.V;
    AnchorSums<Numbers<width>> sums{c - c, c - c};
    for (std::size_t i = 0; i < static_cast<std::size_t>(angle.anchors); ++i)
        sums.add(angle.projection[i] - c, angle.area[i]);
    const Equilibrium<Numbers<width>> e =
        equilibriumAt(angle.line, angle.force, c, zone.V, Xs, Ys, sums);
    const Numbers<width> all = e.error + e.along;
    const Truths<width> fails = (at.D == 0) | (zone.V == 0) | (e.forces == 0) | (all - all != 0);
    return reinterpret_cast<Numbers<width>>(reinterpret_cast<Truths<width>>(e.error) | fails);
}

template <int width, Shapes shapes>
[[gnu::always_inline]] inline void errorsOfRow(const MarchAhead::Angle& angle,
                                               const MarchAhead::Row& distances, std::size_t count,
                                               MarchAhead::Row& errors) {
    for (std::size_t i = 0; i < count; i += width) {
        Numbers<width> c;
        std::memcpy(&c, &distances[i], sizeof c);
        const Numbers<width> some = errorsOf<width, shapes>(angle, c);
        std::memcpy(&errors[i], &some, sizeof some);
    }
}

template <int width>
[[gnu::always_inline]] inline void errorsOfRow(const MarchAhead::Angle& angle,
                                               const MarchAhead::Row& distances, std::size_t count,
                                               MarchAhead::Row& errors) {
    switch (shapesBetween(angle.line, distances.front(), distances[count - 1])) {
    case Shapes::Triangle:
        return errorsOfRow<width, Shapes::Triangle>(angle, distances, count, errors);
    case Shapes::AlongLength:
        return errorsOfRow<width, Shapes::AlongLength>(angle, distances, count, errors);
    case Shapes::AlongWidth:
        return errorsOfRow<width, Shapes::AlongWidth>(angle, distances, count, errors);
    case Shapes::Any:
        return errorsOfRow<width, Shapes::Any>(angle, distances, count, errors);
    }
}

void plain(const MarchAhead::Angle& angle, const MarchAhead::Row& distances, std::size_t count,
           MarchAhead::Row& errors) {
    errorsOfRow<2>(angle, distances, count, errors);
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] void avx2(const MarchAhead::Angle& angle, const MarchAhead::Row& distances,
                                  std::size_t count, MarchAhead::Row& errors) {
    errorsOfRow<4>(angle, distances, count, errors);
}
#else
constexpr auto avx2 = plain;
#endif

} // namespace

MarchAhead::Instructions MarchAhead::best() {
#if defined(__x86_64__)
    static const bool wide = __builtin_cpu_supports("avx2") != 0;
    return wide ? Instructions::Avx2 : Instructions::Plain;
#else
    return Instructions::Plain;
#endif
}

MarchAhead::MarchAhead(const Stan_przypadku& s, const CaseInput& in, Instructions instructions)
    : errors_(instructions == Instructions::Avx2 ? avx2 : plain) {
    const Double m = s.Nachylenie;
    angle_.line = lineAngle(s);
    angle_.force = axialForce(s, in);
    angle_.volume = m * m / 6;
    angle_.x = m * m / 24;
    angle_.y = 1.0 / 24 / m;
    angle_.anchors = in.anchors;
    for (int i = 1; i <= angle_.anchors; ++i) {
        const auto place = static_cast<std::size_t>(i - 1);
        angle_.projection[place] = s.Yn(i) * s.Sin_beta + s.Xn(i) * s.Cos_beta;
        angle_.area[place] = in.area(i);
    }
}

MarchAhead::Row MarchAhead::at(const Row& distances, std::size_t count) const {
    Row errors;
    errors_(angle_, distances, count, errors);
    return errors;
}

} // namespace ferna
