#pragma once

class QDialog;

namespace ferna::renderer {

/// Runs a dialog of the renderer. It stands over the window of the program that started the
/// renderer, and the program is told that it is there, so that it keeps out of its way.
int runOwnWindow(QDialog& dialog);

} // namespace ferna::renderer
