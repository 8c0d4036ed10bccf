#include "combinations/choice.h"
#include "support/random_tasks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace ferna::combinations {

namespace {

using Answer = std::optional<Utilisation>;
using Rows = std::vector<RowNumber>;

Utilisation use(Double concrete, Double tension, Double shear = 0, Double interaction = 0) {
    return {concrete, tension, shear, interaction, 2 * concrete, 1};
}

Choice choiceOf(const std::vector<Answer>& answers) {
    Choice choice;
    RowNumber row = 0;
    for (const Answer& answer : answers)
        choice.add(++row, answer);
    return choice;
}

TEST(Choice, OfNothingGovernsNothing) {
    const Choice none;
    for (const Check check : allChecks) {
        EXPECT_EQ(none.governing(check), 0);
        EXPECT_EQ(none.envelope(check), 0);
    }
    EXPECT_EQ(none.six(), Rows());
}

TEST(Choice, HoldsForEachCheckTheRowWithItsLargestUse) {
    const Choice choice =
        choiceOf({use(0.2, 0.9, 0.1, 0), use(0.8, 0.1, 0.3, 0.4), use(0.3, 0.2, 0.2, 0.7)});
    EXPECT_EQ(choice.governing(Check::Concrete), 2);
    EXPECT_EQ(choice.governing(Check::Tension), 1);
    EXPECT_EQ(choice.governing(Check::Shear), 2);
    EXPECT_EQ(choice.governing(Check::Interaction), 3);
    EXPECT_EQ(choice.envelope(Check::Concrete), 0.8);
    EXPECT_EQ(choice.envelope(Check::Tension), 0.9);
    EXPECT_EQ(choice.six(), (Rows{2, 1, 3}));
}

TEST(Choice, OfEqualRowsTakesTheFirst) {
    const Double rounded = std::nextafter(0.5, 1.0);
    const Choice choice = choiceOf({use(0.5, 0.1), use(rounded, 0.1), use(0.5, 0.1)});
    EXPECT_EQ(choice.governing(Check::Concrete), 1);
    EXPECT_EQ(choice.governing(Check::Tension), 1);
    EXPECT_EQ(choice.envelope(Check::Concrete), rounded);
    EXPECT_EQ(choice.six(), (Rows{1, 2, 3}));
    EXPECT_EQ(choiceOf({use(0.5, 0), use(0.5 * (1 + 2e-9), 0)}).governing(Check::Concrete), 2);
}

TEST(Choice, ARowWithoutEquilibriumGovernsEverything) {
    const Choice choice = choiceOf({use(5, 5, 5, 5), std::nullopt, use(9, 9, 9, 9), std::nullopt});
    for (const Check check : allChecks)
        EXPECT_EQ(choice.governing(check), 2);
    EXPECT_EQ(choice.six(), (Rows{2, 4, 3, 1}));
}

TEST(Choice, AnInfiniteUseGovernsItsCheckAlone) {
    const Double infinite = std::numeric_limits<Double>::infinity();
    const Choice choice = choiceOf({use(0.4, 0.2), use(0.1, 0.1, infinite), use(0.2, 0.6)});
    EXPECT_EQ(choice.governing(Check::Shear), 2);
    EXPECT_EQ(choice.governing(Check::Concrete), 1);
    EXPECT_EQ(choice.governing(Check::Tension), 3);
}

TEST(Choice, FillsUpToSixWithTheNextWorst) {
    std::vector<Answer> answers{use(0.95, 0.1), use(0.1, 0.99)};
    for (int i = 0; i < 10; ++i)
        answers.push_back(use(0.5 + 0.01 * i, 0.3));
    EXPECT_EQ(choiceOf(answers).six(), (Rows{1, 2, 12, 11, 10, 9}));
}

/// Sorted as a whole, what a stream is to find.
Rows sixBySorting(const std::vector<Answer>& answers) {
    Rows rows;
    const auto take = [&rows](RowNumber row) {
        if (rows.size() < chosenRows && std::find(rows.begin(), rows.end(), row) == rows.end())
            rows.push_back(row);
    };
    Rows order;
    for (std::size_t i = 0; i < answers.size(); ++i)
        order.push_back(static_cast<RowNumber>(i) + 1);
    const auto at = [&](RowNumber row) { return answers[static_cast<std::size_t>(row) - 1]; };
    const auto largestFirst = [&](const auto& of) {
        Rows sorted = order;
        std::stable_sort(sorted.begin(), sorted.end(),
                         [&](RowNumber a, RowNumber b) { return isLarger(of(at(a)), of(at(b))); });
        return sorted;
    };
    for (const Check check : allChecks)
        take(largestFirst([&](const Answer& answer) { return useOf(answer, check); }).front());
    for (const RowNumber row : largestFirst(worstOf))
        take(row);
    return rows;
}

TEST(Choice, OfAStreamIsThatOfTheSortedTable) {
    testing::Dice dice(21);
    for (int table = 0; table < 300; ++table) {
        std::vector<Answer> answers;
        const int rows = dice.whole(1, 40);
        for (int i = 0; i < rows; ++i) // of few values, so that many are equal
            answers.push_back(dice.oneIn(30) ? Answer()
                                             : use(dice.whole(0, 9) / 8.0, dice.whole(0, 9) / 8.0,
                                                   dice.whole(0, 3) / 4.0, dice.whole(0, 3) / 4.0));
        EXPECT_EQ(choiceOf(answers).six(), sixBySorting(answers)) << table;
    }
}

} // namespace

} // namespace ferna::combinations
