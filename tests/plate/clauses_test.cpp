#include "plate/clauses.h"
#include "support/clause_text.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::computed;
using ferna::testing::errorNumberOf;

namespace {

TEST(PlateClauses, TheirTextsSayWhatTheFunctionsCompute) {
    EXPECT_EQ(tensionStripThickness(97.3F, 55, 120, 205),
              CSng(computed(tensionStripThicknessClause, {97.3F, 55, 120, 205})));
    EXPECT_EQ(compressionStripMoment(80, 4.3F, 6.1F),
              CSng(computed(momentOfFallingStressClause, {80, 4.3F, 6.1F})));
    EXPECT_EQ(compressionStripMoment(80, 6.1F, 4.3F),
              CSng(computed(momentOfRisingStressClause, {80, 6.1F, 4.3F})));
    EXPECT_EQ(compressionStripThickness(16000, 205),
              CSng(computed(compressionStripThicknessClause, {16000, 205})));
    EXPECT_EQ(sideRatio(260, 430), CSng(computed(sideRatioClause, {260, 430})));
    EXPECT_EQ(coefficientTimesLength(0.414, 0.466, 0.63F, 0.6, 0.1, 430),
              CSng(computed(coefficientTimesLengthClause, {0.414, 0.466, 0.63F, 0.6, 0.1, 430})));
    EXPECT_EQ(edgeFragmentThickness(176, 5.3F, 205),
              CSng(computed(edgeFragmentThicknessClause, {176, 5.3F, 205})));
    EXPECT_EQ(columnBaseThickness(4.7F, 360, 300, 7.1, 205),
              CSng(computed(columnBaseThicknessClause, {4.7F, 360, 300, 7.1, 205})));
    EXPECT_EQ(chartRatio(150, 70), CSng(computed(chartWidthClause, {150, 70})));
    EXPECT_EQ(chartRatio(90, 70), CSng(computed(chartPlaceClause, {90, 70})));
    EXPECT_FLOAT_EQ(curveCoefficient(2.5F, 8.6F, 9.1F, 0.7F, 2.9F),
                    CSng(computed(threeEdgesCurveClause, {2.5F, 8.6F, 9.1F, 0.7F, 2.9F})));
    EXPECT_FLOAT_EQ(curveCoefficient(2.5F, 8.6F, 9.1F, 0.7F, 2.9F),
                    CSng(computed(twoEdgesCurveClause, {2.5F, 8.6F, 9.1F, 0.7F, 2.9F})));
    EXPECT_FLOAT_EQ(chartCoefficient(8.6F, 9.1F, 1.53F, 1.4F, 0.2),
                    CSng(computed(threeEdgesCoefficientClause, {8.6F, 9.1F, 1.53F, 1.4F, 0.2})));
    EXPECT_FLOAT_EQ(chartCoefficient(8.6F, 9.1F, 3.7F, 3.5F, 0.5),
                    CSng(computed(twoEdgesCoefficientClause, {8.6F, 9.1F, 3.7F, 3.5F, 0.5})));
    EXPECT_EQ(anchorFragmentThickness(61.2F, 7.3F, 205),
              CSng(computed(anchorFragmentThicknessClause, {61.2F, 7.3F, 205})));
    EXPECT_EQ(thicknessAtStrength(33.7F, 295, 285),
              CSng(computed(thicknessAtStrengthClause, {33.7F, 295, 285})));
    EXPECT_EQ(wholeThickness(33.5F), computed(wholeThicknessClause, {33.5F}));
    EXPECT_EQ(wholeThickness(33.4F), computed(wholeThicknessClause, {33.4F}));
}

TEST(PlateClauses, ARootOfANegativeNumberAndADivisorOfZeroAreErrors) {
    EXPECT_EQ(errorNumberOf([] { tensionStripThickness(-1, 50, 100, 205); }), error::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { tensionStripThickness(1, 50, 0, 205); }), error::DivisionByZero);
    EXPECT_EQ(errorNumberOf([] { anchorFragmentThickness(10, 0, 205); }), error::DivisionByZero);
    EXPECT_EQ(errorNumberOf([] { compressionStripThickness(1, 0); }), error::DivisionByZero);
    EXPECT_EQ(errorNumberOf([] { wholeThickness(40000); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { chartCoefficient(-3e38F, 3e38F, 2, 1, 0.2); }), error::Overflow);
}

TEST(PlateClauses, ADescriptionIsWellFormedWhereBracesAndInputsAreTheSame) {
    EXPECT_TRUE(wellFormed(tensionStripThicknessClause));
    Clause unknown = wholeThicknessClause;
    unknown.text = u"int({g} + 0.5)";
    EXPECT_FALSE(wellFormed(unknown));
    Clause unused = wholeThicknessClause;
    unused.inputs[1] = {u"fd", u"MPa"};
    EXPECT_FALSE(wellFormed(unused));
}

} // namespace
