#pragma once

#include "design/material_tables.h"
#include "design/stan.h"
#include "runtime/dialogs.h"

#include <array>
#include <optional>

namespace ferna {

/// The fields of the dialog `KGM8` (anchors) as typed.
struct AnchorSteelFields {
    QString Text1;                ///< name
    std::array<QString, 4> Text2; ///< fd MPa, largest diameter mm, Rm MPa, Re MPa
};

/// The fields of the dialog `KGM8b` (plate) as typed.
struct PlateSteelFields {
    QString Text1;                ///< name
    std::array<QString, 2> Text2; ///< fd MPa, largest thickness mm
};

/// Where the focus goes after a refusal: Text1 or a member of Text2.
enum class SteelField { Text1, Text2_0, Text2_1 };

/// The fields with the values last remembered.
AnchorSteelFields rememberedAnchorSteel(const Materialy& materials);
PlateSteelFields rememberedPlateSteel(const Materialy& materials);

/// OK of the anchor steel dialog. Empty where the steel is accepted (the dialog closes, and
/// `Stal_anulowana` is False); otherwise the message has been shown and the field is to be focused.
std::optional<SteelField> acceptAnchorSteel(Stan& stan, const AnchorSteelFields& fields,
                                            Dialogs& dialogs);

/// OK of the plate steel dialog, likewise.
std::optional<SteelField> acceptPlateSteel(Stan& stan, const PlateSteelFields& fields,
                                           Dialogs& dialogs);

/// Strengths of the anchor steel last remembered: fd as given, 0.85 Re for the tensile term of the
/// interaction, 0.45 Rm in shear. It has no class.
AnchorSteel userStrengths(const Materialy& remembered);

/// Cancel of either dialog.
void cancelSteel(Stan& stan);

} // namespace ferna
