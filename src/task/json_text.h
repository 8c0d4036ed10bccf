#pragma once

#include "task/object_reader.h"

#include <optional>
#include <string>

namespace ferna {

/// The number of a typed text, empty where it is none.
std::optional<double> numberIn(const QString& text);

/// A number as JSON, a whole one without a fraction.
Json jsonNumber(double value);

/// JSON as a person reads it: four blanks a level, objects and arrays without others inside on one
/// line. UTF-8, a line end at the end.
std::string readableText(const Json& value);

} // namespace ferna
