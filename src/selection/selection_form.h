#pragma once

#include "design/stan.h"
#include "runtime/dialogs.h"

#include <QString>

#include <array>

namespace ferna {

/// The dialog `Dobor_fer`: its captions and the dimensions behind them. Index 0 is the tab of the
/// hooked anchor, 1 that of the plate anchor. It is made anew by each opening.
struct SelectionForm {
    // Captions; a value is appended to the designed one.
    std::array<QString, 2> SSTab1{QStringLiteral("Ferna fajkowa"),
                                  QStringLiteral("Ferna płytkowa")};
    std::array<QString, 2> lblNazwa{QStringLiteral("F"), QStringLiteral("P")};
    std::array<QString, 2> lbldia{QStringLiteral("d = "), QStringLiteral("d = ")};
    std::array<QString, 2> lblNosnosc{QStringLiteral("Nośność:  "), QStringLiteral("Nośność:  ")};
    std::array<QString, 2> lblLd{QStringLiteral("Ld = "), QStringLiteral("Ld = ")};
    std::array<QString, 2> lblLo{QStringLiteral("Lo ="), QStringLiteral("Lo =")};
    std::array<QString, 2> lblLcalk{QStringLiteral("Lcałk. =  "), QStringLiteral("Lcałk. =  ")};
    QString lblLh = QStringLiteral("Lh = ");
    QString lblD = QStringLiteral("D = ");
    QString lbla = QStringLiteral("a =");
    QString lblt = QStringLiteral("t = ");
    QString lblL1 = QStringLiteral("L1 = ");
    bool lblL1_visible = false;
    int Picture1 = 2; ///< sketch of the plate anchor: 2 small, 3 large; saved as "Szkick.bmp" by OK
    int tab = 0;      ///< the tab in front
    std::array<bool, 2> tabEnabled{true, true};

    Integer d = 0;           ///< diameter of the most loaded anchor, mm
    Single Nosnosc = 0;      ///< capacity, kN
    Integer Grub_laczna = 0; ///< combined thickness g of base plate and grout, mm
    Integer Lh = 0, D = 0, Ld = 0, a = 0, t = 0, LoF = 0, LcF = 0; ///< mm
};

/// True where the results offer the selection: no anchor is exceeded, and there is no selection.
bool anchorSelectionOffered(const Stan& stan);

/// Loading: asks for the combined thickness and fills the form for the most loaded anchor. False
/// where a run-time error, shown with its number, stopped it: the form stands as far as it was
/// filled. A thickness that is no number is said and taken as 0.
bool loadSelection(Stan& stan, SelectionForm& form, Dialogs& dialogs);

/// Brings a tab to the front; a disabled one stays behind.
void bringToFront(SelectionForm& form, int tab);

/// `cmdOK`: writes the lines of the kind on the tab in front into `Wiersze_kotwy` from 1, counts
/// them and chooses the sketch.
void acceptSelection(Stan& stan, const SelectionForm& form);

} // namespace ferna
