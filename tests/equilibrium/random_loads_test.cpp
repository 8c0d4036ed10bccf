#include "equilibrium/random_problems.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using namespace ferna;
using namespace ferna::testing;
using equilibrium::Result;

namespace {

/// FERNA_LOADS sets another number; tests/long.sh asks for two million.
std::uint64_t count() {
    const char* const asked = std::getenv("FERNA_LOADS");
#ifdef FERNA_SANITIZE
    constexpr std::uint64_t usual = 10'000;
#else
    constexpr std::uint64_t usual = 100'000;
#endif
    return asked == nullptr ? usual : std::strtoull(asked, nullptr, 10);
}

double largestStress(const Result& result) {
    double largest = result.sigmaConcrete;
    for (const double stress : result.sigmaAnchor)
        largest = std::max(largest, std::fabs(stress));
    return largest;
}

/// The other result's stresses are `factor` times those of the first, anchor by anchor. Near the
/// verge a last digit of the load is worth many of the stresses.
void expectStresses(const Result& one, const Result& other, double factor, double share) {
    ASSERT_EQ(one.exists, other.exists);
    const double slack = share * factor * largestStress(one);
    EXPECT_NEAR(other.sigmaConcrete, factor * one.sigmaConcrete, slack);
    for (std::size_t i = 0; i < one.sigmaAnchor.size(); ++i)
        EXPECT_NEAR(other.sigmaAnchor[i], factor * one.sigmaAnchor[i], slack) << i;
}

TEST(RandomLoads, AreBalancedByAnotherIntegration) {
    int found = 0;
    int exactly = 0;
    int mostSteps = 0;
    for (std::uint64_t number = 1; number <= count(); ++number) {
        const BaseAndLoad problem = randomProblem(number);
        const Result result = problem.solved();
        if (!result.exists)
            continue;
        ++found;
        mostSteps = std::max(mostSteps, result.steps);
        ASSERT_LT(result.residual, 1e-10) << number;
        if (problem.size() == 0)
            continue;
        const Imbalance imbalance = imbalanceOf(problem, result);
        ASSERT_LT(imbalance.error, 1e-10 + imbalance.rounding) << number;
        exactly += imbalance.error < 1e-10;
    }
    EXPECT_GT(found, 0.9 * static_cast<double>(count()));
    EXPECT_GT(exactly, 0.98 * found);
    EXPECT_LE(mostSteps, equilibrium::mostSteps);
}

TEST(RandomLoads, HaveNoEquilibriumOnlyWhereNoForcesCarryThem) {
    int none = 0;
    for (std::uint64_t number = 1; number <= count(); ++number) {
        const BaseAndLoad problem = randomProblem(number);
        if (problem.size() == 0)
            continue;
        constexpr double margin = 1e-8;
        const Result result = problem.solved();
        if (result.exists) {
            EXPECT_TRUE(forcesCarry(problem, -margin)) << number;
        } else {
            ++none;
            EXPECT_FALSE(forcesCarry(problem, margin)) << number;
            EXPECT_TRUE(turnsFreely(problem, result.tippingAxis)) << number;
        }
    }
    EXPECT_GT(none, static_cast<int>(count() / 100));
}

// The hardest of the first two million: anchors beside the plate, the resultant at a corner.
TEST(RandomLoads, AreCarriedThoughOnlyTheVeryVergeIsLeft) {
    for (const std::uint64_t number : {910108U, 1574668U}) {
        const BaseAndLoad problem = randomProblem(number);
        ASSERT_TRUE(forcesCarry(problem, 1e-12)) << number;
        const Result result = problem.solved();
        EXPECT_TRUE(result.exists) << number;
        EXPECT_LT(result.residual, 1e-10) << number;
    }
}

TEST(RandomLoads, NearTheVergeAreCarriedUpToItsLastDigits) {
    for (std::uint64_t number = 1; number <= count() / 1000; ++number) {
        Dice dice(number);
        const double a = dice.whole(50, 600);
        const double b = dice.whole(50, 600);
        const auto gap = [&dice] { return std::pow(10, dice.between(-12, -7)); };
        const auto sign = [&dice] { return dice.oneIn(2) ? 1 : -1; };
        BaseAndLoad problem{2 * a, 2 * b, 9, {}, {}};
        for (int i = dice.whole(1, 3); i > 0; --i)
            problem.anchors.push_back(
                {sign() * a * dice.between(1, 2), b * dice.between(-2, 2), dice.between(80, 4000)});
        problem.load = {1, sign() * (1 - gap()) * a / 1000,
                        sign() * (dice.oneIn(2) ? 1 : 1 - gap()) * b / 1000};
        const Result result = problem.solved();
        if (!result.exists) {
            EXPECT_FALSE(forcesCarry(problem, 1e-11)) << number;
            continue;
        }
        EXPECT_TRUE(forcesCarry(problem, -1e-11)) << number;
        EXPECT_LT(result.residual, 1e-10) << number;
        EXPECT_LT(result.steps, equilibrium::mostSteps) << number;
    }
}

TEST(RandomLoads, GiveTheMirroredStressesOnTheMirroredBase) {
    for (std::uint64_t number = 1; number <= count() / 4; ++number) {
        const BaseAndLoad problem = randomProblem(number);
        const Result result = problem.solved();
        BaseAndLoad mirrored = problem;
        mirrored.load.M1 = -mirrored.load.M1;
        for (equilibrium::Anchor& anchor : mirrored.anchors)
            anchor.x = -anchor.x;
        expectStresses(result, mirrored.solved(), 1, 1e-6);
        BaseAndLoad turned = problem; // by a quarter: x to y, y to -x
        std::swap(turned.length, turned.width);
        turned.load = {problem.load.N, -problem.load.M2, problem.load.M1};
        for (equilibrium::Anchor& anchor : turned.anchors)
            anchor = {-anchor.y, anchor.x, anchor.area};
        expectStresses(result, turned.solved(), 1, 1e-6);
        if (HasFailure())
            FAIL() << "problem " << number;
    }
}

TEST(RandomLoads, GiveTwiceTheStressesTwiceAsLarge) {
    for (std::uint64_t number = 1; number <= count() / 4; ++number) {
        const BaseAndLoad problem = randomProblem(number);
        BaseAndLoad larger = problem;
        for (const double factor : {2.0, 1000.0, 1e-9}) {
            larger.load = {factor * problem.load.N, factor * problem.load.M1,
                           factor * problem.load.M2};
            // Twice is the same digits.
            expectStresses(problem.solved(), larger.solved(), factor, factor == 2 ? 0 : 1e-6);
        }
        if (HasFailure())
            FAIL() << "problem " << number;
    }
}

} // namespace
