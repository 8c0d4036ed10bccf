#include "combinations/comparison.h"

#include <gtest/gtest.h>

namespace ferna::combinations {

namespace {

Utilisation used(Double concrete, Double tension, Double shear, Double interaction) {
    Utilisation made;
    made.concrete = concrete;
    made.tension = tension;
    made.shear = shear;
    made.interaction = interaction;
    return made;
}

Compared both(const Utilisation& told, const Utilisation& exact) {
    Compared one;
    one.told = told;
    one.exact = exact;
    return one;
}

using Checks = std::vector<Check>;

TEST(Compared, DiffersByMoreThanTwoPerCentAndAHundredth) {
    EXPECT_EQ(both(used(0.5, 0.5, 0, 0.5), used(0.505, 0.5, 0, 0.495)).differing(), Checks());
    EXPECT_EQ(both(used(0.5, 0.5, 0, 0.5), used(0.512, 0.489, 0, 0.48)).differing(),
              (Checks{Check::Concrete, Check::Tension, Check::Interaction}));
    EXPECT_EQ(both(used(0.02, 0, 0, 0), used(0.028, 0, 0, 0)).differing(), Checks())
        << "less than a hundredth, though a third of it";
    EXPECT_EQ(both(used(3, 0, 0, 0), used(3.05, 0, 0, 0)).differing(), Checks())
        << "more than a hundredth, but less than 2 %";
}

TEST(Compared, DiffersWhereOneOfThemPassesAndTheOtherDoesNot) {
    EXPECT_EQ(both(used(0, 0, 0.999, 0), used(0, 0, 1.001, 0)).differing(), Checks{Check::Shear});
    EXPECT_EQ(both(used(0, 0, 0, 1.001), used(0, 0, 0, 0.999)).differing(),
              Checks{Check::Interaction});
    EXPECT_EQ(both(used(0, 1, 0, 0), used(0, 0.999, 0, 0)).differing(), Checks())
        << "1 is still kept";
}

TEST(Compared, DiffersWhereOnlyOneOfThemHasAResult) {
    Compared one = both(used(1, 1, 0, 0), used(1, 1, 0, 0));
    EXPECT_FALSE(one.differs());
    one.told.reset();
    EXPECT_TRUE(one.differs());
    EXPECT_EQ(one.differing(), Checks()) << "there is nothing to hold against it";
    one.exact.reset();
    EXPECT_FALSE(one.differs()) << "neither has one";
}

TEST(Compared, OfOtherLoadsDoesNotDiffer) {
    Compared one = both(used(1, 0, 0, 0), used(2, 0, 0, 0));
    for (const auto state : {Compared::State::OtherLoads, Compared::State::NotReached}) {
        one.state = state;
        EXPECT_FALSE(one.differs());
        EXPECT_EQ(one.differing(), Checks());
    }
}

} // namespace

} // namespace ferna::combinations
