#include "fuzzing.h"
#include "runtime/format.h"

#include <cmath>
#include <cstring>

using namespace ferna;
using namespace ferna::fuzzing;

namespace {

/// A pattern of places alone, at least one forced in front of the point: its result is a number.
bool isANumber(const QString& pattern) {
    bool forced = false;
    int points = 0;
    for (const QChar c : pattern) {
        points += c == u'.';
        forced = forced || (c == u'0' && points == 0);
        if (c != u'.' && c != u'#' && c != u'0')
            return false;
    }
    return forced && points <= 1;
}

void check(Double value, const QString& text, const QString& pattern, double precision) {
    require(text.size() <= pattern.size() + 320, "the result is no longer than pattern and number");
    if (!isANumber(pattern) || text.size() > 390)
        return;
    const auto decimals = pattern.contains(u'.') ? pattern.size() - pattern.indexOf(u'.') - 1 : 0;
    const double step = std::pow(10.0, -static_cast<double>(decimals));
    const double back = CDbl(text);
    require(std::fabs(back - value) <= 0.5000001 * step + precision * std::fabs(value),
            "the text is the value, rounded");
}

} // namespace

// Eight bytes of a value, one that chooses Single or Double, and the pattern behind them.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 9)
        return 0;
    Double value = 0;
    std::memcpy(&value, data, sizeof value);
    const QString pattern = QString::fromUtf8(bytesOf(data + 9, size - 9));
    setDecimalSign(data[8] & 2U ? u',' : u'.');
    runs([&] {
        if (data[8] & 1U) {
            const Single single = CSng(value);
            check(Double{single}, Format(single, pattern), pattern, 1e-6);
            (void)general(single);
        } else {
            const double largest = 1.797e308; // beyond, the rounded text may be no Double
            const QString text = Format(value, pattern);
            if (std::fabs(value) < largest)
                check(value, text, pattern, 1e-14);
            require(!Format_kropka(value, pattern).contains(u','), "a point for other programs");
            (void)general(value);
        }
    });
    return 0;
}
