#pragma once

#include "runtime/numbers.h"

#include <QChar>
#include <QString>
#include <QStringView>

namespace ferna {

/// The decimal sign of every number that a person reads, a comma or a point: that of QLocale's
/// default. The one place that decides it.
QChar decimalSign();

/// Sets the decimal sign for the whole process, '.' or ','.
void setDecimalSign(QChar sign);

/// A number written by a pattern: "#" a digit if there is one, "0" a digit always, "." the decimal
/// sign, any other character stands in its place, also where no digit is left of it. Digits beyond
/// the pattern's are added at the left. Half goes away from zero on the decimal digits of the value
/// (7 of a Single, 15 of a Double). The sign of a negative number stands in front of everything;
/// one that rounds to zero has none.
QString Format(Single value, QStringView pattern);
QString Format(Double value, QStringView pattern);
QString Format(int value, QStringView pattern);
inline QString Format(Integer value, QStringView pattern) {
    return Format(int{value}, pattern);
}

/// Format with every comma of the result turned into a point, for files that other programs read.
QString Format_kropka(Single value, QStringView pattern);
QString Format_kropka(Double value, QStringView pattern);

/// The general form of a number: the shortest decimal of up to 7 (Single) or 15 (Double) digits
/// that reads back, with the decimal sign; an exponent from 1E+07 or 1E+15 on and below 1E-05.
QString general(Single value);
QString general(Double value);
inline QString general(int value) {
    return QString::number(value);
}
inline QString general(Integer value) {
    return QString::number(int{value});
}

} // namespace ferna
