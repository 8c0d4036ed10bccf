#pragma once

class QLabel;
class QLineEdit;

namespace ferna {

/// Tells under a field, as soon as it is typed, which characters the files of the program cannot
/// hold and will write as "?". The note is hidden while there are none.
void showCodepageNote(QLineEdit* field, QLabel* note);

} // namespace ferna
