#include "report/rtf_writer.h"

#include "runtime/format.h"

namespace ferna {

namespace {

constexpr Double pageHeight = 210;
constexpr Single topOfPage = 1;
constexpr int blanksBeforePageNumber = 120;

// The head of the file as it has always been, slips included.
constexpr QStringView fontTable =
    uR"({\rtf1\ansi\ansicpg1250\deff1)"
    uR"({\fonttbl{\f0\froman\fcharset238\fprq2{\*\panose02020603050405020304}Times New Roman;})"
    uR"({\f1\fswiss\fcharset238\fprq2{\*\panose 020b0604020202020204}Arial;})"
    uR"({\f2\froman\fprq2\fcharset Symbol;}})";
constexpr QStringView colourTable =
    uR"({\colortbl;\red0\green0\blue0;red0\green0\blue255;\red0\green255\blue255;)"
    uR"(\red0\green255\blue0;\red255\green0\blue255;\red255\green0\blue0;\red255\green255\blue0;)"
    uR"(\red255\green255\blue255;})";
constexpr QStringView paper =
    uR"(\paperw12240\paperh15840\margll1780\margr1080\margt1440\margb1440)";

// The two fixed pictures, each up to the name of its file.
constexpr QStringView generalViewFrame =
    uR"(\pard \absw2850\absh1860\phmrg{\*\flymaincnt0\flyanchor0\flycntnt})"
    uR"({{\field\fldpriv{\*\fldinst{\\import )";
constexpr QStringView platePictureFrame =
    uR"(\pard \absw3380\absh2260\posx4500\posy0{\*\flymaincnt0\flyanchor0\flycntnt})"
    uR"({{\field\fldpriv{\*\fldinst{\\import )";
constexpr QStringView frameEnd = uR"(}}{\fldrslt}}})";

constexpr QStringView Rtf_par = u"\\par ";
constexpr QStringView Rtf_pard = u"\\pard ";

/// Omega with its subscript, in letters of their own.
QString Rtf_omega(QChar subscript) {
    return QStringLiteral(R"({\f2\fs16 w}{\f1\fs10 )") + subscript + u'}';
}

} // namespace

QString rtfFrame(QStringView head, const QString& name) {
    return head.toString()
           + QStringLiteral(R"({\*\flyanchor0\flycntnt}{{\field\fldpriv{\*\fldinst{\\import )")
           + name + frameEnd.toString();
}

void RtfWriter::line(const QString& text) {
    put(Rtf_par, text);
}

void RtfWriter::afterFrameLine(const QString& text) {
    put(Rtf_par, QStringView(u"\\plain \\f1\\fs16 "), text, Rtf_pard);
}

void RtfWriter::heading(const QString& text) {
    put(Rtf_par, QStringView(u"\\f1\\fs16\\ul "), text, u' ', Rtf_par);
}

void RtfWriter::reset(const QString& text) {
    put(Rtf_par, Rtf_pard, QStringView(u"\\plain "), text);
}

void RtfWriter::spacer() {
    reset(QStringLiteral(" "));
}

void RtfWriter::placed(const QString& frame, QStringView gap) {
    put(Rtf_pard, frame, gap, Rtf_pard);
}

void RtfWriter::notePicture(const QString& name) {
    if (!pictures_.contains(name))
        pictures_ += name;
}

QString RtfWriter::frame(QStringView head, const QString& name) {
    notePicture(name);
    return rtfFrame(head, name);
}

void RtfWriter::titleBlock(QStringView opening) {
    put(opening, report_.title(1));
    for (int i = 2; i <= 8; ++i)
        line(i == 6 ? reached_.pageLine : report_.title(i));
}

void RtfWriter::Koniec_strony_RTF(Single& y, Double wysokosc) {
    if (y + wysokosc > pageHeight) {
        reached_.Nr_strony = CInt(reached_.Nr_strony + 1);
        reached_.pageLine = now_.toString(u"dd/MM/yy") + QStringLiteral("     ")
                            + now_.toString(u"hh:mm") + QString(blanksBeforePageNumber, u' ')
                            + QStringLiteral("Strona ") + Format(reached_.Nr_strony, u"####");
        titleBlock(u"\\par \\page\\pard\\plain\\f1\\fs16 ");
        y = topOfPage;
    }
    y = CSng(y + wysokosc);
}

void RtfWriter::fixedPictures() {
    notePicture(report_.generalView);
    put(generalViewFrame, report_.generalView, frameEnd);
    file_.line(Rtf_pard);
    notePicture(report_.platePicture);
    put(platePictureFrame, report_.platePicture, frameEnd);
    file_.line(Rtf_pard);
}

void RtfWriter::generalData() {
    for (const QStringList* lines : {&report_.data, &report_.anchors, &report_.loads})
        for (const QString& text : *lines)
            line(text);
}

void RtfWriter::loadCase(const ReportCase& section, const QString& sketch) {
    put(Rtf_par, section.title, Rtf_pard);
    if (!sketch.isEmpty())
        placed(sketch);
    for (const QString& text : section.axis)
        line(text);
    for (const ReportResultLine& result : section.results)
        line(result.ratio ? result.text + Rtf_omega(report_.omegaSubscript) + *result.ratio
                          : result.text);
    line({});
}

void RtfWriter::caseTest(const ReportCase& section, int furtherLines) {
    Koniec_strony_RTF(Poz_rtf, (section.countedLines + furtherLines) * lineHeight);
}

void RtfWriter::summary(const ReportSummary& section) {
    Koniec_strony_RTF(Poz_rtf, 15.85);
    line(section.heading);
    for (const QString& text : section.lines)
        line(text);
}

void RtfWriter::plateHeading(const ReportPlate& section) {
    Koniec_strony_RTF(Poz_rtf, 15.85);
    line(section.head[0]);
    heading(section.heading());
    reset(section.head[2]);
}

void RtfWriter::document(Integer Tryb_RTF) {
    if (Tryb_RTF != 1 && Tryb_RTF != 2)
        throw RunTimeError(
            error::InvalidCall,
            QStringLiteral("raport RTF jest wyłączony (Tryb_RTF = %1)").arg(Tryb_RTF));
    file_.line(fontTable);
    file_.line(colourTable);
    file_.line(paper);
    titleBlock(uR"(\pard \f1\fs16 {)");
    fixedPictures();
    generalData();
    Poz_rtf = CSng((report_.caseCount() + report_.anchorCount() + 3) * lineHeight + 60 + 1);
    if (Tryb_RTF == 1)
        Wyniki_RTF_ms();
    else
        Wyniki_RTF_so();
    file_.line(u"}");
    file_.line(u"\\par}");
}

RtfWriter rtfReport(const ReportModel& report, Integer Tryb_RTF, const QDateTime& now) {
    RtfWriter writer(report, now);
    writer.document(Tryb_RTF);
    return writer;
}

RtfPages saveRtfReport(const ReportModel& report, Integer Tryb_RTF, const QDateTime& now,
                       const QString& path) {
    RtfWriter writer = rtfReport(report, Tryb_RTF, now);
    writer.file().commit(path);
    return writer.reached();
}

SaveQuestion rtfQuestion() {
    return {QStringLiteral("Podaj nazwę pliku w formacie rtf"), QStringLiteral("Wyniki"),
            QStringLiteral(".rtf"),
            QStringLiteral("plik wyników (*.rtf)|*.rtf|wszystkie pliki (*.*)|*.*")};
}

} // namespace ferna
