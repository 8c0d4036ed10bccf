#pragma once

#include "design/material_tables.h"
#include "equilibrium/equilibrium.h"

#include <optional>
#include <vector>

namespace ferna::smallest {

/// Whole millimetres from, to, and in steps of.
struct Sizes {
    int from = 0;
    int to = 0;
    int step = 1;

    bool operator==(const Sizes&) const = default;
};

/// The bases among which the lightest is looked for.
struct DesignRange {
    // Outline of the column on the plate, in its middle, mm: along the length and along the width.
    int columnLength = 0;
    int columnWidth = 0;

    Sizes length; ///< of the plate, along x
    Sizes width;  ///< along y; a plate wider than long is left out
    /// Width to length, the width going to whole 10 mm; 0: the widths above.
    double ratio = 0;

    std::vector<int> layouts{4, 6, 8, 12}; ///< numbers of anchors, see `anchorPlaces`
    std::vector<Integer> diameters{std::begin(anchorDiameters), std::end(anchorDiameters)};
    std::vector<Integer> steels{2}; ///< of the anchors, 1..7

    // Distances of the anchors' axes in their diameters.
    double edge = 2;    ///< from the edge of the plate, up to whole 5 mm
    int leastEdge = 40; ///< the same in mm, at least
    double spacing = 3; ///< from one another, at least
    double clear = 2;   ///< from the outline of the column, at least

    double pressure = 1;     ///< largest pressure on the concrete in Rb, 1 to 2
    Integer plateSteel = 2;  ///< grade 1..5 of the plate check
    int leastThickness = 10; ///< of the plate, mm
    /// The plate has stiffeners that are not designed here: its thickness is the one above.
    bool stiffened = false;
    int grout = 50; ///< under the plate, mm

    bool operator==(const DesignRange&) const = default;
};

/// What of a range cannot be worked with.
enum class RangePart {
    Column,     ///< below 0
    Length,     ///< not 1 <= from <= to <= 32767 with a step of 1 or more
    Width,      ///< the same
    Ratio,      ///< above 1 or below 0.05
    Layouts,    ///< none, or another than 4, 6, 8, 12
    Diameters,  ///< none, or one off the series
    Steels,     ///< none, or another than 1..7
    Distances,  ///< below 0 or above 100 diameters, 1000 mm
    Pressure,   ///< not from 1 to 2
    PlateSteel, ///< not 1..5
    Thickness,  ///< least thickness not 1..100 mm, or grout not 0..500 mm
    TooMany     ///< more candidates than `mostCandidates`
};
inline constexpr long mostCandidates = 20'000'000;

/// The first part of a range that is wrong.
std::optional<RangePart> wrongPart(const DesignRange& range);

/// The widths that a range has for a length: none above it.
std::vector<int> widthsFor(const DesignRange& range, int length);

/// How many bases the range describes, those left out for want of room included.
long candidates(const DesignRange& range);

/// Distance of the anchors' axes from the edges of the plate, mm.
int edgeDistance(const DesignRange& range, Integer diameter);

/// Where the anchors of a plate stand, mm, symmetrical about both axes: 4 at the corners; 6 with
/// one more in the middle of each edge along the width; 8 with one in the middle of every edge; 12
/// with two in the thirds of every edge. A plate of an odd size has its outermost anchors half a
/// millimetre further in. Empty where they do not keep their distances from one another and from
/// the column.
std::vector<equilibrium::Point> anchorPlaces(const DesignRange& range, int length, int width,
                                             int layout, Integer diameter);

/// Distance of a place from the outline of the column, 0 on it and under the column.
double fromColumn(const DesignRange& range, const equilibrium::Point& place);

/// Distance of a place from the nearest of the others.
double toNearest(const std::vector<equilibrium::Point>& places, std::size_t place);

} // namespace ferna::smallest
