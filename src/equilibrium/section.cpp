#include "equilibrium/section.h"

#include <algorithm>
#include <cmath>

namespace ferna::equilibrium {

Vector3 operator*(const Moments& m, const Vector3& z) noexcept {
    return {m.one * z[0] + m.u * z[1] + m.v * z[2], m.u * z[0] + m.uu * z[1] + m.uv * z[2],
            m.v * z[0] + m.uv * z[1] + m.vv * z[2]};
}

bool solve(const Moments& m, const Vector3& right, Vector3& z) noexcept {
    // L D L^T; its errors do not grow with the scales of the rows.
    constexpr double least = 1e-14;
    if (!(m.one > 0))
        return false;
    const double l21 = m.u / m.one;
    const double l31 = m.v / m.one;
    const double d2 = m.uu - l21 * m.u;
    if (!(d2 > least * m.uu))
        return false;
    const double below = m.uv - l31 * m.u;
    const double l32 = below / d2;
    const double d3 = m.vv - l31 * m.v - l32 * below;
    if (!(d3 > least * m.vv))
        return false;
    const double y2 = right[1] - l21 * right[0];
    const double y3 = right[2] - l31 * right[0] - l32 * y2;
    z[2] = y3 / d3;
    z[1] = y2 / d2 - l32 * z[2];
    z[0] = right[0] / m.one - l21 * z[1] - l31 * z[2];
    return true;
}

CornerPlane CornerPlane::facingLargest() const noexcept {
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

CornerPlane fromCentre(const Vector3& s) noexcept {
    CornerPlane plane;
    plane.signX = s[1] < 0 ? -1 : 1;
    plane.signY = s[2] < 0 ? -1 : 1;
    plane.z = {s[0] + std::fabs(s[1]) + std::fabs(s[2]), -std::fabs(s[1]), -std::fabs(s[2])};
    return plane;
}

Vector3 turned(const Vector3& force, const CornerPlane& from, const CornerPlane& to) noexcept {
    return {force[0], from.signX == to.signX ? force[1] : 2 * force[0] - force[1],
            from.signY == to.signY ? force[2] : 2 * force[0] - force[2]};
}

namespace {

/// The zone s = c - p u - q v > 0 of a square of side 2 with p >= q >= 0: all of 0 <= v <= rows,
/// and the trapezium from there to `end`, whose width falls from `width` to `endWidth`.
struct Zone {
    double rows;
    double end;
    double width;
    double endWidth;
};

Zone zoneOf(double c, double p, double q) noexcept {
    Zone zone;
    zone.rows = c > 2 * p ? std::min(2.0, (c - 2 * p) / q) : 0;
    zone.width = c > 2 * p ? 2 : c / p;
    zone.end = c < 2 * q ? c / q : 2;
    zone.endWidth = c < 2 * q ? 0 : std::min(2.0, (c - 2 * q) / p);
    return zone;
}

bool isWhole(double c, double p, double q) noexcept {
    return c >= 2 * (p + q);
}

Moments momentsOf(const Zone& zone) noexcept {
    const double r = zone.rows;
    const double h = zone.end - r;
    const double a = zone.width;
    const double b = zone.endWidth;
    // Over t from 0 to 1, with the width w = a (1 - t) + b t.
    const double w = (a + b) / 2;
    const double wt = (a + 2 * b) / 6;
    const double wtt = (a + 3 * b) / 12;
    const double ww = (a * a + a * b + b * b) / 3;
    const double wwt = (a * a + 2 * a * b + 3 * (b * b)) / 12;
    const double www = (a + b) * (a * a + b * b) / 4;
    return {2 * r + h * w,
            2 * r + h * ww / 2,
            r * r + h * (r * w + h * wt),
            8.0 / 3 * r + h * www / 3,
            r * r + h / 2 * (r * ww + h * wwt),
            2.0 / 3 * (r * r * r) + h * (r * r * w + h * (2 * r * wt + h * wtt))};
}

} // namespace

Crossing crossingOf(const CornerPlane& plane) noexcept {
    const double c = plane.z[0];
    const double p = -plane.z[1];
    const double q = -plane.z[2];
    if (!(c > 0) || isWhole(c, p, q))
        return {};
    if (p >= q) {
        const Zone zone = zoneOf(c, p, q);
        return {true, zone.width, zone.rows, zone.endWidth, zone.end};
    }
    const Zone zone = zoneOf(c, q, p);
    return {true, zone.rows, zone.width, zone.end, zone.endWidth};
}

Moments pressedPart(const CornerPlane& plane) noexcept {
    const double c = plane.z[0];
    const double p = -plane.z[1];
    const double q = -plane.z[2];
    if (!(c > 0))
        return {};
    if (isWhole(c, p, q))
        return wholeSquare;
    if (p >= q)
        return momentsOf(zoneOf(c, p, q));
    const Moments m = momentsOf(zoneOf(c, q, p));
    return {m.one, m.v, m.u, m.vv, m.uv, m.uu};
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

Response responseOf(const Section& section, const CornerPlane& plane) noexcept {
    Moments m = pressedPart(plane);
    // Summed apart from the anchors: there is no difference of large forces in either.
    Vector3 force = m * plane.z;
    for (std::size_t i = 0; i < static_cast<std::size_t>(section.count); ++i) {
        const double u = 1 - plane.signX * section.x[i];
        const double v = 1 - plane.signY * section.y[i];
        const double s = plane.z[0] + plane.z[1] * u + plane.z[2] * v;
        const double w = s < 0 ? section.weight[i] : 0;
        const double wu = w * u;
        const double wv = w * v;
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

} // namespace ferna::equilibrium
