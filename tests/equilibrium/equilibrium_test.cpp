#include "equilibrium/independent_check.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ferna::testing;
using namespace ferna::equilibrium;

namespace {

std::vector<Anchor> fourAnchors(double x, double y, double area) {
    return {{x, y, area}, {-x, y, area}, {x, -y, area}, {-x, -y, area}};
}

double force(const BaseAndLoad& problem, const Result& result, double x, double y) { // kN
    for (std::size_t i = 0; i < problem.anchors.size(); ++i)
        if (problem.anchors[i].x == x && problem.anchors[i].y == y)
            return -result.sigmaAnchor[i] * problem.anchors[i].area / 1000;
    return std::nan("");
}

void expectPoint(const Point& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-9);
    EXPECT_NEAR(point.y, y, 1e-9);
}

TEST(Equilibrium, OfNoLoadIsNoStress) {
    const BaseAndLoad problem{600, 400, 6, fourAnchors(250, 150, 353), {0, 0, 0}};
    const Result result = problem.solved();
    EXPECT_TRUE(result.exists);
    EXPECT_EQ(result.sigmaConcrete, 0);
    EXPECT_EQ(result.sigmaAnchor, (std::array<double, mostAnchors>{}));
    EXPECT_FALSE(result.neutralLine);
    EXPECT_EQ(result.residual, 0);
}

TEST(Equilibrium, InsideTheKernIsThatOfTheWholePlate) {
    const BaseAndLoad problem{600, 400, 6, fourAnchors(250, 150, 353), {240, 12, -4}};
    const Result result = problem.solved();
    EXPECT_NEAR(result.plane.s0, 1, 1e-14); // 240 kN on 0.24 m2
    EXPECT_NEAR(result.plane.sx, 12e6 / (400 * 600.0 * 600 * 600 / 12), 1e-16);
    EXPECT_NEAR(result.plane.sy, -4e6 / (600 * 400.0 * 400 * 400 / 12), 1e-16);
    EXPECT_NEAR(result.sigmaConcrete, 1.75, 1e-14);
    EXPECT_EQ(result.steps, 1) << "the first plane is the equilibrium";
    EXPECT_EQ(result.sigmaAnchor, (std::array<double, mostAnchors>{}));
    EXPECT_FALSE(result.neutralLine);
}

TEST(Equilibrium, WithoutAnchorsPressesThreeTimesTheDistanceToTheEdge) {
    // N at x = 240: a triangle of 3 (300 - 240) mm.
    const BaseAndLoad problem{600, 400, 6, {}, {100, 24, 0}};
    const Result result = problem.solved();
    EXPECT_NEAR(result.sigmaConcrete, 2 * 100e3 / (180 * 400), 1e-12);
    ASSERT_TRUE(result.neutralLine);
    EXPECT_NEAR((*result.neutralLine)[0].x, 120, 1e-9);
    EXPECT_NEAR((*result.neutralLine)[1].x, 120, 1e-9);
    EXPECT_NEAR(std::fabs((*result.neutralLine)[0].y), 200, 1e-12);
}

TEST(Equilibrium, WithoutAnchorsPressesACornerOnASlant) {
    // The middle of a pyramid over a triangle with the legs 4 (300 - x) and 4 (200 - y).
    const BaseAndLoad problem{600, 400, 6, {}, {10, 2.7, 1.8}};
    const Result result = problem.solved();
    ASSERT_TRUE(result.neutralLine);
    EXPECT_NEAR(result.sigmaConcrete, 6 * 10e3 / (120 * 80), 1e-10);
    expectPoint((*result.neutralLine)[0], 180, 200);
    expectPoint((*result.neutralLine)[1], 300, 120);
}

TEST(Equilibrium, HoldsWhereTheSearchFindsAFractionOfTheStresses) {
    // 444 MPa in an anchor against the 215 MPa of its steel, under a pressure of 16 MPa.
    const BaseAndLoad problem{502, 230, 8.87, fourAnchors(201, 65, 85), {12, 11.8, -12.8}};
    const Result result = problem.solved();
    EXPECT_NEAR(result.sigmaAnchor[1], -444.141, 0.001);
    EXPECT_NEAR(result.sigmaAnchor[0], -351.888, 0.001);
    EXPECT_NEAR(result.sigmaConcrete, 16.0877, 0.0001);
    EXPECT_LT(imbalanceOf(problem, result).error, 1e-13);
}

