#pragma once

#include "task/object_reader.h"

namespace ferna::testing {

/// A value that a test has put together, as the program reads it.
inline TaskDocument documentOf(const Json& json) {
    return parsed(json.dump());
}

} // namespace ferna::testing
