#pragma once

#include "smallest/search.h"

namespace ferna::smallest {

/// Takes plate, anchors and steel of a design into a state and the fields of the main form; all
/// else stays.
void enter(const Design& design, const DesignRange& range, Stan& stan, InputFields& fields);

/// What the calculation says about a design.
struct Confirmation {
    bool confirmed = false;
    QString reason; ///< Polish, why it is not
};

/// Has a design calculated as "Oblicz" would from a fresh start, with loads, concrete and norm of
/// what is entered. Confirmed where every case is solved and every verdict is that the check is
/// satisfied, the pressure up to the range's limit. No box is shown, and nothing is written.
Confirmation confirm(const Design& design, const DesignRange& range, const Stan& stan,
                     const InputFields& fields);

/// A design with what the calculation says about it.
struct Winner {
    Design design;
    Confirmation calculation;
};

/// The lightest designs of a range in order until `most` of them are confirmed, the others among
/// them; of no more than `tried`. `found` tells how the search went.
struct Winners {
    Found found;
    std::vector<Winner> all;
};
inline constexpr std::size_t mostTried = 60;
Winners winners(const DesignRange& range, const Task& task, const Stan& stan,
                const InputFields& fields, std::size_t most, const GoesOn& goesOn = {});

} // namespace ferna::smallest
