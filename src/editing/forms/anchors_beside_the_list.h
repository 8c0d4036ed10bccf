#pragma once

#include "design/stan.h"

namespace ferna {

class AnchorTable;
class Ferna3;

/// Puts a table of the anchors under the plate drawing of the main form, beside the list, and lets
/// the drawing be worked by mouse and keyboard. The form owns both. To be called before the form is
/// shown first.
AnchorTable* anchorsBesideTheList(Ferna3& form, const Stan& stan);

} // namespace ferna
