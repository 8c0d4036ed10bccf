#pragma once

#include "report/report_lines.h"
#include "runtime/picture_box.h"

namespace ferna {

/// Size of a case's sketch in picture pixels; it is printed 41.1 mm wide.
inline constexpr QSize zoneSketchSize(372, 252);

/// Height of its letters A and B, picture pixels: 2.8 mm in print.
inline constexpr int zoneLetterHeight = 25;

/// Draws the plan of the plate with the compressed zone of a case hatched, the neutral axis through
/// its two points A and B, the outline and the axes. Error 11 for a plate without extent.
void drawZone(PictureBox& picture, const Stan& stan, int c);

/// File name of a case's sketch.
QString zoneSketchFile(int c);

/// The sketch of a case at print quality, saved under `path`, and the case's neutral-axis line.
/// Errors of `drawZone` and `writeFileWhole`.
void Rysuj_strefe(Raport& raport, const Stan& stan, int c, const QString& path);

} // namespace ferna
