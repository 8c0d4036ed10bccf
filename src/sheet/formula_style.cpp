#include "sheet/formula_style.h"

#include "runtime/format.h"

namespace ferna::sheet {

bool needsBrackets(const Expression& part, Show show) {
    const bool symbol = part.kind == Expression::Kind::Symbol;
    return symbol && show == Show::Values && part.printed.startsWith(QChar(0x2212));
}

const Expression& withoutBrackets(const Expression& part) {
    return part.kind == Expression::Kind::Brackets ? withoutBrackets(part.parts.front()) : part;
}

std::vector<const Expression*> printedParts(const Expression& expression) {
    constexpr std::size_t most = 5;
    std::vector<const Expression*> parts;
    for (const Expression& part : expression.parts)
        parts.push_back(&part);
    if (parts.size() <= most)
        return parts;
    return {parts[0], parts[1], nullptr, parts.back()};
}

QString printedDigits(const QString& digits) {
    constexpr qsizetype longest = 9; // pi with more digits than anyone reads
    QString text = digits.size() > longest ? digits.left(longest - 2) : digits;
    return text.replace(u'.', decimalSign());
}

bool isWorthPrinting(const Expression& expression) {
    return expression.kind != Expression::Kind::Symbol
           && expression.kind != Expression::Kind::Number;
}

} // namespace ferna::sheet
