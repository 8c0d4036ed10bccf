#include "task/field_keys.h"

namespace ferna {

namespace {

std::string ofCase(int row, const char* load) {
    return "Przypadki[" + std::to_string(row) + "]." + load;
}

} // namespace

std::string keyOfValue(const TypedValue& value) {
    switch (value.value) {
    case Value::PageNumber:
        return "Nr_strony";
    case Value::RatioN:
        return "Wsp_n_val";
    case Value::PlateLength:
        return "Dlug_plyty_mm";
    case Value::PlateWidth:
        return "Szer_plyty_mm";
    case Value::N:
        return ofCase(value.of, "N");
    case Value::M1:
        return ofCase(value.of, "M1");
    case Value::M2:
        return ofCase(value.of, "M2");
    case Value::Vx:
        return ofCase(value.of, "Vx");
    case Value::Vy:
        return ofCase(value.of, "Vy");
    default:
        return {};
    }
}

} // namespace ferna
