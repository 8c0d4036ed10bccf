#pragma once

#include <functional>

class QApplication;
class QWidget;

namespace ferna {

/// F1 opens the help at what is in front, on every form and box: `open` is given its context and
/// the window to tell a failure over.
void openHelpByF1(QApplication& application, std::function<void(int context)> open);

/// The help context of a widget: the property "helpContext" of it or of what it stands on; of a
/// form with tabs, that of the tab in front; of a message box, the list of the messages.
int helpContextOf(const QWidget* widget);

} // namespace ferna
