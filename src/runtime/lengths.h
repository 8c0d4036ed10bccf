#pragma once

// Lengths of the international inch and of the typographic point of desktop publishing.

namespace ferna {

inline constexpr double mmPerInch = 25.4;
inline constexpr double pointsPerInch = 72;
inline constexpr double mmPerPoint = mmPerInch / pointsPerInch;
inline constexpr double pointsPerMm = pointsPerInch / mmPerInch;

} // namespace ferna
