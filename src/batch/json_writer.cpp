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

constexpr std::size_t longestLetter = 6; // bytes that a unit of a text becomes: "\u0001"
constexpr std::ptrdiff_t blockLength = 16;

/// A letter that stands for itself in one byte.
bool isPlain(char16_t letter) {
    return letter >= 0x20 && letter < 0x80 && letter != u'"' && letter != u'\\';
}

/// True for so many letters of which all are plain; the compiler looks at them side by side.
bool arePlain(const char16_t* letters) {
    int others = 0;
    for (std::ptrdiff_t i = 0; i < blockLength; ++i)
        others += isPlain(letters[i]) ? 0 : 1;
    return others == 0;
}

char narrow(char16_t letter) {
    return static_cast<char>(letter);
}

/// Writes a letter below U+0080; returns its end.
char* ascii(char16_t letter, char* at) {
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr std::string_view named = "\"\\\b\f\n\r\t";
    constexpr std::string_view names = "\"\\bfnrt";
    if (isPlain(letter)) {
        *at++ = narrow(letter);
    } else if (const std::size_t i = named.find(narrow(letter)); i != std::string_view::npos) {
        *at++ = '\\';
        *at++ = names[i];
    } else {
        constexpr std::string_view mark = "\\u00";
        at = std::copy(mark.begin(), mark.end(), at);
        *at++ = digits[letter >> 4U];
        *at++ = digits[letter & 15U];
    }
    return at;
}

/// Writes the first letter of a text, of any kind, and moves `at` behind it; returns where the next
/// one begins.
const char16_t* encode(const char16_t* letter, const char16_t* end, char*& at) {
    if (*letter < 0x80) {
        at = ascii(*letter, at);
        return letter + 1;
    }
    if (*letter < 0x800) {
        *at++ = static_cast<char>(0xC0 | *letter >> 6U);
        *at++ = static_cast<char>(0x80 | (*letter & 0x3FU));
        return letter + 1;
    }
    const bool isPair =
        QChar::isHighSurrogate(letter[0]) && end - letter > 1 && QChar::isLowSurrogate(letter[1]);
    const char16_t* const next = letter + (isPair ? 2 : 1);
    const QByteArray bytes = QStringView(letter, next).toUtf8();
    at = std::copy(bytes.begin(), bytes.end(), at);
    return next;
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

void JsonWriter::text(QStringView value) {
    part();
    char* at = bytes_.room(static_cast<std::size_t>(value.size()) * longestLetter + 2);
    *at++ = '"';
    const char16_t* letter = value.utf16();
    const char16_t* const end = letter + value.size();
    while (letter != end) {
        const char16_t* const next = letter + std::min<std::ptrdiff_t>(blockLength, end - letter);
        if (next - letter == blockLength && arePlain(letter)) {
            at = std::transform(letter, next, at, narrow);
            letter = next;
        }
        while (letter < next)
            letter = encode(letter, end, at);
    }
    *at++ = '"';
    bytes_.take(at);
}

void JsonWriter::utf8(std::string_view value) {
    part();
    char* at = bytes_.room(value.size() * longestLetter + 2);
    *at++ = '"';
    for (const char byte : value)
        if (const auto letter = static_cast<unsigned char>(byte); letter >= 0x80)
            *at++ = byte;
        else
            at = ascii(letter, at);
    *at++ = '"';
    bytes_.take(at);
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
    } else if (value.is_number()) {
        whole(value.get<std::int64_t>());
    } else if (value.is_boolean()) {
        boolean(value.get<bool>());
    } else {
        null();
    }
}

} // namespace ferna::batch
