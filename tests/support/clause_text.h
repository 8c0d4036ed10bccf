#pragma once

#include "design/clause.h"
#include "runtime/numbers.h"

#include <QString>

#include <initializer_list>
#include <stdexcept>

namespace ferna::testing {

/// Computes the text of a clause, the values in place of its inputs, in the order of the inputs.
class ClauseText {
public:
    ClauseText(const Clause& clause, std::initializer_list<Double> values)
        : clause_(clause), values_(values), rest_(clause.text) {}

    Double value() {
        const Double result = sum();
        if (!rest_.isEmpty())
            throw std::invalid_argument("left over: " + rest_.toString().toStdString());
        return result;
    }

private:
    bool took(QStringView word) {
        rest_ = rest_.trimmed();
        if (!rest_.startsWith(word))
            return false;
        rest_ = rest_.sliced(word.size());
        return true;
    }

    Double sum() {
        Double result = product();
        for (;;) {
            if (took(u"+"))
                result += product();
            else if (took(u"-"))
                result -= product();
            else
                return result;
        }
    }

    Double product() {
        Double result = power();
        for (;;) {
            if (took(u"·"))
                result *= power();
            else if (took(u"/"))
                result /= power();
            else
                return result;
        }
    }

    Double power() {
        const Double base = atom();
        return took(u"²") ? base * base : base;
    }

    Double bracket() {
        const Double result = sum();
        if (!took(u")"))
            throw std::invalid_argument("a bracket is open");
        return result;
    }

    Double atom() {
        if (took(u"("))
            return bracket();
        if (took(u"√("))
            return std::sqrt(bracket());
        if (took(u"sin("))
            return std::sin(bracket());
        if (took(u"cos("))
            return std::cos(bracket());
        if (took(u"int("))
            return std::floor(bracket());
        for (std::size_t i = 0; i < values_.size(); ++i)
            if (took(u'{' + clause_.inputs[i].name.toString() + u'}'))
                return values_.begin()[i];
        qsizetype length = 0;
        while (length < rest_.size() && (rest_[length].isDigit() || rest_[length] == u'.'))
            ++length;
        const Double number = rest_.first(length).toDouble();
        if (length == 0)
            throw std::invalid_argument("no number: " + rest_.toString().toStdString());
        rest_ = rest_.sliced(length);
        return number;
    }

    const Clause& clause_;
    std::initializer_list<Double> values_;
    QStringView rest_;
};

/// The text of a clause with these values. The list lives as long as the call.
inline Double computed(const Clause& clause, std::initializer_list<Double> values) {
    return ClauseText(clause, values).value();
}

} // namespace ferna::testing
