#include "analysis/equilibrium.h"

#include <algorithm>

namespace ferna {

namespace {

[[gnu::cold, gnu::noinline, noreturn]] void fail(int number) {
    throw RunTimeError(number);
}

inline Integer shapeOfZone(const LineAngle& line, const Crossings<Double>& at) {
    const bool right = at.xT > -line.a;
    const bool above = at.yR > -line.b;
    if (right && above)
        return zone::Triangle;
    if (above && at.xT < -line.a)
        return zone::AlongLength;
    if (right && at.yR < -line.b)
        return zone::AlongWidth;
    return zone::LessTriangle; // also where the line runs through a corner of these edges
}

[[gnu::always_inline]] inline ZoneIntegrals<Double>
integralsOf(Integer shape, const LineAngle& line, const Crossings<Double>& at,
            const TriangleIntegrals<Double>& triangle) {
    constexpr std::true_type yes;
    constexpr std::false_type no;
    switch (shape) {
    case zone::Triangle:
        return zoneIntegrals(line, at, triangle, no, no);
    case zone::AlongLength:
        return zoneIntegrals(line, at, triangle, yes, no);
    case zone::AlongWidth:
        return zoneIntegrals(line, at, triangle, no, yes);
    default:
        return zoneIntegrals(line, at, triangle, yes, yes);
    }
}

inline void require(bool divisible) {
    if (!divisible) [[unlikely]]
        fail(error::DivisionByZero);
}

} // namespace

void Pole_strefy(Stan_przypadku& s) {
    const LineAngle line = lineAngle(s);
    const Double m = line.m;
    require(line.sine != 0 && m != 0);
    const Crossings<Double> at = crossings(line, s.C_linii);
    require(at.D != 0);
    const TriangleIntegrals<Double> triangle{m * m / 6 / at.D, m * m / 24 / at.D,
                                             1.0 / 24 / m / at.D};
    const Integer shape = shapeOfZone(line, at);
    const ZoneIntegrals<Double> zone = integralsOf(shape, line, at, triangle);
    require(zone.V != 0);
    s.Typ_strefy = shape;
    s.Pk_xT = at.xT;
    s.Pk_yR = at.yR;
    s.Pk_yL = at.yL;
    s.Pk_xB = at.xB;
    s.V_strefy = zone.V;
    s.Xs_strefy = zone.Mx / zone.V;
    s.Ys_strefy = zone.My / zone.V;
}

void Odleglosci_srub(Stan_przypadku& s, const CaseInput& in) {
    const Double sinBeta = s.Sin_beta;
    const Double cosBeta = s.Cos_beta;
    const Double c = s.C_linii;
    const Double* const x = s.Xn.data();
    const Double* const y = s.Yn.data();
    const Double* const area = in.area.data();
    Double* const distance = s.Odl_kotwy.data();

    std::fill(distance + 1, distance + 1 + MaxAnchors, 0.0);
    AnchorSums<Double> sums{0, 0};
    for (int i = 1; i <= in.anchors; ++i) {
        const Double d = (y[i] * sinBeta + x[i] * cosBeta) - c;
        distance[i] = d;
        sums.add(d, area[i]);
    }
    s.Suma_Ad = sums.Ad;
    s.Suma_Add = sums.Add;
}

void Rownowaga_c(Stan_przypadku& s, const CaseInput& in) {
    if (++s.Liczba_ocen > evaluationLimit) [[unlikely]]
        throw EvaluationLimitReached{};

    Pole_strefy(s);
    Odleglosci_srub(s, in);

    const AnchorSums<Double> sums{s.Suma_Ad, s.Suma_Add};
    const Equilibrium<Double> e = equilibriumAt(lineAngle(s), axialForce(s, in), s.C_linii,
                                                s.V_strefy, s.Xs_strefy, s.Ys_strefy, sums);
    require(e.forces != 0);
    s.Wsp_k = e.k;
    s.Sila_T = e.T;
    s.Sila_C = e.C;
    s.Ramie_C = e.arm;
    s.Os_C = e.along;
    s.Reszta_c = e.error;
    if (!std::isfinite(s.Reszta_c) || !std::isfinite(s.Os_C)) [[unlikely]]
        fail(error::Overflow);
}

void Rownowaga_beta(Stan_przypadku& s, const CaseInput& in) {
    s.Reszta_beta = 0;
    Odleglosci_srub(s, in);
    for (int i = 1; i <= in.anchors; ++i) {
        if (!(s.Odl_kotwy(i) < 0))
            continue;
        s.Reszta_beta +=
            (((s.Yn(i) - s.Ey) * s.Cos_beta - (s.Xn(i) - s.Ex) * s.Sin_beta)
             * ((s.Yn(i) * s.Sin_beta + s.Xn(i) * s.Cos_beta) - s.C_linii) * in.area(i))
            * in.n * s.Wsp_k;
    }
    s.Reszta_beta += s.Sila_C * s.Os_C;
    if (!std::isfinite(s.Reszta_beta)) [[unlikely]]
        fail(error::Overflow);
}

} // namespace ferna