TEST(Equilibrium, OfAPullAtASingleAnchorIsThatOfTheAnchor) {
    const BaseAndLoad problem{600, 400, 6, {{120, -50, 353}}, {-10, -1.2, 0.5}};
    const Result result = problem.solved();
    EXPECT_TRUE(result.exists);
    EXPECT_NEAR(result.sigmaAnchor[0], -10e3 / 353, 1e-10);
    EXPECT_EQ(result.sigmaConcrete, 0);
    EXPECT_FALSE(result.neutralLine);
    EXPECT_LT(result.residual, 1e-12);
}

TEST(Equilibrium, OfAPullIsThatOfTheAnchorHoweverThinItIs) {
    for (const double area : {1e-3, 1e-12, 1e-20}) { // mm2
        const BaseAndLoad problem{600, 400, 6, {{120, -50, area}}, {-10, -1.2, 0.5}};
        const Result result = problem.solved();
        ASSERT_TRUE(result.exists) << area;
        EXPECT_NEAR(result.sigmaAnchor[0] * area, -10e3, 1e-8) << area;
    }
}

TEST(Equilibrium, OfAPullBetweenTwoAnchorsFollowsTheLever) {
    const BaseAndLoad problem{600, 400, 6, {{200, 0, 353}, {-200, 0, 353}}, {-10, 1, 0}};
    const Result result = problem.solved();
    EXPECT_NEAR(force(problem, result, 200, 0), 2.5, 1e-9);
    EXPECT_NEAR(force(problem, result, -200, 0), 7.5, 1e-9);
    EXPECT_EQ(result.sigmaConcrete, 0);
}

TEST(Equilibrium, OfAMomentAloneExistsAboutAnyAnchorInsideThePlate) {
    const BaseAndLoad problem{600, 400, 6, {{0, 0, 353}}, {0, 5, -3}};
    const Result result = problem.solved();
    ASSERT_TRUE(result.exists);
    EXPECT_LT(result.sigmaAnchor[0], 0);
    EXPECT_GT(result.sigmaConcrete, 0);
    EXPECT_LT(imbalanceOf(problem, result).error, 1e-13);
}

TEST(Equilibrium, CountsAnchorsInOnePlaceAsOneOfTheirArea) {
    BaseAndLoad two{600, 400, 6, {{-250, 0, 353}, {-250, 0, 353}}, {20, 15, 1}};
    const BaseAndLoad one{600, 400, 6, {{-250, 0, 706}}, {20, 15, 1}};
    EXPECT_NEAR(two.solved().sigmaAnchor[0], one.solved().sigmaAnchor[0], 1e-9);
    EXPECT_EQ(two.solved().sigmaAnchor[0], two.solved().sigmaAnchor[1]);
}

TEST(Equilibrium, PullsAnAnchorBesideThePlateThatIsPressedAsAWhole) {
    // The line s = 0 lies beside the plate, the anchor beyond it.
    const BaseAndLoad problem{600, 400, 6, {{-800, 0, 353}}, {240, 20, 0}};
    const Result result = problem.solved();
    EXPECT_LT(result.sigmaAnchor[0], 0);
    EXPECT_FALSE(result.neutralLine);
    EXPECT_LT(imbalanceOf(problem, result).error, 1e-13);
}

TEST(Equilibrium, EndsWhereTheResultantLeavesAPlateWithoutAnchors) {
    for (const double N : {100.0, 12.3, 1e-3}) {
        const BaseAndLoad inside{600, 400, 6, {}, {N, 0.2999 * N, 0}};
        EXPECT_TRUE(inside.solved().exists) << N;
        const BaseAndLoad onTheEdge{600, 400, 6, {}, {N, 0.3 * N, 0}};
        const Result tipping = onTheEdge.solved();
        EXPECT_FALSE(tipping.exists) << N;
        EXPECT_EQ(tipping.sigmaConcrete, 0);
        expectPoint(tipping.tippingAxis[0], 300, -200);
        expectPoint(tipping.tippingAxis[1], 300, 200);
    }
}

