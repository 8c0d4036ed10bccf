#pragma once

#include "runtime/dialogs.h"

class QLabel;
class QLineEdit;

namespace ferna {

/// Tells under a field, as soon as it is typed, what of its text gets lost. The note is hidden
/// while there is nothing to say.
void showNote(QLineEdit* field, QLabel* note, const NoteOf& noteOf);

/// Keeps two lines of a form free for a note, so that the form does not move when it comes.
void keepRoomForNote(QLabel* note);

} // namespace ferna
