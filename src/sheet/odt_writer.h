#pragma once

#include "sheet/sheet.h"

#include <QByteArray>

namespace ferna::sheet {

/// The sheet as an OpenDocument text, to be worked on: its formulas stand in one line. Needs a
/// QGuiApplication.
QByteArray odtOf(const Sheet& sheet);

} // namespace ferna::sheet