TEST(Equilibrium, EndsAboutARowOfAnchorsAlongTheEdge) {
    const std::vector<Anchor> row{{300, -100, 353}, {300, 100, 353}};
    // Pressed beside the row, on the row and between its ends, then beyond it.
    EXPECT_TRUE((BaseAndLoad{600, 400, 6, row, {-10, -3.1, 0}}.solved().exists));
    const Result pulled = BaseAndLoad{600, 400, 6, row, {-10, -3, 0.5}}.solved();
    ASSERT_TRUE(pulled.exists);
    EXPECT_NEAR(pulled.sigmaAnchor[0] * 353, -7.5e3, 0.1);
    EXPECT_NEAR(pulled.residual, 1e-12, 1e-13) << "the load was moved off the verge by this";
    EXPECT_NEAR(pulled.sigmaAnchor[1] * 353, -2.5e3, 0.1);
    for (const double M2 : {1.1, -1.1})
        EXPECT_FALSE((BaseAndLoad{600, 400, 6, row, {-10, -3, M2}}.solved().exists)) << M2;
    const Result tipping = BaseAndLoad{600, 400, 6, row, {-10, -2.9, 0}}.solved();
    ASSERT_FALSE(tipping.exists);
    expectPoint(tipping.tippingAxis[0], 300, -200);
    expectPoint(tipping.tippingAxis[1], 300, 200);
}

TEST(Equilibrium, OfAPullOnTheVergeIsCarriedByTheAnchorsOnItsAxisAlone) {
    // The third would only push the plate's far edge down, and nothing there answers.
    const std::vector<Anchor> anchors{{300, -100, 353}, {300, 100, 353}, {400, 0, 353}};
    const BaseAndLoad problem{600, 400, 6, anchors, {-10, -3, 0.5}};
    const Result result = problem.solved();
    ASSERT_TRUE(result.exists);
    EXPECT_NEAR(force(problem, result, 300, -100), 7.5, 1e-4);
    EXPECT_NEAR(force(problem, result, 300, 100), 2.5, 1e-4);
    EXPECT_NEAR(force(problem, result, 400, 0), 0, 1e-4);
    // Pulled beyond the row's end, the third is no help: it does not stand on the axis.
    EXPECT_FALSE((BaseAndLoad{600, 400, 6, anchors, {-10, -3, 1.1}}.solved().exists));
}

TEST(Equilibrium, EndsAboutARowAlongTheOtherEdgeToo) {
    const std::vector<Anchor> row{{-100, 200, 353}, {100, 200, 353}};
    const BaseAndLoad problem{600, 400, 6, row, {-10, -0.5, -2}};
    const Result pulled = problem.solved();
    ASSERT_TRUE(pulled.exists);
    EXPECT_NEAR(force(problem, pulled, 100, 200), 7.5, 1e-4);
    EXPECT_NEAR(force(problem, pulled, -100, 200), 2.5, 1e-4);
    for (const double M1 : {1.1, -1.1})
        EXPECT_FALSE((BaseAndLoad{600, 400, 6, row, {-10, M1, -2}}.solved().exists)) << M1;
}

TEST(Equilibrium, OfAPullAtAnAnchorInTheVeryCornerIsThatOfTheAnchor) {
    const BaseAndLoad problem{600, 400, 6, {{300, 200, 353}}, {-10, -3, -2}};
    const Result result = problem.solved();
    ASSERT_TRUE(result.exists);
    EXPECT_NEAR(force(problem, result, 300, 200), 10, 1e-4);
}

TEST(Equilibrium, OfAPullAtACornerIsCarriedByTheAnchorOnBothItsEdgesAlone) {
    const std::vector<Anchor> anchors{{350, 200, 353}, {300, 250, 353}, {300, 200, 353}};
    const BaseAndLoad problem{600, 400, 6, anchors, {-10, -3, -2}};
    const Result result = problem.solved();
    ASSERT_TRUE(result.exists);
    EXPECT_NEAR(force(problem, result, 300, 200), 10, 1e-4);
    EXPECT_NEAR(force(problem, result, 350, 200), 0, 1e-4);
    EXPECT_NEAR(force(problem, result, 300, 250), 0, 1e-4);
}

