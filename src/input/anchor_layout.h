#pragma once

#include "design/stan.h"
#include "runtime/dialogs.h"

#include <functional>

namespace ferna {

/// What the dialog of a new anchor hands over: diameter and coordinates, mm.
struct NewAnchor {
    Integer Nowa_fi = 0;
    Integer Nowa_x = 0;
    Integer Nowa_y = 0;
};

/// The four ways of adding anchors.
enum class Adding {
    One,        ///< cmdDodaj1s
    PairAboutX, ///< cmdDodaj2x
    PairAboutY, ///< cmdDodaj2y: a negative x puts both anchors at the same point
    Four        ///< cmdDodaj4
};

/// Caption of the dialog for a way of adding.
QString newAnchorCaption(Adding way);

/// Raises the count, asks for the anchor, stores it with its mirror images and renews the list.
/// Error 9 for a 21st anchor; the anchors that were there stay as they were.
void addAnchors(Stan& stan, Adding way, const std::function<NewAnchor()>& ask);

/// Stores one anchor in a slot: coordinates in mm as typed and in cm.
void storeAnchorAt(Plyta_i_kotwy& plate, int slot, int x, int y, Integer fi);

/// Rebuilds the line of every anchor in `Wiersze_srub`.
void fillAnchorLines(Stan& stan);

/// The same; returns the lines as the text of the list.
QString Lista_srub(Stan& stan);

/// True where the listed millimetres are those that the calculation and the drawing take.
bool listIsTrue(const Plyta_i_kotwy& plate);

/// Asks for an anchor and removes it; false where nothing was removed. The coordinates in mm of the
/// anchors above are not moved, only those in cm and the diameters. Error 13 for no number.
bool removeOneAnchor(Stan& stan, Dialogs& dialogs);

/// Asks whether to remove all anchors and does so; false on No.
bool removeAllAnchors(Stan& stan, Dialogs& dialogs);

/// The anchor whose diameter is to change: its number, or -1 for all.
inline constexpr Integer allAnchors = -1;

/// Asks for the number of the anchor to change. Number 0 passes and changes nothing visible.
/// Empty where the command ends here. Error 13 for no number.
std::optional<Integer> askForAnchorToChange(const Stan& stan, Dialogs& dialogs);

/// `allAnchors`, or empty after the message that there are none.
std::optional<Integer> allAnchorsToChange(const Stan& stan, Dialogs& dialogs);

/// Heading of the diameter dialog for an anchor or for all.
QString diameterHeading(const Stan& stan, Integer Nr_zmienianej);

/// Gives the new diameter to an anchor or to all.
void changeDiameter(Stan& stan, Integer Nr_zmienianej, Integer fi);

} // namespace ferna
