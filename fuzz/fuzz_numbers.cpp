#include "fuzzing.h"
#include "runtime/format.h"
#include "runtime/numbers.h"

#include <clocale>
#include <cmath>

using namespace ferna;
using namespace ferna::fuzzing;

namespace {

/// The same text for the C library: no blanks, a point.
std::string plain(const QString& text) {
    std::string out;
    for (const QChar c : text)
        if (!c.isSpace())
            out += c == u',' ? '.' : c.toLatin1();
    return out;
}

double fromTheLibrary(const QString& text, bool& whole) {
    static const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
    const std::string number = plain(text);
    char* end = nullptr;
    const double value = strtod_l(number.c_str(), &end, c);
    whole = !number.empty() && *end == '\0';
    return value;
}

} // namespace

// A typed number: the same value as the C library's, or an error that fits.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = QString::fromUtf8(bytesOf(data, size));
    bool whole = false;
    const double expected = fromTheLibrary(text, whole);
    try {
        const Double value = CDbl(text);
        require(whole, "a number for the program is one for the library");
        require(value == expected || std::fabs(expected) < 2.3e-308,
                "the value is the library's, or too small to hold");
        const QString general_form = general(value);
        const bool edge = std::fabs(value) > 1.7976931348623e308; // rounds up beyond a Double
        require(edge || std::fabs(CDbl(general_form) - value) <= 1e-14 * std::fabs(value),
                "the general form reads back");
    } catch (const RunTimeError& failure) {
        if (failure.number() == error::Overflow)
            require(whole && std::isinf(expected), "an overflow is one for the library");
        else
            require(failure.number() == error::TypeMismatch, "no number is a type mismatch");
    }
    runs([&] {
        const Integer value = CInt(text);
        require(std::fabs(value - expected) <= 0.5, "a whole number is the nearest");
    });
    runs([&] {
        const Single value = CSng(text);
        require(std::isfinite(value), "a Single is finite");
        require(std::fabs(CDbl(general(value)) - Double{value}) <= 1e-6 * std::fabs(Double{value}),
                "the general form of a Single reads back");
    });
    return 0;
}
