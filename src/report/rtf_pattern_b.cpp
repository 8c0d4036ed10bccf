#include "pages/sketch_files.h"
#include "report/rtf_writer.h"
#include "report/zone_sketch.h"

#include <array>

// Pattern B: each picture hangs beside its text, the plate's pictures in two columns by turns.

namespace ferna {

namespace {

constexpr QStringView caseHead = uR"(\absw2000\absh1360\posx5500)";
constexpr QStringView anchorHead = uR"(\absw4400\absh1455\posx3150)";

/// Place of a picture by the number of pictures so far.
struct Head {
    QStringView odd;
    QStringView even;
};

constexpr Head block1Head{uR"(\absw1550\absh1700\posx5500)", uR"(\absw1550\absh1700\posx5500)"};
constexpr Head block2Head{uR"(\absw1550\absh1420\posx5500)", uR"(\absw1550\absh1420\posx7100)"};
constexpr Head otherHead{uR"(\absw1750\absh1120\posx5350)", uR"(\absw1750\absh1120\posx7150)"};

/// A block of the plate section as this pattern places it.
struct PlateBlock {
    int check;
    Double height; // of the page test
    Head head;
    const char* file; // empty: no picture, the count stands still
    int lines;
    bool spacerBehind;
};

constexpr std::array plateBlocks{
    PlateBlock{1, 19.02, block1Head, "Szkic1.bmp", 4, true},
    PlateBlock{2, 15.85, block2Head, "Szkic2.bmp", 4, false},
    PlateBlock{3, 19.02, otherHead, "Szkic31.bmp", 5, false},
    PlateBlock{4, 15.85, {}, "", 4, false},
    PlateBlock{5, 19.02, otherHead, "Szkic32.bmp", 5, false},
    PlateBlock{6, 19.02, otherHead, "Szkic33.bmp", 5, false},
    PlateBlock{7, 19.02, otherHead, "Szkic51.bmp", 5, false},
    PlateBlock{8, 19.02, otherHead, "Szkic52.bmp", 5, false}, // its sixth line is not written
};

} // namespace

void RtfWriter::plateColumns() {
    const auto& lines = stan_.raport.Wiersze_blachy;
    int k = 2; // last line written
    int pictures = 0;
    for (const PlateBlock& block : plateBlocks) {
        if (stan_.raport.Spr_blachy(block.check) <= 0)
            continue;
        Koniec_strony_RTF(Poz_rtf, block.height);
        if (block.file[0] != '\0') {
            ++pictures;
            const bool even = pictures / 2 * 2 == pictures;
            placed(frame(even ? block.head.even : block.head.odd, QString::fromLatin1(block.file)));
        }
        for (int i = 1; i <= block.lines; ++i)
            afterFrameLine(lines(k + i));
        if (block.spacerBehind)
            spacer();
        k += block.lines;
    }
}

void RtfWriter::Wyniki_RTF_so() {
    const int cases = stan_.obciazenia.Liczba_przyp;
    ResultLines results(stan_);
    for (int c = 1; c <= cases; ++c) {
        caseTest(c, 5);
        loadCase(results, c, wholePlate(stan_, c) ? QString() : frame(caseHead, zoneSketchFile(c)));
    }
    if (cases > 1)
        summary();
    if (stan_.raport.Liczba_wierszy_blachy > 0) {
        plateHeading();
        plateColumns();
    }
    if (stan_.raport.Liczba_wierszy_kotwy > 0) {
        const auto& lines = stan_.raport.Wiersze_kotwy;
        Koniec_strony_RTF(Poz_rtf, 25);
        spacer();
        placed(frame(anchorHead, anchorSketchFile));
        spacer();
        Koniec_strony_RTF(Poz_rtf, 6.34);
        heading(lines(1));
        spacer();
        Koniec_strony_RTF(Poz_rtf, 22.19);
        for (int i = 2; i <= stan_.raport.Liczba_wierszy_kotwy; ++i)
            afterFrameLine(lines(i));
    }
}

} // namespace ferna
