#include "pages/sketch_files.h"
#include "report/rtf_writer.h"
#include "report/zone_sketch.h"

#include <algorithm>
#include <array>

// Pattern A: the pictures stand in a row first and their text follows them.

namespace ferna {

namespace {

constexpr QStringView gap = u"     ";
constexpr int casesInRow = 3;
constexpr int picturesInRow = 4;
const QString noSketch = QStringLiteral("gkrys0.bmp");

constexpr QStringView caseHead = uR"(\absw2000\absh1360)";
constexpr QStringView anchorHead = uR"(\absw4400\absh1455)";

enum class RowEnd { None, Plain, WithTrailer }; // what the fourth picture of the row brings along

/// A block of the plate section as this pattern places it.
struct PlateBlock {
    int check;
    QStringView head;
    const char* file;
    int lines;
    Double height; // of the page test where the picture opens a row; 0: no test
    bool pair;     // its first two lines are joined
    bool nextPair; // and the next pair is kept in a place of its own
    RowEnd rowEnd;
};

constexpr QStringView block1Head = uR"(\absw1550\absh1700)";
constexpr QStringView block2Head = uR"(\absw1550\absh1420)";
constexpr QStringView otherHead = uR"(\absw1750\absh1120)";

constexpr std::array plateBlocks{
    PlateBlock{1, block1Head, "Szkic1.bmp", 4, 30, false, false, RowEnd::None},
    PlateBlock{2, block2Head, "Szkic2.bmp", 4, 24, false, false, RowEnd::None},
    PlateBlock{3, otherHead, "Szkic31.bmp", 5, 18, true, true, RowEnd::None},
    PlateBlock{4, otherHead, "gkrys0.bmp", 4, 0, false, false, RowEnd::WithTrailer},
    PlateBlock{5, otherHead, "Szkic32.bmp", 5, 18, true, true, RowEnd::WithTrailer},
    PlateBlock{6, otherHead, "Szkic33.bmp", 5, 18, true, false, RowEnd::Plain},
    PlateBlock{7, otherHead, "Szkic51.bmp", 5, 18, false, false, RowEnd::WithTrailer},
    // The last picture is not counted, so its row is never full.
    PlateBlock{8, otherHead, "Szkic52.bmp", 6, 18, false, false, RowEnd::None},
};
constexpr int uncountedCheck = 8;

} // namespace

/// The lines of the plate section that wait for the pictures of their row.
struct RtfWriter::DeferredText {
    int k = 2;     // last line so far
    int start = 2; // first line not written
    IndexedArray<Integer, 3> Pary;
    int index = 1; // of Pary

    bool isPair(int i) const {
        return std::any_of(Pary.data() + 1, Pary.data() + 1 + 3,
                           [i](Integer line) { return line == i; });
    }
};

void RtfWriter::casesOfRow(ResultLines& results, int first, int last, int furtherLines) {
    Koniec_strony_RTF(Poz_rtf, 24);
    for (int c = first; c <= last; ++c)
        placed(frame(caseHead, wholePlate(stan_, c) ? noSketch : zoneSketchFile(c)), gap);
    for (int c = first; c <= last; ++c) {
        caseTest(c, furtherLines);
        loadCase(results, c);
    }
}

void RtfWriter::flush(DeferredText& text, int from) {
    const auto& lines = stan_.raport.Wiersze_blachy;
    for (int i = from; i <= text.k; ++i) {
        Koniec_strony_RTF(Poz_rtf, lineHeight);
        if (text.isPair(i)) {
            afterFrameLine(lines(i) + lines(i + 1));
            ++i;
        } else {
            afterFrameLine(lines(i));
        }
    }
    text.start = text.k + 1;
}

void RtfWriter::plateRow() {
    DeferredText text;
    int count = 0; // pictures of the row
    for (const PlateBlock& block : plateBlocks) {
        if (stan_.raport.Spr_blachy(block.check) <= 0)
            continue;
        const int place = count + 1;
        if (block.height > 0 && (place == 1 || place == picturesInRow + 1))
            Koniec_strony_RTF(Poz_rtf, block.height);
        placed(frame(block.head, QString::fromLatin1(block.file)), gap);
        if (block.pair)
            text.Pary(text.index) = CInt(text.k + 1);
        if (block.nextPair)
            ++text.index;
        text.k += block.lines;
        if (block.check == uncountedCheck)
            continue;
        count = place;
        if (count == picturesInRow && block.rowEnd != RowEnd::None) {
            flush(text, 2); // from the heading's last line, which stands there already
            if (block.rowEnd == RowEnd::WithTrailer)
                file_.line(u"\\par    \\pard");
        }
    }
    if (text.start != text.k)
        flush(text, text.start);
}

void RtfWriter::Wyniki_RTF_ms() {
    const int cases = stan_.obciazenia.Liczba_przyp;
    ResultLines results(stan_);
    casesOfRow(results, 1, std::min(cases, casesInRow), 5);
    if (cases > casesInRow)
        casesOfRow(results, casesInRow + 1, cases, 6);
    if (cases > 1)
        summary();
    if (stan_.raport.Liczba_wierszy_blachy > 0) {
        plateHeading();
        plateRow();
    }
    if (stan_.raport.Liczba_wierszy_kotwy > 0) {
        const auto& lines = stan_.raport.Wiersze_kotwy;
        Koniec_strony_RTF(Poz_rtf, 30);
        spacer();
        placed(frame(anchorHead, anchorSketchFile), gap);
        Koniec_strony_RTF(Poz_rtf, 22.19);
        heading(lines(1));
        for (int i = 2; i <= stan_.raport.Liczba_wierszy_kotwy; ++i)
            afterFrameLine(lines(i));
    }
}

} // namespace ferna
