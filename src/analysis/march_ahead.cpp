#include "analysis/march_ahead.h"

#include "analysis/zone_integrals.h"

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

/// The value where the condition holds, else +0.
template <int width>
[[gnu::always_inline]] inline Numbers<width> where(const Truths<width>& condition,
                                                   const Numbers<width>& value) {
    return reinterpret_cast<Numbers<width>>(condition & reinterpret_cast<Truths<width>>(value));
}

/// The zone of some of the lines: one of the shapes, for all of them alike, or of shapes unknown.
enum class Shapes { Triangle, AlongLength, AlongWidth, Any };

/// Where two lines of a march see the same of these shapes, all between them do.
Shapes shapesBetween(const MarchAhead::Angle& line, Double first, Double last) {
    const auto xT = [&line](Double c) { return (line.b - c / line.sine) / line.m; };
    const auto yR = [&line](Double c) { return line.m * line.a + c / line.sine; };
    const auto both = [first, last](auto holds) { return holds(first) && holds(last); };
    const bool right = both([&](Double c) { return xT(c) > -line.a; });
    const bool above = both([&](Double c) { return yR(c) > -line.b; });
    if (right && above)
        return Shapes::Triangle;
    if (above && both([&](Double c) { return xT(c) < -line.a; }))
        return Shapes::AlongLength;
    if (right && both([&](Double c) { return yR(c) < -line.b; }))
        return Shapes::AlongWidth;
    return Shapes::Any;
}

/// The formulas of `Rownowaga_c`, in its order of operations. A term that a line does not have is
/// taken away from it as +0, which changes nothing.
template <int width, Shapes shapes>
[[gnu::always_inline]] inline Numbers<width> errorsOf(const MarchAhead::Angle& line,
                                                      const Numbers<width>& c) {
    const Double a = line.a;
    const Double b = line.b;
    const Double m = line.m;

    // Pole_strefy
    const Numbers<width> p = c / line.sine;
    const Numbers<width> D = b - m * a - p;
    const Numbers<width> xT = (b - p) / m;
    const Numbers<width> yR = m * a + p;
    const TriangleIntegrals<Numbers<width>> triangle{line.volume / D, line.x / D, line.y / D};
    const Truths<width> right = xT > -a;
    const Truths<width> above = yR > -b;
    const Truths<width> onlyLength = (xT < -a) & above;
    const Truths<width> onlyWidth = right & (yR < -b);
    const Truths<width> lessTriangle = ~((right & above) | onlyLength | onlyWidth);
    Numbers<width> V = triangle.T0(a, xT);
    Numbers<width> Mx = triangle.T1(a, xT);
    Numbers<width> My = triangle.T2(b, yR);
    if constexpr (shapes == Shapes::AlongLength || shapes == Shapes::Any) {
        const Numbers<width> yL = -m * a + p;
        const Truths<width> left = onlyLength | lessTriangle;
        V = V - where<width>(left, triangle.T0(-a, xT));
        Mx = Mx - where<width>(left, triangle.T1(-a, xT));
        My = My - where<width>(left, triangle.T2(b, yL));
    }
    if constexpr (shapes == Shapes::AlongWidth || shapes == Shapes::Any) {
        const Numbers<width> xB = (-b - p) / m;
        const Truths<width> below = onlyWidth | lessTriangle;
        V = V - where<width>(below, triangle.T0(a, xB));
        Mx = Mx - where<width>(below, triangle.T1(a, xB));
        My = My - where<width>(below, triangle.T2(-b, yR));
    }
    const Numbers<width> Xs = Mx / V;
    const Numbers<width> Ys = My / V;

    // Odleglosci_srub
    Numbers<width> sumAd = c - c;
    Numbers<width> sumAdd = sumAd;
    for (std::size_t i = 0; i < static_cast<std::size_t>(line.anchors); ++i) {
        const Numbers<width> d = line.projection[i] - c;
        const Truths<width> inTension = d < 0;
        sumAd += where<width>(inTension, d * line.area[i]);
        sumAdd += where<width>(inTension, d * d * line.area[i]);
    }

    // Rownowaga_c
    const Numbers<width> W = V * (line.corner - c);
    const Numbers<width> forces = W + line.n * sumAd;
    const Numbers<width> k = line.N / forces;
    const Numbers<width> T = (-line.n * sumAd) * k;
    const Numbers<width> C = W * k;
    const Numbers<width> arm = (Ys * line.sine + Xs * line.cosine) - c;
    const Numbers<width> along = (Ys - line.Ey) * line.cosine - (Xs - line.Ex) * line.sine;
    Numbers<width> error = line.N * (line.axial - c) - C * arm;
    const Truths<width> tension = sumAd != 0;
    error += where<width>(tension, (sumAdd * T) / sumAd);
    const Numbers<width> all = error + along;
    const Truths<width> fails = (D == 0) | (V == 0) | (forces == 0) | (all - all != 0);
    return reinterpret_cast<Numbers<width>>(reinterpret_cast<Truths<width>>(error) | fails);
}

