#include "runtime/format.h"

#include "runtime/run_time_error.h"

#include <QLocale>

#include <charconv>
#include <cstdlib>
#include <string>

namespace ferna {

namespace {

constexpr int singleDigits = 7;
constexpr int doubleDigits = 15;

/// A number as decimal digits: 0.d1d2d3... times ten to the power `point`.
struct Decimal {
    bool negative = false;
    std::string digits; // no leading zero; empty for zero
    int point = 0;      // digits left of the decimal sign

    char at(int place) const { // place 0 is the first digit
        return place >= 0 && place < static_cast<int>(digits.size())
                   ? digits[static_cast<std::size_t>(place)]
                   : '0';
    }
};

void stripTrailingZeros(std::string& digits) {
    while (!digits.empty() && digits.back() == '0')
        digits.pop_back();
}

/// Keeps `kept` digits, half away from zero.
void keepDigits(Decimal& number, int kept) {
    if (kept >= static_cast<int>(number.digits.size()))
        return;
    const bool up = kept >= 0 && number.at(kept) >= '5';
    number.digits.resize(kept > 0 ? static_cast<std::size_t>(kept) : 0);
    if (up) {
        while (!number.digits.empty() && number.digits.back() == '9')
            number.digits.pop_back();
        if (number.digits.empty()) {
            number.digits.push_back('1');
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
    const std::string_view written(text, static_cast<std::size_t>(end - text));
    const std::size_t exponent = written.find('e');
    Decimal result;
    result.digits.reserve(static_cast<std::size_t>(count));
    result.digits.push_back(written.front());
    result.digits.append(written.substr(2, exponent - 2));
    result.point = std::atoi(written.data() + exponent + 1) + 1;
    return result;
}

/// Whether what stands behind the first `count` digits reads as one half exactly.
bool endsInAHalf(const std::string& digits, int count) {
    const std::size_t behind = static_cast<std::size_t>(count);
    return digits[behind] == '5' && digits.find_first_not_of('0', behind + 1) == std::string::npos;
}

/// The value at `count` significant digits, half away from zero.
Decimal decimalOf(Double value, int count) {
    if (!std::isfinite(value))
        throw RunTimeError(error::Overflow);
    if (value == 0)
        return {};
    constexpr int fewDigits = 17;
    constexpr int further = 26; // digits enough to tell a half from what lies just below it
    const Double magnitude = std::fabs(value);
    Decimal result = digitsOf(magnitude, fewDigits);
    if (endsInAHalf(result.digits, count)) // as it may read only for having been rounded
        result = digitsOf(magnitude, count + further);
    result.negative = value < 0;
    keepDigits(result, count);
    return result;
}

bool isPlaceholder(QChar c) {
    return c == u'#' || c == u'0';
}

int countPlaceholders(QStringView part) {
    int count = 0;
    for (const QChar c : part)
        count += isPlaceholder(c);
    return count;
}

/// The integer part of a pattern, filled from the left: `count` placeholders stand for the last
/// `count` places in front of the decimal sign, and the first takes all places further left.
void writeIntegerPart(QString& out, const Decimal& number, QStringView part, int count) {
    int remaining = count; // placeholders from here to the decimal sign
    bool zeroSeen = false; // a "0" of the pattern forces all places behind it
    for (const QChar c : part) {
        if (!isPlaceholder(c)) {
            out += c;
            continue;
        }
        if (remaining == count)
            for (int place = 0; place < number.point - count; ++place)
                out += QLatin1Char(number.at(place));
        zeroSeen = zeroSeen || c == u'0';
        if (remaining <= number.point || zeroSeen)
            out += QLatin1Char(number.at(number.point - remaining));
        --remaining;
    }
}

/// The part behind the decimal sign: a "#" is written only while digits are left, and in front of
/// a "0" that is still to come.
void writeFraction(QString& out, const Decimal& number, QStringView part) {
    const qsizetype lastZero = part.lastIndexOf(u'0');
    int place = number.point;
    for (qsizetype i = 0; i < part.size(); ++i) {
        if (!isPlaceholder(part[i])) {
            out += part[i];
            continue;
        }
        if (i <= lastZero || place < static_cast<int>(number.digits.size()))
            out += QLatin1Char(number.at(place));
        ++place;
    }
}

QString formatted(Decimal number, QStringView pattern) {
    const qsizetype point = pattern.indexOf(u'.');
    const QStringView integerPart = point < 0 ? pattern : pattern.left(point);
    const QStringView fraction = point < 0 ? QStringView() : pattern.mid(point + 1);
    keepDigits(number, number.point + countPlaceholders(fraction));
    QString out;
    out.reserve(pattern.size() + 8);
    if (number.negative)
        out += u'-';
    writeIntegerPart(out, number, integerPart, countPlaceholders(integerPart));
    if (point >= 0) {
        out += decimalSign();
        writeFraction(out, number, fraction);
    }
    return out;
}

QString generalForm(Double value, int count) {
    const Decimal number = decimalOf(value, count);
    if (number.digits.empty())
        return QStringLiteral("0");
    QString out;
    if (number.negative)
        out += u'-';
    const int digits = static_cast<int>(number.digits.size());
    const int exponent = number.point - 1;
    if (exponent >= count || exponent < -5) {
        out += QLatin1Char(number.at(0));
        if (digits > 1) {
            out += decimalSign();
            out += QLatin1String(number.digits.data() + 1, digits - 1);
        }
        out += exponent < 0 ? u"E-" : u"E+";
        return out + QString::number(std::abs(exponent)).rightJustified(2, u'0');
    }
    if (number.point <= 0)
        out += u'0';
    for (int place = 0; place < number.point; ++place)
        out += QLatin1Char(number.at(place));
    if (digits > number.point) {
        out += decimalSign();
        for (int place = number.point; place < digits; ++place) // at() gives 0 in front of them
            out += QLatin1Char(number.at(place));
    }
    return out;
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
    return formatted(decimalOf(Double{value}, singleDigits), pattern);
}

QString Format(Double value, QStringView pattern) {
    return formatted(decimalOf(value, doubleDigits), pattern);
}

QString Format(int value, QStringView pattern) {
    return formatted(decimalOf(value, doubleDigits), pattern);
}

QString Format_kropka(Single value, QStringView pattern) {
    return Format(value, pattern).replace(u',', u'.');
}

QString Format_kropka(Double value, QStringView pattern) {
    return Format(value, pattern).replace(u',', u'.');
}

QString general(Single value) {
    return generalForm(Double{value}, singleDigits);
}

QString general(Double value) {
    return generalForm(value, doubleDigits);
}

} // namespace ferna
