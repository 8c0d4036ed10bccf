#include "capacity/capacity_line.h"
#include "support/column_base.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace ferna {

namespace {

using equilibrium::Anchor;
using equilibrium::Load;

constexpr CheckLimits limits{.Rb = 10, .fd = 200, .fd2 = 250, .fv = 150};

Strength sixAnchors(const CheckLimits& checks = limits) {
    std::vector<Anchor> anchors;
    for (const double x : {-250.0, 250.0})
        for (const double y : {-150.0, 0.0, 150.0})
            anchors.push_back({x, y, 353});
    return {600, 400, 6.5, anchors, checks};
}

double stressShare(const Utilisation& used) {
    return std::max(used.concrete, used.tension);
}

double lineShare(const Utilisation& used) {
    return std::max(stressShare(used), used.interaction);
}

double allShare(const Utilisation& used) {
    return std::max({stressShare(used), used.shear, std::sqrt(used.interaction)});
}

/// Bases and loads of every kind: anchors at corners and anywhere, pressing and pulling forces.
class RandomLoads {
public:
    double between(double least, double most) {
        return std::uniform_real_distribution<>(least, most)(numbers_);
    }

    Strength base() {
        const double length = between(200, 1200);
        const double width = between(200, 1200);
        std::vector<Anchor> anchors;
        const int count = static_cast<int>(between(1, 13));
        for (int i = 0; i < count; ++i)
            anchors.push_back(
                {between(-0.5, 0.5) * length, between(-0.5, 0.5) * width, between(85, 4342)});
        return {length,
                width,
                between(5, 10),
                anchors,
                {.Rb = between(6, 17),
                 .fd = between(165, 370),
                 .fd2 = between(157, 374),
                 .fv = between(141, 252),
                 .tensionSideAlone = between(0, 1) < 0.3}};
    }

