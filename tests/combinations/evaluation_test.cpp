#include "combinations/evaluation.h"
#include "command/entered_equilibria.h"
#include "support/column_base.h"

#include <gtest/gtest.h>

namespace ferna::combinations {

namespace {

using testing::ColumnBase;

Combination combination(Double N, Double M1, Double M2, Double Vx = 0, Double Vy = 0) {
    return {{}, {N, M1, M2}, {Vx, Vy}};
}

TEST(Evaluator, AnswersAsTheUtilisationsOfAnEnteredCase) {
    ColumnBase base;
    base.fourAnchors(250, 150).loads(300, 120, 20, 100, 30);
    const auto made = Evaluator::of(base.stan, base.fields);
    ASSERT_TRUE(std::holds_alternative<Evaluator>(made));
    const auto& evaluator = std::get<Evaluator>(made);
    const auto entered = enteredEquilibria(base.stan, base.fields);
    const auto limits = enteredLimits(base.stan, base.fields);
    ASSERT_TRUE(entered.hasBase && limits);
    EXPECT_EQ(evaluator.answer(combination(300, 120, 20, 100, 30)),
              utilisation(*entered.byCase[0], {300, 120, 20}, {100, 30}, *limits,
                          *enteredAnchors(base.stan.plyta)));
    EXPECT_GT(evaluator.answer(combination(300, 120, 20, 100, 30))->interaction, 0);
}

TEST(Evaluator, WithoutAnEquilibriumGivesNoAnswer) {
    ColumnBase base;
    const auto made = Evaluator::of(base.stan, base.fields);
    const auto& evaluator = std::get<Evaluator>(made);
    EXPECT_TRUE(evaluator.answer(combination(100, 0, 0)));
    EXPECT_FALSE(evaluator.answer(combination(100, 40, 0)));
    EXPECT_FALSE(evaluator.equilibriumOf(combination(100, 40, 0)).exists);
}

TEST(Evaluator, SaysWhyThereIsNoneToBeHad) {
    ColumnBase noSize;
    noSize.fields.Text3 = QStringLiteral("sześćset");
    EXPECT_EQ(std::get<Unready>(Evaluator::of(noSize.stan, noSize.fields)), Unready::NoAreas);
    ColumnBase offSeries;
    offSeries.anchor(0, 0, 25);
    EXPECT_EQ(std::get<Unready>(Evaluator::of(offSeries.stan, offSeries.fields)), Unready::NoAreas);
    ColumnBase noSteel;
    noSteel.fields.cmbStal = userSteel - 1;
    EXPECT_EQ(std::get<Unready>(Evaluator::of(noSteel.stan, noSteel.fields)), Unready::NoStrengths);
}

} // namespace

} // namespace ferna::combinations
