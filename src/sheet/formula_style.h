#pragma once

#include "sheet/expression.h"

namespace ferna::sheet {

// What every setting of a formula has in common, on a page of paper and of HTML.

/// A symbol of the formula, or the number that stands for it.
enum class Show { Symbols, Values };

/// True where a value in place of a symbol is to be put into brackets: behind an operator a minus
/// would be misread.
bool needsBrackets(const Expression& part, Show show);

/// The part without the brackets that a fraction or a root makes needless.
const Expression& withoutBrackets(const Expression& part);

/// The parts of a sum or the arguments of a function as they are printed: of many the first two
/// and the last, with a null between for what is left out.
std::vector<const Expression*> printedParts(const Expression& expression);

/// Digits of a formula's own number, with the decimal sign of the document.
QString printedDigits(const QString& digits);

/// True where an equation tells something in front of its result; a symbol alone does not.
bool isWorthPrinting(const Expression& expression);

} // namespace ferna::sheet
