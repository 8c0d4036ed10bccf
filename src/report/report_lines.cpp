#include "report/report_lines.h"

#include "design/catalogue.h"
#include "design/material_tables.h"
#include "design/typed_names.h"
#include "runtime/format.h"
#include "runtime/line_of_text.h"
#include "runtime/text_file.h"

namespace ferna {

namespace {

QString steelLine(const Stan& stan) {
    const Materialy& m = stan.materialy;
    LineOfText line;
    line.add(stan.Teksty(phrase::AnchorSteel));
    if (stan.opcje.Nr_stali == userSteel)
        return line.add(m.Stal_nazwa)
            .add(u"  fd = ")
            .number(m.Fd_kotwy, u"####")
            .add(u" MPa  Re = ")
            .number(m.Stal_Re, u"####")
            .add(u" MPa  Rm = ")
            .number(m.Stal_Rm, u"####")
            .add(u" MPa");
    return line.add(steelNames().at(stan.opcje.Nr_stali - 1))
        .add(m.Klasa_stali)
        .add(u"  fd = ")
        .number(m.Fd_kotwy, u"####")
        .add(u" MPa");
}

void fillDataLines(Raport& raport, const Stan& stan) {
    const auto millimetres = [](const QString& label, QStringView axis, Single cm) {
        return LineOfText().add(label).add(axis).number(cm * 10.0, u"## ###").add(u" mm");
    };
    raport.Wiersze_danych(1) =
        millimetres(stan.Teksty(phrase::PlateLength), u"x = ", stan.plyta.Dlugosc_plyty);
    raport.Wiersze_danych(2) =
        millimetres(stan.Teksty(phrase::PlateWidth), u"y = ", stan.plyta.Szerokosc_plyty);
    raport.Wiersze_danych(3) =
        LineOfText()
            .add(stan.Teksty(phrase::Concrete))
            .add(stan.materialy.Nazwa_betonu)
            .add(stan.Teksty(phrase::PlainFooting + stan.opcje.Stopa_betonowa))
            .add(u"       Eb = ")
            .number(stan.materialy.Eb_betonu, u"####### MPa      E/Eb = ")
            .general(stan.opcje.Wsp_n_val);
    raport.Wiersze_danych(4) = steelLine(stan);
}

void fillLoadTable(Stan& stan) {
    const Obciazenia& loads = stan.obciazenia;
    auto& lines = stan.raport.Wiersze_obciazen;
    lines(0) = stan.Teksty(phrase::LoadsHeading);
    lines(1) =
        QStringLiteral("                    N                      M1                       M2 "
                       "                   Vx                 Vy");
    for (int c = 1; c <= loads.Liczba_przyp; ++c)
        lines(c + 1) = LineOfText()
                           .add(stan.Teksty(phrase::LoadsOfCase))
                           .number(c, u"##     ")
                           .number(loads.Sila_N(c), u"### ##0.00 kN     ")
                           .number(CSng(loads.Moment_M1(c)), u"### ##0.00 kNm     ")
                           .number(CSng(loads.Moment_M2(c)), u"### ##0.00 kNm    ")
                           .number(loads.Sila_Vx(c), u"### ##0.00 kN      ")
                           .number(loads.Sila_Vy(c), u"### ##0.00 kN");
    lines(loads.Liczba_przyp + 2) = QString();
}

} // namespace

void Nazwa_zadania(Raport& raport, Dialogs& dialogs) {
    raport.typedLabel =
        oneLine(dialogs.input(QStringLiteral("Podaj oznaczenie stopy (max 32 znaki)"), programTitle,
                              raport.Nazwa_stopy, QPoint(220, 300), labelNote));
    raport.Nazwa_stopy = raport.typedLabel.left(longestLabel);
}

namespace {

/// "09/03/24     14:05".
QString momentText(const QDateTime& now) {
    constexpr int century = 100;
    const QDate date = now.date();
    const QTime time = now.time();
    return LineOfText()
        .number(date.day(), u"00")
        .add(u"/")
        .number(date.month(), u"00")
        .add(u"/")
        .number(date.year() % century, u"00")
        .add(u"     ")
        .number(time.hour(), u"00")
        .add(u":")
        .number(time.minute(), u"00");
}

} // namespace

void Naglowek(Raport& raport, const Stan& stan, bool norm0, const QDateTime& now,
              Dialogs& dialogs) {
    Nazwa_zadania(raport, dialogs);
    auto& title = raport.Wiersze_naglowka;
    raport.titledAt = now;
    title(1) = norm0 ? QStringLiteral("Zakotwienie słupów stalowych wg PN-B-03215:1999 oraz "
                                      "PN-84/B-03264")
                     : QStringLiteral("Zakotwienie słupów stalowych wg PN-B-03215:1999 oraz "
                                      "PN-B-03264:1999");
    title(2) = raport.titleLines[0];
    title(3) = raport.titleLines[1];
    title(4) = stan.opcje.Nazwa_projektu;
    title(5) = momentText(now);
    title(6) = QStringLiteral("Strona ");
    title(7) = raport.Nazwa_stopy;
    title(8) = QString();
}

void Wypelnij_wiersze(Raport& raport, Stan& stan) {
    stan.raport.Wiersze_srub(0) = stan.Teksty(phrase::AnchorsHeading);
    raport.Wiersze_stale(0) = stan.Teksty(phrase::ResultsHeading);
    raport.Wiersze_stale(1) = stan.Teksty(phrase::AnchorsInTensionHeading);
    raport.Wiersze_stale(2) = QString();
    raport.Wiersze_stale(3) = stan.Teksty(phrase::SummaryHeading);
    fillDataLines(raport, stan);
    fillLoadTable(stan);
}

QString Wiersz_strefy(const Stan& stan, int c) {
    const auto millimetres = [](Single cm) { return Int(CSng(cm * 10.0)); };
    const Wyniki& r = stan.wyniki;
    return LineOfText()
        .add(stan.Teksty(phrase::NeutralAxis))
        .general(millimetres(r.Przec_a(c)))
        .add(u",")
        .general(millimetres(r.Przec_b(c)))
        .add(u"), B(")
        .general(millimetres(r.Przec_c(c)))
        .add(u",")
        .general(millimetres(r.Przec_d(c)))
        .add(u")");
}

std::array<QString, 3> Wiersze_podsumowania(const Stan& stan) {
    const Wyniki& r = stan.wyniki;
    return {stan.Teksty(phrase::LargestConcreteStress) + Format(r.Sigma_b_max, u"##0.0# MPa"),
            stan.Teksty(phrase::LargestAnchorStress) + Format(r.Sigma_s_max, u"# ##0.0# MPa"),
            stan.Teksty(phrase::LargestAnchorForce) + Format(r.Sila_kotwy_max, u"## ##0.0# kN")};
}

QChar omegaSubscript(const Stan& stan) {
    return stan.opcje.Nr_normy == 1 ? u'u' : u'd';
}

QString caseTitle(const Stan& stan, int c) {
    return stan.Teksty(phrase::CaseTitle) + general(c);
}

} // namespace ferna
