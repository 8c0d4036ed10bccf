#pragma once

#include "desktop/last_task.h"

namespace ferna {

/// Tells at the start which file cannot be read and why, and offers the delivered one in its place.
/// True where the engineer takes it; Esc, Enter and the window's frame end the program.
bool wantsDeliveredFile(const DamagedFile& file);

} // namespace ferna
