#include "analysis/equilibrium.h"
#include "analysis/load_case.h"
#include "support/column_base.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ferna;
using ferna::testing::errorNumberOf;

namespace {

/// A line on a plate of half sizes a and b, cm.
struct Line {
    Stan stan;
    Stan_przypadku s;

    Line(Double a, Double b, Double beta, Double c) {
        s.Pol_a = a;
        s.Pol_b = b;
        s.Beta = beta;
        s.Sin_beta = std::sin(beta);
        s.Cos_beta = std::cos(beta);
        s.Nachylenie = -s.Cos_beta / s.Sin_beta;
        s.C_linii = c;
        stan.obciazenia.Nr_przyp = 1;
        stan.obciazenia.Sila_N_kG(1) = 10000;
        stan.opcje.Wsp_n_val = 7;
    }

    void anchor(Double x, Double y, Double area) {
        const Integer n = ++stan.plyta.Liczba_srub;
        s.Xn(n) = x;
        s.Yn(n) = y;
        stan.plyta.Pole_kotwy(n) = area;
    }
};

struct Printed {
    Double beta, c;
    Integer type;
    Double V, x, y; // cm2, cm, to three decimals
};

TEST(CompressedZone, HasItsPrintedIntegrals) {
    for (const Printed& p :
         {Printed{0.8, 5, 1, 129.346, 12.933, 8.136}, Printed{0.8, -5, 4, 287.845, 9.187, 5.128},
          Printed{0.3, 10, 3, 103.769, 16.357, 4.511},
          Printed{1.2, -2, 2, 252.099, 5.659, 8.551}}) {
        Line line(20, 15, p.beta, p.c);
        Pole_strefy(line.s);
        EXPECT_EQ(line.s.Typ_strefy, p.type);
        EXPECT_NEAR(line.s.V_strefy, p.V, 0.0005) << p.type;
        EXPECT_NEAR(line.s.Xs_strefy, p.x, 0.0005) << p.type;
        EXPECT_NEAR(line.s.Ys_strefy, p.y, 0.0005) << p.type;
    }
}

/// The three integrals by summing the stress field over a fine grid.
void byGrid(const Line& line, Double& V, Double& x, Double& y) {
    constexpr int n = 1500;
    const Double a = line.s.Pol_a;
    const Double b = line.s.Pol_b;
    const Double corner = a * line.s.Cos_beta + b * line.s.Sin_beta - line.s.C_linii;
    V = x = y = 0;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            const Double px = -a + (i + 0.5) * 2 * a / n;
            const Double py = -b + (j + 0.5) * 2 * b / n;
            const Double d = px * line.s.Cos_beta + py * line.s.Sin_beta - line.s.C_linii;
            if (d <= 0)
                continue;
            V += d / corner;
            x += px * d / corner;
            y += py * d / corner;
        }
    const Double cell = 4 * a * b / n / n;
    x /= V;
    y /= V;
    V *= cell;
}

TEST(CompressedZone, AgreesWithASumOverAGrid) {
    for (const auto& [beta, c] :
         {std::pair{0.8, 5.0}, std::pair{0.8, -5.0}, std::pair{0.3, 10.0}, std::pair{1.2, -2.0},
          std::pair{0.7, -15.0}, std::pair{1.3, 3.0}}) {
        Line line(20, 15, beta, c);
        Pole_strefy(line.s);
        Double V = 0;
        Double x = 0;
        Double y = 0;
        byGrid(line, V, x, y);
        EXPECT_NEAR(line.s.V_strefy, V, 1e-3 * V);
        EXPECT_NEAR(line.s.Xs_strefy, x, 2e-3 * 20);
        EXPECT_NEAR(line.s.Ys_strefy, y, 2e-3 * 15);
    }
}

// Lines of slope -1 through a corner, in numbers that doubles hold exactly.
Line lineOfSlopeMinusOne(Double a, Double b, Double p) {
    Line line(a, b, Pi / 4, 0);
    line.s.Sin_beta = line.s.Cos_beta = 0.5;
    line.s.Nachylenie = -1;
    line.s.C_linii = p / 2;
    return line;
}

