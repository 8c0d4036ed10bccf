#pragma once

class QLabel;

namespace ferna {

/// Makes a label stand out as a warning, by weight and colour, or look like any other one.
void showAsWarning(QLabel* label, bool warning);

} // namespace ferna