TEST(Equilibrium, OfAMomentAloneIsFoundInEitherDirection) {
    const std::vector<Anchor> anchors = fourAnchors(250, 150, 353);
    const BaseAndLoad about1{600, 400, 6, anchors, {0, 5, 0}};
    const BaseAndLoad about2{600, 400, 6, anchors, {0, 0, 5}};
    for (const BaseAndLoad& problem : {about1, about2}) {
        const Result result = problem.solved();
        EXPECT_GT(result.sigmaConcrete, 0);
        EXPECT_LT(imbalanceOf(problem, result).error, 1e-13);
    }
    EXPECT_NEAR(force(about1, about1.solved(), -250, 150),
                force(about1, about1.solved(), -250, -150), 1e-9);
    EXPECT_NEAR(force(about2, about2.solved(), 250, -150),
                force(about2, about2.solved(), -250, -150), 1e-9);
}

TEST(Equilibrium, TipsAboutTheLineFromACornerToAnAnchorBesideThePlate) {
    const BaseAndLoad problem{600, 400, 6, {{-500, 0, 353}}, {-1, 0, -0.1}};
    const Result result = problem.solved();
    ASSERT_FALSE(result.exists);
    EXPECT_TRUE(turnsFreely(problem, result.tippingAxis));
    // Lifted at y = 100: through (-300, -200) and (-500, 0), which is farther than the other
    // corner.
    for (const Point& point : result.tippingAxis)
        EXPECT_NEAR(point.x + point.y, -500, 1e-9);
}

TEST(Equilibrium, TipsAboutAnAxisAsLongAsTheLastOfTwentyAnchorsReaches) {
    BaseAndLoad problem{600, 400, 6, {}, {10, -3.1, 0}};
    for (int i = 0; i < mostAnchors; ++i)
        problem.anchors.push_back({-400, -130 + 20.0 * i, 353});
    const Result result = problem.solved();
    ASSERT_FALSE(result.exists);
    expectPoint(result.tippingAxis[0], -300, 250);
    expectPoint(result.tippingAxis[1], -300, -200);
}

TEST(Equilibrium, StandsOnAnAnchorThatIsTwoMillionthsOfAMillionthInsideTheEdge) {
    const auto with = [](double inside) { // in half plates
        return BaseAndLoad{600, 400, 6, {{300 * (1 - inside), 200, 353}}, {100, 30.3, 0}};
    };
    const BaseAndLoad holding = with(2.5e-12);
    const Result result = holding.solved();
    ASSERT_TRUE(result.exists);
    EXPECT_LT(result.residual, 1e-10);
    EXPECT_LT(result.sigmaAnchor[0], 0);
    EXPECT_FALSE(with(1.5e-12).solved().exists) << "it counts as one that stands on the edge";
}

TEST(Equilibrium, PressesASliverJustInsideTheEdge) {
    for (const double gap : {1e-3, 1e-6, 1e-9}) { // mm from the edge
        const BaseAndLoad problem{600, 400, 6, {}, {100, 0.1 * (300 - gap), 0}};
        const Result result = problem.solved();
        ASSERT_TRUE(result.exists) << gap;
        EXPECT_LT(result.residual, 1e-13) << gap;
        EXPECT_NEAR(result.sigmaConcrete, 2 * 100e3 / (3 * gap * 400),
                    result.sigmaConcrete * 1e-12 / gap);
    }
}

TEST(Equilibrium, IsFoundWhereAnAnchorBesideThePlateTurnsTheLastOfTheLoadBack) {
    // N on the edge y = -200 and this share short of the corner, an anchor beside the other edge.
    // Pressed is a triangle at the corner whose hypotenuse runs to the anchor: so half of the
    // share is the pressure's distance and the other half the anchor's pull.
    for (const double share : {1e-6, 1e-7, 1e-8, 1e-9, 1e-10, 1e-11}) {
        const double N = 100;
        const BaseAndLoad problem{
            600, 400, 6, {{440, -180, 353}}, {N, 0.3 * N * (1 - share), -0.2 * N}};
        const Result result = problem.solved();
        ASSERT_TRUE(result.exists) << share;
        EXPECT_LT(result.residual, 1e-10) << share;
        EXPECT_LT(result.steps, mostSteps) << share;
        const double pull = N * share / 2 / (440.0 / 300 - 1);
        const double loose = 4 * share + 1e-15 / share; // the corner is nearly all of it
        EXPECT_NEAR(result.sigmaAnchor[0] * 353 / 1000 / -pull, 1, loose) << share;
        const double u = share / 2;
        const double v = pull / N * 0.1;
        const double pressure = 6 / (16 * u * v) * N * 1000 / (300 * 200);
        EXPECT_NEAR(result.sigmaConcrete / pressure, 1, 4 * loose) << share;
    }
}

