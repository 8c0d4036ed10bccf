#include "input/load_table.h"

#include "runtime/format.h"

namespace ferna {

void takeCaseCount(Stan& stan, QString& text) {
    stan.obciazenia.Liczba_przyp = taking({Value::CaseCount}, [&] { return CInt(text); });
    if (stan.obciazenia.Liczba_przyp > MaxCases) {
        stan.obciazenia.Liczba_przyp = MaxCases;
        text = general(MaxCases);
    }
}

} // namespace ferna
