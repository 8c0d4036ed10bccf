#pragma once

#include "sheet/formula_style.h"
#include "sheet/sheet.h"

namespace ferna::sheet {

/// A formula in HTML: fractions, roots and indices by the classes of the sheet's style.
QString htmlFormula(const Expression& expression, Show show);

/// The same in one line, for a writer that knows no fractions: "(a + b) / c".
QString lineFormula(const Expression& expression, Show show);

/// A printed number; a power of ten gets its raised exponent.
QString htmlNumber(const QString& text);

} // namespace ferna::sheet
