#pragma once

#include <QString>

#include <optional>
#include <string>

namespace ferna::batch {

/// The JSON schema (draft 2020-12) of a task ("zadanie") or of a result ("wynik"), as the package
/// installs it; empty for any other name.
std::optional<std::string> schemaOf(const QString& name);

} // namespace ferna::batch
