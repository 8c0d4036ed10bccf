#include "verification/published_examples.h"

#include "analysis/equilibrium.h"
#include "analysis/load_case.h"
#include "equilibrium/equilibrium.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"

#include <algorithm>
#include <cmath>

namespace ferna::testing {

namespace {

constexpr double kN = 1000 / Gravity; // in kG

void turn(Stan_przypadku& s, double beta, double c) {
    s.Beta = beta;
    s.Sin_beta = std::sin(beta);
    s.Cos_beta = std::cos(beta);
    s.Nachylenie = -s.Cos_beta / s.Sin_beta;
    s.C_linii = c;
}

/// Newton's method in short steps on both moment errors, with differences for derivatives.
void balance(Stan_przypadku& s, const CaseInput& in, double beta, double c) {
    const auto errors = [&](double atBeta, double atC) {
        turn(s, atBeta, atC);
        Rownowaga_c(s, in);
        Rownowaga_beta(s, in);
        return std::array{s.Reszta_c, s.Reszta_beta};
    };
    for (int step = 0; step < 200; ++step) {
        constexpr double h = 1e-6;
        const auto here = errors(beta, c);
        const auto byBeta = errors(beta + h, c);
        const auto byC = errors(beta, c + h);
        const double a11 = (byBeta[0] - here[0]) / h;
        const double a21 = (byBeta[1] - here[1]) / h;
        const double a12 = (byC[0] - here[0]) / h;
        const double a22 = (byC[1] - here[1]) / h;
        const double determinant = a11 * a22 - a12 * a21;
        beta -= std::clamp((here[0] * a22 - here[1] * a12) / determinant, -0.01, 0.01);
        c -= std::clamp((here[1] * a11 - here[0] * a21) / determinant, -0.1, 0.1);
    }
    s.Liczba_ocen = 0;
    errors(beta, c);
}

/// Tension in the anchor at a place in mm, kN.
double storedForce(const ColumnBase& base, double x, double y) {
    const Stan& stan = base.stan;
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        if (stan.plyta.X_kotwy_mm(i) == x && stan.plyta.Y_kotwy_mm(i) == y)
            return 0 - stan.wyniki.Sigma_kotwy(i)(1) * stan.plyta.Pole_kotwy(i) * 0.1;
    return std::nan("");
}

/// The exact equilibrium of a base, with the forces of its anchors in kN.
struct Exact {
    std::vector<equilibrium::Anchor> anchors;
    equilibrium::Load load;
    equilibrium::Result result;

    Exact(double length, double width, double n, std::vector<equilibrium::Anchor> all,
          equilibrium::Load applied)
        : anchors(std::move(all)), load(applied),
          result(equilibrium::Base(length, width, n, anchors).solve(load)) {}

