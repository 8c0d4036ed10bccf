#pragma once

#include "live/picture.h"

#include <QByteArray>
#include <QImage>
#include <QStringList>

namespace ferna::live {

/// Endings of the files that a picture can be written into, with their point.
QStringList pictureEndings();

/// True where the file's ending is one of them.
bool isPictureFile(const QString& file);

/// The picture at the resolution of print, for files and for the clipboard.
QImage pictureImage(const PictureValues& values, const PictureOptions& options);

/// The bytes of a picture file; the ending of `file` chooses the format. Error 57 where it cannot
/// be drawn.
QByteArray pictureBytes(const QString& file, const PictureValues& values,
                        const PictureOptions& options);

} // namespace ferna::live
