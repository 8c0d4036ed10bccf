#include "analysis/load_case.h"
#include "analysis/shortcuts.h"
#include "support/column_base.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// A march that has just evaluated the line at 5 cm, with a step of so many cm.
struct March : ::testing::Test {
    March() {
        base.plate(400, 300).fourAnchors(150, 100, 20).loads(100, 60, 40);
        base.calculate();
        Stan_przypadku& s = base.solver;
        s.Beta = 0.7;
        s.Sin_beta = std::sin(s.Beta);
        s.Cos_beta = std::cos(s.Beta);
        s.Nachylenie = -s.Cos_beta / s.Sin_beta;
        s.C_linii = 5;
        s.Liczba_ocen = 0;
        in = inputOf(base.stan);
        Rownowaga_c(s, in);
    }

    /// Takes the plain steps; returns how many were counted.
    template <typename IsPlain>
    int goOn(Double step, IsPlain isPlain) {
        base.solver.Krok_c = step;
        int counted = 0;
        Stride(base.solver, in).goOn(isPlain, [&counted](int steps) { counted += steps; });
        return counted;
    }

    ColumnBase base;
    CaseInput in;
};

constexpr Double standsStill = 1e-20; // cm, too little to move the line

TEST_F(March, ThatStandsStillOnAPlainStepEndsWithItsEvaluations) {
    const Double error = base.solver.Reszta_c;
    EXPECT_EQ(goOn(standsStill, [](Double, Double) { return true; }), evaluationLimit - 2);
    EXPECT_EQ(base.solver.Liczba_ocen, evaluationLimit - 1) << "the last one is the march's";
    EXPECT_EQ(base.solver.C_linii, 5);
    EXPECT_EQ(base.solver.Reszta_c, error);
}

TEST_F(March, ThatStandsStillAndIsNotPlainTakesNoStep) {
    const Double error = base.solver.Reszta_c;
    const auto falls = [](Double now, Double before) { return now < before; };
    EXPECT_EQ(goOn(standsStill, falls), 0);
    EXPECT_EQ(base.solver.Liczba_ocen, 1);
    EXPECT_EQ(base.solver.C_linii, 5);
    EXPECT_EQ(base.solver.Reszta_c, error);
}

TEST_F(March, ThatMovesStandsWhereItsStepsWouldHaveTakenIt) {
    constexpr Double step = 0.01;
    constexpr Double edge = 5.255; // behind the first row and in the middle of another one
    int left = 0;
    Stan_przypadku single = base.solver;
    for (;; ++left) {
        Stan_przypadku next = single;
        next.C_linii += step;
        if (next.C_linii > edge)
            break;
        Rownowaga_c(next, in);
        single = next;
    }
    const Double last = single.Reszta_c;
    int asked = 0;
    const auto isPlain = [&](Double, Double) { return ++asked <= left; };
    EXPECT_EQ(goOn(step, isPlain), left);
    EXPECT_EQ(base.solver.C_linii, single.C_linii);
    EXPECT_EQ(base.solver.Reszta_c, last);
    EXPECT_EQ(base.solver.Liczba_ocen, single.Liczba_ocen);
}

TEST_F(March, TakesNoStepBeyondTheLastEvaluation) {
    base.solver.Liczba_ocen = evaluationLimit - 7;
    EXPECT_EQ(goOn(0.01, [](Double, Double) { return true; }), 6);
    EXPECT_EQ(base.solver.Liczba_ocen, evaluationLimit - 1);
    base.solver.Liczba_ocen = evaluationLimit;
    EXPECT_EQ(goOn(standsStill, [](Double, Double) { return true; }), 0);
    EXPECT_EQ(base.solver.Liczba_ocen, evaluationLimit);
}

TEST(RoundTripOfASearch, LeavesOutTheWholeRoundsUpToTheLimit) {
    Stan_przypadku s;
    s.Beta = 0.5;
    s.Liczba_ocen = 100;
    RoundTrip trip(s);
    s.Liczba_ocen = 400; // the same state again, 300 evaluations later
    trip.lookBack();
    EXPECT_EQ(s.Liczba_ocen, 400 + (evaluationLimit - 400) / 300 * 300);
}

TEST(RoundTripOfASearch, IsNoneWithoutAnEvaluationOrInAnotherState) {
    Stan_przypadku s;
    s.Liczba_ocen = 100;
    RoundTrip trip(s);
    trip.lookBack();
    EXPECT_EQ(s.Liczba_ocen, 100);
    s.Liczba_ocen = 200;
    s.Beta = 0.1;
    trip.lookBack();
    EXPECT_EQ(s.Liczba_ocen, 200);
}

TEST(RoundTripOfASearch, ThatBeginsLaterIsSeenFromTheStatesRememberedOnTheWay) {
    Stan_przypadku s;
    RoundTrip trip(s);
    const auto lookBackAt = [&](Double Beta, int evaluations) {
        s.Beta = Beta;
        s.Liczba_ocen = evaluations;
        trip.lookBack();
        return s.Liczba_ocen;
    };
    const auto skipped = [](int from, int round) {
        return from + (evaluationLimit - from) / round * round;
    };
    EXPECT_EQ(lookBackAt(0.1, 10), 10); // the first turn is remembered
    EXPECT_EQ(lookBackAt(0.2, 20), 20);
    EXPECT_EQ(lookBackAt(0.1, 35), skipped(35, 25)) << "seen from the first turn";
    EXPECT_EQ(lookBackAt(0.3, 40), 40); // the second after it is remembered
    EXPECT_EQ(lookBackAt(0.1, 50), 50) << "which has taken the place of the first";
    EXPECT_EQ(lookBackAt(0.3, 67), skipped(67, 27));
}

TEST(RoundTripOfASearch, ThatIsSeenAtTheLimitLeavesTheLastEvaluationAsItIs) {
    Stan_przypadku s;
    s.Liczba_ocen = evaluationLimit - 10;
    RoundTrip trip(s);
    s.Liczba_ocen = evaluationLimit;
    trip.lookBack();
    EXPECT_EQ(s.Liczba_ocen, evaluationLimit);
}

} // namespace
