#include "statics/load_shares.h"

#include "runtime/format.h"

#include <cmath>

namespace ferna {

namespace {

constexpr Integer vertical = 1;
constexpr Integer planeZX = 2;
constexpr Integer planeZY = 3;
constexpr Integer force = 0;
constexpr Integer distributed = 1;

/// The load in a slot, with the meaning of its rows.
struct Load {
    Integer direction;
    Integer kind;
    Single row1, row2, row3, row4;
};

Load loadIn(const Stan_statyki& loads, int slot) {
    return {loads.Obc_typ[0](slot),  loads.Obc_typ[1](slot),  loads.Obc_wart[0](slot),
            loads.Obc_wart[1](slot), loads.Obc_wart[2](slot), loads.Obc_wart[3](slot)};
}

/// Resultant and arm of a load from p1 at h1 to p2 at h2.
struct Resultant {
    Single V;
    Single hc;
};

/// -1 where the load grows upward, 1 where it falls, 0 where it counts as uniform.
int slope(const Load& load) {
    constexpr Double tolerance = 0.005; // kN/m
    const Double D = std::fabs(Double{load.row1}) - std::fabs(Double{load.row2});
    return D < -tolerance ? -1 : D > tolerance ? 1 : 0;
}

Resultant resultantOf(const Load& load) {
    const Double p1 = load.row1;
    const Double p2 = load.row2;
    const Double h1 = load.row3;
    const Double h2 = load.row4;
    const Single L = CSng(h2 - h1);
    Single hc = CSng((h1 + h2) * 0.5);
    const Single V = CSng((p1 + p2) * 0.5 * L);
    // The sixth is that of a triangle, taken for every load that grows upward; one that falls
    // keeps the mid-height.
    if (slope(load) < 0)
        hc = CSng(hc + L / 6.0);
    return {V, hc};
}

QString number(Single value) {
    return Format(value, u"### ##0.0#");
}

QString distributedLine(const Load& load, const QString& p) {
    if (slope(load) == 0)
        return QStringLiteral("Obciązenie równomierne ") + p + number(load.row1)
               + QStringLiteral(" kN/m");
    return QStringLiteral("Obciążenie trapezowe ") + p + u' ' + number(load.row1)
           + QStringLiteral(" / ") + number(load.row2) + QStringLiteral(" kN/m");
}

/// Horizontal force and moment of a load in a plane.
struct PlaneShares {
    Single V = 0;
    Single M = 0;
};

PlaneShares planeShares(const Load& load) {
    if (load.kind == force)
        return {load.row1, CSng(Double{load.row3} * load.row1)};
    if (load.kind == distributed) {
        const Resultant resultant = resultantOf(load);
        return {resultant.V, CSng(Double{resultant.hc} * resultant.V)};
    }
    return {0, load.row1};
}

} // namespace

LoadShares loadShares(const Stan_statyki& loads, int slot) {
    return loadShares(loads, slot, loads.Obc_typ[0](slot));
}

LoadShares loadShares(const Stan_statyki& loads, int slot, Integer direction) {
    const Load load = loadIn(loads, slot);
    LoadShares shares;
    if (direction == vertical) {
        const Double P = load.row1;
        shares.N = load.row1;
        shares.M1 = CSng(load.row3 * P / 1000); // mm in m
        shares.M2 = CSng(load.row4 * P / 1000);
    } else if (direction == planeZX) {
        const PlaneShares plane = planeShares(load);
        shares.Vx = plane.V;
        shares.M1 = plane.M;
    } else if (direction == planeZY) {
        const PlaneShares plane = planeShares(load);
        shares.Vy = plane.V;
        shares.M2 = plane.M;
    }
    return shares;
}

QString loadLine(const Stan_statyki& loads, int slot) {
    const Load load = loadIn(loads, slot);
    const QString value = number(load.row1);
    if (load.direction == vertical)
        return QStringLiteral("Siła pionowa ") + value + QStringLiteral(" kN");
    const bool zx = load.direction == planeZX;
    if (load.kind == force)
        return (zx ? QStringLiteral("Siła pozioma Hx ") : QStringLiteral("Siła pozioma Hy "))
               + value + QStringLiteral(" kN");
    if (load.kind == distributed)
        return distributedLine(load, zx ? QStringLiteral("px") : QStringLiteral("py"));
    return (zx ? QStringLiteral("Moment Mxz ") : QStringLiteral("Moment Myz ")) + value
           + QStringLiteral(" kNm");
}

} // namespace ferna
