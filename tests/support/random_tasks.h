#pragma once

#include "support/column_base.h"

#include <cmath>
#include <cstdint>

namespace ferna::testing {

/// The same numbers on every platform, unlike the distributions of the library.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : state_(seed * 0x9e3779b97f4a7c15U + 1) {}

    std::uint64_t bits() { // splitmix64
        std::uint64_t z = (state_ += 0x9e3779b97f4a7c15U);
        z = (z ^ (z >> 30U)) * 0xbf58476d1ce4e5b9U;
        z = (z ^ (z >> 27U)) * 0x94d049bb133111ebU;
        return z ^ (z >> 31U);
    }
    Double share() { return static_cast<Double>(bits() >> 11U) * 0x1p-53; }
    int whole(int first, int last) {
        return first + static_cast<int>(bits() % static_cast<unsigned>(last - first + 1));
    }
    Double between(Double first, Double last) { return first + (last - first) * share(); }
    bool oneIn(int n) { return whole(1, n) == 1; }
    template <typename T, std::size_t n>
    T of(const T (&choices)[n]) {
        return choices[static_cast<std::size_t>(whole(0, static_cast<int>(n) - 1))];
    }

private:
    std::uint64_t state_;
};

/// A typed number: so many decimals.
inline Double typed(Double value, int decimals) {
    const Double scale = std::pow(10.0, decimals);
    return std::round(value * scale) / scale;
}

/// A plausible column base: anchors inside the plate in one of the usual layouts, loads around the
/// border of the kern and beyond.
inline void ordinaryTask(ColumnBase& base, Dice& dice) {
    const int width = dice.whole(200, 1200);
    const int length = dice.oneIn(4) ? width : width + dice.whole(0, width);
    base.plate(length, width);
    const Integer diameters[] = {16, 20, 24, 30, 36};
    const Integer fi = dice.of(diameters);
    const int x = length / 2 - dice.whole(30, 60);
    const int y = width / 2 - dice.whole(30, 60);
    switch (dice.whole(1, 4)) {
    case 1:
        base.fourAnchors(x, y, fi);
        break;
    case 2:
        base.fourAnchors(x, y, fi).anchor(0, y, fi).anchor(0, -y, fi).anchor(x, 0, fi).anchor(-x, 0,
                                                                                              fi);
        break;
    case 3:
        base.anchor(x, 0, fi).anchor(-x, 0, fi);
        break;
    default:
        for (int i = dice.whole(1, 12); i > 0; --i) {
            // One throw a line: compilers do not agree which argument comes first.
            const int anchorY = dice.whole(-y, y);
            const int anchorX = dice.whole(-x, x);
            base.anchor(anchorX, anchorY, fi);
        }
    }
    base.allAnchorsTakeShear(dice.oneIn(2));
    base.stan.opcje.Nr_betonu = CInt(dice.whole(1, 4));
    for (int c = dice.whole(1, 3); c > 0; --c) {
        const Double N = typed(std::exp(dice.between(std::log(5.0), std::log(3000.0))), 1);
        const auto moment = [&](Double size) {
            if (dice.oneIn(6))
                return 0.0;
            const Double sign = dice.oneIn(2) ? -1 : 1;
            return typed(sign * N * size / 6000 * std::exp(dice.between(-2.5, 2.5)), 2);
        };
        const Double M1 = moment(length);
        const Double M2 = moment(width);
        const auto shear = [&] {
            return dice.oneIn(3) ? 0 : typed(dice.between(-0.6, 0.6) * N, 1);
        };
        const Double Vy = shear();
        const Double Vx = shear();
        base.loads(N, M1, M2, Vx, Vy);
    }
}

/// What nobody builds: loads from vanishing to huge, anchors off the plate, on its edges and on one
/// point, plates of 10 : 1.
inline void nastyTask(ColumnBase& base, Dice& dice) {
    const int width = dice.whole(1, 4) == 1 ? dice.whole(1, 50) : dice.whole(50, 1500);
    const int length = std::min(32000, dice.oneIn(2) ? 10 * width : width + dice.whole(0, 5));
    base.plate(length, width);
    const int reach = dice.oneIn(2) ? 3 : 1;
    const int count = dice.whole(1, MaxAnchors);
    int x = 0;
    int y = 0;
    for (int i = 0; i < count; ++i) {
        if (i == 0 || !dice.oneIn(3)) {
            x = dice.oneIn(4) ? length / 2 : dice.whole(-reach * length / 2, reach * length / 2);
            y = dice.oneIn(4) ? 0 : dice.whole(-reach * width / 2, reach * width / 2);
        }
        base.anchor(x, y, dice.of(anchorDiameters));
    }
    base.fields.Text2 = general(dice.oneIn(3) ? dice.between(0.01, 1000) : 6.83);
    base.allAnchorsTakeShear(dice.oneIn(2));
    for (int c = dice.whole(1, MaxCases); c > 0; --c) {
        const auto magnitude = [&](Double least, Double most) {
            return std::exp(dice.between(std::log(least), std::log(most)));
        };
        const auto moment = [&] {
            const Double sign = dice.oneIn(2) ? -1 : 1;
            return dice.oneIn(5) ? 0.0 : sign * magnitude(1e-4, 1e7);
        };
        const Double Vy = moment();
        const Double Vx = moment();
        const Double M2 = moment();
        const Double M1 = moment();
        base.loads(magnitude(1e-4, 1e7), M1, M2, Vx, Vy);
    }
}

inline bool isNasty(std::uint64_t number) {
    return number % 10 == 0;
}

/// Task `number` of the endless series; every tenth is a nasty one.
inline void randomTask(ColumnBase& base, std::uint64_t number) {
    Dice dice(number);
    if (isNasty(number))
        nastyTask(base, dice);
    else
        ordinaryTask(base, dice);
}

} // namespace ferna::testing
