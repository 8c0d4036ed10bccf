#include "equilibrium/equilibrium.h"
#include "support/allocations.h"

#include <gtest/gtest.h>

#include <string>

using namespace ferna::equilibrium;

namespace {

TEST(Equilibrium, AllocatesNothing) {
#ifndef FERNA_COUNTS_ALLOCATIONS
    GTEST_SKIP() << "the allocator of a sanitizer is not counted";
#else
    constexpr Anchor anchors[] = {{250, 150, 353}, {-250, 150, 353}, {250, -150, 353}};
    constexpr Anchor row[] = {{300, -100, 353}, {300, 100, 353}};
    const long before = allocations;
    const Base base(600, 400, 6.83, anchors);
    bool all = base.solve({100, 60, 25}).exists;
    const Base verge(600, 400, 6.83, row);
    all = all && verge.solve({-10, -3, 0.5}).exists; // in the finer numbers
    const Anchor beside[] = {{440, -180, 353}};
    all = all && Base(600, 400, 6, beside).solve({100, 30 - 3e-7, -20}).exists; // in the finest
    const bool none = verge.solve({-10, -2.9, 0}).exists;
    EXPECT_EQ(allocations - before, 0);
    EXPECT_TRUE(all);
    EXPECT_FALSE(none);

    const std::string counted(100, 'x');
    EXPECT_GT(allocations - before, 0) << "nothing is counted: " << counted;
#endif
}

} // namespace
