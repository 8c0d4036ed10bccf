#include "input/load_table.h"

#include "runtime/format.h"

namespace ferna {

void takeCaseCount(Stan& stan, QString& Text1) {
    stan.obciazenia.Liczba_przyp = inControl(QStringLiteral("Text1"), [&] { return CInt(Text1); });
    if (stan.obciazenia.Liczba_przyp > MaxCases) {
        stan.obciazenia.Liczba_przyp = MaxCases;
        Text1 = general(MaxCases);
    }
}

} // namespace ferna
