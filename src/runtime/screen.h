#pragma once

namespace ferna {

/// True where Qt can be started with windows: on a screen, or on the platform that the user names.
/// Without one Qt would end the process with a core dump.
bool hasScreen();

} // namespace ferna
