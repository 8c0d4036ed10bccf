#include "equilibrium/section.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ferna::equilibrium;

namespace {

constexpr double large = 1e14;

/// Rows of the size 1e14, whose second or third pivot is this.
Moments<double> withSecondPivot(double pivot) {
    return {large - pivot, large - pivot, 0, large, 0, 1};
}
Moments<double> withThirdPivot(double pivot) {
    return {large - pivot, 0, large - pivot, 1, 0, large};
}

TEST(SolvingAMatrix, IsRefusedWhereAPivotIsNoMoreThanRoundingOfItsRow) {
    for (const auto matrix : {withSecondPivot, withThirdPivot}) {
        Vector3 z{};
        EXPECT_FALSE(solve(matrix(0), {1, 1, 1}, z));
        EXPECT_FALSE(solve(matrix(1), {1, 1, 1}, z)) << "1e-14 of its row is not enough";
        EXPECT_TRUE(solve(matrix(2), {1, 1, 1}, z));
    }
    Vector3 z{};
    EXPECT_FALSE(solve({0, 0, 0, 1, 0, 1}, {0, 1, 1}, z)) << "nothing carries the force";
}

TEST(SolvingAMatrix, GivesWhatTheMatrixMakesTheRightSideOf) {
    const Moments<double> m{4, 1, -0.5, 3, 0.25, 2};
    const Vector3 right = product(m, Vector3{0.5, -2, 7});
    Vector3 z{};
    ASSERT_TRUE(solve(m, right, z));
    EXPECT_NEAR(z[0], 0.5, 1e-14);
    EXPECT_NEAR(z[1], -2, 1e-14);
    EXPECT_NEAR(z[2], 7, 1e-14);
}

TEST(TheLineOfAPlane, BeginsAtTheEdgeThatTheSteeperSlopeRunsAlong) {
    const auto begins = [](double p, double q) {
        const Crossing line = crossingOf({{1, -p, -q}, 1, 1});
        EXPECT_TRUE(line.crosses);
        return std::pair(line.u1, line.v1);
    };
    EXPECT_EQ(begins(2, 1), std::pair(0.5, 0.0));
    EXPECT_EQ(begins(1, 1), std::pair(1.0, 0.0)) << "on a slant of one to one as on a steep one";
    EXPECT_EQ(begins(1, 2), std::pair(0.0, 0.5));
}

TEST(TheMagnitude, OfNothingHasNoSign) {
    EXPECT_FALSE(std::signbit(magnitude(0.0)));
    EXPECT_EQ(magnitude(-2.5), 2.5);
    EXPECT_EQ(magnitude(2.5), 2.5);
}

} // namespace
