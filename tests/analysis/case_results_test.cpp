#include "analysis/case_results.h"
#include "analysis/solve.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ferna;
using ferna::testing::ColumnBase;
using ferna::testing::errorNumberOf;
using ferna::testing::WithDecimalSign;

namespace {

/// A settled case whose checks are still to come: Rb 10 MPa, the line of the concrete stress
/// written.
struct Checks : ::testing::Test {
    WithDecimalSign comma{u','};
    Stan stan;
    Integer zoneShape = zone::Triangle;

    Checks() {
        ferna::testing::numberedCatalogue(stan);
        stan.obciazenia.Nr_przyp = 1;
        stan.obciazenia.Sila_N(1) = 1;
        stan.materialy.Rb_betonu = 10;
        stan.materialy.Fv_kotwy = 100;
        stan.materialy.Fd2_kotwy = 100;
        stan.plyta.Liczba_srub = 2;
        stan.plyta.Pole_kotwy(1) = 0.5;
        stan.plyta.Pole_kotwy(2) = 0.5;
    }

    void check() { Sprawdz_beton_i_sily_poziome(stan, zoneShape, stressesOf(stan, 1)); }

    QStringList checked(Single stress = 1) {
        Wyniki& r = stan.wyniki;
        r.Nr_wiersza = 1;
        r.Wiersze_wynikow(1) = QStringLiteral("beton");
        r.Sigma_b(1) = stress;
        r.Liczba_przekroczen = 0;
        r.Znak_wiersza.fill(0);
        check();
        QStringList lines;
        for (int i = 1; i <= r.Nr_wiersza; ++i)
            lines += r.Wiersze_wynikow(i);
        EXPECT_EQ(r.Ostatni_wiersz(1), r.Nr_wiersza);
        return lines;
    }

