#pragma once

#include <QString>

namespace ferna {

/// The file of a module that is loaded when it is asked for: beside this program, else in the
/// installation's folder of modules; beside the program where it is in neither. Needs no Qt that
/// has been started.
QString moduleFile(const QString& name);

} // namespace ferna
