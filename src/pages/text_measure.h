#pragma once

#include "pages/page.h"

namespace ferna::renderer {

/// Text of the font with that number: 2 is the Symbol font, whose Latin letters mean Greek ones and
/// become those; all others are the proportional text font. A control character becomes a blank.
QString lettersOf(const QString& text, int font);

/// Sets the advances of a text for its letter height, shaped with kerning as painters draw it.
void measure(Text& text);

/// The text in letters of another size, at another place.
void scaleText(Text& text, QPointF baseline, double factor);

} // namespace ferna::renderer
