#include "equilibrium/independent_check.h"
#include "support/golden_file.h"
#include "support/random_tasks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <numeric>
#include <vector>

using namespace ferna::testing;
using ferna::equilibrium::Result;

namespace {

// Drawn without powers and roots, whose last digits depend on the library.

double ofTwo(Dice& dice, int least, int most) {
    return std::ldexp(1.0, dice.whole(least, most));
}

int sign(Dice& dice) {
    return dice.oneIn(2) ? 1 : -1;
}

BaseAndLoad plate(Dice& dice) {
    BaseAndLoad problem;
    problem.length = dice.whole(200, 1500);
    problem.width = dice.whole(200, 1500);
    problem.n = dice.whole(24, 40) / 4.0;
    return problem;
}

double area(Dice& dice) {
    return dice.whole(84, 4342);
}

/// Anchors in a frame or anywhere inside, the load around the kern and beyond, pulling too.
BaseAndLoad ordinary(Dice& dice) {
    BaseAndLoad problem = plate(dice);
    const int x = static_cast<int>(problem.length) / 2 - 40;
    const int y = static_cast<int>(problem.width) / 2 - 40;
    if (dice.oneIn(2)) {
        const double one = area(dice);
        for (const int atX : {-1, 1})
            for (const int atY : {-1, 1})
                problem.anchors.push_back({1.0 * atX * x, 1.0 * atY * y, one});
    } else {
        for (int i = dice.whole(1, 12); i > 0; --i) {
            const int atX = dice.whole(-x, x);
            const int atY = dice.whole(-y, y);
            problem.anchors.push_back({1.0 * atX, 1.0 * atY, area(dice)});
        }
    }
    const double N = dice.whole(-500, 2000);
    const double ofM1 = sign(dice) * ofTwo(dice, -3, 4);
    const double ofM2 = sign(dice) * ofTwo(dice, -3, 4);
    problem.load = {N, N * problem.length / 6000 * ofM1, N * problem.width / 6000 * ofM2};
    return problem;
}

/// Anchors beside the plate and a load that hardly stands: the plate is pressed at an edge or a
/// corner alone.
BaseAndLoad verging(Dice& dice) {
    BaseAndLoad problem = plate(dice);
    const double a = problem.length / 2;
    const double b = problem.width / 2;
    for (int i = dice.whole(0, 3); i > 0; --i) {
        const double x = sign(dice) * dice.between(a, 2 * a);
        const double y = dice.between(-2 * b, 2 * b);
        problem.anchors.push_back({x, y, area(dice)});
    }
    const double alongX = 1 - ofTwo(dice, -36, -4);
    const double alongY = dice.oneIn(3) ? dice.between(-1, 1) : 1 - ofTwo(dice, -36, -4);
    problem.load = {100, 0.1 * a * alongX * sign(dice), 0.1 * b * alongY};
    return problem;
}

/// A row of anchors inside or on an edge that pulls, stiff or soft, and what it carries alone.
BaseAndLoad hanging(Dice& dice) {
    BaseAndLoad problem = plate(dice);
    const double x = problem.length / 2 * dice.of({-1.0, -0.5, 0.0, 0.25, 1.0});
    const double y = problem.width / 4;
    const double stiff = ofTwo(dice, -30, 4);
    for (int i = dice.whole(1, 4); i > 0; --i)
        problem.anchors.push_back({x, y * dice.whole(-2, 2), stiff * area(dice)});
    const double place = problem.anchors[0].y;
    const double aside = dice.oneIn(2) ? 0 : dice.whole(-20, 20);
    problem.load = {-100, -0.1 * (x + aside), -0.1 * place};
    return problem;
}

/// Up to twenty anchors in and beside the plate, soft or stiff, and a load whose parts may be
/// nothing or nearly so.
BaseAndLoad strange(Dice& dice) {
    BaseAndLoad problem = plate(dice);
    problem.n = ofTwo(dice, -7, 10);
    const double reach = dice.of({0.5, 1.0, 1.5});
    for (int i = dice.whole(0, dice.of({3, 20})); i > 0; --i) {
        const double x = dice.between(-reach, reach) * problem.length;
        const double y = dice.between(-reach, reach) * problem.width;
        problem.anchors.push_back({x, y, area(dice)});
    }
    const auto part = [&dice] {
        const double size = dice.oneIn(3) ? ofTwo(dice, -40, 0) : 1;
        return size * (dice.oneIn(4) ? dice.whole(-1, 1) : dice.between(-1, 1));
    };
    problem.load.N = 100 * part();
    problem.load.M1 = 0.05 * problem.length * part();
    problem.load.M2 = 0.05 * problem.width * part();
    return problem;
}

BaseAndLoad problemOf(int number) {
    Dice dice(static_cast<std::uint64_t>(number));
    switch (number % 4) {
    case 0:
        return ordinary(dice);
    case 1:
        return verging(dice);
    case 2:
        return hanging(dice);
    default:
        return strange(dice);
    }
}

/// The rarest of two million: errors that are equal or exactly halved, a step that is cut forty
/// times, a cut one at either end of its interval, a fall of the energy that is lost in rounding or
/// just enough, planes that are just not fine enough.
constexpr int rare[] = {652, 805, 2241, 3639, 4016, 39879, 40945, 621483, 655999, 4305063};

// The evaluations that each load takes and the plane to its last bit: a change of the method shows
// here, also one that only takes longer.
TEST(WaysToTheEquilibrium, TakeTheSameEvaluationsToTheSamePlane) {
    constexpr int count = 600;
    std::vector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    numbers.insert(numbers.end(), std::begin(rare), std::end(rare));
    QByteArray lines;
    for (const int number : numbers) {
        const Result result = problemOf(number).solved();
        char line[200];
        std::snprintf(line, sizeof line, "%d %s %d %a %a %a %a %a\n", number,
                      result.exists ? "stands" : "tips", result.steps, result.plane.s0,
                      result.plane.sx, result.plane.sy, result.residual, result.tippingAxis[0].x);
        lines += line;
    }
    expectGolden(lines, QStringLiteral("equilibrium.ways.txt"));
}

// The bits may be those of a wrong plane: each is held against another integration.
TEST(WaysToTheEquilibrium, LeadToWhatBalances) {
    for (const int number : rare) {
        const BaseAndLoad problem = problemOf(number);
        const Result result = problem.solved();
        ASSERT_TRUE(result.exists) << number;
        EXPECT_LT(result.residual, 1e-10) << number;
        const Imbalance imbalance = imbalanceOf(problem, result);
        EXPECT_LT(imbalance.error, 1e-10 + imbalance.rounding) << number;
    }
}

} // namespace
