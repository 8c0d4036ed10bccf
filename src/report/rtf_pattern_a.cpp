#include "pages/sketch_files.h"
#include "report/rtf_writer.h"

#include <algorithm>
#include <span>

// Pattern A: the pictures stand in a row first and their text follows them.

namespace ferna {

namespace {

constexpr QStringView gap = u"     ";
constexpr int casesInRow = 3;
constexpr int picturesInRow = 4;

constexpr QStringView caseHead = uR"(\absw2000\absh1360)";
constexpr QStringView anchorHead = uR"(\absw4400\absh1455)";

enum class RowEnd { None, Plain, WithTrailer }; // what the fourth picture of the row brings along

constexpr QStringView block1Head = uR"(\absw1550\absh1700)";
constexpr QStringView block2Head = uR"(\absw1550\absh1420)";
constexpr QStringView otherHead = uR"(\absw1750\absh1120)";

/// Place of a check of the plate section.
struct BlockPlace {
    QStringView head;
    Double height;         // of the page test where the picture opens a row; 0: no test
    bool pair = false;     // its first two lines are joined
    bool nextPair = false; // and the next pair is kept in a place of its own
    RowEnd rowEnd = RowEnd::None;
};

constexpr BlockPlace blockPlaces[] = {
    {block1Head, 30},
    {block2Head, 24},
    {otherHead, 18, true, true},
    {otherHead, 0, false, false, RowEnd::WithTrailer},
    {otherHead, 18, true, true, RowEnd::WithTrailer},
    {otherHead, 18, true, false, RowEnd::Plain},
    {otherHead, 18, false, false, RowEnd::WithTrailer},
    {otherHead, 18}, // its picture is not counted, so its row is never full
};
constexpr int uncountedCheck = 8;

} // namespace

/// The lines of the plate section that wait for the pictures of their row.
struct RtfWriter::DeferredText {
    QStringList lines; // of the section
    int k = 2;         // last line so far
    int start = 2;     // first line not written
    IndexedArray<Integer, 3> Pary{};
    int index = 1; // of Pary

    bool isPair(int i) const {
        return std::any_of(Pary.data() + 1, Pary.data() + 1 + 3,
                           [i](Integer line) { return line == i; });
    }
};

void RtfWriter::casesOfRow(int first, int count, int furtherLines) {
    const auto row = std::span(report_.cases)
                         .subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
    Koniec_strony_RTF(Poz_rtf, 24);
    for (const ReportCase& section : row)
        placed(frame(caseHead, section.wholePlate() ? noSketchFile : section.figure), gap);
    for (const ReportCase& section : row) {
        caseTest(section, furtherLines);
        loadCase(section);
    }
}

void RtfWriter::flush(DeferredText& text, int from) {
    for (int i = from; i <= text.k; ++i) {
        Koniec_strony_RTF(Poz_rtf, lineHeight);
        if (text.isPair(i)) {
            afterFrameLine(text.lines[i] + text.lines[i + 1]);
            ++i;
        } else {
            afterFrameLine(text.lines[i]);
        }
    }
    text.start = text.k + 1;
}

void RtfWriter::plateRow(const ReportPlate& section) {
    DeferredText text{section.lines()};
    int count = 0; // pictures of the row
    for (const ReportPlateBlock& block : section.blocks) {
        const BlockPlace& own = blockPlaces[block.check - 1];
        const int place = count + 1;
        if (own.height > 0 && (place == 1 || place == picturesInRow + 1))
            Koniec_strony_RTF(Poz_rtf, own.height);
        placed(frame(own.head, block.figure.isEmpty() ? noSketchFile : block.figure), gap);
        if (own.pair)
            text.Pary(text.index) = CInt(text.k + 1);
        if (own.nextPair)
            ++text.index;
        text.k += static_cast<int>(block.lines.size());
        if (block.check == uncountedCheck)
            continue;
        count = place;
        if (count == picturesInRow && own.rowEnd != RowEnd::None) {
            flush(text, 2); // from the heading's last line, which stands there already
            if (own.rowEnd == RowEnd::WithTrailer)
                file_.line(u"\\par    \\pard");
        }
    }
    if (text.start != text.k)
        flush(text, text.start);
}

void RtfWriter::Wyniki_RTF_ms() {
    const int cases = report_.caseCount();
    casesOfRow(0, std::min(cases, casesInRow), 5);
    if (cases > casesInRow)
        casesOfRow(casesInRow, cases - casesInRow, 6);
    if (report_.summary)
        summary(*report_.summary);
    if (report_.plate) {
        plateHeading(*report_.plate);
        plateRow(*report_.plate);
    }
    if (report_.anchor) {
        Koniec_strony_RTF(Poz_rtf, 30);
        spacer();
        placed(frame(anchorHead, report_.anchor->figure), gap);
        Koniec_strony_RTF(Poz_rtf, 22.19);
        heading(report_.anchor->heading);
        for (const QString& text : report_.anchor->lines)
            afterFrameLine(text);
    }
}

} // namespace ferna
