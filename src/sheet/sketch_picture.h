#pragma once

#include "sheet/sheet.h"

namespace ferna::sheet {

/// A delivered sketch, "szkic31", that many mm wide.
Picture sketchPicture(const QString& name, double width);

} // namespace ferna::sheet
