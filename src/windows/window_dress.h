#pragma once

class QApplication;
class QWidget;

namespace ferna {

/// From now on every dialog that is shown is wide enough for its title, and every message box has
/// an icon that is sharp at the screen's scale.
void dressWindows(QApplication& application);

/// Makes a form at least as wide as its title with the buttons of its frame.
void makeRoomForTitle(QWidget* form);

} // namespace ferna
