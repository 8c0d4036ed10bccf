#pragma once

#include "design/stan.h"

namespace ferna {

class Ferna3;

/// Lets loads be pasted and copied as a table, and anchors be worked in their drawing and in a
/// table. The form owns what it takes; to be called before it is shown first.
void addEditing(Ferna3& form, const Stan& stan);

} // namespace ferna
