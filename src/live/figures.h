#pragma once

#include "notes/stress_words.h"
#include "runtime/format.h"

#include <cmath>

namespace ferna::live {

/// A number as an engineer reads it; one of millions with an exponent and three digits.
inline QString figure(Double value) {
    constexpr Double written = 1e6;
    return std::fabs(value) < written ? notes::number(value)
                                      : QString::number(value, 'g', 3).replace(u'.', decimalSign());
}

/// The same with its unit.
inline QString withUnit(Double value, const char* unit) {
    return figure(value) + u'\u00a0' + QString::fromLatin1(unit);
}

/// A length in mm, without needless decimals.
inline QString millimetres(Double value) {
    return general(std::round(10 * value) / 10);
}

} // namespace ferna::live
