#pragma once

#include "runtime/numbers.h"

#include <QString>

namespace ferna {

// The sketches are delivered as bitmaps in the program folder. A section of the report that uses
// one has it saved under the name that the report's records link, its vector twin beside it.

/// The general view of a column base, as delivered, and the plate of the task.
inline const QString generalViewFile = QStringLiteral("Ferogo2.bmp");
inline const QString platePictureFile = QStringLiteral("Ferrob.bmp");

/// The delivered bitmap that stands where a sketch is due and there is none.
inline const QString noSketchFile = QStringLiteral("gkrys0.bmp");

/// Name under which the sketch of the anchor section is saved.
inline const QString anchorSketchFile = QStringLiteral("Szkick.bmp");

/// Number of sketches of the plate section.
inline constexpr int plateSketches = 7;

/// The delivered bitmap of an anchor sketch: 1 hooked, 2 small plate, 3 large plate. Error 9.
QString deliveredAnchorSketch(Integer Typ_szkicu_kotwy);

/// The delivered bitmap of a plate sketch, image 1..7. Error 9.
QString deliveredPlateSketch(int image);

/// Saves an anchor sketch for the report. Errors of `readFileWhole` and `writeFileWhole`.
void saveAnchorSketch(const QString& folder, Integer Typ_szkicu_kotwy);

/// Saves plate sketch `image` for the report under `name`. Errors as above.
void savePlateSketch(const QString& folder, int image, const QString& name);

} // namespace ferna
