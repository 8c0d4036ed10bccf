#include "tables/cell_number.h"

#include "runtime/numbers.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <optional>

namespace ferna::tables {

namespace {

constexpr qsizetype group = 3; // digits
constexpr QChar realMinus = u'\u2212';

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isBlank(QChar c) {
    return c.category() == QChar::Separator_Space;
}

/// A cell taken apart: sign, whole digits with their grouping, fraction, exponent.
struct Parts {
    bool negative = false;
    QStringView whole;    ///< digits, blanks, points and commas before the decimal sign
    QChar decimal;        ///< the last point or comma; null without one
    QStringView fraction; ///< digits
    QStringView exponent; ///< with its letter; empty without one
};

QStringView digitsFrom(QStringView text) {
    const auto* const end = std::find_if_not(text.cbegin(), text.cend(), isDigit);
    return text.first(end - text.cbegin());
}

/// True for "e", a sign or none, and digits.
bool isExponent(QStringView text) {
    QStringView digits = text.sliced(1);
    if (digits.startsWith(u'-') || digits.startsWith(u'+'))
        digits = digits.sliced(1);
    return !digits.isEmpty() && digitsFrom(digits).size() == digits.size();
}

/// Empty where the text has something that stands in no number.
std::optional<Parts> partsOf(QStringView cell) {
    Parts parts;
    QStringView left = cell.trimmed();
    if (!left.isEmpty()
        && (left.front() == u'-' || left.front() == u'+' || left.front() == realMinus)) {
        parts.negative = left.front() != u'+';
        left = left.sliced(1).trimmed();
    }
    const auto* const e =
        std::find_if(left.cbegin(), left.cend(), [](QChar c) { return c == u'e' || c == u'E'; });
    if (e != left.cend()) {
        parts.exponent = left.sliced(e - left.cbegin());
        left = left.first(e - left.cbegin());
        if (!isExponent(parts.exponent))
            return std::nullopt;
    }
    qsizetype last = left.size() - 1;
    while (last >= 0 && left[last] != u'.' && left[last] != u',')
        --last;
    parts.whole = last < 0 ? left : left.first(last);
    if (last >= 0) {
        parts.decimal = left[last];
        parts.fraction = left.sliced(last + 1);
    }
    const bool ofANumber = std::all_of(parts.whole.cbegin(), parts.whole.cend(), [](QChar c) {
        return isDigit(c) || isBlank(c) || c == u'.' || c == u',';
    });
    if (!ofANumber || digitsFrom(parts.fraction).size() != parts.fraction.size()
        || (digitsFrom(parts.whole).isEmpty() && parts.fraction.isEmpty()))
        return std::nullopt;
    return parts;
}

/// True for digits alone or digits in groups of three behind a first one of one to three, with one
/// and the same sign between them.
bool isGrouped(QStringView whole, QChar* sign = nullptr) {
    QStringView digits = digitsFrom(whole);
    if (digits.size() == whole.size())
        return true;
    if (digits.isEmpty() || digits.size() > group || digits.front() == u'0')
        return false;
    const QChar between = whole[digits.size()];
    while (!whole.isEmpty()) {
        whole = whole.sliced(digits.size());
        if (whole.isEmpty())
            break;
        if (whole.front() != between)
            return false;
        whole = whole.sliced(1);
        digits = digitsFrom(whole);
        if (digits.size() != group)
            return false;
    }
    if (sign)
        *sign = between;
    return true;
}

/// True where the one point or comma of a number may as well group its thousands.
bool mayBeGroup(const Parts& parts) {
    return !parts.decimal.isNull() && parts.fraction.size() == group && parts.exponent.isEmpty()
           && !parts.whole.isEmpty() && parts.whole.size() <= group
           && digitsFrom(parts.whole).size() == parts.whole.size() && parts.whole.front() != u'0';
}

/// "1.250.000": the last sign is no decimal one but the last of several that group.
bool isGroupedThroughout(const Parts& parts) {
    return !parts.decimal.isNull() && parts.whole.contains(parts.decimal)
           && parts.fraction.size() == group && parts.exponent.isEmpty();
}

/// The whole digits are well grouped, and not by the decimal sign itself.
bool isWellFormed(const Parts& parts) {
    QChar between;
    if (!isGrouped(parts.whole, &between) && !(parts.whole.isEmpty() && !parts.decimal.isNull()))
        return false;
    return between.isNull() || between != parts.decimal || isGroupedThroughout(parts);
}

QString plain(const Parts& parts, QChar decimal) {
    QString out = parts.negative ? QStringLiteral("-") : QString();
    for (const QChar c : parts.whole)
        if (isDigit(c))
            out += c;
    if (!parts.decimal.isNull()) {
        if (!isGroupedThroughout(parts) && !parts.fraction.isEmpty())
            out += decimal;
        out += parts.fraction;
    }
    out += parts.exponent;
    return out;
}

/// The sign that one cell shows beyond doubt.
DecimalSign shownBy(QStringView cell) {
    const std::optional<Parts> parts = partsOf(cell);
    if (!parts || parts->decimal.isNull() || !isWellFormed(*parts) || mayBeGroup(*parts))
        return DecimalSign::Any;
    const bool comma = (parts->decimal == u',') != isGroupedThroughout(*parts);
    return comma ? DecimalSign::Comma : DecimalSign::Point;
}

} // namespace

DecimalSign decimalSignOf(const QList<Row>& rows) {
    DecimalSign sign = DecimalSign::Any;
    for (const Row& row : rows)
        for (const QString& cell : row.cells) {
            const DecimalSign shown = shownBy(cell);
            if (shown == DecimalSign::Any)
                continue;
            if (sign != DecimalSign::Any && sign != shown)
                return DecimalSign::Any; // both
            sign = shown;
        }
    return sign;
}

CellNumber cellNumber(QStringView cell, DecimalSign sign) {
    if (cell.trimmed().isEmpty())
        return CellTrouble::Empty;
    const std::optional<Parts> parts = partsOf(cell);
    if (!parts || !isWellFormed(*parts))
        return CellTrouble::NoNumber;
    const QChar other = sign == DecimalSign::Comma ? u'.' : u',';
    if (sign != DecimalSign::Any && parts->decimal == other && mayBeGroup(*parts))
        return CellTrouble::Ambiguous;
    try {
        return CDbl(plain(*parts, u'.'));
    } catch (const RunTimeError& failure) {
        return failure.number() == error::Overflow ? CellTrouble::TooLarge : CellTrouble::NoNumber;
    }
}

QString fieldText(QStringView cell) {
    const std::optional<Parts> parts = partsOf(cell);
    return parts ? plain(*parts, parts->decimal) : cell.toString();
}

QString troubleText(CellTrouble trouble, const QString& cell) {
    switch (trouble) {
    case CellTrouble::Empty:
        return QStringLiteral("komórka jest pusta (wpisz 0, jeśli siły nie ma)");
    case CellTrouble::NoNumber:
        return QStringLiteral("\"%1\" nie jest liczbą").arg(cell);
    case CellTrouble::TooLarge:
        return QStringLiteral("liczba \"%1\" jest za duża").arg(cell);
    case CellTrouble::Ambiguous:
        break;
    }
    return QStringLiteral("\"%1\" ma inny znak dziesiętny niż reszta tabeli i może znaczyć tysiące")
        .arg(cell);
}

} // namespace ferna::tables