template <int width, Shapes shapes>
[[gnu::always_inline]] inline void errorsOfRow(const MarchAhead::Angle& line,
                                               const MarchAhead::Row& distances, std::size_t count,
                                               MarchAhead::Row& errors) {
    for (std::size_t i = 0; i < count; i += width) {
        Numbers<width> c;
        std::memcpy(&c, &distances[i], sizeof c);
        const Numbers<width> some = errorsOf<width, shapes>(line, c);
        std::memcpy(&errors[i], &some, sizeof some);
    }
}

template <int width>
[[gnu::always_inline]] inline void errorsOfRow(const MarchAhead::Angle& line,
                                               const MarchAhead::Row& distances, std::size_t count,
                                               MarchAhead::Row& errors) {
    switch (shapesBetween(line, distances.front(), distances[count - 1])) {
    case Shapes::Triangle:
        return errorsOfRow<width, Shapes::Triangle>(line, distances, count, errors);
    case Shapes::AlongLength:
        return errorsOfRow<width, Shapes::AlongLength>(line, distances, count, errors);
    case Shapes::AlongWidth:
        return errorsOfRow<width, Shapes::AlongWidth>(line, distances, count, errors);
    case Shapes::Any:
        return errorsOfRow<width, Shapes::Any>(line, distances, count, errors);
    }
}

void plain(const MarchAhead::Angle& line, const MarchAhead::Row& distances, std::size_t count,
           MarchAhead::Row& errors) {
    errorsOfRow<2>(line, distances, count, errors);
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] void avx2(const MarchAhead::Angle& line, const MarchAhead::Row& distances,
                                  std::size_t count, MarchAhead::Row& errors) {
    errorsOfRow<4>(line, distances, count, errors);
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

MarchAhead::MarchAhead(const Stan_przypadku& s, const Stan& stan, Instructions instructions)
    : errors_(instructions == Instructions::Avx2 ? avx2 : plain) {
    const Double m = s.Nachylenie;
    angle_.a = s.Pol_a;
    angle_.b = s.Pol_b;
    angle_.m = m;
    angle_.sine = s.Sin_beta;
    angle_.cosine = s.Cos_beta;
    angle_.volume = m * m / 6;
    angle_.x = m * m / 24;
    angle_.y = 1.0 / 24 / m;
    angle_.corner = s.Pol_b * s.Sin_beta + s.Pol_a * s.Cos_beta;
    angle_.axial = s.Ey * s.Sin_beta + s.Ex * s.Cos_beta;
    angle_.Ex = s.Ex;
    angle_.Ey = s.Ey;
    angle_.N = stan.obciazenia.Sila_N_kG(stan.obciazenia.Nr_przyp);
    angle_.n = stan.opcje.Wsp_n_val;
    angle_.anchors = stan.plyta.Liczba_srub;
    for (int i = 1; i <= angle_.anchors; ++i) {
        const auto place = static_cast<std::size_t>(i - 1);
        angle_.projection[place] = s.Yn(i) * s.Sin_beta + s.Xn(i) * s.Cos_beta;
        angle_.area[place] = stan.plyta.Pole_kotwy(i);
    }
}

MarchAhead::Row MarchAhead::at(const Row& distances, std::size_t count) const {
    Row errors;
    errors_(angle_, distances, count, errors);
    return errors;
}

} // namespace ferna
