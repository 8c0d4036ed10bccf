#include "equilibrium/section.h"

#include <algorithm>
#include <cmath>

namespace ferna::equilibrium {

namespace {

/// A pivot below this share of its row's size is nothing but rounding.
template <typename Number>
constexpr Number leastPivot = 1e-14;
template <>
constexpr Quad leastPivot<Quad> = 1e-33;
template <>
constexpr Wide leastPivot<Wide> = 1e-66;

} // namespace

template <typename Number>
bool solve(const Moments<Number>& m, const Triple<Number>& right, Triple<Number>& z) noexcept {
    // L D L^T; its errors do not grow with the scales of the rows.
    if (!(m.one > 0))
        return false;
    const Number l21 = m.u / m.one;
    const Number l31 = m.v / m.one;
    const Number d2 = m.uu - l21 * m.u;
    if (!(d2 > leastPivot<Number> * m.uu))
        return false;
    const Number below = m.uv - l31 * m.u;
    const Number l32 = below / d2;
    const Number d3 = m.vv - l31 * m.v - l32 * below;
    if (!(d3 > leastPivot<Number> * m.vv))
        return false;
    const Number y2 = right[1] - l21 * right[0];
    const Number y3 = right[2] - l31 * right[0] - l32 * y2;
    z[2] = y3 / d3;
    z[1] = y2 / d2 - l32 * z[2];
    z[0] = right[0] / m.one - l21 * z[1] - l31 * z[2];
    return true;
}

template <typename Number>
CornerPlane<Number> CornerPlane<Number>::facingLargest() const noexcept {
    CornerPlane result = *this;
    if (z[1] > 0) {
        result.z[0] += 2 * z[1];
        result.z[1] = -z[1];
        result.signX = -signX;
    }
    if (z[2] > 0) {
        result.z[0] += 2 * z[2];
        result.z[2] = -z[2];
        result.signY = -signY;
    }
    return result;
}

CornerPlane<double> fromCentre(const Vector3& s) noexcept {
    CornerPlane<double> plane;
    plane.signX = s[1] < 0 ? -1 : 1;
    plane.signY = s[2] < 0 ? -1 : 1;
    plane.z = {s[0] + std::fabs(s[1]) + std::fabs(s[2]), -std::fabs(s[1]), -std::fabs(s[2])};
    return plane;
}

namespace {

/// The zone s = c - p u - q v > 0 of a square of side 2 with p >= q >= 0: all of 0 <= v <= rows,
/// and the trapezium from there to `end`, whose width goes from `width` to `endWidth`.
template <typename Number>
struct Zone {
    Number rows;
    Number end;
    Number width;
    Number endWidth;
};

template <typename Number>
Zone<Number> zoneOf(const Number& c, const Number& p, const Number& q) noexcept {
    const Number side = 2;
    Zone<Number> zone;
    zone.rows = c > 2 * p ? std::min(side, (c - 2 * p) / q) : 0;
    zone.width = c > 2 * p ? side : c / p;
    zone.end = c < 2 * q ? c / q : side;
    zone.endWidth = c < 2 * q ? 0 : std::min(side, (c - 2 * q) / p);
    return zone;
}

template <typename Number>
bool isWhole(const Number& c, const Number& p, const Number& q) noexcept {
    return c >= 2 * (p + q);
}

template <typename Number>
Moments<Number> momentsOf(const Zone<Number>& zone) noexcept {
    const Number r = zone.rows;
    const Number h = zone.end - r;
    const Number a = zone.width;
    const Number b = zone.endWidth;
    // Over t from 0 to 1, with the width w = a (1 - t) + b t.
    const Number w = (a + b) / 2;
    const Number wt = (a + 2 * b) / 6;
    const Number wtt = (a + 3 * b) / 12;
    const Number ww = (a * a + a * b + b * b) / 3;
    const Number wwt = (a * a + 2 * (a * b) + 3 * (b * b)) / 12;
    const Number www = (a + b) * (a * a + b * b) / 4;
    return {2 * r + h * w,
            2 * r + h * ww / 2,
            r * r + h * (r * w + h * wt),
            8 * r / 3 + h * www / 3,
            r * r + h * (r * ww + h * wwt) / 2,
            2 * (r * r * r) / 3 + h * (r * r * w + h * (2 * r * wt + h * wtt))};
}

template <typename Number>
Moments<Number> pressedPart(const CornerPlane<Number>& plane) noexcept {
    const Number c = plane.z[0];
    const Number p = -plane.z[1];
    const Number q = -plane.z[2];
    if (!(c > 0))
        return {};
    if (isWhole(c, p, q))
        return wholeSquare<Number>;
    if (p >= q)
        return momentsOf(zoneOf(c, p, q));
    const Moments<Number> m = momentsOf(zoneOf(c, q, p));
    return {m.one, m.v, m.u, m.vv, m.uv, m.uu};
}

} // namespace

Crossing crossingOf(const CornerPlane<double>& plane) noexcept {
    const double c = plane.z[0];
    const double p = -plane.z[1];
    const double q = -plane.z[2];
    if (!(c > 0) || isWhole(c, p, q))
        return {};
    if (p >= q) {
        const Zone<double> zone = zoneOf(c, p, q);
        return {true, zone.width, zone.rows, zone.endWidth, zone.end};
    }
    const Zone<double> zone = zoneOf(c, q, p);
    return {true, zone.rows, zone.width, zone.end, zone.endWidth};
}

void Section::prepare() noexcept {
    whole = {4, 0, 0, 4.0 / 3, 0, 4.0 / 3};
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        whole.one += weight[i];
        whole.u += weight[i] * x[i];
        whole.v += weight[i] * y[i];
        whole.uu += weight[i] * x[i] * x[i];
        whole.uv += weight[i] * x[i] * y[i];
        whole.vv += weight[i] * y[i] * y[i];
    }
}

template <typename Number>
Response<Number> responseOf(const Section& section, const CornerPlane<Number>& plane) noexcept {
    Moments<Number> m = pressedPart(plane);
    // Apart from the anchors: there is no difference of large forces in either.
    Triple<Number> force = product(m, plane.z);
    const Number signX = plane.signX;
    const Number signY = plane.signY;
    for (std::size_t i = 0; i < static_cast<std::size_t>(section.count); ++i) {
        const Number u = 1 - signX * section.x[i];
        const Number v = 1 - signY * section.y[i];
        const Number s = plane.z[0] + plane.z[1] * u + plane.z[2] * v;
        const Number w = s < 0 ? section.weight[i] : 0;
        const Number wu = w * u;
        const Number wv = w * v;
        m.one += w;
        m.u += wu;
        m.v += wv;
        m.uu += wu * u;
        m.uv += wu * v;
        m.vv += wv * v;
        force[0] += w * s;
        force[1] += wu * s;
        force[2] += wv * s;
    }
    return {m, force};
}

template bool solve(const Moments<double>&, const Vector3&, Vector3&) noexcept;
template bool solve(const Moments<Quad>&, const Triple<Quad>&, Triple<Quad>&) noexcept;
template bool solve(const Moments<Wide>&, const Triple<Wide>&, Triple<Wide>&) noexcept;
template struct CornerPlane<double>;
template struct CornerPlane<Quad>;
template struct CornerPlane<Wide>;
template Response<double> responseOf(const Section&, const CornerPlane<double>&) noexcept;
template Response<Quad> responseOf(const Section&, const CornerPlane<Quad>&) noexcept;
template Response<Wide> responseOf(const Section&, const CornerPlane<Wide>&) noexcept;

} // namespace ferna::equilibrium
