#include "smallest/confirmation.h"
#include "support/column_base.h"

#include <gtest/gtest.h>

namespace ferna::smallest {

namespace {

DesignRange rangeOf() {
    DesignRange range;
    range.columnLength = 300;
    range.columnWidth = 200;
    range.length = {450, 800, 50};
    range.width = {350, 700, 50};
    range.steels = {2, 4};
    return range;
}

testing::ColumnBase loaded() {
    testing::ColumnBase base;
    base.loads(300, 80, 20, 40, 10).loads(150, 60, -15, 30, 0);
    return base;
}

Design designOf(int length, int width, int layout, Integer diameter, Integer steel) {
    Design design;
    design.length = length;
    design.width = width;
    design.layout = layout;
    design.diameter = diameter;
    design.steel = steel;
    return design;
}

TEST(Winners, AreConfirmedByTheCalculationAndItsResultsAreTheirs) {
    const testing::ColumnBase base = loaded();
    const Task task = enteredTask(base.stan, base.fields).value();
    const Winners found = winners(rangeOf(), task, base.stan, base.fields, 5);
    std::size_t confirmed = 0;
    for (const Winner& winner : found.all) {
        confirmed += winner.calculation.confirmed ? 1 : 0;
        EXPECT_EQ(winner.calculation.confirmed, winner.calculation.reason.isEmpty());
        testing::ColumnBase calculated = loaded();
        enter(winner.design, rangeOf(), calculated.stan, calculated.fields);
        ASSERT_EQ(calculated.calculate(), CalculationEnd::Computed);
        const Wyniki& results = calculated.stan.wyniki;
        const bool stresses =
            results.Kotwy_OK == True && results.Sigma_b_max <= calculated.stan.materialy.Rb_betonu;
        EXPECT_TRUE(stresses || !winner.calculation.confirmed);
        EXPECT_NEAR(-results.Sigma_s_max,
                    winner.design.used.tension * calculated.stan.materialy.Fd_kotwy,
                    0.03 * calculated.stan.materialy.Fd_kotwy);
    }
    EXPECT_EQ(confirmed, 5U);
}

TEST(Confirmation, IsRefusedToABaseThatTheCalculationFindsTooWeak) {
    testing::ColumnBase base = loaded();
    DesignRange range = rangeOf();
    range.columnLength = range.columnWidth = 0;
    const auto reasonOf = [&](const Design& design) {
        const Confirmation found = confirm(design, range, base.stan, base.fields);
        EXPECT_FALSE(found.confirmed);
        return found.reason;
    };
    EXPECT_EQ(reasonOf(designOf(500, 400, 4, 24, 2)),
              QStringLiteral("przypadek 1: docisk przekroczony"));
    base.noLoads().loads(60, 60, 0);
    range.pressure = 2;
    EXPECT_EQ(reasonOf(designOf(600, 500, 4, 16, 2)),
              QStringLiteral("przypadek 1: naprężenie w kotwie przekroczone"));
    base.noLoads().loads(300, 10, 0).loads(600, 10, 0, 250, 100);
    EXPECT_EQ(reasonOf(designOf(700, 600, 4, 24, 2)),
              QStringLiteral("przypadek 2: siły poziome: nośność kotew przekroczona"));
    EXPECT_EQ(reasonOf(designOf(600, 400, 4, 42, 3)),
              QStringLiteral("Norma nie przewiduje takich śrub"));
}

TEST(Confirmation, IsRefusedWhereTheCalculationTakesNoPull) {
    testing::ColumnBase base;
    base.loads(-20, 5, 0);
    const Confirmation found =
        confirm(designOf(600, 400, 4, 24, 2), rangeOf(), base.stan, base.fields);
    EXPECT_FALSE(found.confirmed);
    EXPECT_EQ(found.reason,
              QStringLiteral("Program nie wykonuje obliczeń dla zakotwień rozciąganych"));
}

TEST(Confirmation, TakesTheUsersSteelAsItIsRemembered) {
    testing::ColumnBase base;
    base.loads(300, 60, 20);
    base.stan.materialy.Stal_nazwa = QStringLiteral("S355");
    base.stan.materialy.Stal_fd = 305;
    base.stan.materialy.Stal_fi_max = 30;
    base.stan.materialy.Stal_Re = 355;
    base.stan.materialy.Stal_Rm = 510;
    EXPECT_TRUE(
        confirm(designOf(650, 500, 4, 24, userSteel), rangeOf(), base.stan, base.fields).confirmed);
    base.stan.materialy.Stal_nazwa.clear();
    EXPECT_EQ(
        confirm(designOf(650, 500, 4, 24, userSteel), rangeOf(), base.stan, base.fields).reason,
        QStringLiteral("Musisz określić stal dla śrub kotwiących"));
}

TEST(Enter, PutsTheDesignIntoStateAndFieldsAndLeavesTheRest) {
    testing::ColumnBase base = loaded();
    base.fourAnchors(100, 100, 12).anchor(0, 0, 80);
    const InputFields before = base.fields;
    Design design = designOf(650, 500, 8, 24, 4);
    enter(design, rangeOf(), base.stan, base.fields);
    EXPECT_EQ(base.fields.Text3, QStringLiteral("650"));
    EXPECT_EQ(base.fields.Text4, QStringLiteral("500"));
    EXPECT_EQ(base.fields.cmbStal, 3);
    EXPECT_EQ(base.fields.loads, before.loads);
    EXPECT_EQ(base.fields.Text2, before.Text2);
    ASSERT_EQ(base.stan.plyta.Liczba_srub, 8);
    EXPECT_EQ(base.stan.plyta.X_kotwy_mm(1), 275);
    EXPECT_EQ(base.stan.plyta.Y_kotwy_mm(1), 200);
    EXPECT_EQ(base.stan.plyta.Fi_kotwy(8), 24);
    EXPECT_TRUE(listIsTrue(base.stan.plyta));
}

} // namespace

} // namespace ferna::smallest
