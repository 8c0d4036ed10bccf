#pragma once

#include "smallest/design_range.h"

#include <span>

namespace ferna::smallest {

// The steel of a base by the rules below: its plate and its anchors, without nuts, washers, the
// plates of anchors, welds and stiffeners.

/// The thickness of a plate with stiffeners is the range's. Without, it is the largest that these
/// ask for, in all cases, up to whole millimetres (PN-B-03215:1998, Annex B, the two strips of the
/// plate check):
/// - a cantilever from the column to the farther edge under the largest pressure of the case, even
///   over its length;
/// - at each anchor in tension a cantilever as long as the anchor is away from the column, twice as
///   wide as the least of that length, the anchor's distance from the edge and half of that to the
///   next anchor;
/// - the range's least thickness.
class PlateThickness {
public:
    PlateThickness(const DesignRange& range, int length, int width, int edge,
                   const std::vector<equilibrium::Point>& places, double area);

    /// Takes a case in; `area` of the anchors is in mm2.
    void take(const equilibrium::Result& found);

    /// mm; empty where it is beyond what the strength of the plate's steel holds for.
    std::optional<int> found() const;

private:
    double cantilever_;
    double pressure_ = 0;
    /// Of the anchors, by number: distance from the column and width of the strip, mm.
    struct Strip {
        double length;
        double width;
    };
    std::vector<Strip> strips_;
    std::vector<double> pulls_; ///< kN
    double area_;
    int least_;
    bool stiffened_;
    Integer steel_;
};

/// Thickness up to which the strength of a plate steel 1..5 holds, mm: 100 for St3, else that of
/// the table.
int thickestPlate(Integer plateSteel);

/// Whole length of a hooked anchor of the catalogue through plate and grout, mm. `coefficient` is
/// that of the concrete for anchors above 30 mm.
int anchorLength(Integer diameter, int thickness, int grout, Single coefficient);

double plateMass(int length, int width, int thickness);                 ///< kg
double anchorMass(int anchors, Integer diameter, int lengthOfAnAnchor); ///< kg, of all

} // namespace ferna::smallest
