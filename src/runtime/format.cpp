#include "runtime/format.h"

#include "runtime/line_of_text.h"
#include "runtime/run_time_error.h"

#include <QLocale>

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace ferna {

namespace {

using Letters = LineOfText::Letters;

constexpr int singleDigits = 7;
constexpr int doubleDigits = 15;

/// Digits in a row of fixed room.
class Digits {
public:
    bool empty() const { return size_ == 0; }
    int size() const { return size_; }
    char operator[](int place) const { return digits_[static_cast<std::size_t>(place)]; }
    char& back() { return digits_[static_cast<std::size_t>(size_ - 1)]; }
    const char* data() const { return digits_.data(); }

    void append(char digit) { digits_[static_cast<std::size_t>(size_++)] = digit; }
    void shorten() { --size_; }
    void shorten(int size) { size_ = size; }
    void append(std::string_view more) {
        for (const char digit : more)
            append(digit);
    }
    /// True where from that place on there are only zeros.
    bool onlyZerosFrom(int place) const {
        while (place < size_ && (*this)[place] == '0')
            ++place;
        return place >= size_;
    }

private:
    static constexpr std::size_t most = 48;
    std::array<char, most> digits_;
    int size_ = 0;
};

/// A number as decimal digits: 0.d1d2d3... times ten to the power `point`.
struct Decimal {
    bool negative = false;
    Digits digits; // no leading zero; empty for zero
    int point = 0; // digits left of the decimal sign

    char at(int place) const { // place 0 is the first digit
        return place >= 0 && place < digits.size() ? digits[place] : '0';
    }
};

void stripTrailingZeros(Digits& digits) {
    while (!digits.empty() && digits.back() == '0')
        digits.shorten();
}

/// Keeps `kept` digits, half away from zero.
void keepDigits(Decimal& number, int kept) {
    if (kept >= number.digits.size())
        return;
    const bool up = kept >= 0 && number.at(kept) >= '5';
    number.digits.shorten(kept > 0 ? kept : 0);
    if (up) {
        while (!number.digits.empty() && number.digits.back() == '9')
            number.digits.shorten();
        if (number.digits.empty()) {
            number.digits.append('1');
            ++number.point;
        } else {
            ++number.digits.back();
        }
    }
    stripTrailingZeros(number.digits);
    if (number.digits.empty())
        number = Decimal{};
}

/// The `count` significant digits of a number that is not 0, rounded to nearest.
Decimal digitsOf(Double magnitude, int count) {
    char text[64] = {};
    const auto end =
        std::to_chars(text, text + sizeof text, magnitude, std::chars_format::scientific, count - 1)
            .ptr;
    // "d.ddde-dd" with `count` digits
    const std::size_t exponent = static_cast<std::size_t>(count) + 1;
    int power = 0;
    std::from_chars(text + exponent + 2, end, power);
    Decimal result;
    result.digits.append(text[0]);
    result.digits.append({text + 2, static_cast<std::size_t>(count - 1)});
    result.point = (text[exponent + 1] == '-' ? -power : power) + 1;
    return result;
}

/// The digits of a whole number, which need no rounding.
Decimal digitsOfWhole(std::int64_t magnitude) {
    char text[24];
    const auto end = std::to_chars(text, text + sizeof text, magnitude).ptr;
    Decimal result;
    result.digits.append({text, end});
    result.point = result.digits.size();
    stripTrailingZeros(result.digits);
    return result;
}

/// Whether what stands behind the first `count` digits reads as one half exactly.
bool endsInAHalf(const Digits& digits, int count) {
    return digits[count] == '5' && digits.onlyZerosFrom(count + 1);
}

/// A decimal of so many places behind its decimal sign, without the sign.
Decimal digitsWithPlaces(std::int64_t digits, int places) {
    Decimal result = digitsOfWhole(digits);
    result.point -= places;
    return result;
}

/// The nearest whole number of a magnitude that one of 64 bits holds, half up.
std::int64_t nearestWhole(Double magnitude) {
    const auto whole = static_cast<std::int64_t>(magnitude);
    return magnitude - static_cast<Double>(whole) >= 0.5 ? whole + 1 : whole;
}

/// From here on a magnitude is not taken as a whole number of 64 bits. A Double has as many digits.
constexpr Double tooLarge = 1e15;

/// The digits of a Single, rounded to those that it has; empty for a tiny or a large one.
std::optional<Decimal> roundedSingle(Double magnitude) {
    if (magnitude >= tooLarge)
        return std::nullopt;
    // 24 bits times a power of five up to this one fit into a Double: every product here is exact.
    constexpr int mostPlaces = 12;
    constexpr Double least = 1e6; // has as many digits as a Single
    Double scaled = magnitude;
    int places = 0;
    while (scaled < least) {
        if (++places > mostPlaces)
            return std::nullopt;
        scaled *= 10;
    }
    return digitsWithPlaces(nearestWhole(scaled), places);
}

/// The decimal of a few places that reads back to the magnitude, where there is one. It has no more
/// digits than a Double keeps, so it is also the magnitude rounded to these.
std::optional<Decimal> typedDecimal(Double magnitude) {
    constexpr Double mostScale = 1e6;
    int places = 0;
    for (Double scale = 10; scale <= mostScale && magnitude * scale < tooLarge; scale *= 10) {
        ++places;
        const std::int64_t digits = nearestWhole(magnitude * scale);
        if (static_cast<Double>(digits) / scale == magnitude)
            return digitsWithPlaces(digits, places);
    }
    return std::nullopt;
}

/// The digits of any magnitude that is not 0, `count` of them, half away from zero.
Decimal roundedDigits(Double magnitude, int count) {
    constexpr int fewDigits = 17;
    constexpr int further = 26; // digits enough to tell a half from what lies just below it
    Decimal result = digitsOf(magnitude, fewDigits);
    if (endsInAHalf(result.digits, count)) // as it may read only for having been rounded
        result = digitsOf(magnitude, count + further);
    return result;
}

/// The value at `count` significant digits, half away from zero. `quickly` gives those of most
/// magnitudes that are no whole numbers.
template <typename Quickly>
Decimal decimalOf(Double value, int count, const Quickly& quickly) {
    if (!std::isfinite(value))
        throw RunTimeError(error::Overflow);
    if (value == 0)
        return {};
    const Double magnitude = std::fabs(value);
    const std::int64_t whole =
        magnitude < tooLarge ? static_cast<std::int64_t>(magnitude) : std::int64_t{0};
    Decimal result;
    if (static_cast<Double>(whole) == magnitude)
        result = digitsOfWhole(whole);
    else if (const std::optional<Decimal> known = quickly(magnitude))
        result = *known;
    else
        result = roundedDigits(magnitude, count);
    result.negative = value < 0;
    keepDigits(result, count);
    return result;
}

Decimal decimalOf(Single value) {
    return decimalOf(value, singleDigits, roundedSingle);
}

Decimal decimalOf(Double value) {
    return decimalOf(value, doubleDigits, typedDecimal);
}

bool isPlaceholder(QChar c) {
    return c == u'#' || c == u'0';
}

/// A pattern taken apart at its decimal sign, in one pass over its letters.
struct Pattern {
    explicit Pattern(QStringView whole) : integerPart(whole) {
        for (qsizetype i = 0; i < whole.size(); ++i) {
            if (whole[i] == u'.' && !hasSign) {
                hasSign = true;
                integerPart = whole.first(i);
                fraction = whole.sliced(i + 1);
            } else if (isPlaceholder(whole[i])) {
                ++(hasSign ? decimals : integers);
                if (whole[i] == u'0')
                    lastZero = i;
            }
        }
        if (hasSign)
            lastZero -= integerPart.size() + 1;
    }

    QStringView integerPart;
    QStringView fraction;
    bool hasSign = false;
    int integers = 0;        // placeholders in front of the sign
    int decimals = 0;        // and behind it
    qsizetype lastZero = -1; // of the fraction, below 0 for none
};

/// The integer part of a pattern, filled from the left: its placeholders stand for as many places
/// in front of the decimal sign, and the first takes all places further left.
void writeIntegerPart(Letters& out, const Decimal& number, const Pattern& pattern) {
    int remaining = pattern.integers; // placeholders from here to the decimal sign
    bool zeroSeen = false;            // a "0" of the pattern forces all places behind it
    for (const QChar c : pattern.integerPart) {
        if (!isPlaceholder(c)) {
            out.append(c);
            continue;
        }
        if (remaining == pattern.integers)
            for (int place = 0; place < number.point - pattern.integers; ++place)
                out.append(QLatin1Char(number.at(place)));
        zeroSeen = zeroSeen || c == u'0';
        if (remaining <= number.point || zeroSeen)
            out.append(QLatin1Char(number.at(number.point - remaining)));
        --remaining;
    }
}

/// The part behind the decimal sign: a "#" is written only while digits are left, and in front of
/// a "0" that is still to come.
void writeFraction(Letters& out, const Decimal& number, const Pattern& pattern) {
    int place = number.point;
    for (qsizetype i = 0; i < pattern.fraction.size(); ++i) {
        if (!isPlaceholder(pattern.fraction[i])) {
            out.append(pattern.fraction[i]);
            continue;
        }
        if (i <= pattern.lastZero || place < number.digits.size())
            out.append(QLatin1Char(number.at(place)));
        ++place;
    }
}

void write(Letters& out, Decimal number, QStringView text) {
    const Pattern pattern(text);
    keepDigits(number, number.point + pattern.decimals);
    if (number.negative)
        out.append(u'-');
    writeIntegerPart(out, number, pattern);
    if (pattern.hasSign) {
        out.append(decimalSign());
        writeFraction(out, number, pattern);
    }
}

/// The exponent of the general form, with its sign and two digits at least.
void writeExponent(Letters& out, int exponent) {
    out.append(u'E');
    out.append(exponent < 0 ? u'-' : u'+');
    const QString digits = QString::number(std::abs(exponent)).rightJustified(2, u'0');
    out.append(digits.constData(), digits.size());
}

void writeGeneral(Letters& out, const Decimal& number, int count) {
    if (number.digits.empty()) {
        out.append(u'0');
        return;
    }
    if (number.negative)
        out.append(u'-');
    const int digits = number.digits.size();
    const int exponent = number.point - 1;
    const bool hasExponent = exponent >= count || exponent < -5;
    const int point = hasExponent ? 1 : number.point; // digits in front of the decimal sign
    if (point <= 0)
        out.append(u'0');
    for (int place = 0; place < point; ++place)
        out.append(QLatin1Char(number.at(place)));
    if (digits > point) {
        out.append(decimalSign());
        for (int place = point; place < digits; ++place) // at() gives 0 in front of them
            out.append(QLatin1Char(number.at(place)));
    }
    if (hasExponent)
        writeExponent(out, exponent);
}

} // namespace

QChar decimalSign() {
    static thread_local struct {
        QLocale locale = QLocale();
        QChar sign = QLocale().decimalPoint() == u"," ? QChar(u',') : QChar(u'.');
    } known;
    if (const QLocale now; now != known.locale) {
        known.locale = now;
        known.sign = now.decimalPoint() == u"," ? QChar(u',') : QChar(u'.');
    }
    return known.sign;
}

void setDecimalSign(QChar sign) {
    QLocale::setDefault(sign == u',' ? QLocale(QLocale::Polish, QLocale::Poland) : QLocale::c());
}

QString Format(Single value, QStringView pattern) {
    return LineOfText().number(value, pattern);
}

QString Format(Double value, QStringView pattern) {
    return LineOfText().number(value, pattern);
}

QString Format(int value, QStringView pattern) {
    return LineOfText().number(value, pattern);
}

QString Format_kropka(Single value, QStringView pattern) {
    return Format(value, pattern).replace(u',', u'.');
}

QString Format_kropka(Double value, QStringView pattern) {
    return Format(value, pattern).replace(u',', u'.');
}

QString general(Single value) {
    return value == 0 ? QStringLiteral("0") : QString(LineOfText().general(value));
}

QString general(Double value) {
    return value == 0 ? QStringLiteral("0") : QString(LineOfText().general(value));
}

LineOfText& LineOfText::number(Single value, QStringView pattern) {
    write(letters_, decimalOf(value), pattern);
    return *this;
}

LineOfText& LineOfText::number(Double value, QStringView pattern) {
    write(letters_, decimalOf(value), pattern);
    return *this;
}

LineOfText& LineOfText::number(int value, QStringView pattern) {
    return number(static_cast<Double>(value), pattern);
}

LineOfText& LineOfText::general(Single value) {
    writeGeneral(letters_, decimalOf(value), singleDigits);
    return *this;
}

LineOfText& LineOfText::general(Double value) {
    writeGeneral(letters_, decimalOf(value), doubleDigits);
    return *this;
}

LineOfText& LineOfText::general(int value) {
    return general(static_cast<Double>(value));
}

} // namespace ferna