TEST(CompressedZone, ALineThroughACornerOfThePlateHasItsShape) {
    Line leftTop = lineOfSlopeMinusOne(20, 15, -5); // through (-a, b): xT = -a, yR = -25
    Pole_strefy(leftTop.s);
    EXPECT_EQ(leftTop.s.Pk_xT, -20);
    EXPECT_EQ(leftTop.s.Typ_strefy, zone::LessTriangle);

    Line rightBottom = lineOfSlopeMinusOne(20, 15, 5); // through (a, -b): xT = -10, yR = -b
    Pole_strefy(rightBottom.s);
    EXPECT_EQ(rightBottom.s.Pk_yR, -15);
    EXPECT_EQ(rightBottom.s.Typ_strefy, zone::LessTriangle);

    Line both = lineOfSlopeMinusOne(15, 15, 0); // the diagonal of a square: xT = -a, yR = -b
    Pole_strefy(both.s);
    EXPECT_EQ(both.s.Typ_strefy, zone::LessTriangle);

    Line wide = lineOfSlopeMinusOne(15, 20, 5); // xT = -a, yR = -10 > -b
    Pole_strefy(wide.s);
    EXPECT_EQ(wide.s.Pk_xT, -15);
    EXPECT_EQ(wide.s.Typ_strefy, zone::LessTriangle);
}

TEST(CompressedZone, ACrossingMayLieOutsideThePlate) {
    Line line(20, 15, 1.2, -2);
    Pole_strefy(line.s);
    EXPECT_LT(line.s.Pk_xT, -20);
    EXPECT_GT(line.s.Pk_yR, -15);
    EXPECT_NEAR(line.s.Pk_yL, 20 * std::cos(1.2) / std::sin(1.2) - 2 / std::sin(1.2), 1e-12);
}

TEST(AnchorDistances, AnAnchorOnTheLineIsNotInTension) {
    Line line = lineOfSlopeMinusOne(20, 15, 4); // x + y = 4
    line.anchor(1, 3, 2.45);                    // on the line
    line.anchor(1, 1, 3.53);                    // tension side
    line.anchor(10, 10, 3.53);                  // compressed side
    Odleglosci_srub(line.s, inputOf(line.stan));
    EXPECT_EQ(line.s.Odl_kotwy(1), 0);
    EXPECT_EQ(line.s.Odl_kotwy(2), -1);
    EXPECT_EQ(line.s.Odl_kotwy(3), 8);
    EXPECT_EQ(line.s.Suma_Ad, -3.53);
    EXPECT_EQ(line.s.Suma_Add, 3.53);
}

TEST(AnchorDistances, ThoseOfRemovedAnchorsAreCleared) {
    Line line = lineOfSlopeMinusOne(20, 15, 4);
    for (int i = 1; i <= MaxAnchors; ++i)
        line.s.Odl_kotwy(i) = -9;
    line.anchor(1, 1, 3.53);
    Odleglosci_srub(line.s, inputOf(line.stan));
    for (int i = 2; i <= MaxAnchors; ++i)
        EXPECT_EQ(line.s.Odl_kotwy(i), 0) << i;
}

TEST(Equilibrium, WithNoAnchorInTensionTheConcreteCarriesAll) {
    Line line(20, 15, 0.8, -5);
    line.s.Ex = 3;
    line.s.Ey = 2;
    line.anchor(10, 10, 3.53);
    Rownowaga_c(line.s, inputOf(line.stan));
    EXPECT_EQ(line.s.Suma_Ad, 0);
    EXPECT_EQ(line.s.Sila_T, 0);
    EXPECT_NEAR(line.s.Sila_C, 10000, 1e-9);
    const Double arm = 3 * line.s.Cos_beta + 2 * line.s.Sin_beta + 5;
    EXPECT_NEAR(line.s.Reszta_c, 10000 * arm - line.s.Sila_C * line.s.Ramie_C, 1e-6);
    Rownowaga_beta(line.s, inputOf(line.stan));
    EXPECT_EQ(line.s.Reszta_beta, line.s.Sila_C * line.s.Os_C);
}

TEST(Equilibrium, OfForcesHoldsAtEveryLine) {
    for (const Double c : {-12.0, -5.0, 0.0, 5.0, 9.0}) {
        Line line(20, 15, 0.9, c);
        line.anchor(-15, -10, 3.53);
        line.anchor(15, -10, 5.61);
        line.anchor(-15, 10, 2.45);
        Rownowaga_c(line.s, inputOf(line.stan));
        EXPECT_NEAR(line.s.Sila_C - line.s.Sila_T, 10000, 1e-8) << c;
    }
}

