#pragma once

#include "support/random_tasks.h"

#include <chrono>
#include <map>
#include <ostream>

namespace ferna::testing {

/// What happened to many tasks.
struct Tally {
    long tasks = 0;
    long refused = 0;
    long cases = 0;
    long wholePlate = 0;
    long outside = 0;    // cases outside the kern that ended in results
    long scaled = 0;     // cases whose moment was scaled
    long moved = 0;      // calculations that moved the last anchor
    long unsolved = 0;   // calculations that ended without a solution
    long atTheLimit = 0; // cases whose last attempt used up its evaluations
    long errors = 0;
    std::map<int, long> byNumber;
    double longest = 0; // seconds of one task
    std::uint64_t longestTask = 0;

    void add(const Tally& other) {
        tasks += other.tasks;
        refused += other.refused;
        cases += other.cases;
        wholePlate += other.wholePlate;
        outside += other.outside;
        scaled += other.scaled;
        moved += other.moved;
        unsolved += other.unsolved;
        atTheLimit += other.atTheLimit;
        errors += other.errors;
        for (const auto& [number, count] : other.byNumber)
            byNumber[number] += count;
        if (other.longest > longest) {
            longest = other.longest;
            longestTask = other.longestTask;
        }
    }
};

inline std::ostream& operator<<(std::ostream& out, const Tally& t) {
    out << t.tasks << " tasks, " << t.cases << " cases: " << t.wholePlate << " whole plate, "
        << t.outside << " with a neutral line; moment scaled in " << t.scaled
        << " cases, anchor moved in " << t.moved << " tasks, no solution in " << t.unsolved
        << " tasks, limit of evaluations in " << t.atTheLimit << " cases, refused " << t.refused
        << ", run-time errors " << t.errors << " (";
    for (const auto& [number, count] : t.byNumber)
        out << "no. " << number << ": " << count << "; ";
    return out << "), longest task " << t.longest << " s (no. " << t.longestTask << ")";
}

inline bool allFinite(const ColumnBase& base) {
    const Wyniki& r = base.stan.wyniki;
    bool finite = std::isfinite(r.Sigma_b_max) && std::isfinite(r.Sigma_s_max)
                  && std::isfinite(r.Sila_kotwy_max);
    for (int c = 1; c <= base.cases; ++c) {
        for (const Single value :
             {r.Sigma_b(c), r.Przec_a(c), r.Przec_b(c), r.Przec_c(c), r.Przec_d(c)})
            finite = finite && std::isfinite(value);
        for (int i = 1; i <= base.stan.plyta.Liczba_srub; ++i)
            finite = finite && std::isfinite(r.Sigma_kotwy(i)(c)) && std::isfinite(r.Sila_kotwy(i))
                     && std::isfinite(base.stan.plyta.X_kotwy(i));
    }
    for (const QString& line : base.lines())
        finite = finite && !line.contains(u"nan", Qt::CaseInsensitive)
                 && !line.contains(u"inf", Qt::CaseInsensitive);
    return finite;
}

/// Computes random task `number`. False where it left a value that is not finite.
inline bool compute(std::uint64_t number, Tally& tally) {
    const auto start = std::chrono::steady_clock::now();
    ColumnBase base;
    randomTask(base, number);
    base.host.afterCase = [&](int c) {
        ++tally.cases;
        const bool whole = base.stan.wyniki.Przyp_policzony(c) == True;
        tally.wholePlate += whole;
        tally.outside += !whole && base.solver.Jest_rozw && !base.solver.Przerwij_obliczenia;
        tally.scaled += !base.stan.obciazenia.Pierwsza_proba(c);
        tally.atTheLimit += !whole && base.solver.Liczba_ocen > 1'000'000;
    };
    ++tally.tasks;
    try {
        tally.refused += base.calculate() == CalculationEnd::Refused;
    } catch (const RunTimeError& failure) {
        ++tally.errors;
        ++tally.byNumber[failure.number()];
    }
    tally.moved += base.solver.Dane_skorygowane;
    tally.unsolved += base.solver.Przerwij_obliczenia;
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    if (took.count() > tally.longest) {
        tally.longest = took.count();
        tally.longestTask = number;
    }
    return allFinite(base);
}

} // namespace ferna::testing
