#pragma once

#include "renderer/outputs.h"

#include <QStringList>

#include <optional>

namespace ferna::renderer {

/// A call of the program.
struct Call {
    QString jobPath;
    const OutputFormat* format = nullptr; ///< null: the job's mode decides
    QString outputPath;                   ///< of the format
    int dpi = 150;
    QString title, subject, author, language; ///< of the document, where the call tells them
};

/// The call, without the program's name; empty where it is none, `fault` saying why in Polish.
std::optional<Call> parseCall(const QStringList& arguments, QString& fault);

/// What a call for the help or the version gets; empty for any other call.
QString answerTo(const QStringList& arguments);

/// The call in one Polish line.
QString usage();

} // namespace ferna::renderer
