#pragma once

#include "runtime/typed_value.h"

#include <string>

namespace ferna {

/// The key of the task under which a value of the input stands (N of row 0 is "Przypadki[0].N");
/// empty for another value.
std::string keyOfValue(const TypedValue& value);

} // namespace ferna
