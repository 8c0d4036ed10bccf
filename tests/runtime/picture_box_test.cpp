#include "runtime/picture_box.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::errorNumberOf;

namespace {

TEST(Colours, AreThoseOfTheSixteenColourTable) {
    EXPECT_EQ(QBColor(qb::Black), QColor(0, 0, 0));
    EXPECT_EQ(QBColor(qb::Cyan), QColor(0, 128, 128));
    EXPECT_EQ(QBColor(qb::Grey), QColor(192, 192, 192));
    EXPECT_EQ(QBColor(qb::LightRed), QColor(255, 0, 0));
    EXPECT_EQ(QBColor(qb::White), QColor(255, 255, 255));
}

TEST(Colours, OutsideTheTableAreAnError) {
    EXPECT_EQ(errorNumberOf([] { QBColor(-1); }), error::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { QBColor(16); }), error::InvalidCall);
}

} // namespace
