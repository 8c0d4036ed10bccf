#include "analysis/load_case.h"
#include "analysis/search.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::ColumnBase;
using ferna::testing::errorNumberOf;
using ferna::testing::WithDecimalSign;

namespace {

const QString approximate = QStringLiteral("Brak ścisłego rozwiazania!\nRozwiązanie przybliżone.");
const QString unsolvable = QStringLiteral("BRAK ROZWIĄZANIA\nZmodyfikuj nieco dane");

/// A search in the middle of a case: plate 200 x 100 cm, one anchor, a load of `N` kG.
struct Middle {
    Stan stan;
    Stan_przypadku s;
    ScriptedDialogs dialogs;

    explicit Middle(Single N) {
        s.Plyta_L = 200;
        s.Plyta_B = 100;
        s.Pol_a = 100;
        s.Pol_b = 50;
        s.Beta = 0.7;
        s.Krok_beta = 0.1; // above 1 degree: coarse
        s.Krok_c = 20;
        s.C_linii = -100;
        stan.plyta.Liczba_srub = 1;
        stan.plyta.Pole_kotwy(1) = 8.17;
        s.Xn(1) = -90;
        s.Yn(1) = -40;
        stan.opcje.Wsp_n_val = 7;
        stan.obciazenia.Nr_przyp = 1;
        stan.obciazenia.Sila_N_kG(1) = N;
        s.Ex = 80;
        s.Ey = 30;
    }
};

TEST(SearchOfTheDistance, ASmallLoadEndsAtTheFirstInterpolation) {
    Middle cold(0.1F);
    Szukaj_c(cold.s, inputOf(cold.stan));
    EXPECT_TRUE(cold.s.Jest_rozw);
    EXPECT_EQ(cold.s.Krok_c, 20) << "the tolerances do not scale with the load";
    Middle heavy(100000);
    Szukaj_c(heavy.s, inputOf(heavy.stan));
    EXPECT_LT(std::fabs(heavy.s.Krok_c), 20);
}

TEST(SearchOfTheDistance, ItsResultLiesOneInterpolationAheadOfTheLastEvaluation) {
    Middle m(0.1F);
    Szukaj_c(m.s, inputOf(m.stan));
    // The crossing with the edge x = a tells which line was evaluated last.
    const Double evaluated = (m.s.Pk_yR - m.s.Nachylenie * m.s.Pol_a) * m.s.Sin_beta;
    EXPECT_NEAR(evaluated,
                m.s.C_linii
                    + m.s.Krok_c * std::fabs(m.s.Reszta_c)
                          / (std::fabs(m.s.Reszta_c) + std::fabs(m.s.Reszta_c_poprz)),
                1e-9);
    EXPECT_GT(std::fabs(evaluated - m.s.C_linii), 0.1);
}

TEST(SearchOfTheDistance, AColdStartThatIsNegativeAtOnceInterpolatesAtOnce) {
    Middle m(0.1F);
    m.s.C_linii = 40; // beyond the solution
    m.s.Krok_c = 1;
    m.s.Sin_beta = std::sin(m.s.Beta);
    m.s.Cos_beta = std::cos(m.s.Beta);
    m.s.Nachylenie = -m.s.Cos_beta / m.s.Sin_beta;
    Middle before = m;
    Rownowaga_c(before.s, inputOf(before.stan));
    const Double first = before.s.Reszta_c;
    before.s.C_linii += 1;
    Rownowaga_c(before.s, inputOf(before.stan));
    const Double second = before.s.Reszta_c;
    ASSERT_LT(first, 0);
    ASSERT_LT(second, 0);
    Szukaj_c(m.s, inputOf(m.stan));
    EXPECT_EQ(m.s.C_linii, 41 - 1 * std::fabs(second) / (std::fabs(second) + std::fabs(first)));
    EXPECT_EQ(m.s.Liczba_ocen, 2);
}

TEST(SearchOfTheDistance, AColdStartPassesOverAChangeFromMinusToPlus) {
    Middle m(0.1F);
    m.s.C_linii = 40; // beyond the solution, and backwards over it
    m.s.Krok_c = -60;
    Middle before = m;
    Middle behind = m;
    for (auto& [one, c] : {std::pair<Middle&, Double>(before, 40), {behind, -20}}) {
        one.s.Sin_beta = std::sin(one.s.Beta);
        one.s.Cos_beta = std::cos(one.s.Beta);
        one.s.Nachylenie = -one.s.Cos_beta / one.s.Sin_beta;
        one.s.C_linii = c;
        Rownowaga_c(one.s, inputOf(one.stan));
    }
    ASSERT_LT(before.s.Reszta_c, 0);
    ASSERT_GT(behind.s.Reszta_c, 0);
    Szukaj_c(m.s, inputOf(m.stan));
    EXPECT_EQ(m.s.Liczba_ocen, 3) << "not two: it goes back to 40 and on with a tenth of the step";
    EXPECT_EQ(m.s.Krok_c, 0.1 * -60);
    EXPECT_EQ(m.s.Reszta_c_poprz, behind.s.Reszta_c);
    EXPECT_LT(m.s.Reszta_c, 0);
    EXPECT_NEAR(m.s.C_linii, 34, 6);
}

TEST(SearchOfTheDistance, AWarmStartBeginsBehindThePreviousDistance) {
    Middle m(0.1F);
    Szukaj_c(m.s, inputOf(m.stan));
    const Double found = m.s.C_linii;
    m.s.Drugie_wejscie = 1;
    m.s.Liczba_ocen = 0;
    Szukaj_c(m.s, inputOf(m.stan));
    EXPECT_EQ(m.s.Krok_c, 1);
    EXPECT_NEAR(m.s.C_linii, found, 2);
    EXPECT_GE(m.s.Liczba_ocen, 10) << "a march of a twentieth of the length in steps of 1 cm";
}

TEST(SearchOfTheDistance, TheCounterOfStepsWrapsBeforeItOverflows) {
    Middle fromZero(0.1F);
    Szukaj_c(fromZero.s, inputOf(fromZero.stan));
    fromZero.s.Drugie_wejscie = 1;
    Middle wrapping = fromZero;
    fromZero.s.Kroki_c = 0;
    Szukaj_c(fromZero.s, inputOf(fromZero.stan));
    ASSERT_GT(fromZero.s.Kroki_c, 4);
    wrapping.s.Kroki_c = 31998;
    Szukaj_c(wrapping.s, inputOf(wrapping.stan)); // 31999, 10, 11, ...
    EXPECT_EQ(wrapping.s.Kroki_c, 10 + fromZero.s.Kroki_c - 2);
    EXPECT_EQ(wrapping.s.C_linii, fromZero.s.C_linii);
}

TEST(SearchOfTheDistance, TheCounterIsTenAtTheStepThatWouldBeTheThirtyTwoThousandth) {
    Middle fromZero(0.1F);
    Szukaj_c(fromZero.s, inputOf(fromZero.stan));
    fromZero.s.Drugie_wejscie = 1;
    Middle wrapping = fromZero;
    fromZero.s.Kroki_c = 0;
    Szukaj_c(fromZero.s, inputOf(fromZero.stan));
    ASSERT_GT(fromZero.s.Kroki_c, 4);
    wrapping.s.Kroki_c = CInt(32000 - fromZero.s.Kroki_c);
    Szukaj_c(wrapping.s, inputOf(wrapping.stan));
    EXPECT_EQ(wrapping.s.Kroki_c, 10);
}

TEST(SearchOfTheDistance, AnErrorOfExactlyZeroCountsAsMovingAway) {
    Middle m(0); // without a load every error is 0
    m.s.Drugie_wejscie = 1;
    m.s.Liczba_ocen = evaluationLimit - 1000;
    EXPECT_THROW(Szukaj_c(m.s, inputOf(m.stan)), EvaluationLimitReached);
    EXPECT_LT(std::fabs(m.s.Krok_c), 1e-9) << "the step shrinks; towards zero it would stay 1";
}

TEST(SearchOfTheDistance, ErrorsWhoseProductVanishesDoNotChangeTheSign) {
    Middle m(0.1F);
    CaseInput in = inputOf(m.stan);
    in.N = 1e-200; // kG: the product of two errors is 0
    m.s.Drugie_wejscie = 1;
    m.s.Liczba_ocen = evaluationLimit - 1000;
    EXPECT_THROW(Szukaj_c(m.s, in), EvaluationLimitReached);
    in.N = 0.1;
    m.s.Liczba_ocen = evaluationLimit - 1000;
    EXPECT_NO_THROW(Szukaj_c(m.s, in));
}

TEST(SearchOfTheDistance, AdmitsAnglesUpToARightOne) {
    Middle m(0.1F);
    m.s.Beta = -1e-9;
    Szukaj_c(m.s, inputOf(m.stan));
    EXPECT_FALSE(m.s.Jest_rozw);
    m.s.Beta = 3.1415926535 / 2 + 1e-12;
    Szukaj_c(m.s, inputOf(m.stan));
    EXPECT_FALSE(m.s.Jest_rozw);
    m.s.Beta = 3.1415926535 / 2;
    Szukaj_c(m.s, inputOf(m.stan));
    EXPECT_TRUE(m.s.Jest_rozw);
    m.s.Beta = 0;
    EXPECT_EQ(errorNumberOf([&] { Szukaj_c(m.s, inputOf(m.stan)); }), error::DivisionByZero);
}

TEST(SearchOfTheDistance, IsCoarserWhileTheAngleIsCoarse) {
    Middle coarse(5000);
    Middle fine(5000);
    coarse.s.Krok_beta = 1.01 / coarse.stan.opcje.Stopnie_na_radian;
    fine.s.Krok_beta = 0.99 / fine.stan.opcje.Stopnie_na_radian;
    Szukaj_c(coarse.s, inputOf(coarse.stan));
    Szukaj_c(fine.s, inputOf(fine.stan));
    EXPECT_LT(std::fabs(coarse.s.Reszta_c), 1000);
    EXPECT_GE(std::fabs(coarse.s.Reszta_c), 100);
    EXPECT_TRUE(std::fabs(fine.s.Reszta_c) < 100 || std::fabs(fine.s.Krok_c) < 0.01);
    EXPECT_GT(fine.s.Liczba_ocen, coarse.s.Liczba_ocen);
}

TEST(Retries, FirstTheSmallerMomentGrowsByATenth) {
    Stan_przypadku s;
    Carry carry;
    std::vector<CaseMessage> messages;
    s.M1k = 2000;
    s.M2k = 1000;
    EXPECT_EQ(Ponow_probe(s, carry, messages), Retry::RaisedMoment);
    EXPECT_EQ(s.M1k, 2000);
    EXPECT_EQ(s.M2k, 1.1 * 1000);
    EXPECT_FALSE(carry.mayRaiseMoment);
    EXPECT_TRUE(messages.empty());

    carry.mayRaiseMoment = true;
    s.M2k = 2000; // equal: M1 grows
    EXPECT_EQ(Ponow_probe(s, carry, messages), Retry::RaisedMoment);
    EXPECT_EQ(s.M1k, 1.1 * 2000);
    EXPECT_EQ(s.M2k, 2000);
}

TEST(Retries, ThenTheLastAnchorMovesThenTheCaseIsGivenUp) {
    Stan_przypadku s;
    Carry carry;
    carry.mayRaiseMoment = false;
    carry.lastX = -20;
    carry.lastY = 15;
    std::vector<CaseMessage> messages;
    EXPECT_EQ(Ponow_probe(s, carry, messages), Retry::MovedAnchor);
    EXPECT_EQ(messages, std::vector{CaseMessage::Approximate});
    EXPECT_TRUE(carry.anchorMoved);
    EXPECT_EQ(carry.lastX, CSng(-20 * 0.995));
    EXPECT_EQ(carry.lastY, CSng(15 * 0.995));
    EXPECT_FALSE(carry.gaveUp);

    EXPECT_EQ(Ponow_probe(s, carry, messages), Retry::None);
    EXPECT_EQ(messages, (std::vector{CaseMessage::Approximate, CaseMessage::Approximate,
                                     CaseMessage::NoSolution}));
    EXPECT_TRUE(carry.gaveUp);
    EXPECT_EQ(carry.lastX, CSng(-20 * 0.995)) << "it moves once";
}

struct RetriedTasks : ::testing::Test {
    WithDecimalSign comma{u','};
    ColumnBase base;
    std::vector<qsizetype> messagesAfter; // by case
    std::vector<Integer> linesAfter;

