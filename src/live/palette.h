#pragma once

#include "runtime/numbers.h"

#include <QColor>
#include <QGradientStops>

namespace ferna::live {

enum class Theme { Light, Dark };

/// The colours of a picture in a theme.
struct Palette {
    QColor paper;   ///< background
    QColor plate;   ///< the plate where nothing presses it
    QColor ink;     ///< outlines and texts
    QColor quiet;   ///< dimensions, axes, anchors without tension
    QColor tension; ///< anchors in tension and what they carry
    QColor line;    ///< neutral line
    QColor chosen;  ///< what was chosen
    QColor label;   ///< behind a text on the plate, not quite opaque
};

/// The palette of a theme; without colours where the picture is greyed.
Palette paletteOf(Theme theme, bool greyed);

/// The colour of a pressure, 0..1 of the largest. More is darker on light paper and lighter on
/// dark: viridis, a scale in even steps of lightness for all eyes and for grey print (S. van der
/// Walt and N. Smith, A better default colormap for Matplotlib, SciPy 2015), by nine of its colours
/// with straight lines between.
QColor pressureColour(Double share, Theme theme, bool greyed = false);

/// The same as stops of a gradient that begins at the share `from` and ends at `to`.
QGradientStops pressureStops(Double from, Double to, Theme theme, bool greyed = false);

} // namespace ferna::live
