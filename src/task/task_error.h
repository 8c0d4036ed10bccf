#pragma once

#include <stdexcept>
#include <string>

namespace ferna {

/// A task that the companion refuses before anything is computed: where in the task (a key path
/// such as "Kotwy[3].fi", empty for the whole text) and what is wrong there.
struct TaskError : std::runtime_error {
    TaskError(std::string where, const std::string& complaint)
        : std::runtime_error(where.empty() ? complaint : where + ": " + complaint),
          path(std::move(where)) {}

    std::string path;
};

} // namespace ferna