    /// Of a size that the base may just bear.
    Load loadOf(const Strength& base) {
        const double concrete = 2 * base.limits().Rb * base.length() * base.width() / 1e3;
        const double N = between(0, 1) < 0.3 ? -between(0, 0.02) * concrete
                                             : between(0, 1) * between(0, 1) * concrete;
        const double arm = (std::fabs(N) + 0.05 * concrete) / 2e3;
        return {N, between(-1, 1) * arm * base.length(), between(-1, 1) * arm * base.width()};
    }

private:
    std::mt19937_64 numbers_{20'261};
};

TEST(LoadFactor, OfAThousandLoadsUsesTheBaseUpToALastBillionth) {
    RandomLoads random;
    int seen = 0;
    while (seen < 1000) {
        const Strength base = random.base();
        const Load load = random.loadOf(base);
        const Shear shear{random.between(-50, 50), random.between(-50, 50)};
        const double times = loadFactor(base, load, shear);
        if (times == 0 || std::hypot(shear.Vx, shear.Vy) * times < 0.02)
            continue;
        const auto used = base.used({times * load.N, times * load.M1, times * load.M2},
                                    {times * shear.Vx, times * shear.Vy});
        ASSERT_TRUE(used);
        EXPECT_NEAR(allShare(*used), 1, 1e-9) << seen;
        ++seen;
    }
}

TEST(MomentLine, IsWhereAThousandScaledLoadsUseTheBaseUpToALastBillionth) {
    RandomLoads random;
    int seen = 0;
    int interacting = 0;
    while (seen < 1000) {
        const Strength base = random.base();
        const Load load = random.loadOf(base);
        const Shear shear{seen % 2 * random.between(0, 60), 0};
        const auto found = onMomentLine(base, load, shear);
        if (!found)
            continue;
        if (found->border == Border::Tipping) {
            const Load centre = easiestLoad(base, load.N);
            const auto beyond = [&](double end, double from) { return end + 1e-6 * (end - from); };
            EXPECT_FALSE(base.used(
                {load.N, beyond(found->load.M1, centre.M1), beyond(found->load.M2, centre.M2)},
                shear));
            continue;
        }
        EXPECT_EQ(found->load.N, load.N);
        const auto used = base.used(found->load, shear);
        ASSERT_TRUE(used);
        EXPECT_NEAR(lineShare(*used), 1, 1e-9) << seen;
        // On the ray of the load.
        const Load centre = easiestLoad(base, load.N);
        const double turned = (found->load.M1 - centre.M1) * (load.M2 - centre.M2)
                              - (found->load.M2 - centre.M2) * (load.M1 - centre.M1);
        EXPECT_NEAR(turned, 0,
                    1e-9 * std::hypot(found->load.M1 - centre.M1, found->load.M2 - centre.M2)
                        * std::hypot(load.M1 - centre.M1, load.M2 - centre.M2));
        interacting += found->border == Border::Interaction ? 1 : 0;
        ++seen;
    }
    EXPECT_GT(interacting, 10);
}

TEST(MomentLine, LeavesWhatIsBorneInsideAndNothingBorneBehindIt) {
    RandomLoads random;
    for (int base = 0; base < 40; ++base) {
        const Strength strength = random.base();
        const CapacityLine line = momentLine(strength, random.loadOf(strength).N, {}, 24);
        for (const LinePoint& point : line.points)
            for (const double times : {0.1, 0.5, 0.9, 0.999, 1.001, 1.1, 1.5, 3.0}) {
                const auto used = strength.used(
                    {point.load.N, line.centre.M1 + times * (point.load.M1 - line.centre.M1),
                     line.centre.M2 + times * (point.load.M2 - line.centre.M2)},
                    {});
                EXPECT_EQ(used && stressShare(*used) <= 1, times < 1) << base << ' ' << times;
            }
    }
}

TEST(MomentLine, OfConcreteAloneEndsWhereTheTriangleOfPressureReachesTwiceRb) {
    const Strength bare(600, 400, 6, {}, limits);
    const CapacityLine line = momentLine(bare, 600, {}, 4);
    ASSERT_EQ(line.points.size(), 4U);
    // Under the edge c from the force: N = 20 x 400 x 3c / 2, so c = 50 mm and M1 = N (300 - c).
    EXPECT_NEAR(line.points[0].load.M1, 600 * 0.25, 1e-9);
    EXPECT_EQ(line.points[0].load.M2, 0);
    EXPECT_NEAR(line.points[2].load.M1, -600 * 0.25, 1e-9);
    // The same along the width: c = 600 / (20 x 600 x 1.5 / 1e3) = 33.3 mm.
    EXPECT_NEAR(line.points[1].load.M2, 600 * (0.2 - 0.1 / 3), 1e-9);
    EXPECT_EQ(line.points[1].load.M1, 0);
    EXPECT_EQ(line.points[0].border, Border::Concrete);
}

TEST(MomentLine, OfPureBendingIsAnchorsTimesTheirArm) {
    // Compression at the edge alone where the concrete is stiff: T z, with z under 550 mm.
    CheckLimits hard = limits;
    hard.Rb = 1e4;
    const CapacityLine line = momentLine(sixAnchors(hard), 0, {}, 4);
    ASSERT_EQ(line.points.size(), 4U);
    const double force = 3 * 353 * 200 / 1e3;
    EXPECT_EQ(line.points[0].border, Border::Tension);
    EXPECT_LT(line.points[0].load.M1, force * 0.55);
    EXPECT_GT(line.points[0].load.M1, force * 0.5);
}

TEST(MomentLine, HasNoPointsWhereNotEvenAnEvenStressIsBorne) {
    EXPECT_TRUE(momentLine(sixAnchors(), 20 * 600 * 400 / 1e3 + 1).points.empty());
    EXPECT_FALSE(momentLine(sixAnchors(), 20 * 600 * 400 / 1e3 - 1).points.empty());
    const double pull = 6 * 353 * 200 / 1e3;
    EXPECT_TRUE(momentLine(sixAnchors(), -pull - 0.1).points.empty());
    EXPECT_FALSE(momentLine(sixAnchors(), -pull + 0.1).points.empty());
    EXPECT_TRUE(momentLine(Strength(600, 400, 6, {}, limits), -1).points.empty());
    EXPECT_TRUE(momentLine(Strength(0, 400, 6, {}, limits), 1).points.empty());
}

TEST(MomentLine, UnderAPullGoesAroundTheCentreOfTheAnchors) {
    const Strength lopsided(600, 400, 6, {{250, 100, 500}, {250, -100, 1500}}, limits);
    const CapacityLine line = momentLine(lopsided, -50, {}, 8);
    EXPECT_NEAR(line.centre.M1, -50 * 0.25, 1e-12);
    EXPECT_NEAR(line.centre.M2, 50 * 0.05, 1e-12);
    ASSERT_EQ(line.points.size(), 8U);
    for (const LinePoint& point : line.points)
        EXPECT_NEAR(lineShare(point.used), 1, 1e-9);
}

TEST(MomentLine, EndsWhereTheColumnTipsOverThoughNothingIsUsedUp) {
    // Two anchors on the very edge: the plate turns about them freely.
    const Strength hinged(600, 400, 6, {{300, 100, 1000}, {300, -100, 1000}}, limits);
    const CapacityLine line = momentLine(hinged, -10, {}, 4);
    ASSERT_EQ(line.points.size(), 4U);
    // More M1 brings the pull nearer to the centre, about the anchors.
    EXPECT_EQ(line.points[0].border, Border::Tipping);
    EXPECT_NEAR(line.points[0].load.M1, -10 * 0.3, 1e-9);
    EXPECT_LT(lineShare(line.points[0].used), 0.1);
    EXPECT_FALSE(hinged.used({-10, -3 + 1e-6, 0}, {}));
    // Less presses the far edge down.
    EXPECT_NE(line.points[2].border, Border::Tipping);
    EXPECT_NEAR(lineShare(line.points[2].used), 1, 1e-9);
}

TEST(MomentLine, LeavesTensionLessRoomBesideShearThatAllAnchorsTake) {
    const Shear shear{0, 200};
    const CapacityLine with = momentLine(sixAnchors(), 100, shear, 4);
    const CapacityLine without = momentLine(sixAnchors(), 100, {}, 4);
    ASSERT_EQ(with.points.size(), 4U);
    EXPECT_EQ(with.points[0].border, Border::Interaction);
    EXPECT_NEAR(with.points[0].used.interaction, 1, 1e-9);
    EXPECT_LT(with.points[0].load.M1, without.points[0].load.M1);
    const double shearAlone = 200e3 / (6 * 353) / 150;
    const double tension = std::sqrt(1 - shearAlone * shearAlone) * 250 / 200;
    EXPECT_NEAR(with.points[0].used.tension, tension, 1e-9);
    // Friction takes it.
    const CapacityLine pressed = momentLine(sixAnchors(), 700, shear, 4);
    EXPECT_EQ(pressed.points[0].used.interaction, 0);
    EXPECT_EQ(pressed.points[0].load.M1, momentLine(sixAnchors(), 700, {}, 4).points[0].load.M1);
    // More than the anchors bear.
    EXPECT_TRUE(momentLine(sixAnchors(), 100, {0, 6 * 353 * 150 / 1e3 + 1}).points.empty());
}

TEST(MomentLine, KeepsTheShearOfTheTensionSideBesideIt) {
    CheckLimits side = limits;
    side.tensionSideAlone = true;
    const Shear shear{0, 200};
    const CapacityLine with = momentLine(sixAnchors(side), 100, shear, 12);
    const CapacityLine without = momentLine(sixAnchors(side), 100, {}, 12);
    ASSERT_EQ(with.points.size(), 12U);
    for (std::size_t k = 0; k < 12; ++k) {
        EXPECT_EQ(with.points[k].load.M1, without.points[k].load.M1);
        EXPECT_EQ(without.points[k].used.shear, 0);
    }
    EXPECT_NEAR(with.points[0].used.shear, 200e3 / (3 * 353) / 150, 1e-9);
}

TEST(AxialLine, IsTheMomentLineAtEachOfItsForces) {
    for (const Moment moment : {Moment::M1, Moment::M2}) {
        const CapacityLine line = axialLine(sixAnchors(), moment, {}, 36);
        ASSERT_EQ(line.points.size(), 36U);
        EXPECT_NEAR(line.points[0].load.N, 20 * 600 * 400 / 1e3, 1e-9);
        EXPECT_NEAR(line.points[18].load.N, -6 * 353 * 200 / 1e3, 1e-9);
        for (const LinePoint& point : line.points) {
            EXPECT_NEAR(stressShare(point.used), 1, 1e-9);
            const double size = moment == Moment::M1 ? point.load.M1 : point.load.M2;
            if (std::fabs(size) < 1)
                continue;
            const auto same = onMomentLine(sixAnchors(), point.load);
            ASSERT_TRUE(same);
            EXPECT_NEAR(moment == Moment::M1 ? same->load.M1 : same->load.M2, size, 1e-7);
        }
    }
}

TEST(AxialLine, GoesOnWithoutShearWhereFrictionTakesItFirst) {
    const Shear shear{0, 200};
    const CapacityLine with = axialLine(sixAnchors(), Moment::M1, shear, 72);
    const CapacityLine without = axialLine(sixAnchors(), Moment::M1, {}, 72);
    int interacting = 0;
    for (std::size_t k = 0; k < 72; ++k) {
        const LinePoint& point = with.points[k];
        EXPECT_NEAR(lineShare(point.used), 1, 1e-9) << k;
        if (0.3 * point.load.N > 200)
            EXPECT_NEAR(point.load.N, without.points[k].load.N, 1e-9) << k;
        else
            EXPECT_LE(std::fabs(point.load.M1), std::fabs(without.points[k].load.M1) + 1e-9) << k;
        interacting += point.border == Border::Interaction ? 1 : 0;
    }
    EXPECT_GT(interacting, 5);
    EXPECT_TRUE(axialLine(sixAnchors(), Moment::M1, {0, 400}).points.empty());
}

TEST(AxialLine, OfABaseWithoutAnchorsHoldsNoPull) {
    const CapacityLine line = axialLine(Strength(600, 400, 6, {}, limits), Moment::M1, {}, 8);
    ASSERT_EQ(line.points.size(), 8U);
    EXPECT_EQ(line.points[4].border, Border::Tipping);
    EXPECT_EQ(line.points[4].load.N, 0);
    EXPECT_EQ(line.points[0].border, Border::Concrete);
}

TEST(LoadFactor, IsOfTheWorstCheckAndOfNoneWithoutEquilibrium) {
    const Strength base = sixAnchors();
    EXPECT_NEAR(loadFactor(base, {480, 0, 0}, {}), 10, 1e-9);
    EXPECT_TRUE(std::isinf(loadFactor(base, {}, {})));
    EXPECT_EQ(loadFactor(Strength(600, 400, 6, {}, limits), {-1, 0, 0}, {}), 0);
    // Shear alone, on 6 x 353 mm2 of 150 MPa.
    EXPECT_NEAR(loadFactor(base, {}, {60, 0}), 6 * 353 * 150 / 60e3, 1e-9);
    // So small that it does not count yet: it does once it has grown.
    EXPECT_NEAR(loadFactor(base, {}, {0.001, 0}), 6 * 353 * 150 / 1.0, 1e-6);
}

TEST(Strength, OfWhatIsEnteredIsThatOfItsCalculation) {
    testing::ColumnBase column;
    column.fourAnchors(250, 150).loads(300, 60, 20, 40, 30);
    const auto strength = enteredStrength(column.stan, column.fields);
    ASSERT_TRUE(strength);
    EXPECT_EQ(strength->length(), 600);
    EXPECT_EQ(strength->width(), 400);
    EXPECT_EQ(strength->limits().fd, 205);
    const auto shear = enteredShear(column.fields, 1);
    ASSERT_TRUE(shear);
    ASSERT_EQ(column.calculate(), CalculationEnd::Computed);
    const auto used = strength->used({300, 60, 20}, *shear);
    ASSERT_TRUE(used);
    EXPECT_NEAR(used->tension * 205, -column.stan.wyniki.Sigma_s_max,
                0.01 * -column.stan.wyniki.Sigma_s_max);
}

TEST(Strength, OfWhatIsNoNumberOrHasNoSteelIsNone) {
    testing::ColumnBase column;
    column.fourAnchors(250, 150);
    column.fields.Text3 = QStringLiteral("szeroka");
    EXPECT_FALSE(enteredStrength(column.stan, column.fields));
    column.plate(600, 400);
    column.fields.cmbStal = 2; // St4 has no strength above 40 mm
    column.anchor(0, 0, 42);
    EXPECT_FALSE(enteredStrength(column.stan, column.fields));
    column.fields.loads[0].Vx = QStringLiteral("dużo");
    EXPECT_FALSE(enteredShear(column.fields, 1));
}

} // namespace

} // namespace ferna
