#pragma once

#include <QString>

#include <string>

namespace ferna::batch {

/// The key of the task whose text stands in a control of the main form ("Text6_0" is
/// "Przypadki[0].N"); empty for another control.
std::string keyOfControl(const QString& control);

} // namespace ferna::batch
