#include "smallest/confirmation.h"

#include "analysis/stan_przypadku.h"
#include "command/quiet_host.h"
#include "design/catalogue.h"
#include "input/anchor_layout.h"
#include "runtime/format.h"
#include "runtime/run_time_error.h"

namespace ferna::smallest {

namespace {

/// A catalogue whose lines can be told from one another, so that verdicts can be read.
QString lineOf(int number) {
    return QStringLiteral("\t%1\t").arg(number);
}

Stan stateOf(const Stan& entered) {
    Stan fresh = freshState(entered);
    for (int line = 1; line <= CatalogueLines; ++line)
        fresh.Teksty(line) = lineOf(line);
    return fresh;
}

bool isSolved(CaseOutcome outcome) {
    return outcome == CaseOutcome::WholePlate || outcome == CaseOutcome::Found
           || outcome == CaseOutcome::FoundWithRaisedMoment
           || outcome == CaseOutcome::FoundWithMovedAnchor;
}

/// The verdict on the horizontal forces: the last line of a case, where there are any.
bool shearSatisfied(const Stan& stan, int c) {
    const QString& last = stan.wyniki.Wiersze_wynikow(stan.wyniki.Ostatni_wiersz(c));
    for (const int line : {phrase::ShearOfSomeAnchors, phrase::ShearOfAllAnchors})
        for (const int exceeded : {line + 1, line + 2})
            if (last.startsWith(lineOf(exceeded)))
                return false;
    return true;
}

/// Why the results do not confirm a design; empty where they do.
QString shortcoming(const Stan& stan, double pressureLimit) {
    const Wyniki& results = stan.wyniki;
    for (int c = 1; c <= stan.obciazenia.Liczba_przyp; ++c) {
        const auto inCase = [c](const char16_t* what) {
            return QStringLiteral("przypadek %1: ").arg(c) + QString::fromUtf16(what);
        };
        if (!isSolved(results.outcomes(c)))
            return inCase(u"poszukiwanie nie dało rozwiązania");
        if (!(results.Sigma_b(c) <= pressureLimit * stan.materialy.Rb_betonu))
            return inCase(u"docisk przekroczony");
        if (!shearSatisfied(stan, c))
            return inCase(u"siły poziome: nośność kotew przekroczona");
        for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
            if (-results.Sigma_kotwy(i)(c) > stan.materialy.Fd_kotwy)
                return inCase(u"naprężenie w kotwie przekroczone");
    }
    return {};
}

} // namespace

void enter(const Design& design, const DesignRange& range, Stan& stan, InputFields& fields) {
    fields.Text3 = general(CInt(design.length));
    fields.Text4 = general(CInt(design.width));
    fields.cmbStal = design.steel - 1;
    stan.opcje.Nr_stali = design.steel;
    Plyta_i_kotwy& plate = stan.plyta;
    plate.Liczba_srub = 0;
    for (const equilibrium::Point& place :
         anchorPlaces(range, design.length, design.width, design.layout, design.diameter)) {
        plate.Liczba_srub = CInt(plate.Liczba_srub + 1);
        storeAnchorAt(plate, plate.Liczba_srub, static_cast<int>(place.x),
                      static_cast<int>(place.y), design.diameter);
    }
    fillAnchorLines(stan);
}

Confirmation confirm(const Design& design, const DesignRange& range, const Stan& stan,
                     const InputFields& fields) {
    Stan fresh = stateOf(stan);
    InputFields entered = fields;
    enter(design, range, fresh, entered);
    entered.txtNr_strony = QStringLiteral("1");
    ScriptedDialogs dialogs;
    QuietHost host(dialogs);
    Stan_przypadku working;
    try {
        if (Oblicz(fresh, working, entered, dialogs, host) == CalculationEnd::Refused)
            return {false, dialogs.messages.empty() ? QString() : dialogs.messages.back().text};
    } catch (const RunTimeError& failure) {
        return {false,
                QStringLiteral("błąd wykonania %1: %2").arg(failure.number()).arg(failure.text())};
    }
    const QString reason = shortcoming(fresh, range.pressure);
    return {reason.isEmpty(), reason};
}

Winners winners(const DesignRange& range, const Task& task, const Stan& stan,
                const InputFields& fields, std::size_t most, const GoesOn& goesOn) {
    Winners result{lightest(range, task, mostTried, goesOn), {}};
    std::size_t confirmed = 0;
    for (const Design& design : result.found.best) {
        if (confirmed >= most)
            break;
        result.all.push_back({design, confirm(design, range, stan, fields)});
        confirmed += result.all.back().calculation.confirmed ? 1 : 0;
    }
    return result;
}

} // namespace ferna::smallest
