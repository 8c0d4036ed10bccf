#include "analysis/march_ahead.h"

#include "analysis/zone_integrals.h"

#include <cstring>

namespace ferna {

namespace {

// Eight Doubles, and as many truth values: all bits or none. The compiler takes what instructions
// the function around them may use.
using Numbers = Double __attribute__((vector_size(sizeof(Double) * MarchAhead::lanes)));
using Truths = std::int64_t __attribute__((vector_size(sizeof(Double) * MarchAhead::lanes)));

[[gnu::always_inline]] inline Numbers where(const Truths& condition, const Numbers& value) {
    return reinterpret_cast<Numbers>(condition & reinterpret_cast<Truths>(value));
}

[[gnu::always_inline]] inline Truths isFinite(const Numbers& value) {
    return value - value == 0;
}

/// The formulas of `Rownowaga_c`, in its order of operations. A term that a lane does not have is
/// taken away from it as +0, which changes nothing.
[[gnu::always_inline]] inline void errorsAt(const MarchAhead::Angle& line, const Numbers& c,
                                            Numbers& Reszta_c) {
    const Double a = line.a;
    const Double b = line.b;
    const Double m = line.m;

    // Pole_strefy
    const Numbers p = c / line.sine;
    const Numbers D = b - m * a - p;
    const Numbers xT = (b - p) / m;
    const Numbers yR = m * a + p;
    const Numbers yL = -m * a + p;
    const Numbers xB = (-b - p) / m;
    const TriangleIntegrals<Numbers> triangle{line.volume / D, line.x / D, line.y / D};
    const Truths right = xT > -a;
    const Truths above = yR > -b;
    const Truths onlyLength = (xT < -a) & above;
    const Truths onlyWidth = right & (yR < -b);
    const Truths lessTriangle = ~((right & above) | onlyLength | onlyWidth);
    const Truths left = onlyLength | lessTriangle;
    const Truths below = onlyWidth | lessTriangle;
    const Numbers V = triangle.T0(a, xT) - where(left, triangle.T0(-a, xT))
                      - where(below, triangle.T0(a, xB));
    const Numbers Mx = triangle.T1(a, xT) - where(left, triangle.T1(-a, xT))
                       - where(below, triangle.T1(a, xB));
    const Numbers My = triangle.T2(b, yR) - where(left, triangle.T2(b, yL))
                       - where(below, triangle.T2(-b, yR));
    const Numbers Xs = Mx / V;
    const Numbers Ys = My / V;

    // Odleglosci_srub
    Numbers sumAd = c - c;
    Numbers sumAdd = sumAd;
    for (std::size_t i = 0; i < static_cast<std::size_t>(line.anchors); ++i) {
        const Numbers d = line.projection[i] - c;
        const Truths inTension = d < 0;
        sumAd += where(inTension, d * line.area[i]);
        sumAdd += where(inTension, d * d * line.area[i]);
    }

    // Rownowaga_c
    const Numbers W = V * (line.corner - c);
    const Numbers forces = W + line.n * sumAd;
    const Numbers k = line.N / forces;
    const Numbers T = (-line.n * sumAd) * k;
    const Numbers C = W * k;
    const Numbers arm = (Ys * line.sine + Xs * line.cosine) - c;
    const Numbers along = (Ys - line.Ey) * line.cosine - (Xs - line.Ex) * line.sine;
    Reszta_c = line.N * (line.axial - c) - C * arm;
    const Truths tension = sumAd != 0;
    Reszta_c += where(tension, (sumAdd * T) / sumAd);
    const Truths wrong = (D == 0) | (V == 0) | (forces == 0) | ~isFinite(Reszta_c + along);
    Reszta_c = reinterpret_cast<Numbers>(reinterpret_cast<Truths>(Reszta_c) | wrong);
}

[[gnu::always_inline]] inline void errorsOf(const MarchAhead::Angle& line,
                                            const MarchAhead::Row& distances,
                                            MarchAhead::Row& errors) {
    Numbers c;
    Numbers Reszta_c;
    std::memcpy(&c, distances.data(), sizeof c);
    errorsAt(line, c, Reszta_c);
    std::memcpy(errors.data(), &Reszta_c, sizeof Reszta_c);
}

void plain(const MarchAhead::Angle& line, const MarchAhead::Row& distances,
           MarchAhead::Row& errors) {
    errorsOf(line, distances, errors);
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] void avx2(const MarchAhead::Angle& line, const MarchAhead::Row& distances,
                                  MarchAhead::Row& errors) {
    errorsOf(line, distances, errors);
}

[[gnu::target("avx512f,avx512dq")]] void avx512(const MarchAhead::Angle& line,
                                                const MarchAhead::Row& distances,
                                                MarchAhead::Row& errors) {
    errorsOf(line, distances, errors);
}
#else
constexpr auto avx2 = plain;
constexpr auto avx512 = plain;
#endif

} // namespace

MarchAhead::Instructions MarchAhead::best() {
#if defined(__x86_64__)
    static const Instructions found = __builtin_cpu_supports("avx512dq") ? Instructions::Avx512
                                      : __builtin_cpu_supports("avx2")   ? Instructions::Avx2
                                                                         : Instructions::Plain;
    return found;
#else
    return Instructions::Plain;
#endif
}

MarchAhead::MarchAhead(const Stan_przypadku& s, const Stan& stan, Instructions instructions)
    : errors_(instructions == Instructions::Avx512 ? avx512
              : instructions == Instructions::Avx2 ? avx2
                                                   : plain) {
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

MarchAhead::Row MarchAhead::at(const Row& distances) const {
    Row errors;
    errors_(angle_, distances, errors);
    return errors;
}

} // namespace ferna
