#pragma once

#include <QString>

/// Names of the files through which program and renderer talk, all in the program folder.
namespace ferna::wyd {

inline const QString bodyFile = QStringLiteral("FERNAPr.wyd");   ///< frame and body
inline const QString frameFile = QStringLiteral("FERNAPr1.wyd"); ///< the page frame alone
inline const QString jobFile = QStringLiteral("W_KK.txt");       ///< what the renderer is to do
inline const QString replyFile = QStringLiteral("W_X.txt");      ///< the next free page number
inline const QString screenPicture = QStringLiteral("$a1.emf");

/// The line that names a file of the folder: its full path, or, where the code page of these files
/// lacks a character of it, the name alone, which the renderer looks for beside the file it reads.
QString pathLine(const QString& folder, const QString& name);

} // namespace ferna::wyd
