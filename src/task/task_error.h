#pragma once

#include <stdexcept>
#include <string>

namespace ferna {

/// What is wrong with a value of a task, in both languages that tell it.
struct Complaint {
    std::string english; ///< the companion
    std::string polish;  ///< the windows
};

/// A task that is refused before anything is computed: where in the task (a key path such as
/// "Kotwy[3].fi", empty for the whole text) and what is wrong there.
struct TaskError : std::runtime_error {
    TaskError(std::string where, Complaint complaint)
        : std::runtime_error(where.empty() ? complaint.english : where + ": " + complaint.english),
          path(std::move(where)), polish(std::move(complaint.polish)) {}

    std::string path;
    std::string polish; ///< without the path
};

} // namespace ferna
