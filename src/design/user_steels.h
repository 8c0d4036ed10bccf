#pragma once

#include "design/material_tables.h"
#include "design/stan.h"
#include "runtime/dialogs.h"

#include <optional>

namespace ferna {

/// The fields of the dialog `KGM8` (anchors) as typed.
struct AnchorSteelFields {
    QString name;
    QString fd;     ///< MPa
    QString fi_max; ///< largest diameter, mm
    QString Rm;     ///< MPa
    QString Re;     ///< MPa

    bool operator==(const AnchorSteelFields&) const = default;
};

/// The fields of the dialog `KGM8b` (plate) as typed.
struct PlateSteelFields {
    QString name;
    QString fd;    ///< MPa
    QString t_max; ///< largest thickness, mm

    bool operator==(const PlateSteelFields&) const = default;
};

/// Where the focus goes after a refusal.
enum class SteelField { Name, Strength, Largest };

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
