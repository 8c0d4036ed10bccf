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

/// The bytes that tell the size of a bitmap as this program saves them.
inline constexpr qsizetype bitmapHeaders = 54;

/// The size in pixels of a bitmap as this program saves them, told by its first bytes,
/// `bitmapHeaders` at least where the file has so many; `size` is that of the file. Empty where
/// `readPicture` would read none, or where the file is of another kind.
QSize bitmapSize(QByteArrayView headers, qsizetype size);

} // namespace ferna
