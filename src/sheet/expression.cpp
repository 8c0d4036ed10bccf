#include "sheet/expression.h"

#include "sheet/quantity.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace ferna::sheet {

namespace {

using Kind = Expression::Kind;

Expression node(Kind kind, std::vector<Expression> parts, const QString& text = {}) {
    Expression made;
    made.kind = kind;
    made.text = text;
    made.parts = std::move(parts);
    return made;
}

Expression pair(Kind kind, Expression left, Expression right) {
    std::vector<Expression> parts;
    parts.push_back(std::move(left));
    parts.push_back(std::move(right));
    return node(kind, std::move(parts));
}

Expression single(Kind kind, Expression part) {
    std::vector<Expression> parts;
    parts.push_back(std::move(part));
    return node(kind, std::move(parts));
}

/// Reads the text of a clause. The texts are constants of the program: one that does not read is a
/// logic error.
class Reader {
public:
    Reader(const Clause& clause, std::span<const Quantity* const> inputs)
        : clause_(clause), inputs_(inputs), rest_(clause.text) {}

    Expression all() {
        Expression read = sum();
        if (!rest_.trimmed().isEmpty())
            fail();
        return read;
    }

private:
    [[noreturn]] void fail() const {
        throw std::logic_error("formula: " + clause_.text.toString().toStdString());
    }

    bool took(QStringView word) {
        rest_ = rest_.trimmed();
        if (!rest_.startsWith(word))
            return false;
        rest_ = rest_.sliced(word.size());
        return true;
    }

    Expression sum() {
        std::vector<Expression> parts;
        parts.push_back(product());
        for (;;) {
            if (took(u"+"))
                parts.push_back(product());
            else if (took(u"-"))
                parts.push_back(single(Kind::Negative, product()));
            else
                return parts.size() == 1 ? std::move(parts.front())
                                         : node(Kind::Sum, std::move(parts));
        }
    }

    Expression product() {
        Expression read = power();
        for (;;) {
            if (took(u"·"))
                read = pair(Kind::Product, std::move(read), power());
            else if (took(u"/"))
                read = pair(Kind::Quotient, std::move(read), power());
            else
                return read;
        }
    }

    Expression power() {
        if (took(u"-"))
            return single(Kind::Negative, power());
        Expression base = atom();
        return took(u"²") ? single(Kind::Square, std::move(base)) : base;
    }

    std::vector<Expression> arguments() {
        std::vector<Expression> parts;
        parts.push_back(sum());
        while (took(u","))
            parts.push_back(sum());
        if (!took(u")"))
            fail();
        return parts;
    }

    Expression atom() {
        if (took(u"("))
            return node(Kind::Brackets, arguments());
        if (took(u"√("))
            return node(Kind::Root, arguments());
        if (took(u"int("))
            return node(Kind::Function, arguments(), QStringLiteral("floor"));
        for (const char16_t* name : {u"sin", u"cos", u"abs", u"min", u"max", u"atan2"})
            if (took(QString::fromUtf16(name) + u'('))
                return node(Kind::Function, arguments(), QString::fromUtf16(name));
        for (std::size_t i = 0; i < inputs_.size(); ++i)
            if (took(u'{' + clause_.inputs.at(i).name.toString() + u'}'))
                return reference(*inputs_[i]);
        return digits();
    }

    Expression digits() {
        qsizetype length = 0;
        while (length < rest_.size() && (rest_[length].isDigit() || rest_[length] == u'.'))
            ++length;
        if (length == 0)
            fail();
        Expression read = number(rest_.first(length).toString());
        rest_ = rest_.sliced(length);
        return read;
    }

