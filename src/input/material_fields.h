#pragma once

#include "design/stan.h"
#include "runtime/dialogs.h"

namespace ferna {

/// Click of the norm option k: `Nr_betonu` moves with the list so as to stay on the same class.
void chooseNorm(Stan& stan, Integer k);

/// Leaving the concrete list with item `index` chosen: its number and modulus.
void chooseConcrete(Stan& stan, int index);

/// The modulus of the concrete in force. Error 9 for a number off the list.
void takeEb(Stan& stan);

/// The ratio n of the concrete in force, computed into `Wsp_n_val`. Error 11 without a modulus.
void computeRatio(Stan& stan);

/// The ratio n in force as its field shows it.
QString ratioText(const Stan& stan);

/// The text of the dialog `FernaPon` and the caption of its middle button.
struct RatioOffer {
    QString Label1;
    QString cmdn_1;
};
RatioOffer ratioOffer(const Stan& stan);

/// Click of a button of `FernaPon`: 0 takes n = 6, 1 the computed value, 2 asks for another one; an
/// empty answer gives 6. Error 13 for an answer that is no number.
void chooseRatio(Stan& stan, int index, Dialogs& dialogs);

} // namespace ferna
