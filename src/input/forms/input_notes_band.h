#pragma once

#include "notes/notes.h"

#include <QWidget>

#include <functional>

namespace ferna {

class NoteBand;

/// The notes of the main form: what is doubtful about the input while it is typed, and after a
/// calculation without results what is exact. Each note leads to its field.
class InputNotesBand {
public:
    /// `band` is a child of `form`.
    InputNotesBand(QWidget* form, NoteBand* band, const Stan& stan,
                   std::function<InputFields()> fields);

    /// Shows what there is to say about the form as it stands.
    void renew();

    /// A calculation begins.
    void calculationBegins();
    /// It has ended, with results or without.
    void calculationEnded();

    /// Of the last calculation.
    notes::Record& record() { return record_; }

private:
    notes::Notes due() const;
    void lead(const notes::Note& note);

    QWidget* form_;
    NoteBand* band_;
    const Stan& stan_;
    std::function<InputFields()> fields_;
    notes::Record record_;
    std::optional<notes::Entered> calculated_; ///< the task as the last calculation left it
    notes::Notes shown_;
};

} // namespace ferna
