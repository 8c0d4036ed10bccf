#include "report/wyd_writer.h"

#include "pages/sketch_files.h"
#include "protocol/renderer_files.h"
#include "runtime/format.h"

#include <array>

namespace ferna {

namespace {

constexpr Single lineStep = 4.5F; // mm
constexpr Single topOfBody = 85;
constexpr Single topOfFollowingPage = 40;

/// Place of a check of the plate section: its sketch beside its lines, then the step to the next.
struct PlateBlockPlace {
    const char* width; // of the sketch; empty: none
    const char* height;
    Single step;            // 0: y simply runs on
    Single sketchAbove = 0; // how far the sketch stands above the first line
};

constexpr PlateBlockPlace plateBlockPlaces[] = {
    {"32.3", "35.5", 27, 12}, {"32.3", "29.3", 28}, {"33.7", "22.3", 23}, {"", "", 18},
    {"33.7", "22.3", 23},     {"33.7", "22.3", 23}, {"33.7", "22.3", 23}, {"33.7", "22.3", 0},
};

/// The frame's rules; those without a pen are moves.
struct FrameRule {
    const char* x;
    const char* y;
    bool draws;
};
constexpr FrameRule frameRules[] = {
    {"178.", "0.", false}, {"178.", "0.1", true},  {"0.", "0.", false},   {"177.", "0.", true},
    {"177.", "30.", true}, {"0.", "30.", true},    {"0.", "0.", true},    {"0.", "15.", false},
    {"177.", "15.", true}, {"143.", "15.", false}, {"143.", "30.", true},
};

const QString bodyLeft = QStringLiteral("7.0");
const QString bodyHeight = QStringLiteral("3.2"); // of letters, mm
const QString frameHeight = QStringLiteral("3.5");

wyd::TextFields frameText(const QString& y) {
    return {QStringLiteral("3."), y, frameHeight};
}

} // namespace

void WydWriter::Naglowek_wyd() {
    const auto& title = report_.title;
    for (const FrameRule& rule : frameRules) {
        const QLatin1String x(rule.x);
        const QLatin1String y(rule.y);
        if (rule.draws)
            commands_.lineTo(x, y);
        else
            commands_.moveTo(x, y);
    }
    for (int i = 1; i <= 3; ++i)
        commands_.text(frameText(Format_kropka(i * 4.5, u"##.#")), title(i));
    commands_.text(frameText(QStringLiteral("19.0")), title(4));
    commands_.text(frameText(QStringLiteral("23.5")), title(5));
    commands_.text(frameText(QStringLiteral("28.0")), title(7));
    commands_.pageNumber({QStringLiteral("147."), QStringLiteral("23.5"), frameHeight}, title(6),
                         report_.firstPage);
    commands_.textAt(QStringLiteral("3."), QStringLiteral("55."), u" ");
    commands_.frameEnd();
}

void WydWriter::bodyLine(const QString& text, QStringView yPattern, bool underlined) {
    commands_.text({bodyLeft, Format_kropka(Poz_y, yPattern), bodyHeight, underlined}, text);
    Poz_y += lineStep;
}

void WydWriter::underlinedLine(const QString& text) {
    bodyLine(text, u"#0.0", true);
}

void WydWriter::picture(const wyd::PictureFields& fields, const QString& name) {
    pictures_ += name;
    commands_.picture(fields, wyd::pathLine(folder_, prefix_ + name));
}

void WydWriter::newPage() {
    Licznik_stron = CInt(Licznik_stron + 1);
    commands_.newPage();
    Naglowek_wyd();
}

void WydWriter::KoniecZ98() {
    if (Poz_y < 225)
        return;
    newPage();
    Poz_y = topOfFollowingPage;
    Poz_y_blachy = topOfFollowingPage;
}

void WydWriter::KoniecZ98R(Single& y, Single& y2, Integer wysokosc) {
    if (y < 236 && y + wysokosc <= 290)
        return;
    newPage();
    y = topOfFollowingPage;
    y2 = topOfFollowingPage;
}

void WydWriter::bodyLines(const QStringList& lines) {
    for (const QString& line : lines)
        bodyLine(line);
}

void WydWriter::generalData() {
    bodyLines(report_.data);
    bodyLines(report_.anchors);
    bodyLines(report_.loads);
    bodyLine(report_.resultsHeading);
}

/// The omega of the line is a letter of the Symbol font, its subscript a millimetre lower.
void WydWriter::exceedanceLine(const QString& text, const QString& ratio) {
    bodyLine(text);
    commands_.text({{}, {}, bodyHeight, false, wyd::symbolFont}, u"w");
    commands_.text({{}, QStringLiteral("@1"), bodyHeight}, QString(report_.omegaSubscript));
    commands_.text({{}, QStringLiteral("@-1"), bodyHeight}, ratio);
}

void WydWriter::loadCase(const ReportCase& section) {
    bodyLine(section.title);
    if (!section.wholePlate())
        picture({QStringLiteral("125."), Format_kropka(Poz_y - lineStep, u"#0.0"),
                 QStringLiteral("41.1"), QStringLiteral("27.9")},
                section.figure);
    bodyLines(section.axis);
    bodyLine({});
    for (const ReportResultLine& line : section.results) {
        if (line.ratio)
            exceedanceLine(line.text, *line.ratio);
        else
            bodyLine(line.text);
    }
    bodyLine({});
}

void WydWriter::summary(const ReportSummary& section) {
    bodyLine({});
    bodyLine(section.heading);
    for (const QString& line : section.lines)
        bodyLine(line);
}

void WydWriter::plateSection(const ReportPlate& section) {
    bodyLine(section.head[0]);
    underlinedLine(section.heading());
    bodyLine(section.head[2]);
    Poz_y_blachy = Poz_y;
    for (const ReportPlateBlock& block : section.blocks) {
        const PlateBlockPlace& place = plateBlockPlaces[block.check - 1];
        if (!block.figure.isEmpty())
            picture({QStringLiteral("135."),
                     Format_kropka(Poz_y_blachy - place.sketchAbove, u"##0.0"),
                     QLatin1String(place.width), QLatin1String(place.height)},
                    block.figure);
        for (const QString& line : block.lines)
            bodyLine(line, u"##0.0");
        if (place.step > 0) {
            Poz_y_blachy += place.step;
            Poz_y = Poz_y_blachy;
        }
    }
}

void WydWriter::anchorSection(const ReportAnchor& section) {
    constexpr int besideSketch = 5; // lines
    Poz_y += 2;
    underlinedLine(section.heading);
    bodyLines(section.lines.mid(0, besideSketch));
    picture({QStringLiteral("80.0"), Format_kropka(Poz_y - 27, u"##0.0"), QStringLiteral("91.5"),
             QStringLiteral("29.0")},
            section.figure);
    commands_.emptyLine();
    Poz_y += 6;
    bodyLines(section.lines.mid(besideSketch));
}

void WydWriter::body() {
    Naglowek_wyd();
    picture({QStringLiteral("10."), QStringLiteral(" 35."), QStringLiteral("52.9"),
             QStringLiteral("34.7")},
            report_.generalView);
    picture({QStringLiteral("75."), QStringLiteral(" 35."), QStringLiteral("70.1"),
             QStringLiteral("46.6")},
            report_.platePicture);
    Poz_y = topOfBody;
    generalData();
    for (const ReportCase& section : report_.cases)
        loadCase(section);
    if (report_.summary)
        summary(*report_.summary);
    if (report_.plate)
        plateSection(*report_.plate);
    if (report_.anchor)
        anchorSection(*report_.anchor);
}

void Buduj_wyd(const ReportModel& report, const QString& folder) {
    WydWriter frame(report, folder);
    frame.Naglowek_wyd();
    frame.file().commit(folder + u'/' + wyd::frameFile, Lasting::UntilNextUse);
    WydWriter whole(report, folder);
    whole.body();
    if (report.anchor)
        saveAnchorSketch(folder, report.anchor->sketch);
    whole.file().commit(folder + u'/' + wyd::bodyFile, Lasting::UntilNextUse);
}

} // namespace ferna
