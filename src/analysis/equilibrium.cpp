#include "analysis/equilibrium.h"

#include "analysis/zone_integrals.h"

#include <algorithm>

namespace ferna {

namespace {

[[gnu::cold, gnu::noinline, noreturn]] void fail(int number) {
    throw RunTimeError(number);
}

/// Division as the environment does it, inlined for the hot path.
inline Double over(Double dividend, Double divisor) {
    if (divisor == 0) [[unlikely]]
        fail(error::DivisionByZero);
    return dividend / divisor;
}

Integer shapeOfZone(Double xT, Double yR, Double a, Double b) {
    if (xT > -a && yR > -b)
        return zone::Triangle;
    if (xT < -a && yR > -b)
        return zone::AlongLength;
    if (xT <= -a && yR <= -b)
        return zone::LessTriangle;
    if (xT == -a)
        return zone::LessTriangle;
    if (xT > -a && yR < -b)
        return zone::AlongWidth;
    return zone::LessTriangle; // the line runs through the corner (a, -b)
}

} // namespace

void Pole_strefy(Stan_przypadku& s) {
    const Double a = s.Pol_a;
    const Double b = s.Pol_b;
    const Double m = s.Nachylenie;
    const Double p = over(s.C_linii, s.Sin_beta);
    const Double D = b - m * a - p; // height of the corner (a, b) above the line, along y
    const Double xT = over(b - p, m);
    const Double yR = m * a + p;
    const Double yL = -m * a + p;
    const Double xB = (-b - p) / m;
    const TriangleIntegrals<Double> triangle{over(m * m / 6, D), m * m / 24 / D,
                                             over(1.0 / 24, m) / D};

    Double V = triangle.T0(a, xT);
    Double Mx = triangle.T1(a, xT);
    Double My = triangle.T2(b, yR);
    const Integer shape = shapeOfZone(xT, yR, a, b);
    switch (shape) {
    case zone::Triangle:
        break;
    case zone::AlongLength:
        V = V - triangle.T0(-a, xT);
        Mx = Mx - triangle.T1(-a, xT);
        My = My - triangle.T2(b, yL);
        break;
    case zone::AlongWidth:
        V = V - triangle.T0(a, xB);
        Mx = Mx - triangle.T1(a, xB);
        My = My - triangle.T2(-b, yR);
        break;
    default:
        V = V - triangle.T0(-a, xT) - triangle.T0(a, xB);
        Mx = Mx - triangle.T1(-a, xT) - triangle.T1(a, xB);
        My = My - triangle.T2(b, yL) - triangle.T2(-b, yR);
        break;
    }

    s.Typ_strefy = shape;
    s.Pk_xT = xT;
    s.Pk_yR = yR;
    s.Pk_yL = yL;
    s.Pk_xB = xB;
    s.V_strefy = V;
    s.Xs_strefy = over(Mx, V);
    s.Ys_strefy = My / V;
}

void Odleglosci_srub(Stan_przypadku& s, Plyta_i_kotwy& plate) {
    const Double sinBeta = s.Sin_beta;
    const Double cosBeta = s.Cos_beta;
    const Double c = s.C_linii;
    const Double* const x = s.Xn.data();
    const Double* const y = s.Yn.data();
    const Double* const area = plate.Pole_kotwy.data();
    Double* const distance = plate.Odl_kotwy.data();
    const int count = plate.Liczba_srub;

    std::fill(distance + 1, distance + 1 + MaxAnchors, 0.0);
    Double sumAd = 0;
    Double sumAdd = 0;
    for (int i = 1; i <= count; ++i) {
        const Double d = (y[i] * sinBeta + x[i] * cosBeta) - c;
        distance[i] = d;
        if (d < 0) {
            sumAd += d * area[i];
            sumAdd += d * d * area[i];
        }
    }
    s.Suma_Ad = sumAd;
    s.Suma_Add = sumAdd;
}

void Rownowaga_c(Stan_przypadku& s, Stan& stan) {
    if (++s.Liczba_ocen > evaluationLimit) [[unlikely]]
        throw EvaluationLimitReached{};

    Pole_strefy(s);
    Odleglosci_srub(s, stan.plyta);

    const Double Nk = stan.obciazenia.Sila_N_kG(stan.obciazenia.Nr_przyp);
    const Double n = stan.opcje.Wsp_n_val;
    const Double W = s.V_strefy * ((s.Pol_b * s.Sin_beta + s.Pol_a * s.Cos_beta) - s.C_linii);
    s.Wsp_k = over(Nk, W + n * s.Suma_Ad); // equilibrium of forces, exactly
    s.Sila_T = (-n * s.Suma_Ad) * s.Wsp_k;
    s.Sila_C = W * s.Wsp_k;
    s.Ramie_C = (s.Ys_strefy * s.Sin_beta + s.Xs_strefy * s.Cos_beta) - s.C_linii;
    s.Os_C = (s.Ys_strefy - s.Ey) * s.Cos_beta - (s.Xs_strefy - s.Ex) * s.Sin_beta;
    const Double dN = (s.Ey * s.Sin_beta + s.Ex * s.Cos_beta) - s.C_linii;
    s.Reszta_c = Nk * dN - s.Sila_C * s.Ramie_C;
    if (s.Suma_Ad != 0)
        s.Reszta_c += (s.Suma_Add * s.Sila_T) / s.Suma_Ad;
    if (!std::isfinite(s.Reszta_c) || !std::isfinite(s.Os_C)) [[unlikely]]
        fail(error::Overflow);
}

void Rownowaga_beta(Stan_przypadku& s, Stan& stan) {
    s.Reszta_beta = 0;
    Odleglosci_srub(s, stan.plyta);
    const Double n = stan.opcje.Wsp_n_val;
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i) {
        if (!(stan.plyta.Odl_kotwy(i) < 0))
            continue;
        s.Reszta_beta += (((s.Yn(i) - s.Ey) * s.Cos_beta - (s.Xn(i) - s.Ex) * s.Sin_beta)
                          * ((s.Yn(i) * s.Sin_beta + s.Xn(i) * s.Cos_beta) - s.C_linii)
                          * stan.plyta.Pole_kotwy(i))
                         * n * s.Wsp_k;
    }
    s.Reszta_beta += s.Sila_C * s.Os_C;
    if (!std::isfinite(s.Reszta_beta)) [[unlikely]]
        fail(error::Overflow);
}

} // namespace ferna
