#include "runtime/screen.h"

#include <QtGlobal>

namespace ferna {

bool hasScreen() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
           || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

} // namespace ferna
