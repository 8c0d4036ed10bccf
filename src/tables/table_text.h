#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace ferna::tables {

/// How the bytes of a table were encoded.
enum class Encoding { Utf8, Utf16, CodePage1250 };

struct TableText {
    QString text; ///< without a byte order mark
    Encoding encoding = Encoding::Utf8;
};

/// The text of a table that came as bytes, from a file or from another program's clipboard. A byte
/// order mark decides; without one text in which every other byte is 0 is UTF-16, valid UTF-8 is
/// UTF-8, and what remains is code page 1250. Empty where the bytes are no text in any of them.
std::optional<TableText> tableText(QByteArrayView bytes);

} // namespace ferna::tables