    RetriedTasks() {
        base.host.afterCase = [this](int) {
            messagesAfter.push_back(base.messages().size());
            linesAfter.push_back(base.stan.wyniki.Nr_wiersza);
        };
    }
};

TEST_F(RetriedTasks, AScaledMomentSolvesTheCaseWithoutAWord) {
    base.plate(1100, 1100).anchor(493, 0, 20).anchor(-493, 0, 20).loads(26, -0.63, -33.52);
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_TRUE(base.messages().isEmpty());
    EXPECT_FALSE(base.stan.obciazenia.Pierwsza_proba(1));
    EXPECT_NEAR(base.stan.obciazenia.Moment_M1_kGcm, 1.1 * 0.63 * 100000 / 9.80665, 1e-3);
    EXPECT_NEAR(base.stan.obciazenia.Moment_M2_kGcm, 33.52 * 100000 / 9.80665, 1e-1);
    EXPECT_GT(base.stan.wyniki.Sigma_b(1), 0);
    EXPECT_EQ(base.stan.wyniki.outcomes(1), CaseOutcome::FoundWithRaisedMoment);
    EXPECT_EQ(base.stan.obciazenia.Moment_M1(1), -0.63F) << "the report shows what was typed";
}

TEST_F(RetriedTasks, AMovedAnchorSolvesTheCaseAndStaysMoved) {
    base.plate(1261, 683)
        .anchor(600, 0, 36)
        .anchor(-600, 0, 36)
        .loads(16.6, 0, -16.1)
        .loads(500, 1, 0);
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.messages(), QStringList(approximate));
    EXPECT_EQ(base.dialogs.messages[0].title, QStringLiteral("Ferna 2005 Pr"));
    EXPECT_EQ(base.dialogs.messages[0].style, MessageStyle::Plain);
    EXPECT_EQ(base.stan.wyniki.outcomes(1), CaseOutcome::FoundWithMovedAnchor);
    EXPECT_EQ(base.stan.wyniki.outcomes(2), CaseOutcome::WholePlate);
    EXPECT_EQ(base.stan.plyta.X_kotwy(2), CSng(-60 * 0.995));
    EXPECT_EQ(base.stan.plyta.X_kotwy_mm(2), -600);
    EXPECT_EQ(base.stan.plyta.X_kotwy(1), 60);
    EXPECT_EQ(base.solver.Xn(2), Double{CSng(-60 * 0.995)}) << "the later case sees it moved";
    EXPECT_GT(base.stan.wyniki.Sigma_b(1), 0);

