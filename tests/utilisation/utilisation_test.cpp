#include "analysis/clauses.h"
#include "command/entered_equilibria.h"
#include "design/material_tables.h"
#include "support/column_base.h"
#include "utilisation/utilisation.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ferna {

namespace {

using equilibrium::Anchor;
using equilibrium::Base;
using equilibrium::Load;

// 400 x 400 mm, an anchor of 10 cm2 at each side.
const std::vector<Anchor> twoAnchors{{-150, 0, 1000}, {150, 0, 1000}};
constexpr CheckLimits limits{.Rb = 10, .fd = 200, .fd2 = 250, .fv = 150};

std::optional<Utilisation> of(const Load& load, const Shear& shear, CheckLimits checks = limits) {
    const Base base(400, 400, 7, twoAnchors);
    return utilisation(base.solve(load), load, shear, checks, twoAnchors);
}

TEST(Utilisation, OfAPlateCompressedAsAWholeIsItsCornerStressToTwiceRb) {
    // N / A = 320000 / 160000 = 2 MPa, M / W = 10e6 / (400^3 / 6) = 0.9375 MPa
    const auto found = of({320, 10, 0}, {});
    ASSERT_TRUE(found);
    EXPECT_NEAR(found->concrete, 2.9375 / 20, 1e-12);
    EXPECT_NEAR(found->bearingFactor, 2.9375 / 10, 1e-12);
    EXPECT_EQ(found->tension, 0);
    EXPECT_EQ(found->anchor, 0);
    EXPECT_EQ(found->governing(), Check::Concrete);
}

TEST(Utilisation, OfTensionIsTheLargestStressToFdAndNamesTheAnchor) {
    const Load load{100, 40, 0};
    const Base base(400, 400, 7, twoAnchors);
    const equilibrium::Result solved = base.solve(load);
    const auto found = of(load, {});
    ASSERT_TRUE(found);
    EXPECT_LT(solved.sigmaAnchor[0], 0);
    EXPECT_DOUBLE_EQ(found->tension, -solved.sigmaAnchor[0] / 200);
    EXPECT_EQ(found->anchor, 1);
    EXPECT_EQ(of({100, -40, 0}, {})->anchor, 2);
}

TEST(Utilisation, WithoutAnEquilibriumIsNone) {
    const Load load{-100, 0, 0};
    const Base base(400, 400, 7, {});
    EXPECT_FALSE(utilisation(base.solve(load), load, {}, limits, {}));
}

TEST(Utilisation, TakesNoShearBelowAHundredthOfAKilonewtonNorWhereFrictionTakesIt) {
    EXPECT_EQ(of({0.01, 0, 0}, {0.01, 0})->interaction, 0);
    EXPECT_GT(of({0.01, 0, 0}, {0.0101, 0})->interaction, 0);
    EXPECT_EQ(of({100, 0, 0}, {29.99, 0})->interaction, 0);
    EXPECT_GT(of({100, 0, 0}, {18, 24})->interaction, 0) << "0.3 N itself does not hold";
}

TEST(Utilisation, OfAllAnchorsIsTensionAndShearTogether) {
    const auto found = of({100, 40, 0}, {60, 0});
    ASSERT_TRUE(found);
    const double shear = 60e3 / 2000 / 150;
    const double tension = found->tension * 200 / 250;
    EXPECT_NEAR(found->interaction, tension * tension + shear * shear, 1e-12);
    EXPECT_EQ(found->shear, 0);
}

TEST(Utilisation, OfTheTensionSideIsShearAlone) {
    CheckLimits side = limits;
    side.tensionSideAlone = true;
    EXPECT_NEAR(of({100, 40, 0}, {60, 0}, side)->shear, 60e3 / 1000 / 150, 1e-12);
    EXPECT_EQ(of({100, 40, 0}, {60, 0}, side)->interaction, 0);
    EXPECT_NEAR(of({100, 0, 0}, {60, 0}, side)->shear, 60e3 / 2000 / 150, 1e-12)
        << "under a plate compressed as a whole all anchors take it";
}

TEST(Utilisation, OfShearThatNoAnchorTakesIsInfinite) {
    const Base base(400, 400, 7, {});
    CheckLimits side = limits;
    side.tensionSideAlone = true;
    const Load load{10, 1, 0};
    const auto found = utilisation(base.solve(load), load, {60, 0}, side, {});
    ASSERT_TRUE(found);
    EXPECT_TRUE(std::isinf(found->shear));
    EXPECT_EQ(found->governing(), Check::Shear);
}

TEST(Utilisation, NamesTheCheckThatGoverns) {
    CheckLimits weak = limits;
    weak.fv = 1;
    EXPECT_EQ(of({100, 40, 0}, {60, 0}, weak)->governing(), Check::Interaction);
    weak = limits;
    weak.fd = 1;
    EXPECT_EQ(of({100, 40, 0}, {}, weak)->governing(), Check::Tension);
}

TEST(Utilisation, IsFormedAsTheCalculationFormsIt) {
    const auto found = of({100, 40, 0}, {60, 20});
    const Single V = horizontalForce(60, 20);
    const Single told =
        interactionUtilisation(CSng(-found->tension * 200), 250, anchorShear(V, 20), 150);
    EXPECT_NEAR(found->interaction, told, 1e-6);
}

TEST(CheckLimits, AreThoseOfTheLargestDiameterAndTheFooting) {
    Stan stan;
    stan.opcje.Nr_normy = 0;
    stan.opcje.Nr_betonu = 2;
    stan.plyta.Liczba_srub = 2;
    stan.plyta.Fi_kotwy(1) = 12;
    stan.plyta.Fi_kotwy(2) = 36;
    InputFields fields;
    fields.cmbStal = 0;
    fields.Option1_0 = false;
    fields.optHsruby_0 = false;
    const auto found = enteredLimits(stan, fields);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->fd, anchorSteel(1, 36)->Fd_kotwy);
    EXPECT_EQ(found->fv, anchorSteel(1, 36)->Fv_kotwy);
    EXPECT_EQ(found->Rb, concrete(0, 2).Rb_reinforced);
    EXPECT_TRUE(found->tensionSideAlone);
}

TEST(CheckLimits, WithoutAChoiceInTheListAreThoseOfTheTasksSteel) {
    Stan stan;
    stan.opcje.Nr_stali = 3;
    stan.plyta.Liczba_srub = 1;
    stan.plyta.Fi_kotwy(1) = 20;
    InputFields fields;
    fields.cmbStal = -1;
    ASSERT_TRUE(enteredLimits(stan, fields));
    EXPECT_EQ(enteredLimits(stan, fields)->fd, anchorSteel(3, 20)->Fd_kotwy);
}

TEST(CheckLimits, OfTheUsersSteelAreHisOnceDescribed) {
    Stan stan;
    InputFields fields;
    fields.cmbStal = userSteel - 1;
    EXPECT_FALSE(enteredLimits(stan, fields));
    stan.materialy.Stal_fd = 300;
    EXPECT_FALSE(enteredLimits(stan, fields)) << "neither Re nor Rm is known";
    stan.materialy.Stal_Re = 400;
    EXPECT_FALSE(enteredLimits(stan, fields)) << "Rm is not known";
    stan.materialy.Stal_Rm = 500;
    const auto found = enteredLimits(stan, fields);
    ASSERT_TRUE(found);
    EXPECT_FLOAT_EQ(static_cast<float>(found->fd2), 340.0F);
    EXPECT_FLOAT_EQ(static_cast<float>(found->fv), 225.0F);
}

} // namespace

} // namespace ferna
