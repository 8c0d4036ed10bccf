#pragma once

#include <QByteArrayView>

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ferna {

/// Reads JSON as programs write it: without escapes in its texts. Tells `Events` what the library's
/// reader would tell, several times as fast; what it does not know, and every fault, is left to the
/// library, which also has the words for it.
template <typename Events>
class PlainJson {
public:
    PlainJson(std::string_view text, Events& events)
        : at_(text.data()), end_(text.data() + text.size()), events_(events) {}

    /// False where the text is not plain; the events so far are void then.
    bool read() {
        if (!QByteArrayView(at_, end_ - at_).isValidUtf8() || !value())
            return false;
        return next() == '\0' && at_ == end_;
    }

private:
    /// The next character that is no blank; 0 at the end.
    char next() {
        while (at_ != end_ && (*at_ == ' ' || *at_ == '\n' || *at_ == '\r' || *at_ == '\t'))
            ++at_;
        return at_ == end_ ? '\0' : *at_;
    }

    bool value() { // NOLINT(misc-no-recursion): the events refuse what is too deep
        switch (next()) {
        case '{':
            return object();
        case '[':
            return array();
        case '"':
            return text([this](std::string_view letters) { return events_.string(letters); });
        case 't':
            return word("true") && events_.boolean(true);
        case 'f':
            return word("false") && events_.boolean(false);
        case 'n':
            return word("null") && events_.null();
        default:
            return number();
        }
    }

    bool object() { // NOLINT(misc-no-recursion)
        const auto part = [this] {
            return next() == '"'
                   && text([this](std::string_view letters) { return events_.key(letters); })
                   && take(':') && value();
        };
        return events_.start_object(0) && parts('}', part) && events_.end_object();
    }

    bool array() { // NOLINT(misc-no-recursion)
        return events_.start_array(0) && parts(']', [this] { return value(); })
               && events_.end_array();
    }

    template <typename Part>
    bool parts(char end, const Part& part) { // NOLINT(misc-no-recursion)
        ++at_;
        if (take(end))
            return true;
        for (;;) {
            if (!part())
                return false;
            if (take(end))
                return true;
            if (!take(','))
                return false;
        }
    }

    bool take(char expected) {
        const bool isThere = next() == expected && at_ != end_;
        at_ += isThere ? 1 : 0;
        return isThere;
    }

    bool word(std::string_view expected) {
        const bool isThere = std::string_view(at_, end_).starts_with(expected);
        at_ += isThere ? expected.size() : 0;
        return isThere;
    }

    template <typename Tell>
    bool text(const Tell& tell) {
        const char* const begin = ++at_;
        while (at_ != end_ && *at_ != '"' && *at_ != '\\' && (*at_ & 0xE0) != 0)
            ++at_;
        if (at_ == end_ || *at_ != '"')
            return false;
        const std::string_view letters(begin, at_);
        ++at_;
        return tell(letters);
    }

    /// Reads digits behind those of `value`, which runs over where there are too many.
    bool digits(std::uint64_t& value) {
        const char* const begin = at_;
        for (; at_ != end_ && *at_ >= '0' && *at_ <= '9'; ++at_)
            value = 10 * value + static_cast<std::uint64_t>(*at_ - '0');
        return at_ != begin;
    }

    bool number() {
        const char* const begin = at_;
        if (at_ != end_ && *at_ == '-')
            ++at_;
        const char* const first = at_;
        std::uint64_t value = 0;
        if (!digits(value) || (*first == '0' && at_ - first > 1))
            return false;
        const char* const point = at_;
        if (at_ != end_ && *at_ == '.') {
            ++at_;
            if (!digits(value))
                return false;
        }
        const bool isWhole = at_ == point;
        if (at_ != end_ && (*at_ == 'e' || *at_ == 'E'))
            return exponent() && fraction(begin);
        const bool isShort = at_ - first < static_cast<std::ptrdiff_t>(powersOfTen.size());
        if (!isShort)
            return isWhole ? wholeNumber(begin) : fraction(begin);
        const auto magnitude = static_cast<std::int64_t>(value);
        if (isWhole)
            return events_.number_integer(first != begin ? -magnitude : magnitude);
        // Two exact doubles: the quotient is the double that is nearest to the decimal.
        const double decimal =
            static_cast<double>(magnitude) / powersOfTen[static_cast<std::size_t>(at_ - point - 1)];
        return events_.number_float(first != begin ? -decimal : decimal, {});
    }

    bool exponent() {
        ++at_;
        if (at_ != end_ && (*at_ == '+' || *at_ == '-'))
            ++at_;
        std::uint64_t unused = 0;
        return digits(unused);
    }

    bool wholeNumber(const char* begin) {
        std::int64_t value = 0;
        return std::from_chars(begin, at_, value).ec == std::errc()
               && events_.number_integer(value);
    }

    bool fraction(const char* begin) {
        double value = 0;
        return std::from_chars(begin, at_, value).ec == std::errc()
               && events_.number_float(value, {});
    }

    /// Up to the power that, like every whole number with fewer digits, a double holds exactly.
    static constexpr std::array powersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                            1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

    const char* at_;
    const char* end_;
    Events& events_;
};

} // namespace ferna
