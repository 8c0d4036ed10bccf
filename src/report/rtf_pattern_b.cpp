#include "report/rtf_writer.h"

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

/// Place of a check of the plate section.
struct BlockPlace {
    Double height;       // of the page test
    Head head;           // of its picture; none without one, and the count stands still
    qsizetype lines = 5; // that are written at most
    bool spacerBehind = false;
};

// The sixth line of the last check is not written.
constexpr BlockPlace blockPlaces[] = {
    {19.02, block1Head, 5, true}, {15.85, block2Head}, {19.02, otherHead}, {15.85, {}},
    {19.02, otherHead},           {19.02, otherHead},  {19.02, otherHead}, {19.02, otherHead},
};

} // namespace

void RtfWriter::plateColumns(const ReportPlate& section) {
    int pictures = 0;
    for (const ReportPlateBlock& block : section.blocks) {
        const BlockPlace& place = blockPlaces[block.check - 1];
        Koniec_strony_RTF(Poz_rtf, place.height);
        if (!block.figure.isEmpty()) {
            ++pictures;
            const bool even = pictures / 2 * 2 == pictures;
            placed(frame(even ? place.head.even : place.head.odd, block.figure));
        }
        for (const QString& text : block.lines.mid(0, place.lines))
            afterFrameLine(text);
        if (place.spacerBehind)
            spacer();
    }
}

void RtfWriter::Wyniki_RTF_so() {
    for (const ReportCase& section : report_.cases) {
        caseTest(section, 5);
        loadCase(section, section.wholePlate() ? QString() : frame(caseHead, section.figure));
    }
    if (report_.summary)
        summary(*report_.summary);
    if (report_.plate) {
        plateHeading(*report_.plate);
        plateColumns(*report_.plate);
    }
    if (report_.anchor) {
        Koniec_strony_RTF(Poz_rtf, 25);
        spacer();
        placed(frame(anchorHead, report_.anchor->figure));
        spacer();
        Koniec_strony_RTF(Poz_rtf, 6.34);
        heading(report_.anchor->heading);
        spacer();
        Koniec_strony_RTF(Poz_rtf, 22.19);
        for (const QString& text : report_.anchor->lines)
            afterFrameLine(text);
    }
}

} // namespace ferna
