#pragma once

#include "notes/stress_words.h"
#include "runtime/format.h"

#include <cmath>

namespace ferna::live {

/// A number of the picture with its unit.
inline QString withUnit(Double value, const char* unit) {
    return notes::number(value) + u'\u00a0' + QString::fromLatin1(unit);
}

/// A length in mm, without needless decimals.
inline QString millimetres(Double value) {
    return general(std::round(10 * value) / 10);
}

} // namespace ferna::live
