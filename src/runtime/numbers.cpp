#include "runtime/numbers.h"

#include "runtime/run_time_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string_view>

namespace ferna {

namespace {

constexpr std::size_t longestNumber = 400;      // characters of a typed number, blanks left out
constexpr long longestExponent = 1'000'000'000; // stands for every exponent beyond a long

/// The typed number with blanks left out and the decimal sign as a point.
/// Returns its length, 0 where a character cannot stand in a number: a tab or a line break between
/// digits parts two numbers.
std::size_t normalised(QStringView text, std::array<char, longestNumber>& out) {
    std::size_t length = 0;
    for (const QChar c : text.trimmed()) {
        const char16_t u = c.unicode();
        const bool ofANumber = (u >= u'0' && u <= u'9') || u == u'+' || u == u'-' || u == u'.'
                               || u == u',' || u == u'e' || u == u'E';
        if (!ofANumber && c.category() == QChar::Separator_Space)
            continue; // also the no-break ones that group digits
        if (!ofANumber || length == out.size())
            return 0;
        out[length++] = u == u',' ? '.' : static_cast<char>(u);
    }
    return length;
}

[[noreturn]] void notANumber(QStringView text) {
    throw RunTimeError(error::TypeMismatch, QStringLiteral("\"%1\"").arg(text));
}

/// True for a well-formed number whose size is below 1: of one that fits no Double it tells whether
/// it is too small or too large.
bool isBelowOne(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view digits = number.substr(0, mark);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t leading = digits.find_first_of("123456789");
    if (leading == std::string_view::npos)
        return true;
    const long places = leading < point ? static_cast<long>(point - leading)
                                        : 1 - static_cast<long>(leading - point);
    if (mark == number.size())
        return places <= 0;
    const bool negative = number[mark + 1] == '-';
    long exponent = longestExponent;
    const char* const first = number.data() + mark + (negative || number[mark + 1] == '+' ? 2 : 1);
    std::from_chars(first, number.data() + number.size(), exponent); // untouched where too long
    exponent = std::min(exponent, longestExponent);
    return places + (negative ? -exponent : exponent) <= 0;
}

/// Does `convert` with the number that a text holds; an overflow names the text.
template <typename Convert>
auto converted(QStringView text, const Convert& convert) {
    const Double value = CDbl(text);
    try {
        return convert(value);
    } catch (const RunTimeError& failure) {
        throw RunTimeError(failure.number(), QStringLiteral("\"%1\"").arg(text));
    }
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
    return converted(text, [](Double value) { return CInt(value); });
}

Single CSng(Double value) {
    const auto single = static_cast<Single>(value);
    if (!std::isfinite(single))
        throw RunTimeError(error::Overflow);
    return single;
}

Single CSng(QStringView text) {
    return converted(text, [](Double value) { return CSng(value); });
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
        if (isBelowOne(std::string_view(first, last)))
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
