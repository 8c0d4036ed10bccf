#pragma once

#include "design/stan.h"

namespace ferna {

/// Takes the number of load cases from its field: on leaving it and on a change of tab. A number
/// above 6 becomes 6, also in the field; one under 1 stays. The rows 0..number-1 of the table are
/// shown, the others hidden. Error 13 where the text is no number.
void takeCaseCount(Stan& stan, QString& text);

} // namespace ferna
