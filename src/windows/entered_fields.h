#pragma once

class QApplication;

namespace ferna {

/// From now on a text field that gets the focus has its text selected, on every form: by Tab, by a
/// mnemonic, by the program, by the click that brings the focus, and when its form is shown. A
/// field that has the focus already keeps its selection when its window is left and comes back.
void selectEnteredFields(QApplication& application);

} // namespace ferna
