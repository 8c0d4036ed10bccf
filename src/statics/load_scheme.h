#pragma once

#include "design/load_row.h"
#include "design/stan.h"

#include <array>

namespace ferna {

/// The dialog `Statyka_sch`. It is a face only: whatever is chosen in it and however it is closed,
/// the totals go into a new row.
struct SchemeDialog {
    std::array<bool, 3> optZapis_visible{true, true, true};
    int optZapis = -1; ///< chosen mode
    std::array<bool, MaxCases> optNumer_visible{};
    int optNumer = -1; ///< chosen number
    QString cmdZapisz; ///< its caption
};

/// The dialog as it stands after loading, by the number of load cases.
SchemeDialog openSchemeDialog(Integer Liczba_przyp);

/// Click on `optZapis(index)`.
void chooseMode(SchemeDialog& dialog, int index, Integer Liczba_przyp);

/// The load table of the main form as the saving needs it.
class LoadTable {
public:
    virtual ~LoadTable() = default;
    /// The field of the number of cases, `Text1`.
    virtual void setCount(const QString& text) = 0;
    /// Texts of row r = 0..5.
    virtual void setRow(int r, const LoadRow<QString>& texts) = 0;
    /// Makes the fields of the row visible, in that order.
    virtual void showRow(int r) = 0;
};

/// `cmdZapisz` of `StatykaS`, after the dialog has closed: a new row takes the totals as they
/// stand. Error 9 where six rows stand already; the number of cases and its field
/// have changed by then.
void saveTotals(Stan& stan, const LoadRow<QString>& totals, LoadTable& table);

} // namespace ferna
