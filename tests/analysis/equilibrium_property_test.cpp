// Equilibrium of the stored results, computed anew by clipping the plate along the stored ends of
// the neutral line: nothing of the search's formulas is used.
#include "support/decimal_comma.h"
#include "support/random_tasks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <vector>

using namespace ferna;
using namespace ferna::testing;

namespace {

struct Point {
    Double x, y;
};

Double distance(const Point& p, const Point& from, const Point& to) {
    const Double dx = to.x - from.x;
    const Double dy = to.y - from.y;
    return ((p.y - from.y) * dx - (p.x - from.x) * dy) / std::hypot(dx, dy);
}

/// The part of a polygon where the distance is positive.
std::vector<Point> clipped(const std::vector<Point>& polygon, const Point& from, const Point& to) {
    std::vector<Point> kept;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point& p = polygon[i];
        const Point& q = polygon[(i + 1) % polygon.size()];
        const Double dp = distance(p, from, to);
        const Double dq = distance(q, from, to);
        if (dp >= 0)
            kept.push_back(p);
        if (dp * dq < 0) {
            const Double t = dp / (dp - dq);
            kept.push_back({p.x + t * (q.x - p.x), p.y + t * (q.y - p.y)});
        }
    }
    return kept;
}

struct Resultant {
    Double N = 0;  // kN
    Double Mx = 0; // kNcm: sums of force times x and times y
    Double My = 0;

    void add(Double force, const Point& p) {
        N += force;
        Mx += force * p.x;
        My += force * p.y;
    }
};

/// The concrete's resultant: a field that is 0 on the line and `corner` MPa at its largest.
Resultant ofConcrete(Double a, Double b, Point from, Point to, Point compressed, Double corner) {
    if (distance(compressed, from, to) < 0)
        std::swap(from, to);
    const auto zone = clipped({{-a, -b}, {a, -b}, {a, b}, {-a, b}}, from, to);
    const Double perCm = corner / distance(compressed, from, to);
    Resultant sum;
    for (std::size_t i = 2; i < zone.size(); ++i) {
        const Point& p = zone[0];
        const Point& q = zone[i - 1];
        const Point& r = zone[i];
        const Double area = std::fabs((q.x - p.x) * (r.y - p.y) - (r.x - p.x) * (q.y - p.y)) / 2;
        // The product of two linear functions is exact at the middles of the sides.
        for (const auto& [u, v] : {std::pair{p, q}, std::pair{q, r}, std::pair{r, p}}) {
            const Point middle{(u.x + v.x) / 2, (u.y + v.y) / 2};
            const Double MPa = perCm * distance(middle, from, to);
            sum.add(MPa * 0.1 * area / 3, middle); // MPa = 0.1 kN/cm2
        }
    }
    return sum;
}

struct Deviation {
    Double N = 0;    // share of N
    Double M = 0;    // share of the larger moment
    Double Mabs = 0; // kNm
};

/// The applied axial force and working moments, in the axes of the input.
Deviation deviation(const ColumnBase& base, int c) {
    const Stan& stan = base.stan;
    const Wyniki& r = stan.wyniki;
    const Double a = stan.plyta.Dlugosc_plyty / 2;
    const Double b = stan.plyta.Szerokosc_plyty / 2;
    const int signs = stan.obciazenia.Klasa_znaku(c);
    const Double signX = signs >= 3 ? -1 : 1;
    const Double signY = signs == 2 || signs == 4 ? -1 : 1;
    Resultant sum = ofConcrete(a, b, {r.Przec_a(c), r.Przec_b(c)}, {r.Przec_c(c), r.Przec_d(c)},
                               {signX * a, signY * b}, r.Sigma_b(c));
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        sum.add(r.Sigma_kotwy(i)(c) * 0.1 * stan.plyta.Pole_kotwy(i),
                {stan.plyta.X_kotwy(i), stan.plyta.Y_kotwy(i)});
    const Double N = stan.obciazenia.Sila_N(c);
    const Double M1 = signX * stan.obciazenia.Moment_M1_kGcm * Gravity / 1000; // kNcm
    const Double M2 = signY * stan.obciazenia.Moment_M2_kGcm * Gravity / 1000;
    const Double error = std::max(std::fabs(sum.Mx - M1), std::fabs(sum.My - M2));
    return {std::fabs(sum.N - N) / N, error / std::max(std::fabs(M1), std::fabs(M2)), error / 100};
}

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
