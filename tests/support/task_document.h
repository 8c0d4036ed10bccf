#pragma once

#include "batch/object_reader.h"

namespace ferna::testing {

/// A value that a test has put together, as the program reads it.
inline batch::TaskDocument documentOf(const batch::Json& json) {
    return batch::parsed(json.dump());
}

} // namespace ferna::testing
