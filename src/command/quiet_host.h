#pragma once

#include "command/calculation.h"
#include "design/stan.h"

namespace ferna {

/// The surroundings of a calculation that shows and draws nothing: the user's steel is the one that
/// is remembered.
class QuietHost : public CalculationHost {
public:
    explicit QuietHost(Dialogs& dialogs) : dialogs_(dialogs) {}

    void KGM8(Stan& stan) override;
    void drawPlate(Stan& /*stan*/, const InputFields& /*fields*/) override {}

private:
    Dialogs& dialogs_;
};

/// The state of a program that has just been started with these settings, as far as a calculation
/// reads it: nothing of earlier calculations. Without catalogue and anchors.
Stan freshState(const Stan& entered);

} // namespace ferna
