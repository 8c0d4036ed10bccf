#pragma once

#include "design/input_fields.h"
#include "runtime/dialogs.h"

namespace ferna {

struct Stan_przypadku;

/// How a calculation ended.
enum class CalculationEnd {
    Refused,   ///< a validation showed its message; nothing was computed
    NoResults, ///< computed, but a case ended in "BRAK ROZWIĄZANIA"
    Computed   ///< computed; the results are to be shown
};

/// What the calculation command needs from its surroundings.
class CalculationHost {
public:
    virtual ~CalculationHost() = default;

    /// The dialog of the user's anchor steel; leaves its outcome in `Stal_anulowana`.
    virtual void KGM8(Stan& stan) = 0;
    /// Draws the plate and saves the picture for the report.
    virtual void drawPlate(Stan& stan, const InputFields& fields) = 0;
    /// Told after each load case, solved or not, before the next one begins.
    virtual void caseEnded(int /*c*/) {}
    /// Told before the message that a load case is refused for its axial force.
    virtual void caseRefused(int /*c*/) {}
};

/// The command "Oblicz": validates the fields, reads them into the state, assigns steel and
/// concrete, and computes every load case. A failed validation shows its message through `dialogs`
/// and leaves the fields assigned so far as they are. Run-time errors pass through: 13 for a field
/// that is no number, 6, 9 and 11 as the analysis raises them.
CalculationEnd Oblicz(Stan& stan, Stan_przypadku& przypadek, const InputFields& fields,
                      Dialogs& dialogs, CalculationHost& host);

} // namespace ferna