    // So does the next calculation, which moves it once more where it must.
    base.noLoads().loads(500, 1, 0);
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.solver.Xn(2), Double{CSng(-60 * 0.995)});
}

TEST_F(RetriedTasks, MovingTheAnchorDropsTheScaledMoment) {
    base.plate(1261, 683).anchor(600, 0, 36).anchor(-600, 0, 36).loads(16.6, 0, -16.1);
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_TRUE(base.solver.Dane_skorygowane);
    EXPECT_EQ(base.stan.obciazenia.Moment_M1_kGcm, 0.0009 * base.stan.obciazenia.Moment_M2_kGcm);
}

TEST_F(RetriedTasks, AfterAFailedCaseLaterOnesOutsideTheKernReturnSilently) {
    base.plate(643, 360)
        .anchor(-186, 78, 16)
        .anchor(40, -52, 16)
        .anchor(-150, -118, 16)
        .loads(25.4, 1.1, 11.5) // no solution
        .loads(50, 10, 4)       // solvable by itself
        .loads(300, 1, 1);      // inside the kern
    EXPECT_EQ(base.calculate(), CalculationEnd::NoResults);
    EXPECT_EQ(base.messages(), QStringList({approximate, approximate, unsolvable}));
    EXPECT_EQ(base.dialogs.messages[2].title, QStringLiteral("Ferna 2005 Pr"));
    EXPECT_EQ(base.dialogs.messages[2].style, MessageStyle::Plain);
    EXPECT_EQ(base.stan.wyniki.outcomes(1), CaseOutcome::GaveUp);
    EXPECT_EQ(base.stan.wyniki.outcomes(2), CaseOutcome::PassedOver);
    EXPECT_EQ(base.stan.wyniki.outcomes(3), CaseOutcome::WholePlate);
    EXPECT_EQ(messagesAfter, std::vector<qsizetype>({3, 3, 3}));
    EXPECT_EQ(linesAfter, std::vector<Integer>({0, 0, 2}));
    EXPECT_EQ(base.stan.wyniki.Typ_strefy_przyp(2), 0);
    EXPECT_EQ(base.stan.wyniki.Przyp_policzony(3), True);

    base.dialogs.messages.clear();
    base.noLoads().loads(50, 10, 4);
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed) << "the next calculation is a fresh one";
    EXPECT_NE(base.stan.wyniki.Typ_strefy_przyp(1), 0);
    EXPECT_EQ(base.stan.wyniki.outcomes(1), CaseOutcome::Found);
    EXPECT_EQ(base.stan.wyniki.outcomes(2), CaseOutcome::NotComputed);
}

