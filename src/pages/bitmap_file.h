#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace ferna {

/// The picture of a file, in 32 bits without transparency: bitmaps as this program saves them are
/// read here, which takes a tenth of the toolkit's time; every other kind is left to the toolkit.
/// Null where the file cannot be read, is no plain file, or is shorter than its header says, of
/// which only the lower rows would be drawn.
QImage readPicture(const QString& path);

/// The size in pixels of the picture of a file with these bytes, as `readPicture` would read it;
/// empty where it would read none. Of a bitmap as this program saves them the headers tell it.
QSize pictureSize(const QByteArray& bytes);

} // namespace ferna