    double forceOf(std::size_t i) const { return -result.sigmaAnchor[i] * anchors[i].area / 1000; }
    double force(double x, double y) const {
        for (std::size_t i = 0; i < anchors.size(); ++i)
            if (anchors[i].x == x && anchors[i].y == y)
                return forceOf(i);
        return std::nan("");
    }
    double tension() const {
        double sum = 0;
        for (std::size_t i = 0; i < anchors.size(); ++i)
            sum += forceOf(i);
        return sum;
    }
    /// Where the tension acts, mm, and where the pressure does, which carries it and the load.
    equilibrium::Point tensionAt() const {
        equilibrium::Point sum;
        for (std::size_t i = 0; i < anchors.size(); ++i) {
            sum.x += forceOf(i) * anchors[i].x / tension();
            sum.y += forceOf(i) * anchors[i].y / tension();
        }
        return sum;
    }
    equilibrium::Point pressureAt() const {
        const double pressure = load.N + tension();
        return {(1000 * load.M1 + tension() * tensionAt().x) / pressure,
                (1000 * load.M2 + tension() * tensionAt().y) / pressure};
    }
};

std::vector<equilibrium::Anchor> fourAnchorsOf(double area) {
    return {{-90, 90, area}, {-90, -90, area}, {90, 90, area}, {90, -90, area}};
}

} // namespace

double Compared::deviationOf(double figure) const {
    return published != 0 ? std::fabs(figure / published - 1) : std::fabs(figure);
}

std::vector<Compared> biaxialFourAnchors() {
    Stan stan;
    Stan_przypadku s;
    stan.obciazenia.Nr_przyp = 1;
    stan.obciazenia.Sila_N_kG(1) = CSng(14 * kN);
    stan.opcje.Wsp_n_val = 200.0F / 30;
    stan.plyta.Liczba_srub = 4;
    constexpr double places[][2] = {{-9, -9}, {-9, 9}, {9, -9}, {9, 9}};
    for (int i = 1; i <= 4; ++i) {
        s.Xn(i) = places[i - 1][0];
        s.Yn(i) = places[i - 1][1];
        stan.plyta.Pole_kotwy(i) = 0.843;
    }
    s.Pol_a = s.Pol_b = 12.5;
    s.Ex = 7.6 / 14 * 100;
    s.Ey = 1.0 / 14 * 100;
    balance(s, inputOf(stan), 0.09, 7.8);
    const auto force = [&](int i) {
        const double d = s.Odl_kotwy(i);
        return d < 0 ? -d * stan.opcje.Wsp_n_val * s.Wsp_k * stan.plyta.Pole_kotwy(i) / kN : 0;
    };
    const double corner = s.Pol_b * s.Sin_beta + s.Pol_a * s.Cos_beta - s.C_linii;
    const double first = force(1);
    const double second = force(2);
    const Exact exact(250, 250, 200.0 / 30, fourAnchorsOf(84.3), {14, 7.6, -1});
    return {{"anchor at (-90, 90) mm, kN", 15.998, first, exact.forceOf(0)},
            {"anchor at (-90, -90) mm, kN", 14.547, second, exact.forceOf(1)},
            {"anchors at x = 90 mm together, kN", 0, force(3) + force(4),
             exact.forceOf(2) + exact.forceOf(3)},
            {"tension resultant, kN", 30.545, s.Sila_T / kN, exact.tension()},
            {"its y, mm", 4, 90 * (first - second) / (first + second), exact.tensionAt().y},
            {"compression resultant, kN", 44.545, s.Sila_C / kN, 14 + exact.tension()},
            {"its x, mm", 109, 10 * s.Xs_strefy, exact.pressureAt().x},
            {"its y, mm", -20, -10 * s.Ys_strefy, exact.pressureAt().y},
            {"concrete stress, MPa", 9.30, s.Wsp_k * corner * Gravity / 100,
             exact.result.sigmaConcrete}};
}

std::vector<Compared> biaxialFourAnchorsOfTheTable() {
    const WithDecimalSign comma(u',');
    ColumnBase base;
    base.plate(250, 250).fourAnchors(90, 90, 12);
    base.fields.Text2 = QStringLiteral("6,666667");
    base.loads(14, 7.6, -1);
    base.calculate();
    const Exact exact(250, 250, 6.666667, fourAnchorsOf(85), {14, 7.6, -1});
    return {
        {"anchor at (-90, 90) mm, kN", 15.998, storedForce(base, -90, 90), exact.forceOf(0)},
        {"anchor at (-90, -90) mm, kN", 14.547, storedForce(base, -90, -90), exact.forceOf(1)},
        {"concrete stress, MPa", 9.30, base.stan.wyniki.Sigma_b(1), exact.result.sigmaConcrete}};
}

std::vector<Compared> biaxialEightAnchors() {
    const WithDecimalSign comma(u',');
    ColumnBase base;
    const auto force = [&base](double x, double y) { return storedForce(base, y, x); };
    // The program wants the length along x, so x and y change places.
    base.plate(600, 500).fourAnchors(240, 190).anchor(240, 0).anchor(-240, 0);
    base.anchor(0, 190).anchor(0, -190);
    base.fields.Text2 = QStringLiteral("6,833333");
    base.loads(400, -150, 60);
    base.calculate();
    std::vector<equilibrium::Anchor> anchors;
    for (const double y : {-240.0, 0.0, 240.0})
        for (const double x : {-190.0, 0.0, 190.0})
            if (x != 0 || y != 0)
                anchors.push_back({y, x, 353});
    const Exact exact(600, 500, 205.0 / 30, anchors, {400, -150, 60});
    const auto row = [&](const char* what, double published, double x, double y) {
        return Compared{what, published, force(x, y), exact.force(y, x)};
    };
    return {
        row("anchor at (-190, 240) mm, kN", 52.883, -190, 240),
        row("anchor at (0, 240) mm, kN", 41.414, 0, 240),
        row("anchor at (190, 240) mm, kN", 29.945, 190, 240),
        row("anchor at (-190, 0) mm, kN", 23.928, -190, 0),
        row("anchor at (190, 0) mm, kN", 0.990, 190, 0),
        {"the other anchors together, kN", 0, force(-190, -240) + force(0, -240) + force(190, -240),
         exact.force(-240, -190) + exact.force(-240, 0) + exact.force(-240, 190)},
        {"concrete stress, MPa", 16.096, base.stan.wyniki.Sigma_b(1), exact.result.sigmaConcrete}};
}

UniaxialSolution uniaxial(double D, double B, double f, double As, double n, double P, double M) {
    const double e = M / P;
    const double K1 = 3 * (e - D / 2);
    const double K2 = 6 * n * As * (f + e) / B;
    const double K3 = -K2 * (D / 2 + f);
    double Y = D / 2;
    for (int step = 0; step < 100; ++step)
        Y -= (((Y + K1) * Y + K2) * Y + K3) / ((3 * Y + 2 * K1) * Y + K2);
    const double T = -P * (D / 2 - Y / 3 - e) / (D / 2 - Y / 3 + f);
    return {Y, T, 2 * (P + T) / (Y * B)};
}

std::vector<Compared> uniaxialEquation() {
    const UniaxialSolution s = uniaxial(300, 300, 86, 390.7817, 10, 1075, 1'096'875);
    // In kg instead of N: 1 for the load is 1000 kg.
    const Exact exact(300, 300, 10, {{-86, 0, 390.7817}}, {1.075, 1.096875, 0});
    return {
        {"bearing length Y, mm", 72.5669, s.bearing, 150 - exact.result.neutralLine.value()[0].x},
        {"tension T, kg", 4540.03, s.tension, 1000 * exact.tension()},
        {"concrete stress, kg/cm2", 51.585, 100 * s.concrete, 100 * exact.result.sigmaConcrete}};
}

std::vector<Compared> uniaxialProgram() {
    const WithDecimalSign comma(u',');
    ColumnBase base;
    base.plate(300, 300).anchor(-86, -100, 20).anchor(-86, 100, 20);
    base.fields.Text2 = QStringLiteral("10");
    base.loads(50, 20, 0);
    base.calculate();
    const double As = 2 * base.stan.plyta.Pole_kotwy(1) * 100;
    const UniaxialSolution s = uniaxial(300, 300, 86, As, 10, 50, 20'000);
    const Wyniki& r = base.stan.wyniki;
    double tension = 0;
    for (int i = 1; i <= 2; ++i)
        tension -= r.Sigma_kotwy(i)(1) * base.stan.plyta.Pole_kotwy(i) * 0.1; // kN
    const Exact exact(300, 300, 10, {{-86, -100, As / 2}, {-86, 100, As / 2}}, {50, 20, 0});
    return {{"tension T, kN", s.tension, tension, exact.tension()},
            {"concrete stress, MPa", 1000 * s.concrete, r.Sigma_b(1), exact.result.sigmaConcrete}};
}

} // namespace ferna::testing
