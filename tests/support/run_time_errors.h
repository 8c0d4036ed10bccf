#pragma once

#include "runtime/run_time_error.h"
#include "support/printing.h"

#include <optional>

namespace ferna::testing {

/// The run-time error that `command` ends in; empty where it ends in none.
template <typename Command>
std::optional<RunTimeError> errorOf(const Command& command) {
    try {
        command();
        return std::nullopt;
    } catch (const RunTimeError& failure) {
        return failure;
    }
}

/// Its number, 0 where there is none.
template <typename Command>
int errorNumberOf(const Command& command) {
    const auto failure = errorOf(command);
    return failure ? failure->number() : 0;
}

} // namespace ferna::testing
