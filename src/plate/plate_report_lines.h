#pragma once

#include "plate/plate_form.h"

#include <vector>

namespace ferna {

/// A sketch of the plate section: image 1..7 of the image list, saved under a fixed name.
struct PlateSketch {
    int image;
    const char* file;
};

/// What the form has to save after its OK: the sketches of the blocks, in their order.
struct PlateSection {
    std::vector<PlateSketch> sketches;
};

/// `cmdOK`: writes the checks that stand into `Wiersze_blachy` and counts them in
/// `Liczba_wierszy_blachy`, the last index. Empty where there is no accepted thickness: the message
/// has been shown and the form stays open. Error 13 where the thickness is no number, 6 where twice
/// the dimension a passes 16 bits.
std::optional<PlateSection> writePlateSection(Stan& stan, const PlateForm& form, Dialogs& dialogs);

} // namespace ferna
