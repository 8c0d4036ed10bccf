#pragma once

#include "design/input_fields.h"
#include "runtime/dialogs.h"
#include "runtime/picture_box.h"

namespace ferna {

/// Size of the plate picture on its tab and in the report, in picture pixels; it is printed 70.1 mm
/// wide.
inline constexpr QSize platePictureSize(265, 176);

/// Half width and half height in mm of what a plate picture of a size shows; the larger relative
/// extent of the plate and its anchors takes 1/1.3 of the picture. Only the positive side of an
/// anchor counts. Error 11 for a plate without extent.
QSizeF plateHalfExtent(QSize size, const Plyta_i_kotwy& plate);

/// Draws the plate with its anchors true to scale: outline, anchors as circles of their diameter
/// with their numbers, axes, a scale bar. Reads sizes in cm and diameters in mm from the state.
/// Error 11 for a plate without extent.
void drawPlate(PictureBox& picture, const Plyta_i_kotwy& plate);

/// Takes the plate size from the fields and draws the plate; every redraw is a reading of the two
/// fields. An error becomes its message, leaves the picture as far as it was drawn, and gives
/// false.
bool Rysuj_P3(PictureBox& picture, Stan& stan, const InputFields& fields, Dialogs& dialogs);

/// The picture of the report: draws as `Rysuj_P3` and saves at print quality.
bool savePlatePicture(Stan& stan, const InputFields& fields, Dialogs& dialogs, const QString& path);

} // namespace ferna
