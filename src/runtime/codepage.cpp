#include "runtime/codepage.h"

#include "runtime/run_time_error.h"

#include <QHash>
#include <QStringDecoder>

#include <iconv.h>

#include <algorithm>
#include <array>

namespace ferna::codepage {

namespace {

constexpr char16_t unassigned = 0xFFFF;

struct Page {
    std::array<char16_t, 256> characters;
    QHash<char16_t, char> bytes;

    Page() {
        const iconv_t converter = iconv_open("UTF-16LE", "CP1250");
        if (converter == reinterpret_cast<iconv_t>(-1)) // NOLINT(performance-no-int-to-ptr)
            throw RunTimeError(error::NoObject, QStringLiteral("iconv, CP1250"));
        for (int byte = 0; byte < 256; ++byte) {
            char in = static_cast<char>(byte);
            char16_t out = unassigned;
            char* from = &in;
            char* to = reinterpret_cast<char*>(&out);
            std::size_t fromLeft = 1;
            std::size_t toLeft = sizeof out;
            iconv(converter, nullptr, nullptr, nullptr, nullptr);
            if (iconv(converter, &from, &fromLeft, &to, &toLeft) != 0)
                out = unassigned;
            characters[static_cast<std::size_t>(byte)] = out;
            if (out != unassigned)
                bytes.insert(out, static_cast<char>(byte));
        }
        iconv_close(converter);
    }
};

const Page& page() {
    static const Page instance;
    return instance;
}

/// Letters of the catalogues' languages and typographic signs. Two bytes of capital Polish text in
/// code page 1250 (such as "ÓŁ") are valid UTF-8 as well, but of a letter far from these.
bool expectedInUtf8(char16_t character) {
    return character < 0x180 || character >= 0x2000;
}

} // namespace

bool holds(QChar character) {
    return page().bytes.contains(character.unicode());
}

QByteArray encoded(QStringView text) {
    const Page& known = page();
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isLowSurrogate() && i > 0 && text[i - 1].isHighSurrogate())
            continue; // one "?" for a character of two units
        bytes += known.bytes.value(text[i].unicode(), '?');
    }
    return bytes;
}

bool looksLikeUtf8(QByteArrayView bytes) {
    const bool letters =
        std::any_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) != 0; });
    if (!letters || !bytes.isValidUtf8())
        return false;
    const QString text = QString::fromUtf8(bytes);
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return expectedInUtf8(c.unicode()); });
}

std::optional<QString> decoded(QByteArrayView bytes) {
    const Page& known = page();
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const char16_t character = known.characters[static_cast<unsigned char>(byte)];
        if (character == unassigned || character == 0)
            return std::nullopt;
        text += QChar(character);
    }
    return text;
}

} // namespace ferna::codepage
