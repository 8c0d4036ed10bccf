#pragma once

#include "design/stan.h"
#include "runtime/dialogs.h"

#include <QString>

#include <array>
#include <optional>

namespace ferna {

inline constexpr int PlateChecks = 8;

/// The line of a check before its first result.
inline const QString noPlateResult = QStringLiteral("Wymagana ...");

/// The fields of the form `Grub_bla` as they stand there: the texts of each check by its own
/// letters, and the controls that there are once.
struct PlateFields {
    int cmbStalb = -1;  ///< chosen item, -1 for none
    int cmbProfil = -1; ///< chosen item, -1 for none
    struct TensionStrip {
        QString bs, ca, S;
    };
    struct CompressionStrip {
        QString ca, sigma_k, sigma_p;
    };
    struct Fragment {
        QString l, b, sigma;
    };
    struct ColumnBase {
        QString sigma;
    };
    struct AnchorFragment {
        QString b, a, c, S;
    };
    TensionStrip check1;
    CompressionStrip check2;
    Fragment check3, check5, check6;
    ColumnBase check4;
    AnchorFragment check7, check8;
    QString Text4; ///< accepted thickness, mm
};

/// What the form shows and lets be pressed.
struct PlateFace {
    std::array<QString, PlateChecks> Label8; ///< result line of check n at n - 1
    std::array<bool, PlateChecks> Label8_visible{};
    bool Label10_visible = false; ///< both words around Text4
    bool Text4_visible = false;
    std::array<bool, PlateChecks> cmdOblicz_enabled{}; ///< command of check n at n - 1
};

/// Inputs of the checks as last read, for the report. Lengths mm, stresses MPa, forces kN.
struct PlateInputs {
    struct {
        Single bs, ca, S;
    } check1{};
    struct {
        Single ca, sigma_k, sigma_p;
    } check2{};
    struct Fragment {
        Integer l, b;
        Single sigma;
    };
    Fragment check3{}, check5{}, check6{};
    struct {
        Integer Nr_profilu;
        Single sigma;
    } check4{};
    struct AnchorFragment {
        Integer b, a, c;
        Single S;
    };
    AnchorFragment check7{}, check8{};
};

/// The form as a whole; it is made anew by each opening.
struct PlateForm {
    PlateFields fields;
    PlateFace face;
    PlateInputs inputs;
    std::array<bool, PlateChecks> refused{};   ///< check n at n - 1: pressed last without a result
    std::array<QString, PlateChecks> why{};    ///< what its refusal has told; empty where nothing
    std::array<bool, PlateChecks> withdrawn{}; ///< pressed, and withdrawn since
    Integer Nr_stali_blachy = 0;               ///< item of cmbStalb plus 1, as last taken
};

/// A tab of the form, in the order on the screen.
struct PlateTab {
    int check;  ///< 1..8
    int sketch; ///< image 1..7 of its sketch, 0 for none
};

/// Tab 0..7. Error 9 for another number.
const PlateTab& plateTab(int tab);

/// Opening: withdraws the section and the user's plate steel, clears the checks 1 to 4 and fills
/// the first values from the results. Errors 6 and 9 for results that cannot be.
PlateForm openPlateForm(Stan& stan);

/// The dialog of the user's plate steel.
class PlateSteelHost {
public:
    virtual ~PlateSteelHost() = default;
    /// Leaves its outcome in `Stal_anulowana` and the steel in the state.
    virtual void KGM8b(Stan& stan) = 0;
};

/// Asks for the user's plate steel, with the message where none came of it.
void askPlateSteel(Stan& stan, Dialogs& dialogs, PlateSteelHost& host);

/// The engineer leaves the list of grades: a listed grade withdraws every result; "inna stal" asks
/// for the steel unless there is one.
void leaveGradeList(Stan& stan, PlateForm& form, Dialogs& dialogs, PlateSteelHost& host);

/// `cmdAnulujto(i)`, i = 0..7: withdraws check i + 1, sets the accepted thickness to the largest
/// that stands and gives back the commands that the check excluded.
void cmdAnulujto(Stan& stan, PlateForm& form, int i);

} // namespace ferna