    /// The line of the horizontal forces alone.
    QString shear(Single Vx, Single Vy = 0) {
        stan.obciazenia.Sila_Vx(1) = Vx;
        stan.obciazenia.Sila_Vy(1) = Vy;
        const QStringList lines = checked();
        return lines.size() == 2 ? lines[1] : QString();
    }
};

TEST_F(Checks, AStressBelowRbPasses) {
    EXPECT_EQ(checked(std::nextafterf(10, 0)),
              QStringList(QStringLiteral("beton < Rb = 10,0 MPa")));
}

TEST_F(Checks, AStressOfExactlyRbIsARatioOfOne) {
    EXPECT_EQ(checked(10), QStringList({QStringLiteral("beton"), QStringLiteral("<5>")}));
    EXPECT_EQ(stan.wyniki.Znak_wiersza(2), 1);
    EXPECT_EQ(stan.wyniki.Liczba_przekroczen, 1);
    EXPECT_EQ(stan.wyniki.Tekst_przekroczenia(1), QStringLiteral(" = 1,0"));
}

TEST_F(Checks, AStressOfExactlyTwiceRbIsStillARatio) {
    EXPECT_EQ(checked(20).size(), 2);
    EXPECT_EQ(stan.wyniki.Tekst_przekroczenia(1), QStringLiteral(" = 2,0"));
    EXPECT_EQ(checked(std::nextafterf(20, 21)), QStringList(QStringLiteral("beton<4>")));
    EXPECT_EQ(stan.wyniki.Liczba_przekroczen, 0);
    EXPECT_EQ(checked(12.345F).size(), 2);
    EXPECT_EQ(stan.wyniki.Tekst_przekroczenia(1), QStringLiteral(" = 1,235"));
}

TEST_F(Checks, ForcesOfAHundredthCountAsNone) {
    EXPECT_EQ(shear(0.01F), QString());
    EXPECT_EQ(shear(0.006F, 0.0079F), QString());
    EXPECT_NE(shear(0.0101F), QString());
}

TEST_F(Checks, FrictionTakesLessThanThreeTenthsOfTheForce) {
    stan.obciazenia.Sila_N(1) = 10;
    EXPECT_EQ(shear(2.99F), QStringLiteral("<46>"));
    EXPECT_EQ(shear(3), QStringLiteral("<50>")) << "equality does not pass";
    EXPECT_EQ(shear(1.8F, 2.4F), QStringLiteral("<50>"));
    EXPECT_EQ(shear(-2, 2), QStringLiteral("<46>"));
}

TEST_F(Checks, TheShearGoesToTheAnchorsOnTheTensionSide) {
    stan.opcje.Hsily_wszystkie = 1;
    stan.plyta.Odl_kotwy(1) = -5;
    stan.plyta.Odl_kotwy(2) = 5;
    EXPECT_EQ(shear(4.9F), QStringLiteral("<47>")); // 98 MPa of one anchor
    EXPECT_EQ(shear(5), QStringLiteral("<48>0,0%"));
    EXPECT_EQ(shear(5.2F), QStringLiteral("<48>4,0%"));
    EXPECT_EQ(shear(5.26F), QStringLiteral("<49>"));
    stan.plyta.Odl_kotwy(2) = 0; // on the line: not in tension
    EXPECT_EQ(shear(5.26F), QStringLiteral("<49>"));
    stan.plyta.Odl_kotwy(2) = -0.001;
    EXPECT_EQ(shear(5.26F), QStringLiteral("<47>"));
}

TEST_F(Checks, OnACompressedPlateTheShearGoesToAllAnchors) {
    stan.opcje.Hsily_wszystkie = 1;
    zoneShape = zone::WholePlate;
    EXPECT_EQ(shear(9.9F), QStringLiteral("<47>"));
    EXPECT_EQ(shear(10.6F), QStringLiteral("<49>"));
}

TEST_F(Checks, WithoutAnAnchorOnTheTensionSideTheDivisionFails) {
    stan.opcje.Hsily_wszystkie = 1;
    stan.plyta.Odl_kotwy(1) = 1;
    EXPECT_EQ(errorNumberOf([&] { shear(5); }), error::DivisionByZero);
    stan.obciazenia.Sila_N(1) = 100; // friction needs none
    EXPECT_EQ(shear(5), QStringLiteral("<46>"));
}

TEST_F(Checks, AllAnchorsTakeShearTogetherWithTension) {
    stan.wyniki.Sigma_kotwy(2)(1) = -60;
    EXPECT_EQ(shear(8), QStringLiteral("<51>0,0%")); // 0,36 + 0,64
    EXPECT_EQ(shear(7.9F), QStringLiteral("<50>"));
    EXPECT_EQ(shear(8.2F), QStringLiteral("<51>3,2%"));
    EXPECT_EQ(shear(8.4F), QStringLiteral("<52>"));
    stan.wyniki.Sigma_kotwy(1)(1) = 80; // not tension
    EXPECT_EQ(shear(7.9F), QStringLiteral("<50>"));
    stan.wyniki.Sigma_kotwy(1)(1) = -62; // the most stressed one counts
    EXPECT_EQ(shear(7.9F), QStringLiteral("<51>0,8%"));
}

TEST_F(Checks, TheHundredAndThirtyThirdLineIsRefused) {
    stan.obciazenia.Sila_Vx(1) = 5;
    Wyniki& r = stan.wyniki;
    r.Sigma_b(1) = 1;
    r.Nr_wiersza = 131;
    check();
    EXPECT_EQ(r.Nr_wiersza, 132);
    EXPECT_EQ(r.Wiersze_wynikow(132), QStringLiteral("<50>"));
    EXPECT_EQ(errorNumberOf([&] { check(); }), error::Subscript);
}

struct Results : ::testing::Test {
    WithDecimalSign comma{u','};
    ColumnBase base;
    const Wyniki& r = base.stan.wyniki;

