#include "selection/clauses.h"
#include "support/clause_text.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::computed;
using ferna::testing::errorNumberOf;

namespace {

TEST(AnchorClauses, TheirTextsSayWhatTheFunctionsCompute) {
    EXPECT_EQ(anchorCapacity(8.17, 205), CSng(computed(anchorCapacityClause, {8.17, 205})));
    EXPECT_EQ(bendDiameter(16), computed(bendOfThinAnchorClause, {16}));
    EXPECT_EQ(bendDiameter(20), computed(bendDiameterClause, {20}));
    EXPECT_EQ(hookLength(24), computed(hookLengthClause, {24}));
    EXPECT_EQ(anchorageOfArea(38, 11.2), computed(anchorageOfAreaClause, {38, 11.2}));
    EXPECT_EQ(anchorageOfBase(0.961F, 800), CInt(computed(anchorageOfBaseClause, {0.961F, 800})));
    EXPECT_EQ(straightPart(1080, 60, 65), computed(straightPartClause, {1080, 60, 65}));
    EXPECT_EQ(hookedAnchorLength(1205, 120), computed(hookedAnchorLengthClause, {1205, 120}));
    EXPECT_EQ(plateAnchorLength(1130, 20, true), computed(ribbedAnchorLengthClause, {1130, 20}));
    EXPECT_EQ(plateAnchorLength(1130, 20, false), computed(plateAnchorLengthClause, {1130, 20}));
}

TEST(AnchorClauses, ASumPastSixteenBitsIsAnOverflow) {
    EXPECT_EQ(errorNumberOf([] { straightPart(1000, 32000, 60); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { hookedAnchorLength(32700, 120); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { plateAnchorLength(32720, 20, false); }), error::Overflow);
    EXPECT_EQ(plateAnchorLength(32720, 20, true), 32750);
}

} // namespace
