#include "analysis/load_case.h"
#include "analysis/solve.h"
#include "support/decimal_comma.h"
#include "support/random_tasks.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// The first case of a base, read and not computed.
struct Prepared {
    WithDecimalSign comma{u','};
    ColumnBase base;

    CaseInput input() {
        base.calculate();
        base.stan.obciazenia.Nr_przyp = 1;
        return inputOf(base.stan);
    }
};

/// A carry for the last anchor where the input has it.
Carry freshCarry(const CaseInput& in) {
    Carry carry;
    carry.lastX = in.X(in.anchors);
    carry.lastY = in.Y(in.anchors);
    return carry;
}

TEST(Solve, GivesTheLineTheZoneTheStressesAndTheForces) {
    Prepared one;
    one.base.fourAnchors(250, 150).loads(50, -60, 20);
    const CaseInput in = one.input();
    Carry carry = freshCarry(in);
    const CaseResult result = solve(in, carry);
    EXPECT_EQ(result.outcome, CaseOutcome::Found);
    const Wyniki& r = one.base.stan.wyniki;
    ASSERT_TRUE(result.line);
    EXPECT_EQ(result.line->Beta, one.base.solver.Beta);
    EXPECT_EQ(result.line->C, one.base.solver.C_linii);
    EXPECT_EQ(result.line->a, r.Przec_a(1));
    EXPECT_EQ(result.line->b, r.Przec_b(1));
    EXPECT_EQ(result.line->c, r.Przec_c(1));
    EXPECT_EQ(result.line->d, r.Przec_d(1));
    EXPECT_EQ(result.zone, r.Typ_strefy_przyp(1));
    EXPECT_EQ(result.Sigma_b, r.Sigma_b(1));
    ASSERT_GE(result.tensions, 2);
    for (int i = 0; i < result.tensions; ++i) {
        const AnchorTension& anchor = result.tension[static_cast<std::size_t>(i)];
        EXPECT_EQ(anchor.stress, r.Sigma_kotwy(anchor.anchor)(1));
        EXPECT_EQ(anchor.force, r.Sila_kotwy(anchor.anchor));
        EXPECT_EQ(carry.stresses(anchor.anchor), anchor.stress);
    }
    EXPECT_FALSE(carry.wholePlate);
}

TEST(Solve, MarksACompressedPlateInWhatItCarriesOn) {
    Prepared one;
    one.base.fourAnchors(250, 150).loads(500, 10, 5);
    const CaseInput in = one.input();
    Carry carry = freshCarry(in);
    carry.stresses(2) = -33; // of an earlier calculation
    const CaseResult result = solve(in, carry);
    EXPECT_EQ(result.outcome, CaseOutcome::WholePlate);
    EXPECT_FALSE(result.line);
    EXPECT_EQ(result.tensions, 0);
    EXPECT_EQ(result.Sigma_b, one.base.stan.wyniki.Sigma_b(1));
    EXPECT_TRUE(carry.wholePlate);
    EXPECT_EQ(carry.stresses(2), -33);
}

TEST(Solve, ARunTimeErrorIsAnOutcomeThatKeepsWhatTheCaseHadChanged) {
    Prepared one;
    one.base.fourAnchors(250, 150).loads(50, 60, 20);
    CaseInput in = one.input();
    in.B = -40;
    Carry carry = freshCarry(in);
    const CaseResult negative = solve(in, carry);
    EXPECT_EQ(negative.outcome, CaseOutcome::Failed);
    ASSERT_TRUE(negative.failure);
    EXPECT_EQ(negative.failure->number(), error::InvalidCall);
    in.B = 40;
    in.N = 0;
    const CaseResult weightless = solve(in, carry);
    ASSERT_TRUE(weightless.failure);
    EXPECT_EQ(weightless.failure->number(), error::DivisionByZero);
    EXPECT_FALSE(weightless.Sigma_b);
}

TEST(Solve, HasNoStartWhereTheSignsDoNotMirrorTheMoments) {
    Prepared one;
    one.base.fourAnchors(250, 150).loads(50, 60, 20);
    CaseInput in = one.input();
    in.signs.y = -1; // the first angle is below 0
    Carry carry = freshCarry(in);
    const CaseResult result = solve(in, carry);
    EXPECT_EQ(result.outcome, CaseOutcome::NoStart);
    EXPECT_FALSE(result.line);
    EXPECT_FALSE(result.Sigma_b);
    EXPECT_TRUE(result.messages.empty());
    EXPECT_TRUE(carry.mayRaiseMoment) << "no retry";
}