    /// The case of the last calculation once more.
    CaseResult solvedAnew() const {
        Carry carry = carryOf(base.stan, {});
        return solve(inputOf(base.stan), carry);
    }
};

TEST_F(Results, SixCasesWithTwentyAnchorsInTensionOverrunTheLines) {
    base.plate(600, 400).allAnchorsTakeShear(true);
    for (int i = 0; i < MaxAnchors; ++i)
        base.anchor(-290, -190 + i, 24);
    for (int c = 1; c <= MaxCases; ++c)
        base.loads(50, 130, 86.667, 40, 0);
    base.stan.opcje.Nr_normy = 1; // Rb 6,7 MPa is exceeded, for a line more
    EXPECT_EQ(errorNumberOf([&] { base.calculate(); }), error::Subscript);
    EXPECT_EQ(base.host.cases.size(), 5U) << "five cases had room";
    EXPECT_EQ(r.Ostatni_wiersz(1), 23);
}

TEST_F(Results, AnAnchorInTensionHasItsStressForceAndLine) {
    base.fourAnchors(250, 150).loads(50, 60, 20);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    const Stan_przypadku& s = base.solver;
    int lines = 0;
    for (int i = 1; i <= 4; ++i) {
        const Double d = base.stan.plyta.Odl_kotwy(i);
        EXPECT_NEAR(d, s.Xn(i) * std::cos(s.Beta) + s.Yn(i) * std::sin(s.Beta) - s.C_linii, 1e-9)
            << "at the line as interpolated";
        if (d >= 0) {
            EXPECT_EQ(r.Sigma_kotwy(i)(1), 0);
            continue;
        }
        const Double stress = d * base.stan.opcje.Wsp_n_val * s.Wsp_k * 9.80665 / 100;
        EXPECT_NEAR(r.Sigma_kotwy(i)(1), stress, 1e-5 * std::fabs(stress));
        EXPECT_NEAR(r.Sila_kotwy(i), stress * 3.53 * 0.1, 1e-5 * std::fabs(stress));
        ++lines;
        EXPECT_EQ(r.Wiersze_wynikow(lines),
                  Format(i, u"##  ") + Format(r.Sigma_kotwy(i)(1), u"#########0.0# MPa      ")
                      + Format(r.Sila_kotwy(i), u"########0.0 kN")
                      + (-r.Sigma_kotwy(i)(1) > base.stan.materialy.Fd_kotwy ? QStringLiteral("<2>")
                                                                             : QString()));
    }
    EXPECT_GE(lines, 2);
    EXPECT_NEAR(r.Sigma_b(1), s.Sila_C / s.V_strefy * 9.80665 / 100, 1e-5);
    EXPECT_TRUE(r.Wiersze_wynikow(lines + 1).startsWith(u"<3>"));
}

TEST_F(Results, AmongEqualForcesTheFirstAnchorKeepsTheMaximum) {
    // Two anchors on one point carry the same force.
    base.anchor(-250, -150).anchor(-250, -150).anchor(250, 150).loads(50, 60, 20).loads(50, 60, 20);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(r.Nr_kotwy_max, 1);
    EXPECT_EQ(r.Sigma_s_max, r.Sigma_kotwy(1)(1));
    EXPECT_EQ(r.Sila_kotwy_max, r.Sila_kotwy(2));
    EXPECT_EQ(r.Sigma_b_max, r.Sigma_b(1));
}

TEST_F(Results, AStressEqualToTheStrengthPasses) {
    base.anchor(-250, -150).anchor(250, 150).loads(50, 60, 20);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    const Single stress = std::fabs(r.Sigma_kotwy(1)(1));
    ASSERT_GT(stress, 1);
    for (const auto& [strength, passes] :
         {std::pair{stress, true}, std::pair{std::nextafterf(stress, 0), false}}) {
        base.stan.materialy.Fd_kotwy = strength;
        base.stan.wyniki.Nr_wiersza = 0;
        base.stan.wyniki.Kotwy_OK = True;
        Zapisz_wyniki(base.stan, solvedAnew());
        EXPECT_EQ(r.Kotwy_OK == True, passes);
        EXPECT_EQ(r.Wiersze_wynikow(1).endsWith(u"<2>"), !passes);
    }
}

TEST_F(Results, AThinnerAnchorIsHeldToTheStrengthOfTheThickest) {
    base.anchor(-250, -150, 16).anchor(-250, 150, 16).anchor(250, 0, 20).loads(50, 47.5, 0.5);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    const Single stress = std::fabs(r.Sigma_kotwy(1)(1));
    ASSERT_LT(stress, 215) << "an M16 alone could take it";
    ASSERT_GT(stress, 205) << "the strength of the M20";
    EXPECT_TRUE(r.Wiersze_wynikow(1).endsWith(u"<2>"));
    EXPECT_EQ(r.Kotwy_OK, False);
}

TEST_F(Results, AnAnchorOnTheNeutralLineHasNeitherStressNorLine) {
    base.anchor(-250, -150).anchor(250, 150).loads(50, 60, 20);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    ASSERT_LT(base.stan.plyta.Odl_kotwy(1), 0);
    base.solver.Odl_kotwy(2) = 0;
    base.stan.wyniki.Sigma_kotwy(2)(1) = 1;
    base.stan.wyniki.Nr_wiersza = 0;
    Carry carry;
    CaseResult result;
    stressesAtLine(base.solver, inputOf(base.stan), carry, result);
    Zapisz_wyniki(base.stan, result);
    EXPECT_EQ(r.Nr_wiersza, 2) << "one anchor and the concrete";
    EXPECT_TRUE(r.Wiersze_wynikow(1).startsWith(u"1  "));
    EXPECT_TRUE(r.Wiersze_wynikow(2).startsWith(u"<3>"));
    EXPECT_EQ(r.Sigma_kotwy(2)(1), 1) << "untouched";
}

TEST_F(Results, ACompressedPlateUnderALargeShearIsCheckedWithAllItsAnchors) {
    base.fourAnchors(250, 150).loads(10, 0, 0, 250, 0); // 177 MPa in each
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    ASSERT_EQ(r.Przyp_policzony(1), True);
    EXPECT_EQ(base.lines().last(), QStringLiteral("<52>"));
    base.noLoads().loads(10, 0, 0, 200, 0); // 142 MPa
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.lines().last(), QStringLiteral("<50>"));
}

