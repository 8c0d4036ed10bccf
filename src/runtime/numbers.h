#pragma once

#include <QStringView>

#include <cmath>
#include <cstdint>

namespace ferna {

using Integer = std::int16_t; ///< signed 16 bits
using Single = float;         ///< 32-bit float
using Double = double;        ///< 64-bit float

/// A Boolean held in an Integer: 0 or -1.
inline constexpr Integer False = 0;
inline constexpr Integer True = -1;

/// The one constant for pi, everywhere.
inline constexpr Double Pi = 3.1415926535;

/// Nearest whole number, ties to even. Error 6 outside 16 bits or where `value` is not finite.
Integer CInt(Double value);
/// The same for a whole number: error 6 outside 16 bits.
Integer CInt(int value);
/// Text to a whole number, rounded as above. Error 13 where the text is no number, error 6.
Integer CInt(QStringView text);

/// Rounded to 32 bits. Error 6 beyond the range or where `value` is not finite.
Single CSng(Double value);
/// Text to a Single. Error 13 where the text is no number, error 6 beyond the range.
Single CSng(QStringView text);

/// Text to a Double: an optional sign, digits, one decimal comma or point, an optional exponent;
/// blanks around and among them are passed over, tabs and line breaks around them. Error 13 where
/// that is not so, error 6.
Double CDbl(QStringView text);

/// The largest whole number not above `value`.
inline Double Int(Double value) {
    return std::floor(value);
}

/// Square root. Error 5 for a negative number.
Double Sqr(Double value);

/// Quotient with the error of the environment: 11 for a divisor of 0 whatever the dividend.
Double divided(Double dividend, Double divisor);

} // namespace ferna
