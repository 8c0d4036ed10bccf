#pragma once

#include "runtime/dialogs.h"

class QLabel;
class QLineEdit;

namespace ferna {

/// Tells under a field, as soon as it is typed, what of its text gets lost. The note is hidden
/// while there is nothing to say.
void showNote(QLineEdit* field, QLabel* note, const NoteOf& noteOf);

} // namespace ferna
