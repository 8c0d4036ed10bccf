#include "input/forms/input_notes_band.h"

#include "widgets/field_place.h"
#include "widgets/note_band.h"

#include <QPlainTextEdit>
#include <QTextBlock>

namespace ferna {

namespace {

/// The control of the main form in which a note is put right.
QString fieldOf(const notes::Note& note) {
    switch (note.code) {
    case notes::Code::ZeroPrzypadkow:
        return QStringLiteral("Text1");
    case notes::Code::LiteraSpozaStrony:
    case notes::Code::NazwaSkrocona:
        return QStringLiteral("txtNaz_proj");
    case notes::Code::Rozciaganie:
        return QStringLiteral("Text6_%1").arg(note.caseNumber - 1);
    default:
        return note.caseNumber > 0 ? QStringLiteral("Text7_%1").arg(note.caseNumber - 1)
                                   : QStringLiteral("Text9");
    }
}

/// Puts an anchor's line of the list under selection.
void selectLine(QPlainTextEdit* list, int anchor) {
    QTextCursor cursor(list->document()->findBlockByNumber(anchor - 1));
    cursor.select(QTextCursor::LineUnderCursor);
    list->setTextCursor(cursor);
}

} // namespace

InputNotesBand::InputNotesBand(QWidget* form, NoteBand* band, const Stan& stan,
                               std::function<InputFields()> fields)
    : form_(form), band_(band), stan_(stan), fields_(std::move(fields)) {}

notes::Notes InputNotesBand::due() const {
    const notes::Entered now = notes::entered(stan_, fields_());
    if (calculated_ && notes::sameTask(now, *calculated_))
        if (notes::Notes notes = notes::notesInPlaceOfResults(record_, now); !notes.empty())
            return notes;
    return notes::notesOf(now);
}

void InputNotesBand::renew() {
    notes::Notes notes = due();
    if (notes == shown_)
        return;
    shown_ = std::move(notes);
    QStringList texts;
    for (const notes::Note& note : shown_)
        texts += note.text;
    band_->setNotes(texts, [this](int number) {
        lead(notes::Note(shown_.at(static_cast<std::size_t>(number))));
    });
}

void InputNotesBand::calculationBegins() {
    record_.begin(notes::entered(stan_, fields_()));
    calculated_.reset();
}

void InputNotesBand::calculationEnded() {
    calculated_ = notes::entered(stan_, fields_());
    renew();
}

void InputNotesBand::lead(const notes::Note& note) {
    auto* const field = form_->findChild<QWidget*>(fieldOf(note));
    goTo(field);
    if (auto* const list = qobject_cast<QPlainTextEdit*>(field))
        selectLine(list, note.anchor);
}

} // namespace ferna
