#include "equilibrium/wide.h"

#include <gtest/gtest.h>

#include <cmath>

using ferna::equilibrium::Wide;

namespace {

double error(const Wide& is, const Wide& shouldBe) {
    return static_cast<double>(is - shouldBe);
}

TEST(Wide, KeepsWhatSixtyDigitsFurtherDownIsAdded) {
    Wide small = 1;
    for (int digit = 0; digit < 60; ++digit)
        small /= 10;
    EXPECT_NEAR(error(1 + small, 1), 1e-60, 1e-66);
    EXPECT_NEAR(error(1 - small, 1), -1e-60, 1e-66);
    EXPECT_TRUE(1 < 1 + small);
    EXPECT_TRUE(1 > 1 - small);
    EXPECT_TRUE(1 <= 1 + small);
    EXPECT_FALSE(1 >= 1 + small);
}

TEST(Wide, MultipliesAndDividesToItsLastDigits) {
    for (const int number : {3, 7, 49, 1'000'003}) {
        const Wide quotient = Wide(1) / number;
        EXPECT_LT(std::abs(error(number * quotient, 1)), 1e-66) << number;
        EXPECT_LT(std::abs(error(quotient * quotient * number, quotient)), 1e-66) << number;
    }
    const Wide third = Wide(1) / 3;
    const Wide above = 1 + third;
    EXPECT_LT(std::abs(error(above * above, 1 + 2 * third + third * third)), 1e-65);
    EXPECT_LT(std::abs(error(above / (third * third), 12)), 1e-64);
}

} // namespace
