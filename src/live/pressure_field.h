#pragma once

#include "live/frame.h"

#include <vector>

class QPainter;

namespace ferna::live {

/// A part of the plate that one plane of pressure governs.
struct FieldPiece {
    std::vector<equilibrium::Point> outline; ///< convex, mm from the centre of the plate
    equilibrium::Plane plane;                ///< MPa, not negative on the piece
};

/// The pressed parts of the plate. Of one case it is one part at most; of an envelope each part has
/// the plane that is the largest there.
std::vector<FieldPiece> fieldPieces(const PictureValues& values);

/// Draws the pressures over the plate as a smooth field of colours from 0 to the largest.
void drawField(QPainter& painter, const PictureValues& values, const Frame& frame, Theme theme,
               bool greyed = false);

} // namespace ferna::live
