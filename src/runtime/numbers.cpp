#include "runtime/numbers.h"

#include "runtime/run_time_error.h"

#include <array>
#include <charconv>
#include <limits>

namespace ferna {

namespace {

constexpr std::size_t longestNumber = 400; // characters of a typed number, blanks left out

/// The typed number with blanks left out and the decimal sign as a point.
/// Returns its length, 0 where a character cannot stand in a number.
std::size_t normalised(QStringView text, std::array<char, longestNumber>& out) {
    std::size_t length = 0;
    for (const QChar c : text) {
        if (c.isSpace()) // also the no-break spaces that group digits
            continue;
        if (length == out.size())
            return 0;
        const char16_t u = c.unicode();
        const bool ofANumber = (u >= u'0' && u <= u'9') || u == u'+' || u == u'-' || u == u'.'
                               || u == u',' || u == u'e' || u == u'E';
        if (!ofANumber)
            return 0;
        out[length++] = u == u',' ? '.' : static_cast<char>(u);
    }
    return length;
}

[[noreturn]] void notANumber(QStringView text) {
    throw RunTimeError(error::TypeMismatch, QStringLiteral("\"%1\"").arg(text));
}

} // namespace

Integer CInt(Double value) {
    const Double rounded = std::nearbyint(value); // the default mode rounds ties to even
    if (!(rounded >= std::numeric_limits<Integer>::min()
          && rounded <= std::numeric_limits<Integer>::max()))
        throw RunTimeError(error::Overflow);
    return static_cast<Integer>(rounded);
}

Integer CInt(int value) {
    if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
        throw RunTimeError(error::Overflow);
    return static_cast<Integer>(value);
}

Integer CInt(QStringView text) {
    return CInt(CDbl(text));
}

Single CSng(Double value) {
    const auto single = static_cast<Single>(value);
    if (!std::isfinite(single))
        throw RunTimeError(error::Overflow);
    return single;
}

Single CSng(QStringView text) {
    return CSng(CDbl(text));
}

Double CDbl(QStringView text) {
    std::array<char, longestNumber> digits;
    const std::size_t length = normalised(text, digits);
    const char* first = digits.data();
    const char* const last = first + length;
    if (length > 1 && *first == '+')
        ++first;
    if (first == last || (*first == '+') || (first != digits.data() && *first == '-'))
        notANumber(text);
    Double value = 0;
    const auto [end, failure] = std::from_chars(first, last, value);
    if (failure == std::errc::invalid_argument || end != last)
        notANumber(text);
    if (failure == std::errc::result_out_of_range) {
        // Too small is 0, too large an overflow: the digits in front of the exponent decide.
        const auto exponent = std::string_view(first, last).find_first_of("eE");
        if (exponent != std::string_view::npos && first[exponent + 1] == '-')
            return 0;
        throw RunTimeError(error::Overflow, QStringLiteral("\"%1\"").arg(text));
    }
    return value;
}

Double Sqr(Double value) {
    if (value < 0)
        throw RunTimeError(error::InvalidCall);
    return std::sqrt(value);
}

Double divided(Double dividend, Double divisor) {
    if (divisor == 0)
        throw RunTimeError(error::DivisionByZero);
    return dividend / divisor;
}

} // namespace ferna
