#include "report/wyd_writer.h"

#include "pages/sketch_files.h"
#include "protocol/renderer_files.h"
#include "report/zone_sketch.h"
#include "runtime/format.h"

#include <array>

namespace ferna {

namespace {

constexpr Single lineStep = 4.5F; // mm
constexpr Single topOfBody = 85;
constexpr Single topOfFollowingPage = 40;

/// A block of the plate section: its sketch beside its lines, then the step to the next block.
struct PlateBlock {
    int check;
    const char* width; // of the sketch; empty: none
    const char* height;
    const char* file;
    int lines;
    Single step;
    Single sketchAbove = 0; // how far the sketch stands above the first line
};

constexpr std::array plateBlocks{
    PlateBlock{1, "32.3", "35.5", "Szkic1.bmp", 4, 27, 12},
    PlateBlock{2, "32.3", "29.3", "Szkic2.bmp", 4, 28},
    PlateBlock{3, "33.7", "22.3", "Szkic31.bmp", 5, 23},
    PlateBlock{4, "", "", "", 4, 18},
    PlateBlock{5, "33.7", "22.3", "Szkic32.bmp", 5, 23},
    PlateBlock{6, "33.7", "22.3", "Szkic33.bmp", 5, 23},
    PlateBlock{7, "33.7", "22.3", "Szkic51.bmp", 5, 23},
    PlateBlock{8, "33.7", "22.3", "Szkic52.bmp", 6, 0}, // y simply runs on
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
    const auto& title = raport_.Wiersze_naglowka;
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
                         stan_.opcje.Nr_strony);
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

void WydWriter::generalData() {
    for (int i = 1; i <= 4; ++i)
        bodyLine(raport_.Wiersze_danych(i));
    for (int i = 0; i <= stan_.plyta.Liczba_srub; ++i)
        bodyLine(stan_.raport.Wiersze_srub(i));
    for (int i = 0; i <= stan_.obciazenia.Liczba_przyp + 2; ++i)
        bodyLine(stan_.raport.Wiersze_obciazen(i));
    bodyLine(raport_.Wiersze_stale(0));
}

/// The omega of the line is a letter of the Symbol font, its subscript a millimetre lower.
void WydWriter::exceedanceLine(const QString& text, const QString& ratio) {
    bodyLine(text);
    commands_.text({{}, {}, bodyHeight, false, wyd::symbolFont}, u"w");
    commands_.text({{}, QStringLiteral("@1"), bodyHeight}, QString(omegaSubscript(stan_)));
    commands_.text({{}, QStringLiteral("@-1"), bodyHeight}, ratio);
}

void WydWriter::loadCase(ResultLines& results, int c) {
    bodyLine(caseTitle(stan_, c));
    if (!wholePlate(stan_, c)) {
        picture({QStringLiteral("125."), Format_kropka(Poz_y - lineStep, u"#0.0"),
                 QStringLiteral("41.1"), QStringLiteral("27.9")},
                zoneSketchFile(c));
        bodyLine(raport_.Wiersze_strefy(c - 1));
        bodyLine(raport_.Wiersze_stale(1));
    }
    bodyLine(raport_.Wiersze_stale(2));
    results.ofCase(
        c, [this](const QString& text) { bodyLine(text); },
        [this](const QString& text, const QString& ratio) { exceedanceLine(text, ratio); });
    bodyLine(raport_.Wiersze_stale(2));
}

void WydWriter::summary() {
    bodyLine(raport_.Wiersze_stale(2));
    bodyLine(raport_.Wiersze_stale(3));
    for (const QString& line : Wiersze_podsumowania(stan_))
        bodyLine(line);
}

void WydWriter::plateSection() {
    const auto& lines = stan_.raport.Wiersze_blachy;
    bodyLine(lines(0));
    underlinedLine(lines(1));
    bodyLine(lines(2));
    Poz_y_blachy = Poz_y;
    int k = 2; // last line written
    for (const PlateBlock& block : plateBlocks) {
        if (stan_.raport.Spr_blachy(block.check) <= 0)
            continue;
        if (block.file[0] != '\0')
            picture({QStringLiteral("135."),
                     Format_kropka(Poz_y_blachy - block.sketchAbove, u"##0.0"),
                     QLatin1String(block.width), QLatin1String(block.height)},
                    QLatin1String(block.file));
        for (int i = 1; i <= block.lines; ++i)
            bodyLine(lines(k + i), u"##0.0");
        k += block.lines;
        if (block.step > 0) {
            Poz_y_blachy += block.step;
            Poz_y = Poz_y_blachy;
        }
    }
}

void WydWriter::anchorSection() {
    const auto& lines = stan_.raport.Wiersze_kotwy;
    Poz_y += 2;
    underlinedLine(lines(1));
    for (int i = 2; i <= 6; ++i)
        bodyLine(lines(i));
    picture({QStringLiteral("80.0"), Format_kropka(Poz_y - 27, u"##0.0"), QStringLiteral("91.5"),
             QStringLiteral("29.0")},
            anchorSketchFile);
    commands_.emptyLine();
    Poz_y += 6;
    for (int i = 7; i <= stan_.raport.Liczba_wierszy_kotwy; ++i)
        bodyLine(lines(i));
}

void WydWriter::body() {
    Naglowek_wyd();
    picture({QStringLiteral("10."), QStringLiteral(" 35."), QStringLiteral("52.9"),
             QStringLiteral("34.7")},
            QStringLiteral("Ferogo2.bmp"));
    picture({QStringLiteral("75."), QStringLiteral(" 35."), QStringLiteral("70.1"),
             QStringLiteral("46.6")},
            QStringLiteral("Ferrob.bmp"));
    Poz_y = topOfBody;
    generalData();
    ResultLines results(stan_);
    for (int c = 1; c <= stan_.obciazenia.Liczba_przyp; ++c)
        loadCase(results, c);
    if (stan_.obciazenia.Liczba_przyp > 1)
        summary();
    if (stan_.raport.Liczba_wierszy_blachy >= 1)
        plateSection();
    if (stan_.raport.Liczba_wierszy_kotwy >= 1)
        anchorSection();
}

void Buduj_wyd(const Stan& stan, const Raport& raport, const QString& folder) {
    WydWriter frame(stan, raport, folder);
    frame.Naglowek_wyd();
    frame.file().commit(folder + u'/' + wyd::frameFile, Lasting::UntilNextUse);
    WydWriter report(stan, raport, folder);
    report.body();
    if (stan.raport.Liczba_wierszy_kotwy >= 1)
        saveAnchorSketch(folder, stan.raport.Typ_szkicu_kotwy);
    report.file().commit(folder + u'/' + wyd::bodyFile, Lasting::UntilNextUse);
}

} // namespace ferna
