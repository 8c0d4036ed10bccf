#pragma once

#include "renderer/drawing_list.h"

namespace ferna::renderer {

/// True where the boxes share some area.
bool overlap(const QRectF& a, const QRectF& b);

/// The part of a sheet that printers reach, mm right of the frame's corner.
inline constexpr double rightMost = 185;

/// The chain in smaller letters so that it ends at `right`; unchanged where it does already.
void shrinkChain(Chain& chain, double right);

/// Texts of the frame end before the next upright rule at their right.
void fitFrame(Segment& frame);

/// A line ends before its own next column and before the sheet's edge.
void fitLine(TextLine& line);

/// The lines beside a block end before it. A block that starts at or below the baseline of a longer
/// line moves down below that line's underline and descenders.
void fitBeside(std::vector<TextLine>& lines, Block& block);

} // namespace ferna::renderer
