#include "report/report_lines.h"

#include "design/material_tables.h"
#include "design/typed_names.h"
#include "runtime/format.h"
#include "runtime/text_file.h"

namespace ferna {

namespace {

QString steelLine(const Stan& stan) {
    const Materialy& m = stan.materialy;
    const QString mpa = QStringLiteral(" MPa");
    if (stan.opcje.Nr_stali == userSteel)
        return stan.Teksty(13) + m.Stal_nazwa + QStringLiteral("  fd = ")
               + Format(m.Fd_kotwy, u"####") + mpa + QStringLiteral("  Re = ")
               + Format(m.Stal_Re, u"####") + mpa + QStringLiteral("  Rm = ")
               + Format(m.Stal_Rm, u"####") + mpa;
    return stan.Teksty(13) + steelNames().at(stan.opcje.Nr_stali - 1) + m.Klasa_stali
           + QStringLiteral("  fd = ") + Format(m.Fd_kotwy, u"####") + mpa;
}

void fillDataLines(Raport& raport, const Stan& stan) {
    const auto millimetres = [](Single cm) {
        return Format(cm * 10.0, u"## ###") + QStringLiteral(" mm");
    };
    raport.Wiersze_danych(1) =
        stan.Teksty(10) + QStringLiteral("x = ") + millimetres(stan.plyta.Dlugosc_plyty);
    raport.Wiersze_danych(2) =
        stan.Teksty(11) + QStringLiteral("y = ") + millimetres(stan.plyta.Szerokosc_plyty);
    raport.Wiersze_danych(3) = stan.Teksty(12) + stan.materialy.Nazwa_betonu
                               + stan.Teksty(33 + stan.opcje.Stopa_betonowa)
                               + QStringLiteral("       Eb = ")
                               + Format(stan.materialy.Eb_betonu, u"####### MPa      E/Eb = ")
                               + general(stan.opcje.Wsp_n_val);
    raport.Wiersze_danych(4) = steelLine(stan);
}

void fillLoadTable(Stan& stan) {
    const Obciazenia& loads = stan.obciazenia;
    auto& lines = stan.raport.Wiersze_obciazen;
    lines(0) = stan.Teksty(14);
    lines(1) =
        QStringLiteral("                    N                      M1                       M2 "
                       "                   Vx                 Vy");
    for (int c = 1; c <= loads.Liczba_przyp; ++c)
        lines(c + 1) = stan.Teksty(15) + Format(c, u"##     ")
                       + Format(loads.Sila_N(c), u"### ##0.00 kN     ")
                       + Format(CSng(loads.Moment_M1(c)), u"### ##0.00 kNm     ")
                       + Format(CSng(loads.Moment_M2(c)), u"### ##0.00 kNm    ")
                       + Format(loads.Sila_Vx(c), u"### ##0.00 kN      ")
                       + Format(loads.Sila_Vy(c), u"### ##0.00 kN");
    lines(loads.Liczba_przyp + 2) = QString();
}

} // namespace

void Nazwa_zadania(Raport& raport, Dialogs& dialogs) {
    raport.typedLabel =
        oneLine(dialogs.input(QStringLiteral("Podaj oznaczenie stopy (max 32 znaki)"), programTitle,
                              raport.Nazwa_stopy, QPoint(220, 300), labelNote));
    raport.Nazwa_stopy = raport.typedLabel.left(longestLabel);
}

void Naglowek(Raport& raport, const Stan& stan, bool norm0, const QDateTime& now,
              Dialogs& dialogs) {
    Nazwa_zadania(raport, dialogs);
    auto& title = raport.Wiersze_naglowka;
    title(1) = QStringLiteral("Zakotwienie słupów stalowych wg PN-B-03215:1999 oraz ")
               + (norm0 ? QStringLiteral("PN-84/B-03264") : QStringLiteral("PN-B-03264:1999"));
    title(2) = QString();
    title(3) = QString();
    title(4) = stan.opcje.Nazwa_projektu;
    title(5) = now.toString(u"dd/MM/yy") + QStringLiteral("     ") + now.toString(u"hh:mm");
    title(6) = QStringLiteral("Strona ");
    title(7) = raport.Nazwa_stopy;
    title(8) = QString();
}

void Wypelnij_wiersze(Raport& raport, Stan& stan) {
    stan.raport.Wiersze_srub(0) = stan.Teksty(7);
    raport.Wiersze_stale(0) = stan.Teksty(8);
    raport.Wiersze_stale(1) = stan.Teksty(9);
    raport.Wiersze_stale(2) = QString();
    raport.Wiersze_stale(3) = stan.Teksty(17);
    fillDataLines(raport, stan);
    fillLoadTable(stan);
}

QString Wiersz_strefy(const Stan& stan, int c) {
    const auto millimetres = [](Single cm) { return general(Int(CSng(cm * 10.0))); };
    const Wyniki& r = stan.wyniki;
    return stan.Teksty(45) + millimetres(r.Przec_a(c)) + u',' + millimetres(r.Przec_b(c))
           + QStringLiteral("), B(") + millimetres(r.Przec_c(c)) + u',' + millimetres(r.Przec_d(c))
           + u')';
}

std::array<QString, 3> Wiersze_podsumowania(const Stan& stan) {
    const Wyniki& r = stan.wyniki;
    return {stan.Teksty(18) + Format(r.Sigma_b_max, u"##0.0# MPa"),
            stan.Teksty(19) + Format(r.Sigma_s_max, u"# ##0.0# MPa"),
            stan.Teksty(20) + Format(r.Sila_kotwy_max, u"## ##0.0# kN")};
}

QChar omegaSubscript(const Stan& stan) {
    return stan.opcje.Nr_normy == 1 ? u'u' : u'd';
}

QString caseTitle(const Stan& stan, int c) {
    return stan.Teksty(16) + general(c);
}

} // namespace ferna
