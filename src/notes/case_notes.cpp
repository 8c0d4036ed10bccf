#include "notes/case_notes.h"

#include "notes/stress_words.h"
#include "runtime/format.h"

namespace ferna::notes {

namespace {

QString caseTitle(int c) {
    return QStringLiteral("Przypadek %1: ").arg(c);
}

/// The exact equilibrium of a case, where there is one.
const equilibrium::Result* exactResult(const Record& record, int c) {
    const auto& found = record.given().equilibrium(c);
    return found && found->exists ? &*found : nullptr;
}

/// By how much the told result is below the exact one, as a share, and where most.
struct Deviation {
    Double share = 0;
    int anchor = 0; ///< 0: the pressure
};

Deviation deviationOf(const ToldCase& told, const equilibrium::Result& exact, int anchors) {
    constexpr Double leastPressure = 0.01; // MPa, what counts as a pressure
    constexpr Double leastStress = 1;      // MPa, what a stress is compared with at least
    Deviation worst;
    if (exact.sigmaConcrete >= leastPressure)
        worst.share = (exact.sigmaConcrete - told.sigmaConcrete) / exact.sigmaConcrete;
    Double largest = leastStress;
    for (const Double stress : exact.sigmaAnchor)
        largest = std::max(largest, std::fabs(stress));
    for (int i = 1; i <= anchors; ++i) {
        const auto slot = static_cast<std::size_t>(i - 1);
        const Double share =
            (std::fabs(exact.sigmaAnchor.at(slot)) - std::fabs(told.sigmaAnchor.at(slot)))
            / largest;
        if (share > worst.share)
            worst = {share, i};
    }
    return worst;
}

QString whatWasTold(const ToldCase& told, const Exact& exact, const equilibrium::Result& result,
                    const Deviation& deviation) {
    if (deviation.anchor == 0)
        return QStringLiteral("poszukiwanie podało docisk %1 MPa, dokładna równowaga daje %2 MPa "
                              "(dopuszczalne 2Rb = %3 MPa)")
            .arg(numberBeside(told.sigmaConcrete, exact.pressure),
                 numberBeside(exact.pressure, told.sigmaConcrete), number(exact.pressureLimit));
    const auto slot = static_cast<std::size_t>(deviation.anchor - 1);
    const Double was = std::fabs(told.sigmaAnchor.at(slot));
    const Double is = std::fabs(result.sigmaAnchor.at(slot));
    return QStringLiteral("poszukiwanie podało %1 MPa w kotwie %2, dokładna równowaga daje %3 MPa "
                          "(dopuszczalne fd = %4 MPa)")
        .arg(numberBeside(was, is))
        .arg(deviation.anchor)
        .arg(numberBeside(is, was), number(exact.stressLimit));
}

void deviates(const Record& record, int c, const equilibrium::Result& result, Notes& notes) {
    constexpr Double bearable = 0.02;
    constexpr Double wrong = 0.1; // beyond this nobody would call it an approximation
    const int anchors = record.given().plate.Liczba_srub;
    const ToldCase& told = record.told(c);
    const Deviation deviation = deviationOf(told, result, anchors);
    if (!(deviation.share > bearable))
        return;
    const Exact exact = exactOf(result, anchors, record);
    const QString judged =
        deviation.share > wrong ? QStringLiteral("fałszywy: zaniżony") : QStringLiteral("zaniżony");
    notes.push_back(
        {Code::Odchylka, c, deviation.anchor, 0,
         caseTitle(c) + whatWasTold(told, exact, result, deviation)
             + QStringLiteral(". Wynik przypadku jest %1 o %2. Nie opieraj się na nim: zmień "
                              "nieco momenty albo położenie kotew i policz ponownie.")
                   .arg(judged, percent(deviation.share))});
}

void passesOnlyAsTold(const Record& record, int c, const equilibrium::Result& result,
                      Notes& notes) {
    const ToldCase& told = record.told(c);
    const Exact exact = exactOf(result, record.given().plate.Liczba_srub, record);
    Double toldStress = 0;
    for (const Double stress : told.sigmaAnchor)
        toldStress = std::max(toldStress, std::fabs(stress));
    const bool stress = !exact.stressPasses() && !(toldStress > exact.stressLimit);
    const bool pressure = !exact.pressurePasses() && !(told.sigmaConcrete > exact.pressureLimit);
    if (!stress && !pressure)
        return;
    notes.push_back(
        {Code::Werdykt, c, stress ? exact.anchor : 0, 0,
         caseTitle(c)
             + QStringLiteral("według wyników warunek jest spełniony, w dokładnej równowadze nie: ")
             + stressesOf(exact) + QStringLiteral(". ") + verdictOf(exact)
             + QStringLiteral(" Zmień kotwy, płytę albo beton: zakotwienie nie przenosi tego "
                              "obciążenia.")});
}

bool endedWithoutResults(CaseOutcome outcome) {
    return outcome == CaseOutcome::GaveUp || outcome == CaseOutcome::PassedOver
           || outcome == CaseOutcome::NoStart;
}

/// How a case came to have no results.
QString howItFailed(const Record& record, int c) {
    if (record.told(c).outcome != CaseOutcome::PassedOver)
        return QStringLiteral("poszukiwanie zakończyło się bez rozwiązania, choć stan równowagi "
                              "istnieje");
    int failed = 1;
    while (record.told(failed).outcome != CaseOutcome::GaveUp)
        ++failed;
    return QStringLiteral("nie ma wyników, bo poszukiwanie zakończyło się bez rozwiązania w "
                          "przypadku %1, choć stan równowagi istnieje")
        .arg(failed);
}

void gaveUp(const Record& record, int c, const equilibrium::Result& result, Notes& notes) {
    if (!endedWithoutResults(record.told(c).outcome))
        return;
    const Exact exact = exactOf(result, record.given().plate.Liczba_srub, record);
    notes.push_back(
        {Code::BrakRozwiazania, c, 0, 0,
         caseTitle(c) + howItFailed(record, c) + QStringLiteral(": ") + stressesOf(exact)
             + QStringLiteral(". ") + verdictOf(exact)
             + QStringLiteral(" Zmień nieco momenty albo położenie kotew i policz ponownie.")});
}

bool inTension(const Record& record, int c) {
    const std::optional<equilibrium::Load> load = enteredLoad(record.given().fields, c);
    return load && static_cast<Single>(load->N) < 0;
}

void tensionRefused(const Record& record, int c, Notes& notes) {
    const int refused = record.refusedCase();
    if (refused == 0 || !inTension(record, refused) || !inTension(record, c))
        return;
    QString text = caseTitle(c)
                   + QStringLiteral("program nie liczy zakotwień rozciąganych (N = %1 kN)")
                         .arg(number(enteredLoad(record.given().fields, c)->N));
    if (const equilibrium::Result* const result = exactResult(record, c)) {
        const Exact exact = exactOf(*result, record.given().plate.Liczba_srub, record);
        text += QStringLiteral(". Dokładna równowaga: ") + stressesOf(exact) + QStringLiteral(". ")
                + verdictOf(exact);
    } else {
        text += u'.';
    }
    text += QStringLiteral(" Policz ten przypadek osobno albo usuń go z zestawienia.");
    notes.push_back({Code::Rozciaganie, c, 0, 0, text});
}

/// A moment as the search works with it: a vanishing one is replaced by a small one.
Double working(Double moment, Double other) {
    constexpr Double none = 0.006;                     // kNm
    constexpr Double substitute = 700 * Gravity / 1e5; // kNm
    return std::fabs(moment) > none ? std::fabs(moment)
                                    : std::max(substitute, 0.0009 * std::fabs(other));
}

void momentRaised(const Record& record, int c, Notes& notes) {
    if (record.told(c).outcome != CaseOutcome::FoundWithRaisedMoment)
        return;
    const std::optional<equilibrium::Load> load = enteredLoad(record.given().fields, c);
    if (!load)
        return;
    const bool second = working(load->M2, load->M1) < working(load->M1, load->M2);
    const Double typed = second ? load->M2 : load->M1;
    const QString name = second ? QStringLiteral("M2") : QStringLiteral("M1");
    const bool replaced = working(typed, second ? load->M1 : load->M2) != std::fabs(typed);
    const QString how =
        replaced
            ? QStringLiteral("z małym momentem %1 zamiast zera, jeszcze powiększonym o 10 %")
                  .arg(name)
            : QStringLiteral("z momentem %1 = %2 kNm zamiast %3 kNm, większym o 10 %")
                  .arg(name, numberBeside(1.1 * typed, typed), numberBeside(typed, 1.1 * typed));
    notes.push_back(
        {Code::MomentPowiekszony, c, 0, 0,
         caseTitle(c)
             + QStringLiteral("pierwsza próba nie dała rozwiązania i przypadek policzono %1. "
                              "Wydruk podaje moment wpisany. Porównaj wynik z dokładną równowagą "
                              "albo zmień nieco dane i policz ponownie.")
                   .arg(how)});
}

void anchorMoved(const Record& record, int c, Notes& notes) {
    const ToldCase& told = record.told(c);
    const Plyta_i_kotwy& plate = record.given().plate;
    const int last = plate.Liczba_srub;
    const Double x = 10.0 * static_cast<Double>(plate.X_kotwy(last));
    const Double y = 10.0 * static_cast<Double>(plate.Y_kotwy(last));
    if (!hasLine(told) || (told.lastX == x && told.lastY == y))
        return;
    notes.push_back(
        {Code::KotwaPrzesunieta, c, last, 0,
         caseTitle(c)
             + QStringLiteral("policzono z kotwą %1 w miejscu %2 mm zamiast %3 mm, przesuniętą o "
                              "%4 mm. Wydruk podaje miejsce wpisane. Usuń tę kotwę i podaj ją od "
                              "nowa: inaczej zostanie przesunięta w następnych obliczeniach.")
                   .arg(last)
                   .arg(place(told.lastX, told.lastY), place(x, y),
                        number(std::hypot(told.lastX - x, told.lastY - y)))});
}

void staleMark(const Record& record, int c, Notes& notes) {
    if (!hasLine(record.told(c)) || !record.told(c).markOfWholePlate)
        return;
    notes.push_back(
        {Code::ZnakZPoprzednich, c, 0, 0,
         caseTitle(c)
             + QStringLiteral("w wydruku nie ma linii obojętnej ani szkicu strefy docisku, bo we "
                              "wcześniejszym obliczeniu płyta była w tym przypadku cała ściskana. "
                              "Uruchom program od nowa i policz ponownie.")});
}

} // namespace

Notes caseNotes(const Record& record, int c) {
    Notes notes;
    if (const equilibrium::Result* const result = exactResult(record, c)) {
        if (solved(record.told(c))) {
            deviates(record, c, *result, notes);
            passesOnlyAsTold(record, c, *result, notes);
        }
        gaveUp(record, c, *result, notes);
    }
    tensionRefused(record, c, notes);
    momentRaised(record, c, notes);
    anchorMoved(record, c, notes);
    staleMark(record, c, notes);
    return notes;
}

Notes exactNote(const Record& record, int c) {
    const equilibrium::Result* const result = exactResult(record, c);
    if (!result)
        return {};
    const Exact exact = exactOf(*result, record.given().plate.Liczba_srub, record);
    return {{Code::Dokladnie, c, 0, 0,
             caseTitle(c) + QStringLiteral("dokładna równowaga: ") + stressesOf(exact)
                 + QStringLiteral(". ") + verdictOf(exact)}};
}

} // namespace ferna::notes
