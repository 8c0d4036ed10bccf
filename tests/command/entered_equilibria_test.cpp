#include "command/entered_equilibria.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::ColumnBase;
using ferna::testing::WithDecimalSign;

namespace {

struct Entered : ::testing::Test {
    WithDecimalSign comma{u','};
    ColumnBase base;

    Entered() { base.fourAnchors(250, 150).loads(100, 60, 5); }

    EnteredEquilibria found() const { return enteredEquilibria(base.stan, base.fields); }
    equilibrium::Result first() const { return found().byCase.at(0).value(); }
};

TEST_F(Entered, IsThePlateTheAnchorsTheRatioAndTheLoadsInTheirUnits) {
    base.fields.Text2 = QStringLiteral("6,83");
    const equilibrium::Anchor anchors[] = {
        {250, 150, 353}, {-250, 150, 353}, {250, -150, 353}, {-250, -150, 353}};
    const equilibrium::Result by = equilibrium::Base(600, 400, 6.83, anchors).solve({100, 60, 5});
    const equilibrium::Result is = first();
    EXPECT_NEAR(is.sigmaConcrete, by.sigmaConcrete, 1e-12 * by.sigmaConcrete);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(is.sigmaAnchor.at(i), by.sigmaAnchor.at(i), 1e-9) << i;
    EXPECT_EQ(found().anchors, 4);
    EXPECT_EQ(found().cases, 1);
}

TEST_F(Entered, IsComputedForTensionAndWithoutAForce) {
    base.loads(-50, 0, 0).loads(0, 10, 0);
    ASSERT_EQ(base.calculate(), CalculationEnd::Refused);
    const EnteredEquilibria all = found();
    EXPECT_NEAR(all.byCase.at(1)->sigmaAnchor.at(0), -50e3 / 4 / 353, 1e-9);
    EXPECT_EQ(all.byCase.at(1)->sigmaConcrete, 0);
    EXPECT_TRUE(all.byCase.at(2)->exists);
    EXPECT_GT(all.byCase.at(2)->sigmaConcrete, 0);
    EXPECT_FALSE(all.byCase.at(3)) << "no such case";
}

TEST_F(Entered, WithoutAnchorsIsConcreteAlone) {
    base.stan.plyta.Liczba_srub = 0;
    base.noLoads().loads(100, 24, 0).loads(100, 31, 0);
    const EnteredEquilibria all = found();
    ASSERT_TRUE(all.hasBase);
    EXPECT_NEAR(all.byCase.at(0)->sigmaConcrete, 2 * 100e3 / (180 * 400), 1e-9);
    EXPECT_FALSE(all.byCase.at(1)->exists);
}

TEST_F(Entered, HasNoAreasWithADiameterOffTheSeries) {
    base.anchor(0, 0, 18);
    EXPECT_FALSE(found().hasBase);
    EXPECT_EQ(found().cases, 1);
    EXPECT_FALSE(found().byCase.at(0));
}

TEST_F(Entered, HasNoBaseWithoutAPlateOrARatio) {
    for (QString InputFields::*field :
         {&InputFields::Text2, &InputFields::Text3, &InputFields::Text4}) {
        const QString typed = base.fields.*field;
        for (const char16_t* text : {u"", u"6x", u"-1"}) {
            base.fields.*field = QString::fromUtf16(text);
            EXPECT_FALSE(found().hasBase) << QString::fromUtf16(text).toStdString();
        }
        base.fields.*field = typed;
        EXPECT_TRUE(found().hasBase);
    }
}

TEST_F(Entered, OnAPlateWiderThanLongIsThatOfThePlate) {
    base.plate(400, 600);
    ASSERT_EQ(base.calculate(), CalculationEnd::Refused);
    base.noLoads().loads(240, 0, 0);
    EXPECT_NEAR(first().sigmaConcrete, 1, 1e-12);
}

TEST_F(Entered, ACaseWhoseLoadIsNoNumberHasNone) {
    base.loads(100, 30, 30).loads(100, 30, 30);
    base.fields.loads[1].M1 = QStringLiteral("3o");
    base.fields.loads[2].N = QStringLiteral("2E100");
    const EnteredEquilibria all = found();
    EXPECT_TRUE(all.byCase.at(0));
    EXPECT_FALSE(all.byCase.at(1));
    EXPECT_FALSE(all.byCase.at(2));
}

TEST_F(Entered, TakesTheLoadAsTypedWithAllItsDigitsAndSmallMomentsAsTheyAre) {
    base.fields.loads[0] = {QStringLiteral("100,123456789"), QStringLiteral("0,0059"),
                            QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("0")};
    const equilibrium::Load load = enteredLoad(base.fields, 1).value();
    EXPECT_EQ(load.N, 100.123456789);
    EXPECT_EQ(load.M1, 0.0059);
    EXPECT_EQ(load.M2, 0) << "the search takes a small one in its place";
}

TEST_F(Entered, IsNotChangedByWhatTheSearchMakesOfTheCase) {
    const equilibrium::Load before = enteredLoad(base.fields, 1).value();
    const equilibrium::Result is = first();
    base.calculate();
    const equilibrium::Load after = enteredLoad(base.fields, 1).value();
    EXPECT_EQ(before.M1, after.M1);
    EXPECT_EQ(before.M2, after.M2);
    EXPECT_EQ(first().sigmaAnchor, is.sigmaAnchor);
}

TEST_F(Entered, TakesWholeMillimetresWhereTheStateHoldsThemInCentimetres) {
    base.stan.plyta.Liczba_srub = 0;
    base.anchor(-123, 77).noLoads().loads(-10, 1.23, -0.77);
    const equilibrium::Result is = first();
    ASSERT_TRUE(is.exists) << "the pull is at the anchor to the last digit";
    EXPECT_EQ(is.sigmaConcrete, 0);
    EXPECT_NEAR(is.sigmaAnchor[0], -10e3 / 353, 1e-9);
}

} // namespace
