#include "batch/field_keys.h"

#include <array>
#include <utility>

namespace ferna::batch {

namespace {

using Names = std::pair<const char*, const char*>;

constexpr std::array<Names, 4> fields{{
    {"txtNr_strony", "Nr_strony"},
    {"Text2", "Wsp_n_val"},
    {"Text3", "Dlug_plyty_mm"},
    {"Text4", "Szer_plyty_mm"},
}};

/// Columns of the load table.
constexpr std::array<Names, 5> columns{{
    {"Text6_", "N"},
    {"Text7_", "M1"},
    {"Text8_", "M2"},
    {"Text5_", "Vx"},
    {"Text10_", "Vy"},
}};

} // namespace

std::string keyOfControl(const QString& control) {
    for (const auto& [name, key] : fields)
        if (control == QLatin1String(name))
            return key;
    for (const auto& [name, key] : columns)
        if (control.startsWith(QLatin1String(name)))
            return "Przypadki[" + control.mid(QLatin1String(name).size()).toStdString() + "]."
                   + key;
    return {};
}

} // namespace ferna::batch
