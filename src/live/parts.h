#pragma once

#include "live/strokes.h"

namespace ferna::live {

// The parts of a picture over its field, each drawn by itself.

/// The bar of the pressures with its numbers, where anything is pressed.
void drawPressureScale(const Strokes& to, const PictureValues& values);

/// The size of the plate and the distances of the anchors from its edges.
void drawDimensions(const Strokes& to, const PictureValues& values);

/// Anchors, their numbers and diameters, pulls as numbers and bars, the governing anchor and
/// corner.
void drawAnchors(const Strokes& to, const PictureValues& values);

} // namespace ferna::live
