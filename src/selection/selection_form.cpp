#include "selection/selection_form.h"

#include "design/catalogue.h"
#include "runtime/format.h"
#include "selection/anchor_catalogue.h"
#include "selection/clauses.h"

#include <QStringList>

namespace ferna {

namespace {

constexpr Integer leastPlateAnchor = 20; // smallest diameter of a plate anchor, mm
constexpr Integer leastWithRib = 48;     // smallest plate anchor with a rib, mm
constexpr Integer largestSmallSketch = 42;

const QString mm = QStringLiteral(" mm");

QString inMm(Integer length) {
    return general(length) + mm;
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
    const Integer LoP = straightPart(Lp, form.Grub_laczna, row.Ld);
    const bool hasRib = form.d >= leastWithRib;
    const Integer LcP = plateAnchorLength(LoP, row.t, hasRib);
    form.lblL1_visible = hasRib;
    if (hasRib)
        form.lblL1 += inMm(row.L1);
    return {LoP, LcP};
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
    form.D = bendDiameter(form.d);
    form.Grub_laczna = askThickness(dialogs);
    form.Lh = hookLength(form.d);
    const Double A = stan.plyta.Pole_kotwy(nr);
    form.Nosnosc = anchorCapacity(A, stan.materialy.Fd_kotwy);
    const CatalogueAnchor row = catalogueAnchor(form.d);
    form.Ld = row.Ld;
    form.a = row.a;
    form.t = row.t;
    const Integer Lk = straightLengthHooked(row, stan.materialy.Mnoznik_dlugosci, A);
    form.LoF = straightPart(Lk, form.Grub_laczna, form.Ld);
    form.LcF = hookedAnchorLength(form.LoF, form.Lh);
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
    const auto text = [&](phrase::Line line) { return stan.Teksty(line); };
    const auto T = static_cast<std::size_t>(form.tab);
    const QString whole =
        text(phrase::TotalLength) + form.lblLcalk[T] + text(phrase::RoundedToFifty);
    const QString thickness = text(phrase::CombinedThickness) + general(form.Grub_laczna) + mm;
    QStringList lines{
        text(phrase::SelectedAnchor) + form.lblNazwa[T],
        text(phrase::AnchorCapacity) + Format(form.Nosnosc, u"### ##0.0") + QStringLiteral(" kN"),
        text(phrase::NominalDiameter) + form.lbldia[T],
        text(phrase::ThreadedLength) + form.lblLd[T], text(phrase::StraightLength) + form.lblLo[T]};
    if (form.tab == 0) {
        lines << text(phrase::HookLength) + form.lblLh << text(phrase::BendDiameter) + form.lblD;
    } else {
        const QString times = QStringLiteral(" x ");
        lines << text(phrase::AnchorEndPlate) + general(form.a) + times + general(form.a) + times
                     + inMm(form.t);
        if (form.d > largestSmallSketch)
            lines << text(phrase::RibLength) + form.lblL1;
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
