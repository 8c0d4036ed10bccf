#include "analysis/load_case.h"
#include "analysis/solve.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::ColumnBase;
using ferna::testing::errorNumberOf;
using ferna::testing::WithDecimalSign;

namespace {

struct LoadCase : ::testing::Test {
    WithDecimalSign comma{u','};
    ColumnBase base;

    Double M1k() const { return base.solver.M1k; }
    Double M2k() const { return base.solver.M2k; }

    /// The working moments of a case with these typed moments, kNm.
    void moments(Single M1, Single M2) {
        base.solver.M1n = M1;
        base.solver.M2n = M2;
        Ustal_momenty(base.solver);
    }
};

TEST_F(LoadCase, MomentsOfNothingBecomeSmallOnes) {
    moments(0, 0);
    EXPECT_EQ(M1k(), 700);
    EXPECT_EQ(M2k(), 700);
}

TEST_F(LoadCase, UpToSixThousandthsCountAsNothing) {
    moments(0.006F, 5);
    EXPECT_EQ(M1k(), 700);
    moments(0.0061F, 5);
    EXPECT_EQ(M1k(), Double{0.0061F} * 100000 / 9.80665);
    moments(5, 0.006F);
    EXPECT_EQ(M2k(), 700);
    moments(5, 0.0061F);
    EXPECT_EQ(M2k(), Double{0.0061F} * 100000 / 9.80665);
}

TEST_F(LoadCase, ForM1TheThresholdAndTheValueDifferByTen) {
    moments(0, 100);
    EXPECT_NEAR(M2k(), 1019716.2, 0.05);
    EXPECT_NEAR(M1k(), 917.7, 0.05);
    EXPECT_EQ(M1k(), 0.0009 * M2k());
    moments(0, 8); // 0.009 M2 = 734 is above 700, and the value drops to a tenth of it
    EXPECT_NEAR(M1k(), 73.4, 0.05);
    moments(0, 7.6F); // 0.009 M2 = 697.5
    EXPECT_EQ(M1k(), 700);
}

TEST_F(LoadCase, ForM2TheThresholdAndTheValueAreTheSame) {
    moments(100, 0);
    EXPECT_NEAR(M2k(), 917.7, 0.05);
    moments(70, 0); // 0.0009 M1 = 642
    EXPECT_EQ(M2k(), 700);
    moments(8, 0);
    EXPECT_EQ(M2k(), 700);
}

struct SignClass {
    Double M1, M2, signX, signY;
};

TEST_F(LoadCase, EverySignClassMirrorsTheAnchors) {
    base.anchor(200, 100).anchor(-150, 50);
    for (const auto& [M1, M2, signX, signY] :
         {SignClass{60, 30, 1, 1}, SignClass{60, -30, 1, -1}, SignClass{-60, 30, -1, 1},
          SignClass{-60, -30, -1, -1}}) {
        base.noLoads().loads(50, M1, M2);
        base.calculate();
        EXPECT_EQ(base.solver.M1n, 60);
        EXPECT_EQ(base.solver.M2n, 30);
        EXPECT_EQ(base.solver.Xn(1), signX * 20);
        EXPECT_EQ(base.solver.Yn(1), signY * 10);
        EXPECT_EQ(base.solver.Xn(2), signX * -15);
        EXPECT_EQ(base.solver.Yn(2), signY * 5);
    }
}

TEST_F(LoadCase, AMirroredTaskHasMirroredResults) {
    const auto results = [](int signX, int signY) {
        ColumnBase one;
        one.anchor(signX * 250, signY * 150, 30)
            .anchor(signX * -250, signY * 140, 24)
            .anchor(signX * -240, signY * -150, 24)
            .loads(60, signX * 70, signY * 25);
        EXPECT_EQ(one.calculate(), CalculationEnd::Computed);
        return one;
    };
    const ColumnBase plain = results(1, 1);
    ASSERT_NE(plain.stan.wyniki.Typ_strefy_przyp(1), 0);
    ASSERT_LT(plain.stan.wyniki.Sigma_kotwy(3)(1), 0);
    for (const auto& [signX, signY] : {std::pair{1, -1}, std::pair{-1, 1}, std::pair{-1, -1}}) {
        const ColumnBase mirrored = results(signX, signY);
        const Wyniki& r = mirrored.stan.wyniki;
        const Wyniki& p = plain.stan.wyniki;
        EXPECT_EQ(r.Sigma_b(1), p.Sigma_b(1));
        EXPECT_EQ(r.Typ_strefy_przyp(1), p.Typ_strefy_przyp(1));
        for (int i = 1; i <= 3; ++i)
            EXPECT_EQ(r.Sigma_kotwy(i)(1), p.Sigma_kotwy(i)(1));
        EXPECT_EQ(r.Przec_a(1), static_cast<Single>(signX) * p.Przec_a(1));
        EXPECT_EQ(r.Przec_b(1), static_cast<Single>(signY) * p.Przec_b(1));
        EXPECT_EQ(r.Przec_c(1), static_cast<Single>(signX) * p.Przec_c(1));
        EXPECT_EQ(r.Przec_d(1), static_cast<Single>(signY) * p.Przec_d(1));
        EXPECT_EQ(mirrored.lines(), plain.lines());
    }
}

TEST_F(LoadCase, WithoutMomentsTheWholePlateIsCompressed) {
    base.fourAnchors(250, 150).loads(300, 0, 0);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    const Double N = base.stan.obciazenia.Sila_N_kG(1);
    const Double stress = N / 60 / 40 + 700 / (40.0 * 60 * 60 / 6) + 700 / (60.0 * 40 * 40 / 6);
    EXPECT_NEAR(base.stan.wyniki.Sigma_b(1), stress * 9.80665 / 100, 1e-6);
    EXPECT_EQ(base.stan.wyniki.Przyp_policzony(1), True);
    EXPECT_EQ(base.solver.Typ_strefy, zone::WholePlate);
    EXPECT_EQ(base.stan.wyniki.Typ_strefy_przyp(1), 0);
    EXPECT_EQ(base.lines(),
              QStringList({QStringLiteral("<6>"), QStringLiteral("<3>1,26 MPa  < Rb = 7,1 MPa")}));
}

struct KernPoint {
    Double x, y; // shares of L / 6 and B / 6
    bool outside;
};

TEST_F(LoadCase, TheKernIsTheRhombus) {
    for (const auto& [x, y, outside] :
         {KernPoint{0.49, 0.49, false}, KernPoint{0.51, 0.51, true}, KernPoint{0.98, 0.01, false},
          KernPoint{0.999, 0.1, true}, // passes both axis tests and fails on the rhombus
          KernPoint{0.1, 0.999, true}, KernPoint{1.01, 0.0, true}, KernPoint{0.0, 1.01, true},
          KernPoint{0.0, 0.98, false}}) {
        base.solver.Plyta_L = 60;
        base.solver.Plyta_B = 40;
        base.solver.M1k = x * 1000 * 10 + 1e-3;
        base.solver.M2k = y * 1000 * 40 / 6 + 1e-3;
        Ustal_mimosrody(base.solver, 1000);
        EXPECT_EQ(Poza_rdzeniem(base.solver), outside) << x << ' ' << y;
    }
}

TEST_F(LoadCase, TheCornerOfTheCompressedPlateIsUnstressedOnTheBorderOfTheKern) {
    // On the rhombus the smallest stress is 0, so the largest is twice the mean.
    base.fourAnchors(250, 150).loads(1000, 50 * 0.999, 1000 * 0.4 / 12 * 0.999);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.wyniki.Przyp_policzony(1), True);
    EXPECT_NEAR(base.stan.wyniki.Sigma_b(1), 2 * 1000.0 / 240, 0.01);
}

TEST_F(LoadCase, AWholePlateCaseKeepsItsMarkInLaterCalculations) {
    base.fourAnchors(250, 150).loads(300, 1, 0);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    ASSERT_EQ(base.stan.wyniki.Przyp_policzony(1), True);
    base.noLoads().loads(50, 60, 20);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_GE(base.stan.wyniki.Typ_strefy_przyp(1), 1);
    EXPECT_EQ(base.stan.wyniki.Przyp_policzony(1), True);
}

TEST_F(LoadCase, AVanishingForceCannotReachTheDivisionUnnoticed) {
    EXPECT_EQ(errorNumberOf([&] { Ustal_mimosrody(base.solver, 0); }), error::DivisionByZero);
}

TEST_F(LoadCase, APlateWithoutOrOfNegativeSizeIsAnError) {
    base.fourAnchors(250, 150).loads(300, 1, 0).plate(0, 0);
    EXPECT_EQ(errorNumberOf([&] { base.calculate(); }), error::DivisionByZero);
    base.plate(-100, -200);
    EXPECT_EQ(errorNumberOf([&] { base.calculate(); }), error::InvalidCall);
}

} // namespace
