#include "widgets/codepage_note.h"

#include "runtime/codepage.h"

#include <QLabel>
#include <QLineEdit>

namespace ferna {

void showCodepageNote(QLineEdit* field, QLabel* note) {
    const auto renew = [note](const QString& text) {
        QString missing;
        for (const QChar c : text)
            if (!codepage::holds(c) && !missing.contains(c))
                missing += c;
        note->setText(
            QStringLiteral("Tych znaków nie ma w stronie kodowej 1250, zamiast nich będzie "
                           "\"?\": %1")
                .arg(missing));
        note->setVisible(!missing.isEmpty());
    };
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    QObject::connect(field, &QLineEdit::textChanged, note, renew);
    renew(field->text());
}

} // namespace ferna
