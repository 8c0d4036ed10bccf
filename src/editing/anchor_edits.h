#pragma once

#include "design/stan.h"
#include "notes/record.h"

#include <QString>

#include <map>
#include <vector>

namespace ferna::editing {

/// Numbers of anchors, 1..20, each once, ascending.
using Anchors = std::vector<int>;

/// Where an anchor stands as it is computed and drawn, mm from the middle of the plate.
struct AnchorPlace {
    Double x = 0;
    Double y = 0;
};
AnchorPlace anchorPlace(const Plyta_i_kotwy& plate, int anchor);

// What the edits have in common: afterwards every anchor of the plate is listed where it is
// computed and drawn, also those that a command or a calculation had left listed elsewhere.

/// Moves anchors by whole millimetres. False, and nothing moved, where one of them would come
/// beyond the coordinates that the program takes.
bool moveAnchors(Plyta_i_kotwy& plate, const Anchors& anchors, int dx, int dy);

/// Removes anchors; those above take their numbers.
void removeAnchors(Plyta_i_kotwy& plate, const Anchors& anchors);

/// Puts one anchor to a place, and gives it a diameter, mm.
void setAnchor(Plyta_i_kotwy& plate, int anchor, AnchorPlace place, Integer fi);

/// What a coordinate's text is: its millimetres, or why it is not taken.
struct TypedCoordinate {
    Double value = 0;
    QString refusal; ///< empty where it is taken
};
TypedCoordinate typedCoordinate(const QString& text);

/// The anchors that a note puts in question, each with its note: in one place with another, off
/// the plate, of no diameter of the series.
std::map<int, QString> doubtfulAnchors(const notes::Entered& entered);

} // namespace ferna::editing
