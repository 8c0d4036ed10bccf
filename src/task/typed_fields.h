#pragma once

#include "design/input_fields.h"
#include "task/field_keys.h"

#include <string>

namespace ferna {

/// Calls `each(key, text)` for every field of the main form that holds a typed number, with its key
/// in the task (`keyOfValue`), all six rows of the load table included. `Fields` is InputFields or
/// const.
template <typename Fields, typename Each>
void forTypedFields(Fields& fields, const Each& each) {
    each(keyOfValue({Value::PageNumber}), fields.txtNr_strony);
    each(keyOfValue({Value::RatioN}), fields.Text2);
    each(keyOfValue({Value::PlateLength}), fields.Text3);
    each(keyOfValue({Value::PlateWidth}), fields.Text4);
    int r = 0;
    for (auto& row : fields.loads) {
        each(keyOfValue({Value::N, r}), row.N);
        each(keyOfValue({Value::M1, r}), row.M1);
        each(keyOfValue({Value::M2, r}), row.M2);
        each(keyOfValue({Value::Vx, r}), row.Vx);
        each(keyOfValue({Value::Vy, r}), row.Vy);
        ++r;
    }
}

} // namespace ferna