TEST(Equilibrium, TheErrorAboutTheLineIsTheMomentThatIsLeft) {
    Line line(20, 15, 0.9, 2);
    line.s.Ex = 30;
    line.s.Ey = 10;
    line.anchor(-15, -10, 3.53);
    line.anchor(5, -10, 5.61);
    Rownowaga_c(line.s, inputOf(line.stan));
    Double moment =
        10000 * (30 * line.s.Cos_beta + 10 * line.s.Sin_beta - 2) - line.s.Sila_C * line.s.Ramie_C;
    Double along = line.s.Sila_C * line.s.Os_C;
    for (int i = 1; i <= 2; ++i) {
        const Double d = line.s.Odl_kotwy(i);
        const Double force = -7 * line.s.Wsp_k * d * line.stan.plyta.Pole_kotwy(i); // tension
        ASSERT_LT(d, 0);
        moment += force * d; // pulls on the other side
        along -=
            force * ((line.s.Yn(i) - 10) * line.s.Cos_beta - (line.s.Xn(i) - 30) * line.s.Sin_beta);
    }
    EXPECT_NEAR(line.s.Reszta_c, moment, 1e-6);
    Rownowaga_beta(line.s, inputOf(line.stan));
    EXPECT_NEAR(line.s.Reszta_beta, along, 1e-6);
}

TEST(Equilibrium, TheErrorAlongTheLineKeepsTheScaleOfTheLastEvaluation) {
    Line line(20, 15, 0.9, 2);
    line.anchor(-15, -10, 3.53);
    Rownowaga_c(line.s, inputOf(line.stan));
    const Double k = line.s.Wsp_k;
    line.s.C_linii = 3; // as the interpolation moves it
    Rownowaga_beta(line.s, inputOf(line.stan));
    EXPECT_EQ(line.s.Wsp_k, k);
    EXPECT_NEAR(line.s.Odl_kotwy(1), -15 * line.s.Cos_beta - 10 * line.s.Sin_beta - 3, 1e-12);
}

TEST(Equilibrium, ADivisorThatVanishesIsAnError) {
    Line level(20, 15, 0.8, 5);
    level.s.Nachylenie = 0;
    EXPECT_EQ(errorNumberOf([&] { Pole_strefy(level.s); }), error::DivisionByZero);
    Line upright(20, 15, 0.8, 5);
    upright.s.Sin_beta = 0;
    EXPECT_EQ(errorNumberOf([&] { Pole_strefy(upright.s); }), error::DivisionByZero);
    Line throughTheCorner = lineOfSlopeMinusOne(20, 15, 35); // D = 0
    EXPECT_EQ(errorNumberOf([&] { Pole_strefy(throughTheCorner.s); }), error::DivisionByZero);
}

TEST(Equilibrium, AValueThatIsNotFiniteIsAnOverflow) {
    Line line(20, 15, 0.8, 5);
    line.s.Ex = std::numeric_limits<Double>::max();
    line.s.Ey = line.s.Ex;
    EXPECT_EQ(errorNumberOf([&] { Rownowaga_c(line.s, inputOf(line.stan)); }), error::Overflow);
}

TEST(Equilibrium, AnOffsetOfTheConcreteThatIsNotFiniteIsAnOverflowToo) {
    Line line(20, 15, Pi / 4, 5);
    line.stan.obciazenia.Sila_N_kG(1) = 0; // no error, wherever the load stands
    line.s.Ex = 1.7e308;
    line.s.Ey = -1.7e308;
    EXPECT_EQ(errorNumberOf([&] { Rownowaga_c(line.s, inputOf(line.stan)); }), error::Overflow);
    EXPECT_EQ(line.s.Reszta_c, 0);
    EXPECT_TRUE(std::isinf(line.s.Os_C));
}

TEST(Equilibrium, AnErrorAlongTheLineThatIsNotFiniteIsAnOverflow) {
    Line line(20, 15, 0.8, 5);
    line.s.Sila_C = 1e300;
    line.s.Os_C = 1e9;
    EXPECT_EQ(errorNumberOf([&] { Rownowaga_beta(line.s, inputOf(line.stan)); }), error::Overflow);
}

TEST(Equilibrium, CountsItsEvaluationsUpToTheLimit) {
    Line line(20, 15, 0.8, 5);
    line.s.Liczba_ocen = evaluationLimit - 1;
    EXPECT_NO_THROW(Rownowaga_c(line.s, inputOf(line.stan)));
    EXPECT_THROW(Rownowaga_c(line.s, inputOf(line.stan)), EvaluationLimitReached);
}

} // namespace
