#include "statics/load_scheme.h"

#include "runtime/format.h"

#include <algorithm>

namespace ferna {

namespace {

constexpr int newScheme = 0;
constexpr int replaceScheme = 2;

/// Shows the numbers first..last, as far as there are any, and chooses one.
void offerNumbers(SchemeDialog& dialog, int first, int last, int chosen) {
    dialog.optNumer_visible.fill(false);
    for (int i = std::max(first, 0); i <= std::min(last, MaxCases - 1); ++i)
        dialog.optNumer_visible[static_cast<std::size_t>(i)] = true;
    dialog.optNumer = chosen < MaxCases ? chosen : -1;
}

} // namespace

SchemeDialog openSchemeDialog(Integer Liczba_przyp) {
    SchemeDialog dialog;
    const bool full = Liczba_przyp >= MaxCases;
    const bool empty = Liczba_przyp <= 0;
    dialog.optZapis = full ? replaceScheme : newScheme;
    dialog.optZapis_visible = {!full, !empty, !empty};
    // With a full table the caption is not that of the chosen mode.
    dialog.cmdZapisz = full ? QStringLiteral("Dodaj") : QStringLiteral("Zapisz");
    offerNumbers(dialog, 0, Liczba_przyp, full ? 0 : std::max<int>(Liczba_przyp, 0));
    return dialog;
}

void chooseMode(SchemeDialog& dialog, int index, Integer Liczba_przyp) {
    dialog.optZapis = index;
    if (index == newScheme) {
        dialog.cmdZapisz = QStringLiteral("Zapisz");
        offerNumbers(dialog, Liczba_przyp, Liczba_przyp, Liczba_przyp);
        return;
    }
    dialog.cmdZapisz = index == replaceScheme ? QStringLiteral("Zastąp") : QStringLiteral("Dodaj");
    offerNumbers(dialog, 0, Liczba_przyp - 1, 0);
}

void saveTotals(Stan& stan, const LoadRow<QString>& totals, LoadTable& table) {
    Integer& count = stan.obciazenia.Liczba_przyp;
    count = CInt(count + 1);
    table.setCount(Format(count, u"#0"));
    const int r = count - 1;
    if (r >= MaxCases)
        throw RunTimeError(error::Subscript);
    table.setRow(r, totals);
    table.showRow(r);
}

} // namespace ferna
