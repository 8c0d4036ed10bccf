#include "support/stored_equilibrium.h"

#include <algorithm>
#include <vector>

namespace ferna::testing {

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

} // namespace

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

} // namespace ferna::testing
