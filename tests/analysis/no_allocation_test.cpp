#include "analysis/load_case.h"
#include "analysis/search.h"
#include "analysis/solve.h"
#include "support/allocations.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

TEST(Search, AllocatesNothing) {
#ifndef FERNA_COUNTS_ALLOCATIONS
    GTEST_SKIP() << "the allocator of a sanitizer is not counted";
#else
    const WithDecimalSign comma{u','};
    ColumnBase base;
    base.fourAnchors(250, 150).anchor(0, 150).anchor(0, -150).loads(320, 140, 35);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    Stan_przypadku& s = base.solver;
    const CaseInput in = inputOf(base.stan);
    Normalizuj_znaki(s, in, carryOf(base.stan, s));
    Ustal_momenty(s);
    Ustal_mimosrody(s, in.N);
    ASSERT_TRUE(Poza_rdzeniem(s));
    s.Jest_rozw = false;

    const long before = allocations;
    Szukaj_beta(s, in);
    EXPECT_EQ(allocations - before, 0);
    EXPECT_TRUE(s.Jest_rozw);

    const QString counted(100, u'x');
    EXPECT_GT(allocations - before, 0) << "nothing is counted: " << counted.size();
#endif
}

} // namespace
