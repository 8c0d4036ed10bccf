#pragma once

#include "design/load_row.h"
#include "runtime/dialogs.h"
#include "runtime/indexed_array.h"
#include "runtime/numbers.h"

#include <QStringList>

#include <array>

namespace ferna {

inline constexpr int MaxColumnLoads = 15;

/// The declared loads by slot, 1..15. They outlive the form: an opening clears the slots from 1 on,
/// slot 0 keeps what a removal without a selection has moved into it.
struct Stan_statyki {
    Integer Liczba_obc = 0;
    /// Row 1 direction: 1 vertical, 2 plane ZX, 3 plane ZY; row 2 kind: 0 force, 1 distributed,
    /// 2 moment.
    std::array<IndexedArray<Integer, MaxColumnLoads>, 2> Obc_typ;
    /// Rows 1 to 4, the values as typed: P, -, ex, ey (kN, mm); H, -, h (kN, m); p1, p2, h1, h2
    /// (kN/m, m); M (kNm).
    std::array<IndexedArray<Single, MaxColumnLoads>, 4> Obc_wart;
};

/// The form `StatykaS`.
struct StaticsForm {
    QStringList lstObciazen;
    int selected = -1;        ///< line of lstObciazen, -1 for none
    LoadRow<QString> totals;  ///< the only place of them
    int optTypObciaz = -1;    ///< chosen direction 0..2, -1 for none
    int optTypsily = -1;      ///< chosen kind 0..2, -1 for none
    bool kindsVisible = true; ///< optTypsily(1) and (2)
    bool cmdUsun_enabled = false;
};

/// Opens the form with an empty list.
StaticsForm openStatics(Stan_statyki& loads);

/// Click on `optTypObciaz(index)`: a vertical load is always a force.
void chooseDirection(StaticsForm& form, int index);
/// Click on `optTypsily(index)`.
void chooseKind(StaticsForm& form, int index);

/// The dialog `Obciazenie`: its layout by direction and kind, and its fields.
struct LoadDialog {
    /// A field with its caption; without one it is hidden.
    struct Field {
        QString caption;
        QString text;

        bool shown() const { return !caption.isEmpty(); }
    };
    Integer Kierunek = 0; ///< index of the direction
    Integer Rodzaj = 0;   ///< index of the kind
    QString Label1;
    Field load;       ///< P, H, p1 or M
    Field secondLoad; ///< p2
    Field arm;        ///< ex, h or h1
    Field secondArm;  ///< ey or h2
    int sketch = 1;   ///< image 1..7 of `ilsObciaz`
};

/// `cmdDodaj`: the dialog for the options of the form; one that is not chosen counts as 0.
LoadDialog openLoadDialog(const StaticsForm& form);

/// `cmdExit` of the dialog: takes the load into a new slot, adds its shares to the totals and its
/// line to the list. Error 13 where a shown field or a total is no number, 9 for a sixteenth load
/// (the count has grown by then), 6.
void acceptLoad(Stan_statyki& loads, StaticsForm& form, const LoadDialog& dialog);

/// `cmdUsun`: takes the shares of the selected line's slot off the totals and moves the slots above
/// it down. Without a selection it says so and does the same to slot 0, and the list keeps its
/// lines. Error 13 where a total is no number, 9 where the slots are overrun.
void removeLoad(Stan_statyki& loads, StaticsForm& form, Dialogs& dialogs);

} // namespace ferna