TEST(Equilibrium, IsFoundOnAStripThirtyThousandTimesLongerThanWide) {
    const BaseAndLoad problem{32000, 1, 6, {{-15990, 0, 85}, {15990, 0, 85}}, {1, 20, 1e-5}};
    const Result result = problem.solved();
    ASSERT_TRUE(result.exists);
    EXPECT_LT(result.residual, 1e-13);
    EXPECT_LT(imbalanceOf(problem, result).error, 1e-10);
}

TEST(Equilibrium, IsThatOfTheConcreteWhereTheAnchorsHaveNoStiffness) {
    const BaseAndLoad none{600, 400, 0, fourAnchors(250, 150, 353), {100, 24, 0}};
    EXPECT_NEAR(none.solved().sigmaConcrete, 2 * 100e3 / (180 * 400), 1e-12);
    EXPECT_EQ(none.solved().sigmaAnchor[1], 0);
    const BaseAndLoad beyond{600, 400, 0, fourAnchors(250, 150, 353), {100, 31, 0}};
    EXPECT_FALSE(beyond.solved().exists);
}

TEST(Equilibrium, RefusesWhatIsNoBase) {
    constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
    const std::vector<Anchor> anchors = fourAnchors(250, 150, 353);
    EXPECT_TRUE((Base{600, 400, 6, anchors}.usable()));
    EXPECT_FALSE((Base{0, 400, 6, anchors}.usable()));
    EXPECT_FALSE((Base{600, 0, 6, anchors}.usable()));
    EXPECT_FALSE((Base{std::numeric_limits<double>::infinity(), 400, 6, anchors}.usable()));
    EXPECT_FALSE((Base{600, -400, 6, anchors}.usable()));
    EXPECT_FALSE((Base{600, 400, -6, anchors}.usable()));
    EXPECT_FALSE((Base{600, 400, nothing, anchors}.usable()));
    EXPECT_FALSE((Base{600, 400, 6, std::vector<Anchor>{{0, 0, -1}}}.usable()));
    EXPECT_FALSE((Base{600, 400, 6, std::vector<Anchor>{{nothing, 0, 1}}}.usable()));
    EXPECT_FALSE((Base{600, 400, 6, std::vector<Anchor>{{0, nothing, 1}}}.usable()));
    EXPECT_FALSE((Base{0, 400, 6, anchors}.solve({1, 0, 0}).exists));
    for (const Load& load : {Load{nothing, 0, 0}, Load{1, nothing, 0}, Load{1, 0, nothing}})
        EXPECT_FALSE((Base{600, 400, 6, anchors}.solve(load).exists));
}

TEST(Equilibrium, TellsThePlaneTheLineAndTheStressesAlike) {
    const BaseAndLoad problem{600, 400, 6.83, fourAnchors(250, 150, 353), {100, -60, 25}};
    const Result result = problem.solved();
    ASSERT_TRUE(result.neutralLine);
    for (const Point& point : *result.neutralLine) {
        EXPECT_NEAR(result.plane.at(point), 0, 1e-12);
        EXPECT_NEAR(std::max(std::fabs(point.x) / 300, std::fabs(point.y) / 200), 1, 1e-12);
    }
    EXPECT_NEAR(result.plane.at({-300, 200}), result.sigmaConcrete, 1e-12);
    for (std::size_t i = 0; i < problem.anchors.size(); ++i) {
        const double s = result.plane.at({problem.anchors[i].x, problem.anchors[i].y});
        EXPECT_NEAR(result.sigmaAnchor[i], 6.83 * std::min(s, 0.0), 1e-12);
    }
}

} // namespace
