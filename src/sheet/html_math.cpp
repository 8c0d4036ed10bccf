#include "sheet/html_math.h"

namespace ferna::sheet {

namespace {

using Kind = Expression::Kind;

/// Writes a formula; with `flat` a fraction is a stroke in the line.
class Writer {
public:
    Writer(Show show, bool flat) : show_(show), flat_(flat) {}

    QString html(const Expression& e) const {
        switch (e.kind) {
        case Kind::Number:
            return printedDigits(e.text);
        case Kind::Symbol:
            return show_ == Show::Symbols ? richSymbol(e.text) : htmlNumber(e.printed);
        case Kind::Sum:
            return sum(e);
        case Kind::Product:
            return factor(e.parts[0]) + QStringLiteral(" · ") + factor(e.parts[1]);
        case Kind::Quotient:
            return quotient(e);
        case Kind::Square:
            return factor(e.parts[0]) + QStringLiteral("²");
        case Kind::Negative:
            return QStringLiteral("−") + factor(e.parts[0]);
        case Kind::Brackets:
            return u'(' + html(e.parts[0]) + u')';
        case Kind::Root:
            return root(e);
        case Kind::Function:
            return function(e);
        }
        return {};
    }

private:
    QString factor(const Expression& e) const {
        const bool loose = e.kind == Kind::Sum || e.kind == Kind::Negative;
        return loose || needsBrackets(e, show_) ? u'(' + html(e) + u')' : html(e);
    }

    QString sum(const Expression& e) const {
        QString text;
        for (const Expression* const part : printedParts(e)) {
            if (part == nullptr)
                text += QStringLiteral(" + …");
            else if (part->kind == Kind::Negative)
                text += (text.isEmpty() ? QStringLiteral("−") : QStringLiteral(" − "))
                        + factor(part->parts[0]);
            else if (text.isEmpty())
                text += html(*part);
            else
                text += QStringLiteral(" + ") + factor(*part);
        }
        return text;
    }

    QString quotient(const Expression& e) const {
        if (flat_)
            return factor(e.parts[0]) + QStringLiteral(" / ") + factor(e.parts[1]);
        return QStringLiteral("<span class=\"f\"><span>%1</span><span>%2</span></span>")
            .arg(html(withoutBrackets(e.parts[0])), html(withoutBrackets(e.parts[1])));
    }

    QString root(const Expression& e) const {
        const QString inside = html(withoutBrackets(e.parts[0]));
        return flat_ ? QStringLiteral("√(") + inside + u')'
                     : QStringLiteral("√<span class=\"r\">%1</span>").arg(inside);
    }

    QString function(const Expression& e) const {
        QStringList arguments;
        for (const Expression* const part : printedParts(e))
            arguments += part == nullptr ? QStringLiteral("…") : html(*part);
        if (e.text == u"abs")
            return u'|' + arguments.front() + u'|';
        if (e.text == u"floor")
            return QStringLiteral("⌊%1⌋").arg(arguments.front());
        return e.text + u'(' + arguments.join(QStringLiteral("; ")) + u')';
    }

    Show show_;
    bool flat_;
};

} // namespace

QString htmlFormula(const Expression& expression, Show show) {
    return Writer(show, false).html(expression);
}

QString lineFormula(const Expression& expression, Show show) {
    return Writer(show, true).html(expression);
}

QString htmlNumber(const QString& text) {
    const qsizetype power = text.indexOf(u'^');
    if (power < 0)
        return rich(text);
    return rich(text.left(power)) + QStringLiteral("<sup>%1</sup>").arg(rich(text.mid(power + 1)));
}

} // namespace ferna::sheet
