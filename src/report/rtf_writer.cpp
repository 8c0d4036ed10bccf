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

constexpr QStringView generalView =
    uR"(\pard \absw2850\absh1860\phmrg{\*\flymaincnt0\flyanchor0\flycntnt})"
    uR"({{\field\fldpriv{\*\fldinst{\\import Ferogo2.bmp}}{\fldrslt}}})";
constexpr QStringView platePicture =
    uR"(\pard \absw3380\absh2260\posx4500\posy0{\*\flymaincnt0\flyanchor0\flycntnt})"
    uR"({{\field\fldpriv{\*\fldinst{\\import Ferrob.bmp}}{\fldrslt}}})";

constexpr QStringView Rtf_par = u"\\par ";
constexpr QStringView Rtf_pard = u"\\pard ";

/// Omega with its subscript, in letters of their own.
QString Rtf_omega(const Stan& stan) {
    return QStringLiteral(R"({\f2\fs16 w}{\f1\fs10 )") + omegaSubscript(stan) + u'}';
}

} // namespace

QString rtfFrame(QStringView head, const QString& name) {
    return head.toString()
           + QStringLiteral(R"({\*\flyanchor0\flycntnt}{{\field\fldpriv{\*\fldinst{\\import )")
           + name + QStringLiteral(R"(}}{\fldrslt}}})");
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
    put(opening, raport_.Wiersze_naglowka(1));
    for (int i = 2; i <= 8; ++i)
        line(raport_.Wiersze_naglowka(i));
}

void RtfWriter::Koniec_strony_RTF(Single& y, Double wysokosc) {
    if (y + wysokosc > pageHeight) {
        stan_.opcje.Nr_strony = CInt(stan_.opcje.Nr_strony + 1);
        raport_.Wiersze_naglowka(6) =
            now_.toString(u"dd/MM/yy") + QStringLiteral("     ") + now_.toString(u"hh:mm")
            + QString(blanksBeforePageNumber, u' ') + QStringLiteral("Strona ")
            + Format(stan_.opcje.Nr_strony, u"####");
        titleBlock(u"\\par \\page\\pard\\plain\\f1\\fs16 ");
        y = topOfPage;
    }
    y = CSng(y + wysokosc);
}

void RtfWriter::fixedPictures() {
    notePicture(QStringLiteral("Ferogo2.bmp"));
    file_.line(generalView);
    file_.line(Rtf_pard);
    notePicture(QStringLiteral("Ferrob.bmp"));
    file_.line(platePicture);
    file_.line(Rtf_pard);
}

void RtfWriter::generalData() {
    for (int i = 1; i <= 4; ++i)
        line(raport_.Wiersze_danych(i));
    for (int i = 0; i <= stan_.plyta.Liczba_srub; ++i)
        line(stan_.raport.Wiersze_srub(i));
    for (int i = 0; i <= stan_.obciazenia.Liczba_przyp + 2; ++i)
        line(stan_.raport.Wiersze_obciazen(i));
}

void RtfWriter::loadCase(ResultLines& results, int c, const QString& sketch) {
    put(Rtf_par, caseTitle(stan_, c), Rtf_pard);
    if (!sketch.isEmpty())
        placed(sketch);
    if (!wholePlate(stan_, c)) {
        line(raport_.Wiersze_strefy(c - 1));
        line(raport_.Wiersze_stale(1));
    }
    results.ofCase(
        c, [this](const QString& text) { line(text); },
        [this](const QString& text, const QString& ratio) {
            line(text + Rtf_omega(stan_) + ratio);
        });
    line(raport_.Wiersze_stale(2));
}

void RtfWriter::caseTest(int c, int furtherLines) {
    const auto& last = stan_.wyniki.Ostatni_wiersz;
    Koniec_strony_RTF(Poz_rtf, (last(c) - last(c - 1) + furtherLines) * lineHeight);
}

void RtfWriter::summary() {
    Koniec_strony_RTF(Poz_rtf, 15.85);
    line(raport_.Wiersze_stale(3));
    for (const QString& text : Wiersze_podsumowania(stan_))
        line(text);
}

void RtfWriter::plateHeading() {
    const auto& lines = stan_.raport.Wiersze_blachy;
    Koniec_strony_RTF(Poz_rtf, 15.85);
    line(lines(0));
    heading(lines(1));
    reset(lines(2));
}

void RtfWriter::document() {
    const Integer mode = stan_.opcje.Tryb_RTF;
    if (mode != 1 && mode != 2)
        throw RunTimeError(error::InvalidCall,
                           QStringLiteral("raport RTF jest wyłączony (Tryb_RTF = %1)").arg(mode));
    file_.line(fontTable);
    file_.line(colourTable);
    file_.line(paper);
    titleBlock(uR"(\pard \f1\fs16 {)");
    fixedPictures();
    generalData();
    Poz_rtf =
        CSng((stan_.obciazenia.Liczba_przyp + stan_.plyta.Liczba_srub + 3) * lineHeight + 60 + 1);
    if (mode == 1)
        Wyniki_RTF_ms();
    else
        Wyniki_RTF_so();
    file_.line(u"}");
    file_.line(u"\\par}");
}

TextFileWriter rtfReport(Stan& stan, Raport& raport, const QDateTime& now) {
    RtfWriter writer(stan, raport, now);
    writer.document();
    return writer.file();
}

void saveRtfReport(Stan& stan, Raport& raport, const QDateTime& now, const QString& path) {
    const Integer Nr_strony = stan.opcje.Nr_strony;
    const QString pageLine = raport.Wiersze_naglowka(6);
    try {
        rtfReport(stan, raport, now).commit(path);
    } catch (...) {
        stan.opcje.Nr_strony = Nr_strony;
        raport.Wiersze_naglowka(6) = pageLine;
        throw;
    }
}

SaveQuestion rtfQuestion() {
    return {QStringLiteral("Podaj nazwę pliku w formacie rtf"), QStringLiteral("Wyniki"),
            QStringLiteral(".rtf"),
            QStringLiteral("plik wyników (*.rtf)|*.rtf|wszystkie pliki (*.*)|*.*")};
}

} // namespace ferna
