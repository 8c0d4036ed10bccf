#include "command/quiet_host.h"

#include "design/user_steels.h"

namespace ferna {

void QuietHost::KGM8(Stan& stan) {
    if (acceptAnchorSteel(stan, rememberedAnchorSteel(stan.materialy), dialogs_))
        cancelSteel(stan);
}

Stan freshState(const Stan& entered) {
    Stan fresh;
    fresh.opcje = entered.opcje;
    fresh.obciazenia.Liczba_przyp = entered.obciazenia.Liczba_przyp;
    fresh.materialy = entered.materialy;
    return fresh;
}

} // namespace ferna
