#pragma once

#include "task/object_reader.h"

#include <string>

namespace ferna::testing {

/// A value that a test has put together, as the program reads it.
inline TaskDocument documentOf(const Json& json) {
    return parsed(json.dump());
}

/// What a reader of a section says of a text that it refuses; "accepted" where it does not.
template <typename Read>
std::string refusalOf(Read read, const char* text) {
    try {
        read(parsed(text));
    } catch (const TaskError& error) {
        return error.what();
    }
    return "accepted";
}

} // namespace ferna::testing