TEST_F(Results, ANeutralLineWithoutAnAnchorInTensionSaysSo) {
    base.plate(910, 840).anchor(425, 0, 48).anchor(213, 338, 48).loads(314.65, 42, 13);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_NE(r.Typ_strefy_przyp(1), 0);
    EXPECT_EQ(r.Wiersze_wynikow(1), QStringLiteral("<1>"));
    EXPECT_EQ(r.Sigma_s_max, 0);
}

TEST_F(Results, StressesOfAnEarlierCalculationTakePartInTheInteraction) {
    base.fourAnchors(250, 150).loads(50, 90, 30, 30, 0);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    const Single old = r.Sigma_kotwy(4)(1);
    ASSERT_LT(old, -base.stan.materialy.Fd2_kotwy) << "beyond the strength by itself";
    base.noLoads().loads(50, 0, 0, 20, 0); // a compressed plate: no tension at all
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(r.Sigma_kotwy(4)(1), old);
    EXPECT_EQ(base.lines().last(), QStringLiteral("<52>"));

    ColumnBase fresh;
    fresh.fourAnchors(250, 150).loads(50, 0, 0, 20, 0);
    ASSERT_EQ(fresh.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(fresh.lines().last(), QStringLiteral("<50>"));
}

TEST_F(Results, TheEndsOfTheNeutralLineLieOnTheEdgesOfThePlate) {
    const std::pair<Double, Double> loads[] = {{60, 20}, {60, 3}, {3, 40}, {12, 8}};
    for (const auto& [M1, M2] : loads) {
        ColumnBase one;
        one.fourAnchors(250, 150).loads(100, M1, M2);
        ASSERT_EQ(one.calculate(), CalculationEnd::Computed);
        const Wyniki& w = one.stan.wyniki;
        const auto onAnEdge = [](Single x, Single y) {
            return std::fabs(std::fabs(x) - 30) < 1e-6 || std::fabs(std::fabs(y) - 20) < 1e-6;
        };
        EXPECT_TRUE(onAnEdge(w.Przec_a(1), w.Przec_b(1))) << M1;
        EXPECT_TRUE(onAnEdge(w.Przec_c(1), w.Przec_d(1))) << M1;
        EXPECT_LE(std::fabs(w.Przec_a(1)), 30.001);
        EXPECT_LE(std::fabs(w.Przec_d(1)), 20.001);
    }
}

} // namespace
