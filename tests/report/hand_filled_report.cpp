#include "report/hand_filled_report.h"

#include <array>

namespace ferna::testing {

namespace {

constexpr int anchors = 4;

QString number(int value) {
    return QString::number(value);
}

void fillCatalogue(Stan& stan) {
    stan.Teksty(16) = QStringLiteral("Schemat obciążenia nr ");
    stan.Teksty(18) = QStringLiteral("Największe naprężenie w betonie ");
    stan.Teksty(19) = QStringLiteral("Największe naprężenie w kotwie ");
    stan.Teksty(20) = QStringLiteral("Największa siła w kotwie ");
}

void fillTitleAndData(Raport& raport, Stan& stan, int cases) {
    raport.Wiersze_naglowka(1) =
        QStringLiteral("Zakotwienie słupów stalowych wg PN-B-03215:1999 oraz PN-84/B-03264");
    raport.Wiersze_naglowka(4) = QStringLiteral("Hala nr 7, oś B");
    raport.Wiersze_naglowka(5) = QStringLiteral("14/03/25     09:05");
    raport.Wiersze_naglowka(6) = QStringLiteral("Strona ");
    raport.Wiersze_naglowka(7) = QStringLiteral("Stopa F-1");
    raport.Nazwa_stopy = raport.Wiersze_naglowka(7);
    raport.Wiersze_danych(1) = QStringLiteral("Długość blachy x =    600 mm");
    raport.Wiersze_danych(2) = QStringLiteral("Szerokość blachy y =    400 mm");
    raport.Wiersze_danych(3) = QStringLiteral("Beton B20, stopa betonowa       Eb = 27000 MPa");
    raport.Wiersze_danych(4) = QStringLiteral("Stal kotew 2 St3S  fd = 195 MPa");
    raport.Wiersze_stale(0) = QStringLiteral("Wyniki obliczeń");
    raport.Wiersze_stale(1) = QStringLiteral("Naprężenia w kotwach:");
    raport.Wiersze_stale(3) = QStringLiteral("Wartości największe");
    stan.raport.Wiersze_srub(0) = QStringLiteral("Kotwy:");
    for (int i = 1; i <= anchors; ++i)
        stan.raport.Wiersze_srub(i) = QStringLiteral("  nr %1  średnica 24 mm").arg(i);
    stan.raport.Wiersze_obciazen(0) = QStringLiteral("Obciążenia");
    stan.raport.Wiersze_obciazen(1) = QStringLiteral("          N          M1          M2");
    for (int c = 1; c <= cases; ++c)
        stan.raport.Wiersze_obciazen(c + 1) = QStringLiteral("  schemat %1  300,00 kN").arg(c);
}

void fillResults(Raport& raport, Stan& stan, int cases, int resultLines) {
    Wyniki& results = stan.wyniki;
    for (int c = 1; c <= cases; ++c) {
        const int before = results.Ostatni_wiersz(c - 1);
        for (int i = 1; i <= resultLines; ++i)
            results.Wiersze_wynikow(before + i) =
                QStringLiteral("wynik ") + number(c) + u'.' + number(i) + u' ';
        if (c == 1 && resultLines >= 3)
            results.Znak_wiersza(before + 3) = 2;
        if (c == 2 || c == 3)
            results.Znak_wiersza(before + 2) = 1;
        results.Ostatni_wiersz(c) = CInt(before + resultLines);
        if (!wholePlate(stan, c))
            raport.Wiersze_strefy(c - 1) = QStringLiteral("Oś obojętna A(") + number(10 * c)
                                           + QStringLiteral(",-200), B(300,5)");
    }
    results.Tekst_przekroczenia(1) = QStringLiteral(" = 1,10");
    results.Tekst_przekroczenia(2) = QStringLiteral(" = 1,25");
    results.Sigma_b_max = 7.25F;
    results.Sigma_s_max = -101.5F;
    results.Sila_kotwy_max = -35.75F;
}

} // namespace

HandFilledReport::HandFilledReport(int cases, int resultLines, const std::set<int>& whole) {
    stan.plyta.Liczba_srub = anchors;
    stan.obciazenia.Liczba_przyp = CInt(cases);
    for (const int c : whole)
        stan.wyniki.Przyp_policzony(c) = True;
    fillCatalogue(stan);
    fillTitleAndData(raport, stan, cases);
    fillResults(raport, stan, cases, resultLines);
}

HandFilledReport& HandFilledReport::withPlate(std::initializer_list<int> checks) {
    constexpr std::array linesOfCheck{4, 4, 5, 4, 5, 5, 5, 6};
    auto& lines = stan.raport.Wiersze_blachy;
    lines(0) = QStringLiteral("\r\n");
    lines(1) = QStringLiteral("Blacha podstawy o grubości 20 mm");
    lines(2) = QStringLiteral("\r\n");
    int last = 2;
    for (const int check : checks) {
        const int count = linesOfCheck.at(static_cast<std::size_t>(check - 1));
        const int written = check == 8 ? count - 1 : count; // the last check ends on an empty line
        for (int i = 1; i <= written; ++i)
            lines(last + i) = QStringLiteral("blacha ") + number(check) + u'.' + number(i) + u' ';
        last += count;
        stan.raport.Spr_blachy(check) = 20;
    }
    stan.raport.Liczba_wierszy_blachy = CInt(last);
    return *this;
}

HandFilledReport& HandFilledReport::withAnchorSection(int lines) {
    for (int i = 0; i <= lines; ++i)
        stan.raport.Wiersze_kotwy(i) = QStringLiteral("kotwa wiersz %1").arg(i);
    stan.raport.Liczba_wierszy_kotwy = CInt(lines);
    stan.raport.Typ_szkicu_kotwy = 1;
    return *this;
}

} // namespace ferna::testing