TEST(Solve, BeginsWithAFineStepUpToAFirstAngleOfExactlyOneDegree) {
    Prepared one;
    one.base.fourAnchors(250, 150).loads(50, 60, 1);
    CaseInput in = one.input();
    const auto evaluations = [&in](Double oneDegree) {
        in.degreesPerRadian = 1 / oneDegree;
        EXPECT_EQ(1 / in.degreesPerRadian, oneDegree);
        Carry carry = freshCarry(in);
        Stan_przypadku s;
        EXPECT_EQ(solve(in, carry, s).outcome, CaseOutcome::Found);
        return s.Liczba_ocen;
    };
    Carry carry = freshCarry(in);
    ASSERT_EQ(solve(in, carry).outcome, CaseOutcome::Found);
    const Double first = carry.direction;
    const auto near = [](Double angle, Double towards) {
        Double degree = angle; // one that is the reciprocal of its reciprocal
        do
            degree = std::nextafter(degree, towards);
        while (1 / (1 / degree) != degree);
        return degree;
    };
    ASSERT_EQ(1 / (1 / first), first);
    EXPECT_EQ(evaluations(first), evaluations(near(first, 1)));
    EXPECT_NE(evaluations(first), evaluations(near(first, 0)));
}

TEST(Solve, SaysItsMessagesInTheResult) {
    Prepared one;
    one.base.plate(1261, 683).anchor(600, 0, 36).anchor(-600, 0, 36).loads(16.6, 0, -16.1);
    CaseInput in = one.input();
    in.X(2) = -60; // where it stood before it was moved
    Carry carry = freshCarry(in);
    const CaseResult result = solve(in, carry);
    EXPECT_EQ(result.outcome, CaseOutcome::FoundWithMovedAnchor);
    EXPECT_EQ(result.messages, std::vector{CaseMessage::Approximate});
    EXPECT_TRUE(carry.anchorMoved);
    EXPECT_EQ(carry.lastX, CSng(-60 * 0.995));
}

// Random tasks, their cases in a row: once in a record that has seen all tasks before, once each
// in a record of its own.
TEST(Solve, DependsOnItsInputAndItsCarryAlone) {
    const WithDecimalSign comma{u','};
    Stan_przypadku used;
    int found = 0;
    for (std::uint64_t number = 1; number <= 300; ++number) {
        ColumnBase base;
        randomTask(base, number);
        try {
            base.calculate();
        } catch (const RunTimeError&) {
            continue;
        }
        if (base.stan.obciazenia.Nr_przyp < 1)
            continue;
        Carry one;
        Carry other;
        for (int c = 1; c <= base.cases; ++c) {
            base.stan.obciazenia.Nr_przyp = CInt(c);
            const CaseInput in = inputOf(base.stan);
            const auto begin = [&in](Carry& carry) {
                carry.mayRaiseMoment = true;
                carry.lastX = in.X(in.anchors);
                carry.lastY = in.Y(in.anchors);
            };
            begin(one);
            begin(other);
            const CaseResult first = solve(in, one, used);
            const CaseResult second = solve(in, other);
            ASSERT_EQ(first.outcome, second.outcome) << number;
            EXPECT_EQ(first.Sigma_b, second.Sigma_b) << number;
            ASSERT_EQ(first.line.has_value(), second.line.has_value());
            if (first.line) {
                EXPECT_EQ(first.line->Beta, second.line->Beta) << number;
                EXPECT_EQ(first.line->C, second.line->C) << number;
                ++found;
            }
            EXPECT_EQ(one.stresses, other.stresses) << number;
            EXPECT_EQ(one.steps, other.steps) << number;
            EXPECT_EQ(one.lastX, other.lastX) << number;
        }
    }
    EXPECT_GT(found, 100);
}

TEST(Kern, OfAMomentInOnePlaneEndsAtASixthOfItsSide) {
    Stan_przypadku s;
    s.Plyta_L = 60;
    s.Plyta_B = 40;
    s.M1k = 0;
    s.M2k = 1000;
    s.Mimosrod = 0; // not asked for beyond the sixth
    s.Ey = 6.7;
    EXPECT_TRUE(Poza_rdzeniem(s));
    s.Ey = 6.6;
    EXPECT_FALSE(Poza_rdzeniem(s));
    s.M2k = 0;
    s.Ey = 6.7;
    EXPECT_FALSE(Poza_rdzeniem(s)) << "no moment, no eccentricity";
}

} // namespace
