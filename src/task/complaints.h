#pragma once

#include "task/task_error.h"

#include <string>

namespace ferna {

// What more than one reader of a task complains about.

inline const Complaint keyTwice{"this key stands twice", "ten klucz stoi dwa razy"};

inline Complaint tooDeep(std::size_t levels) {
    const std::string number = std::to_string(levels);
    return {"expected at most " + number + " objects and arrays within one another",
            "obiekty i tablice mogą stać w sobie najwyżej " + number + "-krotnie"};
}

} // namespace ferna
