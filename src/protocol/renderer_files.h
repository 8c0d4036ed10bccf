#pragma once

#include <QString>

/// What passes between the program and the renderer. Every message has its encoder beside its
/// decoder in this room; both processes use them and nothing else.
namespace ferna::wyd {

// Names of the files, all in the program folder.
inline const QString bodyFile = QStringLiteral("FERNAPr.wyd");   ///< frame and body
inline const QString frameFile = QStringLiteral("FERNAPr1.wyd"); ///< the page frame alone
inline const QString jobFile = QStringLiteral("W_KK.txt");       ///< what the renderer is to do
inline const QString replyFile = QStringLiteral("W_X.txt");      ///< the next free page number
inline const QString screenPicture = QStringLiteral("$a1.emf");

/// The line that names a file of the folder: its full path, or, where the code page of these files
/// lacks a character of it, the name alone, which the renderer looks for beside the file it reads.
QString pathLine(const QString& folder, const QString& name);

/// The path that such a line means; `folder` is that of the file it stands in. Empty for a line
/// that names nothing.
QString pathOfLine(const QString& folder, const QString& line);

/// How the renderer ends.
enum ExitCode {
    Done = 0,
    Failed = 1,
    BadCall = 2,
    CancelledByUser = 3 ///< in a dialog of the renderer's own
};

} // namespace ferna::wyd
