#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace ferna::batch {

/// What there are schemas of: a task, its result, the range of a search for the smallest base, its
/// answer, and the answer of the capacity.
const QStringList& schemaNames();

/// The JSON schema (draft 2020-12) of one of these, as the package installs it; empty for any other
/// name.
std::optional<std::string> schemaOf(const QString& name);

} // namespace ferna::batch
