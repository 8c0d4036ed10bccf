#include "widgets/codepage_note.h"

#include <QLabel>
#include <QLineEdit>

namespace ferna {

void showNote(QLineEdit* field, QLabel* note, const NoteOf& noteOf) {
    const auto renew = [note, noteOf](const QString& text) {
        note->setText(noteOf(text));
        note->setVisible(!note->text().isEmpty());
    };
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    QObject::connect(field, &QLineEdit::textChanged, note, renew);
    renew(field->text());
}

void keepRoomForNote(QLabel* note) {
    constexpr int lines = 2;
    note->setMinimumHeight(lines * note->fontMetrics().lineSpacing());
    QSizePolicy policy = note->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    note->setSizePolicy(policy);
}

} // namespace ferna
