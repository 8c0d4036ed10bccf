#include "widgets/number_field.h"

#include "widgets/field_note.h"

#include <QLineEdit>
#include <QValidator>

#include <algorithm>

namespace ferna {

namespace {

bool breaksANumber(QChar c) {
    return c.isSpace() && c.category() != QChar::Separator_Space;
}

bool ofNumbers(QChar c) {
    return c.isSpace() || QStringLiteral("0123456789+-.,eE").contains(c);
}

/// Refuses a table. It says nothing about what is typed otherwise.
class OneNumber : public QValidator {
public:
    enum class Beside { Numbers, NumbersAndNames };

    OneNumber(QLineEdit* field, Beside beside) : QValidator(field), beside_(beside) {
        field->setValidator(this);
        connect(field, &QLineEdit::inputRejected, this, [this, field] {
            if (std::exchange(refused_, false))
                showFieldNote(field, QStringLiteral("W polu mieści się jedna liczba. Wklejony "
                                                    "tekst ma tabulatory lub kilka wierszy - "
                                                    "nie został wpisany."));
        });
    }

    State validate(QString& text, int& place) const override {
        if (std::none_of(text.cbegin(), text.cend(), breaksANumber))
            return Acceptable;
        const QString alone = text.trimmed();
        refused_ =
            std::any_of(alone.cbegin(), alone.cend(), breaksANumber)
            && (beside_ == Beside::Numbers || std::all_of(alone.cbegin(), alone.cend(), ofNumbers));
        if (refused_)
            return Invalid;
        if (beside_ == Beside::Numbers) {
            text = alone;
            place = qMin(place, static_cast<int>(text.size()));
        }
        return Acceptable;
    }

private:
    Beside beside_;
    mutable bool refused_ = false;
};

} // namespace

void keepTablesOut(QWidget* form, const QList<const QLineEdit*>& names) {
    for (QLineEdit* field : form->findChildren<QLineEdit*>())
        if (!names.contains(field))
            new OneNumber(field, OneNumber::Beside::Numbers); // the field owns it
}

void keepTablesOfNumbersOut(QLineEdit* field) {
    new OneNumber(field, OneNumber::Beside::NumbersAndNames);
}

} // namespace ferna
