#include "verification/search_record.h"

#include "command/entered_equilibria.h"
#include "support/random_tasks.h"
#include "verification/printed.h"

#include <algorithm>

namespace ferna::testing {

namespace {

/// The exact stresses hold both limits of the report.
bool passes(const equilibrium::Result& exact, const Materialy& materials) {
    const double least = *std::min_element(exact.sigmaAnchor.begin(), exact.sigmaAnchor.end());
    return -least <= materials.Fd_kotwy && exact.sigmaConcrete <= 2 * materials.Rb_betonu;
}

bool toldPasses(const Stan& stan) {
    return stan.wyniki.Kotwy_OK != False && stan.wyniki.Sigma_b(1) <= 2 * stan.materialy.Rb_betonu;
}

/// How much of the exact stresses the told ones miss, the largest share.
double deviationOf(const Stan& stan, const equilibrium::Result& exact) {
    double largest = 1; // MPa
    for (const double stress : exact.sigmaAnchor)
        largest = std::max(largest, std::fabs(stress));
    constexpr double vanishing = 0.01; // MPa
    double deviation = exact.sigmaConcrete < vanishing
                           ? 0
                           : (exact.sigmaConcrete - stan.wyniki.Sigma_b(1)) / exact.sigmaConcrete;
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i) {
        const double star = std::fabs(exact.sigmaAnchor.at(static_cast<std::size_t>(i - 1)));
        deviation = std::max(deviation,
                             (star - std::fabs(double{stan.wyniki.Sigma_kotwy(i)(1)})) / largest);
    }
    return deviation;
}

void addSolved(SearchRecord& record, const ColumnBase& base, const ColumnBase& typed,
               const equilibrium::Result& exact) {
    const Stan& stan = base.stan;
    const int last = stan.plyta.Liczba_srub;
    const bool moved = stan.plyta.X_kotwy(last) != typed.stan.plyta.X_kotwy(last)
                       || stan.plyta.Y_kotwy(last) != typed.stan.plyta.Y_kotwy(last);
    record.moved += moved;
    record.raised += !moved && !stan.obciazenia.Pierwsza_proba(1);
    const double deviation = deviationOf(stan, exact);
    const bool falls = toldPasses(stan) && !passes(exact, stan.materialy);
    record.deviates += deviation > SearchRecord::smallDeviation;
    record.verdictFalls += falls;
    if (deviation <= SearchRecord::falseDeviation)
        return;
    ++record.isFalse;
    record.falsePasses += falls;
    ++record.falseByAnchors.at(static_cast<std::size_t>(last));
}

void add(SearchRecord& record, std::uint64_t number) {
    ColumnBase base;
    randomTask(base, number);
    base.cases = 1;
    base.stan.obciazenia.Liczba_przyp = 1;
    const ColumnBase typed = base;
    const std::optional<equilibrium::Result> exact =
        enteredEquilibria(typed.stan, typed.fields).byCase.at(0);
    try {
        if (base.calculate() == CalculationEnd::Refused)
            return;
    } catch (const RunTimeError&) {
        return; // no anchor takes the shear
    }
    if (!exact || base.stan.wyniki.Przyp_policzony(1) == True)
        return;
    ++record.outside;
    if (!base.solver.Przerwij_obliczenia) {
        addSolved(record, base, typed, *exact);
    } else if (exact->exists) {
        ++record.gaveUp;
        record.gaveUpPasses += passes(*exact, base.stan.materialy);
    } else {
        ++record.gaveUpRightly;
    }
}

std::string line(const char* what, int count, int of) {
    return printed("| %s | %d | %.2f %% |\n", what, count, 100.0 * count / of);
}

} // namespace

SearchRecord searchRecord(std::uint64_t tasks) {
    SearchRecord record;
    for (std::uint64_t number = 1; number <= tasks; ++number)
        if (!isNasty(number))
            add(record, number);
    return record;
}

std::string textOf(const SearchRecord& r, std::uint64_t tasks) {
    std::string anchors;
    for (std::size_t n = 0; n < r.falseByAnchors.size(); ++n)
        if (r.falseByAnchors[n] > 0)
            anchors += printed("%s%zu (%d)", anchors.empty() ? "" : ", ", n, r.falseByAnchors[n]);
    return printed(
               "| of %d cases outside the kern (%d random tasks, one case each) | cases | share "
               "|\n|---|---:|---:|\n",
               r.outside, static_cast<int>(tasks / 10 * 9))
           + line("\"BRAK ROZWIĄZANIA\" although an equilibrium exists", r.gaveUp, r.outside)
           + line("of these, the exact stresses pass", r.gaveUpPasses, r.outside)
           + line("\"BRAK ROZWIĄZANIA\" and there is none", r.gaveUpRightly, r.outside)
           + line("solved with the smaller moment raised by a tenth", r.raised, r.outside)
           + line("solved with the last anchor moved by 0.5 %", r.moved, r.outside)
           + line("a told stress more than 2 % below the exact one", r.deviates, r.outside)
           + line("more than half of the exact stress missing (false)", r.isFalse, r.outside)
           + line("of these, told to pass although an exact stress fails", r.falsePasses, r.outside)
           + line("any result told to pass although an exact stress fails", r.verdictFalls,
                  r.outside)
           + "\nThe false results by their number of anchors: " + anchors + ".\n\n";
}

} // namespace ferna::testing
