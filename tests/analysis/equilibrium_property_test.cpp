#include "support/decimal_comma.h"
#include "support/random_tasks.h"
#include "support/stored_equilibrium.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <vector>

using namespace ferna;
using namespace ferna::testing;

namespace {

Double quantile(std::vector<Double>& values, Double share) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(share * static_cast<Double>(values.size() - 1))];
}

void print(const char* what, std::vector<Double>& values) {
    std::cout << what << ": median " << quantile(values, 0.5) << ", 95 % " << quantile(values, 0.95)
              << ", 99 % " << quantile(values, 0.99) << ", largest " << quantile(values, 1) << '\n';
}

/// The search ends at 100 kG cm (0.0098 kNm) or at a step of 0.01 cm and 0.01 degree, so a
/// deviation is measured in the moment, or in the moment that a shift of the line by some steps
/// makes.
TEST(StoredResults, AreInEquilibriumWithTheLoads) {
    const WithDecimalSign comma(u',');
#ifdef FERNA_SANITIZE
    constexpr std::uint64_t count = 500;
#else
    constexpr std::uint64_t count = 6000;
#endif
    std::vector<Double> forces;
    std::vector<Double> moments;
    std::vector<Double> absolute;
    std::vector<Double> forcesOfHeavy;
    std::vector<Double> momentsOfHeavy;
    Deviation worst;
    std::uint64_t worstTask = 0;
    for (std::uint64_t number = 1; number <= count; ++number) {
        if (isNasty(number))
            continue;
        ColumnBase base;
        randomTask(base, number);
        base.cases = 1; // one case: the working moments are those of the last one
        base.stan.obciazenia.Liczba_przyp = 1;
        CalculationEnd end = CalculationEnd::Refused;
        try {
            end = base.calculate();
        } catch (const RunTimeError&) {
            continue; // no anchor takes the shear
        }
        if (end != CalculationEnd::Computed || base.stan.wyniki.Przyp_policzony(1) == True)
            continue;
        const Deviation d = deviation(base, 1);
        ASSERT_TRUE(std::isfinite(d.N) && std::isfinite(d.M)) << number;
        forces.push_back(d.N);
        moments.push_back(d.M);
        absolute.push_back(d.Mabs);
        const Double applied = std::max(std::fabs(base.stan.obciazenia.Moment_M1_kGcm),
                                        std::fabs(base.stan.obciazenia.Moment_M2_kGcm));
        if (applied > 1e5) { // a thousand tolerances: about 10 kNm
            forcesOfHeavy.push_back(d.N);
            momentsOfHeavy.push_back(d.M);
        }
        if (d.M > worst.M) {
            worst = d;
            worstTask = number;
        }
    }
    std::cout << forces.size() << " cases with a neutral line, " << forcesOfHeavy.size()
              << " of them above 10 kNm\n";
    print("force, share of N", forces);
    print("moment, share of the larger one", moments);
    print("moment, kNm", absolute);
    print("above 10 kNm: force, share of N", forcesOfHeavy);
    print("above 10 kNm: moment, share of the larger one", momentsOfHeavy);
    std::cout << "worst moment in task " << worstTask << ": " << worst.M << ", " << worst.Mabs
              << " kNm, force " << worst.N << '\n';
    ASSERT_GT(forces.size(), count / 4);
    EXPECT_LT(quantile(momentsOfHeavy, 0.5), 0.001);
    EXPECT_LT(quantile(momentsOfHeavy, 0.95), 0.01);
    EXPECT_LT(quantile(forcesOfHeavy, 0.95), 0.01);
    EXPECT_LT(quantile(moments, 0.5), 0.005);
}

TEST(StoredResults, OfAWholePlateAreInEquilibrium) {
    const WithDecimalSign comma(u',');
    ColumnBase base;
    base.fourAnchors(250, 150).loads(1000, 30, 12);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    ASSERT_EQ(base.stan.wyniki.Przyp_policzony(1), True);
    const Double W1 = 0.4 * 0.6 * 0.6 / 6;
    const Double W2 = 0.6 * 0.4 * 0.4 / 6;
    EXPECT_NEAR(base.stan.wyniki.Sigma_b(1), (1000 / 0.24 + 30 / W1 + 12 / W2) / 1000, 1e-4);
}

} // namespace
