#pragma once

#include "equilibrium/equilibrium.h"
#include "utilisation/utilisation.h"

#include <QString>

#include <optional>
#include <vector>

namespace ferna::live {

/// An anchor of the picture.
struct PictureAnchor {
    Double x = 0;     ///< mm from the centre of the plate, to the right
    Double y = 0;     ///< mm, upwards
    int diameter = 0; ///< nominal, mm
    Double area = 0;  ///< of the core, mm2

    bool operator==(const PictureAnchor&) const = default;
};

/// A load case of the picture.
struct PictureCase {
    int number = 0; ///< from 1
    equilibrium::Result found;
    std::optional<Utilisation> used; ///< empty where no checks could be formed
};

/// What a picture shows: a plate, its anchors, and what one case does to them, or the envelope of
/// several. A plain value: whoever has these numbers can have the picture.
struct PictureValues {
    QString title;     ///< the case, or that it is the envelope
    QString loads;     ///< of the case, beside the title; may be empty
    Double length = 0; ///< of the plate along x, mm
    Double width = 0;  ///< along y, mm
    std::vector<PictureAnchor> anchors;
    std::vector<PictureCase> cases; ///< none: plate and anchors alone

    /// True where there is a plate that can be drawn: sizes above 0, every number finite.
    bool drawable() const;
};

/// The pull of an anchor, the largest of all cases.
struct AnchorPull {
    Double force = 0;  ///< kN, 0 where it is in tension in no case
    Double stress = 0; ///< MPa
    int caseNumber = 0;
};

/// One for each anchor, in order.
std::vector<AnchorPull> pullsOf(const PictureValues& values);

/// The anchor with the largest tensile stress, from 0; -1 where none is in tension. Of equal ones
/// the first.
int governingAnchor(const std::vector<AnchorPull>& pulls);

/// The place of the largest pressure: a corner of the plate.
struct PressedCorner {
    equilibrium::Point corner; ///< mm
    Double pressure = 0;       ///< MPa
    int caseNumber = 0;
};
/// Empty where nothing is pressed.
std::optional<PressedCorner> governingCorner(const PictureValues& values);

} // namespace ferna::live
