#pragma once

#include "pages/page.h"

namespace ferna::pages {

/// The letters of a text as the text font has them. The Latin letters of the Symbol font mean Greek
/// ones and become those; a control character becomes a blank.
QString lettersOf(const QString& text, bool symbolFont);

/// Sets the advances of a text for its letter height, shaped with kerning as painters draw it.
void measure(Text& text);

/// The text in letters of another size, at another place.
void scaleText(Text& text, QPointF baseline, double factor);

} // namespace ferna::pages
