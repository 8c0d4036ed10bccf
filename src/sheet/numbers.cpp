#include "sheet/numbers.h"

#include "runtime/format.h"

#include <algorithm>
#include <cmath>

namespace ferna::sheet {

namespace {

constexpr QChar thinBlank(0x202F); // does not break
constexpr QChar minus(0x2212);

/// Groups the whole part of plain digits and sets the minus.
QString dressed(QString digits) {
    const bool negative = digits.startsWith(u'-');
    if (negative)
        digits.remove(0, 1);
    qsizetype end = digits.indexOf(decimalSign());
    if (end < 0)
        end = digits.size();
    constexpr qsizetype group = 3;
    for (qsizetype at = end - group; at > 0; at -= group)
        digits.insert(at, thinBlank);
    return negative ? minus + digits : digits;
}

QString withoutSurplus(QString digits) {
    if (!digits.contains(decimalSign()))
        return digits;
    while (digits.endsWith(u'0'))
        digits.chop(1);
    if (digits.endsWith(decimalSign()))
        digits.chop(1);
    return digits;
}

QString patternOf(int decimals) {
    return decimals > 0 ? QStringLiteral("0.") + QString(decimals, u'0') : QStringLiteral("0");
}

constexpr double mostWithDigits = 1e15;

/// Beyond what digits alone can show.
QString withExponent(double value, int digits) {
    if (!std::isfinite(value))
        return std::isnan(value) ? QStringLiteral("–")
                                 : QString(value < 0 ? QString(minus) : QString()) + QChar(0x221E);
    const QString text = QString::number(value, 'e', std::max(digits - 1, 0));
    QString mantissa = text.section(u'e', 0, 0);
    mantissa.replace(u'.', decimalSign());
    const int power = text.section(u'e', 1).toInt();
    return dressed(withoutSurplus(mantissa)) + QStringLiteral("·10^")
           + QString::number(power).replace(u'-', minus);
}

} // namespace

QString fixed(double value, int decimals) {
    constexpr int digitsOfLarge = 6;
    if (!(std::fabs(value) < mostWithDigits))
        return withExponent(value, digitsOfLarge);
    return dressed(Format(value, patternOf(decimals)));
}

QString fixedSingle(float value, int decimals) {
    return dressed(Format(value, patternOf(decimals)));
}

QString significant(double value, int digits) {
    constexpr int mostDecimals = 9;
    if (value == 0)
        return QStringLiteral("0");
    if (!(std::fabs(value) < mostWithDigits)
        || std::fabs(value) < std::pow(10.0, -mostDecimals + 2))
        return withExponent(value, digits);
    const int power = static_cast<int>(std::floor(std::log10(std::fabs(value))));
    const int decimals = std::clamp(digits - 1 - power, 0, mostDecimals + digits);
    return dressed(withoutSurplus(Format(value, patternOf(decimals))));
}

QString shortest(double value) {
    constexpr int asTyped = 7;
    return significant(value, asTyped);
}

QString percentText(double share, int decimals) {
    constexpr double hundred = 100;
    return fixed(hundred * share, decimals) + QChar(0x202F) + u'%';
}

} // namespace ferna::sheet
