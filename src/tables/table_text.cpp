#include "tables/table_text.h"

#include "runtime/codepage.h"

#include <QStringDecoder>

namespace ferna::tables {

namespace {

constexpr qsizetype looked = 256; // bytes in which UTF-16 without a mark shows itself

std::optional<QString> converted(QByteArrayView bytes, QStringConverter::Encoding encoding) {
    QStringDecoder decode(encoding);
    QString text = decode(bytes);
    const bool halfACharacter = encoding != QStringConverter::Utf8 && bytes.size() % 2 != 0;
    if (halfACharacter || decode.hasError() || text.contains(QChar::Null))
        return std::nullopt;
    return text;
}

/// Zeros at the odd or at the even places of a text of digits, signs and Latin letters.
std::optional<QStringConverter::Encoding> utf16WithoutMark(QByteArrayView bytes) {
    if (bytes.size() < 2 || bytes.size() % 2 != 0)
        return std::nullopt;
    const qsizetype size = qMin(bytes.size(), looked);
    qsizetype even = 0;
    qsizetype odd = 0;
    for (qsizetype i = 0; i < size; ++i)
        if (bytes[i] == 0)
            ++(i % 2 == 0 ? even : odd);
    // A Polish letter has no zero byte; three of four characters of a table are plain.
    const qsizetype most = size / 2 * 3 / 4;
    if (odd > most && even == 0)
        return QStringConverter::Utf16LE;
    if (even > most && odd == 0)
        return QStringConverter::Utf16BE;
    return std::nullopt;
}

std::optional<TableText> as(Encoding encoding, std::optional<QString> text) {
    if (!text)
        return std::nullopt;
    return TableText{*std::move(text), encoding};
}

} // namespace

std::optional<TableText> tableText(QByteArrayView bytes) {
    if (bytes.startsWith(QByteArrayView("\xEF\xBB\xBF")))
        return as(Encoding::Utf8, converted(bytes, QStringConverter::Utf8));
    if (bytes.startsWith(QByteArrayView("\xFF\xFE", 2)))
        return as(Encoding::Utf16, converted(bytes, QStringConverter::Utf16LE));
    if (bytes.startsWith(QByteArrayView("\xFE\xFF", 2)))
        return as(Encoding::Utf16, converted(bytes, QStringConverter::Utf16BE));
    if (const auto order = utf16WithoutMark(bytes))
        return as(Encoding::Utf16, converted(bytes, *order));
    if (auto text = converted(bytes, QStringConverter::Utf8))
        return as(Encoding::Utf8, std::move(text));
    return as(Encoding::CodePage1250, codepage::decoded(bytes));
}

} // namespace ferna::tables
