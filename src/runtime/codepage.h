#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace ferna::codepage {

/// The single-byte Central-European code page 1250, in which every text file of the program is
/// kept. The table is taken once from iconv.

/// True where code page 1250 holds the character.
bool holds(QChar character);

/// Text to bytes; a character that the page lacks becomes "?".
QByteArray encoded(QStringView text);

/// Bytes to text. Empty where a byte is unassigned in the page, or where the bytes are UTF-8: valid
/// as a whole, with letters, and all of them of the catalogues' languages.
std::optional<QString> decoded(QByteArrayView bytes);

} // namespace ferna::codepage
