#include "analysis/clauses.h"
#include "support/clause_text.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::computed;
using ferna::testing::errorNumberOf;

namespace {

TEST(CaseClauses, TheTextsOfUnitsAndKernSayWhatTheFunctionsCompute) {
    EXPECT_EQ(forceInKilograms(123.4F), CSng(computed(forceInKilogramsClause, {123.4F})));
    EXPECT_EQ(momentInKilograms(12.3), computed(momentInKilogramsClause, {12.3}));
    EXPECT_EQ(stressInMegapascals(87.6), CSng(computed(stressInMegapascalsClause, {87.6})));
    EXPECT_EQ(eccentricity(7000, 300), computed(eccentricityClause, {7000, 300}));
    EXPECT_EQ(eccentricityLength(17, 9), computed(eccentricityLengthClause, {17, 9}));
    EXPECT_EQ(kernRadius(60, 40, 0.4), computed(kernRadiusClause, {60, 40, 0.4}));
    // b h h / 6 and b h2 / 6 may differ by the last bit.
    EXPECT_DOUBLE_EQ(sectionModulus(60, 43.7), computed(sectionModulusClause, {60, 43.7}));
    EXPECT_EQ(cornerStress(20000, 60, 40, 7000, 24000, 9000, 16000),
              computed(cornerStressClause, {20000, 60, 40, 7000, 24000, 9000, 16000}));
}

TEST(CaseClauses, TheTextsOfStressesAndChecksSayWhatTheFunctionsCompute) {
    EXPECT_EQ(concreteStress(20000, 350), computed(concreteStressClause, {20000, 350}));
    EXPECT_EQ(anchorForce(-21.3, 7.9, 1.7, 3.53),
              CSng(computed(anchorForceClause, {-21.3, 7.9, 1.7, 3.53})));
    EXPECT_EQ(anchorStress(-1010, 3.53), CSng(computed(anchorStressClause, {-1010, 3.53})));
    EXPECT_EQ(anchorForceOfStress(-101.7F, 3.53),
              CSng(computed(anchorForceOfStressClause, {-101.7F, 3.53})));
    EXPECT_EQ(concreteRatio(9.3F, 7.1F), CSng(computed(concreteRatioClause, {9.3F, 7.1F})));
    EXPECT_EQ(horizontalForce(3.3F, -4.7F), CSng(computed(horizontalForceClause, {3.3F, -4.7F})));
    EXPECT_EQ(frictionForce(120.7F), computed(frictionForceClause, {120.7F}));
    EXPECT_EQ(anchorShear(33.3F, 14.12F), CSng(computed(anchorShearClause, {33.3F, 14.12F})));
    EXPECT_EQ(shearUtilisation(71, 168.75F), CSng(computed(shearUtilisationClause, {71, 168.75F})));
    EXPECT_EQ(interactionUtilisation(-101.7F, 191.25F, 71, 168.75F),
              CSng(computed(interactionUtilisationClause, {-101.7F, 191.25F, 71, 168.75F})));
}

TEST(CaseClauses, AStressAtEitherLimitOfTheConcreteIsExceeded) {
    EXPECT_EQ(concreteVerdict(7.0F, 7.1F), ConcreteVerdict::Satisfied);
    EXPECT_EQ(concreteVerdict(7.1F, 7.1F), ConcreteVerdict::Exceeded);
    EXPECT_EQ(concreteVerdict(14.2F, 7.1F), ConcreteVerdict::Exceeded);
    EXPECT_EQ(concreteVerdict(14.3F, 7.1F), ConcreteVerdict::AboveDouble);
}

TEST(CaseClauses, AUtilisationOfOneIsWithinFivePercent) {
    EXPECT_EQ(shearVerdict(0.9999F), ShearVerdict::Satisfied);
    EXPECT_EQ(shearVerdict(1), ShearVerdict::WithinFivePercent);
    EXPECT_EQ(shearVerdict(1.0499F), ShearVerdict::WithinFivePercent);
    EXPECT_EQ(shearVerdict(1.0501F), ShearVerdict::Exceeded);
}

TEST(CaseClauses, WithoutAnchorsForTheShearItIsADivisionByZero) {
    EXPECT_EQ(errorNumberOf([] { anchorShear(10, 0); }), error::DivisionByZero);
}

} // namespace
