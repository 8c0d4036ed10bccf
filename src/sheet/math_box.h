#pragma once

#include "sheet/formula_style.h"
#include "sheet/page_text.h"

namespace ferna::sheet {

/// A piece of a formula set on a page: a box around its base line, and how it is drawn. Lengths as
/// in page_text.h.
struct MathBox {
    double width = 0;
    double ascent = 0; ///< above the base line
    double descent = 0;
    /// With the left end of its base line there.
    std::function<void(QPainter& painter, QPointF at)> draw;

    double height() const { return ascent + descent; }
};

/// A formula with fractions, roots and indices, symbols in italics, numbers and functions upright.
MathBox formulaBox(const Expression& expression, Show show, double size);

/// A symbol: "σ_b".
MathBox symbolBox(const QString& symbol, double size);

/// A word or a sign, upright.
MathBox wordBox(const QString& word, double size);

/// Boxes beside one another on one base line.
MathBox row(std::vector<MathBox> boxes);

/// The box, smaller where it is wider than that.
MathBox fitted(MathBox box, double width);

} // namespace ferna::sheet
