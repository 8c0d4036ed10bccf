#pragma once

#include "design/clause.h"

#include <QString>

#include <span>
#include <vector>

namespace ferna::sheet {

struct Quantity;

/// A formula as a tree: it can be computed, written for a program, and set on a page.
struct Expression {
    enum class Kind {
        Number,   ///< `text`
        Symbol,   ///< a quantity: `text` its symbol, `id`, `printed`, `value`
        Sum,      ///< parts joined by + ; a part of the kind Negative is subtracted
        Product,  ///< two factors
        Quotient, ///< numerator, denominator
        Square,   ///< one part
        Negative, ///< one part
        Brackets, ///< one part
        Root,     ///< one part
        Function  ///< `text` its name: sin cos floor abs min max atan2; parts its arguments
    };
    Kind kind = Kind::Number;
    QString text;
    QString id;
    QString printed; ///< the value as it stands in a substitution
    double value = 0;
    std::vector<Expression> parts;
};

/// A quantity in a formula.
Expression reference(const Quantity& quantity);

/// The formula of a clause with these quantities as its inputs, in their order.
Expression formulaOf(const Clause& clause, std::span<const Quantity* const> inputs);

/// The sum of some expressions; of none it is 0.
Expression sumOf(std::vector<Expression> parts);
/// "min", "max" or another function of some expressions.
Expression functionOf(const QString& name, std::vector<Expression> parts);
Expression number(const QString& digits);

/// Its value in Double, in the order written.
double valueOf(const Expression& expression);

/// The formula for a program: + - * / **, sqrt, sin, cos, floor, abs, min, max, atan2 over the
/// identifiers.
QString programText(const Expression& expression);

} // namespace ferna::sheet
