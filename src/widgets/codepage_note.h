#pragma once

class QLabel;
class QLineEdit;

namespace ferna {

/// Tells under a field, as soon as it is typed, which characters the files of the program cannot
/// hold and will write as "?". The note is hidden while there are none.
void showCodepageNote(QLineEdit* field, QLabel* note);

/// Keeps two lines of a form free for a note, so that the form does not move when it comes.
void keepRoomForNote(QLabel* note);

} // namespace ferna
