#include "pages/letter_widths.h"

#include "runtime/codepage.h"

#include <array>
#include <cstdint>

namespace ferna::drawing {

namespace {

constexpr int unitsPerEm = 2048;
constexpr int firstPrinted = 0x20;

// Advance widths of Liberation Sans, by the byte in code page 1250 from the blank on; 16 a row.
constexpr std::array<std::uint16_t, 256 - firstPrinted> advances{
    // clang-format off
    569, 569, 727, 1139, 1139, 1821, 1366, 391, 682, 682, 797, 1196, 569, 682, 569, 569,
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 569, 569, 1196, 1196, 1196, 1139,
    2079, 1366, 1366, 1479, 1479, 1366, 1251, 1593, 1479, 569, 1024, 1366, 1139, 1706, 1479, 1593,
    1366, 1593, 1479, 1366, 1251, 1479, 1366, 1933, 1366, 1366, 1251, 569, 569, 569, 961, 1139,
    682, 1139, 1139, 1024, 1139, 1139, 569, 1139, 1139, 455, 455, 1024, 455, 1706, 1139, 1139,
    1139, 1139, 682, 1024, 569, 1139, 1024, 1479, 1024, 1024, 1024, 684, 532, 684, 1196, 0,
    1139, 0, 455, 0, 682, 2048, 1139, 1139, 0, 2048, 1366, 682, 1366, 1251, 1251, 1251,
    0, 455, 455, 682, 682, 717, 1139, 2048, 0, 2048, 1024, 682, 1024, 768, 1024, 1024,
    569, 682, 682, 1139, 1139, 1366, 532, 1139, 682, 1509, 1366, 1139, 1196, 682, 1509, 1251,
    819, 1124, 682, 455, 682, 1180, 1100, 569, 682, 1139, 1024, 1139, 1139, 682, 597, 1024,
    1479, 1366, 1366, 1366, 1366, 1139, 1479, 1479, 1479, 1366, 1366, 1366, 1366, 569, 569, 1479,
    1479, 1479, 1479, 1593, 1593, 1593, 1593, 1196, 1479, 1479, 1479, 1479, 1479, 1366, 1251, 1251,
    682, 1139, 1139, 1139, 1139, 455, 1024, 1024, 1024, 1139, 1139, 1139, 1139, 569, 569, 1259,
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1124, 682, 1139, 1139, 1139, 1139, 1024, 569, 682,
    // clang-format on
};

} // namespace

double textWidth(QStringView text, double height) {
    int units = 0;
    for (const char byte : codepage::encoded(text)) {
        const int code = static_cast<unsigned char>(byte);
        if (code >= firstPrinted)
            units += advances.at(static_cast<std::size_t>(code - firstPrinted));
    }
    return units * height / unitsPerEm;
}

} // namespace ferna::drawing
