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

/// Bytes to text; empty where a byte is unassigned in the page. Never guesses: some Polish words in
/// code page 1250 are valid in another encoding too.
std::optional<QString> decoded(QByteArrayView bytes);

/// True where the bytes are rather UTF-8 than code page 1250: valid as a whole, with letters, and
/// all of them of the catalogues' languages. A guess, for files that come out of an editor.
bool looksLikeUtf8(QByteArrayView bytes);

} // namespace ferna::codepage
