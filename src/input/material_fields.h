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

/// The ratio n that the engineer typed. Error 13 where the text is no number; 6 where it is one
/// that the configuration cannot hold, so that the next start would refuse the whole task.
Single typedRatio(const QString& text);

/// Leaving the field of n with this text: error 6 as above. Letters pass, the calculation is the
/// one to refuse them.
void leaveRatio(const QString& text);

/// The text of the dialog `FernaPon` and the caption of its middle button.
struct RatioOffer {
    QString Label1;
    QString cmdn_1;
};
RatioOffer ratioOffer(const Stan& stan);

/// Click of a button of `FernaPon`: 0 takes n = 6, 1 the computed value, 2 asks for another one; an
/// empty answer gives 6. Errors of `typedRatio`; n is then as it was.
void chooseRatio(Stan& stan, int index, Dialogs& dialogs);

} // namespace ferna