TEST_F(RetriedTasks, ASecondHardCaseIsGivenUpAfterItsScaling) {
    base.plate(656, 427)
        .anchor(298, 0, 30)
        .anchor(-298, 0, 30)
        .loads(8.3, -2.32, 1.82)
        .loads(416.2, 10.94, 351.72);
    EXPECT_EQ(base.calculate(), CalculationEnd::NoResults);
    EXPECT_EQ(base.messages(), QStringList({approximate, approximate, unsolvable}));
}

TEST_F(RetriedTasks, TheSecondHardCaseOfACalculationFindsTheAnchorAlreadyMoved) {
    base.plate(1261, 683)
        .anchor(600, 0, 36)
        .anchor(-600, 0, 36)
        .loads(16.6, 0, -16.1)    // solved with the anchor moved
        .loads(530, 90.8, 453.6); // none
    EXPECT_EQ(base.calculate(), CalculationEnd::NoResults);
    EXPECT_EQ(messagesAfter, std::vector<qsizetype>({1, 3}));
    EXPECT_EQ(base.messages(), QStringList({approximate, approximate, unsolvable}));
    EXPECT_EQ(base.stan.plyta.X_kotwy(2), CSng(-60 * 0.995)) << "once in a calculation";
}

TEST_F(RetriedTasks, AnAttemptThatUsesUpItsEvaluationsGoesToTheRetries) {
    base.plate(952, 509).anchor(438, 0, 20).anchor(-438, 0, 20).loads(850.3, -776.28, 548.91);
    EXPECT_EQ(base.calculate(), CalculationEnd::NoResults);
    EXPECT_EQ(base.messages(), QStringList({approximate, approximate, unsolvable}));
    EXPECT_EQ(base.solver.Liczba_ocen, evaluationLimit + 1);
    EXPECT_FALSE(base.stan.obciazenia.Pierwsza_proba(1));
    EXPECT_TRUE(base.solver.Dane_skorygowane);
}

} // namespace
