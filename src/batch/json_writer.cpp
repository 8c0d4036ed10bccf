#include "batch/json_writer.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace ferna::batch {

namespace {

constexpr int numberLength = 64; // letters that no number exceeds

/// A letter that stands for itself in one byte.
bool isPlain(char16_t letter) {
    return letter >= 0x20 && letter < 0x80 && letter != u'"' && letter != u'\\';
}

/// The double nearest to the shortest decimal that reads back to the same Single, which is no whole
/// number.
Double shortestOf(Single value) {
    // With up to six decimals both products and the quotient are exact or rounded once.
    constexpr Double most = 1e6;
    if (std::fabs(value) < most) {
        for (Double scale = 10; scale <= most; scale *= 10) {
            const Double decimal = std::nearbyint(value * scale) / scale;
            if (static_cast<Single>(decimal) == value)
                return decimal;
        }
    }
    std::array<char, numberLength> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    Double shortest = 0;
    std::from_chars(digits.data(), end, shortest);
    return shortest;
}

} // namespace

void JsonWriter::lineOfLevel() {
    if (isIndented_) {
        bytes_ += '\n';
        for (int i = 0; i < level_; ++i)
            bytes_ += ' ';
    }
}

/// What stands in front of a part: nothing behind its key.
void JsonWriter::part() {
    if (std::exchange(hasKey_, false) || level_ == 0)
        return;
    if (!std::exchange(isFirst_, false))
        bytes_ += ',';
    lineOfLevel();
}

void JsonWriter::begin(char bracket) {
    part();
    bytes_ += bracket;
    ++level_;
    isFirst_ = true;
}

void JsonWriter::end(char bracket) {
    --level_;
    if (!std::exchange(isFirst_, false))
        lineOfLevel();
    bytes_ += bracket;
}

void JsonWriter::word(std::string_view letters) {
    part();
    bytes_ += letters;
}

void JsonWriter::key(std::string_view name) {
    part();
    char* at = bytes_.room(name.size() + 4);
    *at++ = '"';
    at = std::copy(name.begin(), name.end(), at);
    *at++ = '"';
    *at++ = ':';
    if (isIndented_)
        *at++ = ' ';
    bytes_.take(at);
    hasKey_ = true;
}

void JsonWriter::whole(std::int64_t value) {
    std::array<char, numberLength> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    word({digits.data(), end});
}

void JsonWriter::number(Double value) {
    if (std::bit_cast<std::uint64_t>(value) == 0) {
        word("0.0");
        return;
    }
    if (!std::isfinite(value)) {
        null();
        return;
    }
    constexpr Double largestPlain = 1e15; // from there on with an exponent
    if (value == std::floor(value) && std::fabs(value) < largestPlain && value != 0) {
        wholeNumber(value);
        return;
    }
    // The library's own, whose digits are not always those of `std::to_chars`.
    std::array<char, numberLength> digits;
    const char* const end =
        nlohmann::detail::to_chars(digits.data(), digits.data() + digits.size(), value);
    word({digits.data(), end});
}

void JsonWriter::wholeNumber(Double value) {
    std::array<char, numberLength> digits;
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                    static_cast<std::int64_t>(value))
                          .ptr;
    end[0] = '.';
    end[1] = '0';
    word({digits.data(), end + 2});
}

void JsonWriter::single(Single value) {
    if (std::bit_cast<std::uint32_t>(value) == 0) { // most anchors are not in tension
        word("0.0");
        return;
    }
    constexpr Single allWhole = 16'777'216; // up to here a whole number is its shortest decimal
    if (value == std::floor(value) && std::fabs(value) < allWhole) {
        number(value);
        return;
    }
    number(shortestOf(value));
}

/// A letter below U+0080.
void JsonWriter::escaped(char16_t letter) {
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr std::string_view named = "\"\\\b\f\n\r\t";
    constexpr std::string_view names = "\"\\bfnrt";
    constexpr unsigned firstPlain = 0x20;
    const auto byte = static_cast<char>(letter);
    if (const std::size_t at = named.find(byte); at != std::string_view::npos) {
        bytes_ += '\\';
        bytes_ += names[at];
    } else if (letter < firstPlain) {
        bytes_ += "\\u00";
        bytes_ += digits[letter >> 4U];
        bytes_ += digits[letter & 15U];
    } else {
        bytes_ += byte;
    }
}

void JsonWriter::text(const QString& value) {
    part();
    bytes_ += '"';
    std::array<char, 128> piece;
    std::size_t filled = 0;
    const auto flush = [&] {
        bytes_ += {piece.data(), filled};
        filled = 0;
    };
    for (qsizetype i = 0; i < value.size(); ++i) {
        const char16_t letter = value[i].unicode();
        if (filled + 2 > piece.size())
            flush();
        if (isPlain(letter)) {
            piece[filled++] = static_cast<char>(letter);
        } else if (letter >= 0x80 && letter < 0x800) {
            piece[filled++] = static_cast<char>(0xC0 | letter >> 6U);
            piece[filled++] = static_cast<char>(0x80 | (letter & 0x3FU));
        } else {
            flush();
            i += other(QStringView(value).mid(i));
        }
    }
    flush();
    bytes_ += '"';
}

/// The first letter of a text, of any kind; returns how many more units it has taken.
int JsonWriter::other(QStringView text) {
    if (text[0].unicode() < 0x80) {
        escaped(text[0].unicode());
        return 0;
    }
    const bool isPair = text[0].isHighSurrogate() && text.size() > 1 && text[1].isLowSurrogate();
    const QByteArray bytes = text.left(isPair ? 2 : 1).toUtf8();
    bytes_ += {bytes.constData(), static_cast<std::size_t>(bytes.size())};
    return isPair ? 1 : 0;
}

/// A text in UTF-8, which is sound: it comes from the program's own.
void JsonWriter::utf8(std::string_view text) {
    part();
    bytes_ += '"';
    for (const char byte : text) {
        const auto letter = static_cast<unsigned char>(byte);
        if (letter >= 0x80 || isPlain(letter))
            bytes_ += byte;
        else
            escaped(letter);
    }
    bytes_ += '"';
}

void JsonWriter::value(const Json& value) {
    if (value.is_object()) {
        beginObject();
        for (const auto& [name, part] : value.get_ref<const Json::object_t&>()) {
            key(name);
            this->value(part);
        }
        endObject();
    } else if (value.is_array()) {
        beginArray();
        for (const Json& part : value)
            this->value(part);
        endArray();
    } else if (value.is_string()) {
        utf8(value.get_ref<const std::string&>());
    } else if (value.is_number_float()) {
        number(value.get<Double>());
    } else {
        word(value.dump(-1, ' ', false, Json::error_handler_t::replace));
    }
}

} // namespace ferna::batch
