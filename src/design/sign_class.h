#pragma once

#include "runtime/numbers.h"

namespace ferna {

/// How the plate of a case is mirrored so that both moments are non-negative: 1, or -1 along x for
/// M1 < 0 and along y for M2 < 0. The same signs mirror back.
struct Signs {
    Double x = 1;
    Double y = 1;
};

/// The signs of a class 1..4, `Klasa_znaku`.
constexpr Signs signsOf(Integer Klasa_znaku) {
    return {Klasa_znaku == 3 || Klasa_znaku == 4 ? -1.0 : 1.0,
            Klasa_znaku == 2 || Klasa_znaku == 4 ? -1.0 : 1.0};
}

/// The class of two moments: 1 + (M2 < 0) + 2 (M1 < 0).
constexpr Integer signClass(Double M1, Double M2) {
    return static_cast<Integer>(1 + (M2 < 0 ? 1 : 0) + (M1 < 0 ? 2 : 0));
}

} // namespace ferna
