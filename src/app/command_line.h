#pragma once

#include <QStringList>

#include <optional>

namespace ferna {

/// What the program has to say at a call before it opens any window.
struct Leave {
    QString text;
    int exitCode;
};

/// The answer to a call for the help or the version, or, with the windows wanted, to one without a
/// screen; empty where the program starts. `arguments` without the program's name.
std::optional<Leave> answerCall(const QStringList& arguments);

/// The refusal of what Qt has left of the arguments: more than the one file of a task, or something
/// that begins as an option; empty where there is nothing to refuse.
std::optional<Leave> refuseArguments(const QStringList& left);

} // namespace ferna