    const Clause& clause_;
    std::span<const Quantity* const> inputs_;
    QStringView rest_;
};

std::vector<double> valuesOf(const std::vector<Expression>& parts) {
    std::vector<double> values;
    values.reserve(parts.size());
    for (const Expression& part : parts)
        values.push_back(valueOf(part));
    return values;
}

double functionValue(const QString& name, const std::vector<double>& x) {
    if (name == u"sin")
        return std::sin(x.at(0));
    if (name == u"cos")
        return std::cos(x.at(0));
    if (name == u"abs")
        return std::fabs(x.at(0));
    if (name == u"floor")
        return std::floor(x.at(0));
    if (name == u"atan2")
        return std::atan2(x.at(0), x.at(1));
    if (name == u"min")
        return *std::min_element(x.begin(), x.end());
    if (name == u"max")
        return *std::max_element(x.begin(), x.end());
    throw std::logic_error("function: " + name.toStdString());
}

/// One that binds less than its surroundings is put into brackets.
QString factorText(const Expression& part) {
    const bool loose = part.kind == Kind::Sum || part.kind == Kind::Negative;
    return loose ? u'(' + programText(part) + u')' : programText(part);
}

/// What stands behind a division or under a power must be one thing.
QString tightText(const Expression& part) {
    const bool loose = part.kind == Kind::Sum || part.kind == Kind::Negative
                       || part.kind == Kind::Product || part.kind == Kind::Quotient
                       || part.kind == Kind::Square;
    return loose ? u'(' + programText(part) + u')' : programText(part);
}

QString sumText(const Expression& sum) {
    QString text;
    for (const Expression& part : sum.parts) {
        const bool minus = part.kind == Kind::Negative;
        if (minus)
            text += u'-' + tightText(part.parts.front());
        else
            text += (text.isEmpty() ? QString() : QStringLiteral("+")) + programText(part);
    }
    return text;
}

QString callText(const QString& name, const std::vector<Expression>& parts) {
    QStringList arguments;
    for (const Expression& part : parts)
        arguments += programText(part);
    return name + u'(' + arguments.join(u',') + u')';
}

} // namespace

Expression reference(const Quantity& quantity) {
    Expression made;
    made.kind = Kind::Symbol;
    made.text = quantity.symbol;
    made.id = quantity.id;
    made.printed = quantity.text;
    made.value = quantity.value;
    return made;
}

Expression formulaOf(const Clause& clause, std::span<const Quantity* const> inputs) {
    return Reader(clause, inputs).all();
}

Expression number(const QString& digits) {
    Expression made;
    made.text = digits;
    made.value = digits.toDouble();
    return made;
}

Expression sumOf(std::vector<Expression> parts) {
    if (parts.empty())
        return number(QStringLiteral("0"));
    return parts.size() == 1 ? std::move(parts.front()) : node(Kind::Sum, std::move(parts));
}

Expression functionOf(const QString& name, std::vector<Expression> parts) {
    return node(Kind::Function, std::move(parts), name);
}

double valueOf(const Expression& expression) {
    const std::vector<double> x = valuesOf(expression.parts);
    switch (expression.kind) {
    case Kind::Number:
    case Kind::Symbol:
        return expression.value;
    case Kind::Sum: {
        double sum = x.front();
        for (std::size_t i = 1; i < x.size(); ++i)
            sum += x[i];
        return sum;
    }
    case Kind::Product:
        return x.at(0) * x.at(1);
    case Kind::Quotient: // of 0: infinite, which no sheet prints as a number
        return x.at(0) / x.at(1);
    case Kind::Square:
        return x.at(0) * x.at(0);
    case Kind::Negative:
        return -x.at(0);
    case Kind::Brackets:
        return x.at(0);
    case Kind::Root:
        return std::sqrt(x.at(0));
    case Kind::Function:
        return functionValue(expression.text, x);
    }
    return std::numeric_limits<double>::quiet_NaN();
}

QString programText(const Expression& expression) {
    const std::vector<Expression>& parts = expression.parts;
    switch (expression.kind) {
    case Kind::Number:
        return expression.text;
    case Kind::Symbol:
        return expression.id;
    case Kind::Sum:
        return sumText(expression);
    case Kind::Product:
        return factorText(parts[0]) + u'*' + tightText(parts[1]);
    case Kind::Quotient:
        return factorText(parts[0]) + u'/' + tightText(parts[1]);
    case Kind::Square:
        return tightText(parts[0]) + QStringLiteral("**2");
    case Kind::Negative:
        return u'-' + tightText(parts[0]);
    case Kind::Brackets:
        return u'(' + programText(parts[0]) + u')';
    case Kind::Root:
        return callText(QStringLiteral("sqrt"), parts);
    case Kind::Function:
        return callText(expression.text, parts);
    }
    return {};
}

} // namespace ferna::sheet
