#include "selection/selection_form.h"

#include "runtime/format.h"
#include "selection/anchor_catalogue.h"

#include <QStringList>

namespace ferna {

namespace {

constexpr Integer leastPlateAnchor = 20; // smallest diameter of a plate anchor, mm
constexpr Integer leastWithRib = 48;     // smallest plate anchor with a rib, mm
constexpr Integer largestSmallSketch = 42;
constexpr Integer nutAllowance = 30; // added below the plate of an anchor without a rib, mm

const QString mm = QStringLiteral(" mm");

QString inMm(Integer length) {
    return general(length) + mm;
}

/// A sum of whole numbers, each partial sum within 16 bits.
Integer sum(Integer x, Integer y) {
    return CInt(x + y);
}
template <typename... Rest>
Integer sum(Integer x, Integer y, Rest... rest) {
    return sum(sum(x, y), rest...);
}

Integer askThickness(Dialogs& dialogs) {
    const QString typed = dialogs.input(
        QStringLiteral("Podaj łączną grubość blachy czołowej i podlewki w mm"), programTitle, {});
    try {
        return CInt(typed);
    } catch (const RunTimeError& failure) {
        if (failure.number() != error::TypeMismatch)
            throw;
        dialogs.message(
            QStringLiteral("Podany ciąg znaków nie tworzy liczby\nPrzyjęto wartość ZERO."),
            programTitle, MessageStyle::Plain);
        return 0;
    }
}

struct PlateAnchorLengths {
    Integer LoP;
    Integer LcP;
};

PlateAnchorLengths plateAnchorLengths(const Stan& stan, SelectionForm& form,
                                      const CatalogueAnchor& row) {
    const Integer Lp = straightLengthPlate(row, stan.materialy.Wsp_dlugosci);
    const Integer LoP = sum(Lp, form.Grub_laczna, row.Ld);
    Integer S = sum(LoP, row.t);
    form.lblL1_visible = form.d >= leastWithRib;
    if (form.lblL1_visible)
        form.lblL1 += inMm(row.L1);
    else
        S = sum(S, nutAllowance);
    return {LoP, R50(S)};
}

void fillCaptions(SelectionForm& form, const PlateAnchorLengths& plate) {
    const QString capacity = Format(form.Nosnosc, u"### ##0.0") + QStringLiteral(" kN");
    for (const std::size_t kind : {0U, 1U}) {
        form.lblNosnosc[kind] += capacity;
        form.lbldia[kind] += inMm(form.d);
        form.lblLo[kind] += inMm(kind == 0 ? form.LoF : plate.LoP);
        form.lblLd[kind] += inMm(form.Ld);
        const Integer Lc = kind == 0 ? form.LcF : plate.LcP;
        form.lblLcalk[kind] += inMm(Lc);
        form.lblNazwa[kind] = (kind == 0 ? QStringLiteral("F-") : QStringLiteral("P-"))
                              + general(form.d) + u'-' + general(Lc);
    }
    form.lblLh += inMm(form.Lh);
    form.lbla += inMm(form.a);
    form.lblD += inMm(form.D);
    form.lblt += inMm(form.t);
}

/// The kind that the steel advises against is marked; thin anchors come hooked only.
void recommend(SelectionForm& form, Integer Nr_stali) {
    const QString mark = QStringLiteral(" (nie zalecane)");
    if (Nr_stali < 4) {
        form.SSTab1[1] += mark;
    } else {
        form.SSTab1[0] += mark;
        form.tab = 1;
    }
    if (form.d < leastPlateAnchor) {
        form.tab = 0;
        form.tabEnabled[1] = false;
    }
}

void load(Stan& stan, SelectionForm& form, Dialogs& dialogs) {
    const Integer nr = stan.wyniki.Nr_kotwy_max;
    stan.raport.Liczba_wierszy_kotwy = 0;
    form.d = stan.plyta.Fi_kotwy(nr);
    form.D = form.d < 20 ? CInt(2.5 * form.d) : CInt(5 * form.d);
    form.Grub_laczna = askThickness(dialogs);
    form.Lh = CInt(5 * form.d);
    const Double A = stan.plyta.Pole_kotwy(nr);
    form.Nosnosc = CSng(A * (stan.materialy.Fd_kotwy * 0.1)); // cm2 MPa / 10 = kN
    const CatalogueAnchor row = catalogueAnchor(form.d);
    form.Ld = row.Ld;
    form.a = row.a;
    form.t = row.t;
    const Integer Lk = straightLengthHooked(row, stan.materialy.Mnoznik_dlugosci, A);
    form.LoF = sum(Lk, form.Grub_laczna, form.Ld);
    form.LcF = R50(sum(form.LoF, form.Lh));
    fillCaptions(form, plateAnchorLengths(stan, form, row));
    if (form.d > largestSmallSketch)
        form.Picture1 = 3;
    recommend(form, stan.opcje.Nr_stali);
}

} // namespace

bool anchorSelectionOffered(const Stan& stan) {
    return stan.wyniki.Kotwy_OK != False && stan.raport.Liczba_wierszy_kotwy == 0;
}

bool loadSelection(Stan& stan, SelectionForm& form, Dialogs& dialogs) {
    try {
        load(stan, form, dialogs);
        return true;
    } catch (const RunTimeError& failure) {
        dialogs.message(Format(failure.number(), u"#####") + QStringLiteral("!!!!"), programTitle,
                        MessageStyle::Plain);
        return false;
    }
}

void bringToFront(SelectionForm& form, int tab) {
    if (form.tabEnabled.at(static_cast<std::size_t>(tab)))
        form.tab = tab;
}

void acceptSelection(Stan& stan, const SelectionForm& form) {
    const auto text = [&](int n) { return stan.Teksty(n); };
    const auto T = static_cast<std::size_t>(form.tab);
    const QString whole = text(29) + form.lblLcalk[T] + text(30);
    const QString thickness = text(28) + general(form.Grub_laczna) + mm;
    QStringList lines{text(21) + form.lblNazwa[T],
                      text(22) + Format(form.Nosnosc, u"### ##0.0") + QStringLiteral(" kN"),
                      text(23) + form.lbldia[T], text(27) + form.lblLd[T],
                      text(26) + form.lblLo[T]};
    if (form.tab == 0) {
        lines << text(24) + form.lblLh << text(25) + form.lblD;
    } else {
        const QString times = QStringLiteral(" x ");
        lines << text(31) + general(form.a) + times + general(form.a) + times + inMm(form.t);
        if (form.d > largestSmallSketch)
            lines << text(32) + form.lblL1;
    }
    lines << whole << thickness;

    Stan_raportu& report = stan.raport;
    int last = 0;
    for (const QString& line : lines)
        report.Wiersze_kotwy(++last) = line;
    report.Liczba_wierszy_kotwy = CInt(last);
    report.Typ_szkicu_kotwy = form.tab == 0 ? 1 : form.d < leastWithRib ? 2 : 3;
}

} // namespace ferna
