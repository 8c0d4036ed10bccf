#include "analysis/search.h"

#include "analysis/march_ahead.h"

#include <algorithm>
#include <array>
#include <optional>

namespace ferna {

namespace {

// Tolerances of the moment errors, kG cm, and the smallest steps.
constexpr Double coarseTolerance = 1000;
constexpr Double fineTolerance = 100;
constexpr Double smallestStepC = 0.01;           // cm
constexpr Double smallestStepBetaDegrees = 0.01; // degrees
constexpr Integer stepsWrapAt = 32000;
constexpr Integer stepsWrapTo = 10;

bool movesTowardsZero(Double residual, Double previous) {
    return (residual > previous && residual < 0) || (residual <= previous && residual > 0);
}

/// The share of the last step by which a change of sign is behind its end.
Double stepBack(Double step, Double residual, Double previous) {
    return divided(step * std::fabs(residual), std::fabs(residual) + std::fabs(previous));
}

/// Counts steps of the march to a change of sign; the counter never runs over.
void countSteps(Stan_przypadku& s, int steps) {
    const int counted = s.Kroki_c + steps;
    s.Kroki_c = CInt(counted < stepsWrapAt ? counted
                                           : stepsWrapTo
                                                 + (counted - stepsWrapAt)
                                                       % (stepsWrapAt - stepsWrapTo));
}

/// Takes the plain steps of a march several at a time and leaves the step that ends it to the
/// march, which evaluates it in full. In between only distance, error and counters are kept up.
/// Takes at once all the steps of a march that no longer moves.
class Stride {
public:
    Stride(Stan_przypadku& s, const Stan& stan) : s_(s), stan_(stan) {}

    /// After a plain step. `isPlain(error, error before)` tells one, `count(steps)` counts them.
    template <typename IsPlain, typename Count>
    void goOn(IsPlain isPlain, Count count) {
        if (++plainSteps_ < patience)
            return;
        const bool moves = s_.C_linii + s_.Krok_c != s_.C_linii;
        if (!moves && isPlain(s_.Reszta_c, s_.Reszta_c)) {
            take(evaluationsAhead(), count);
            return;
        }
        if (!ahead_)
            ahead_.emplace(s_, stan_);
        while (takeRow(isPlain, count)) {
        }
    }

    /// After any other step.
    void rest() { plainSteps_ = 0; }

private:
    static constexpr int patience = 3; // plain steps before it pays to look ahead

    /// Evaluations up to the last one allowed, which is the march's.
    int evaluationsAhead() const { return std::max(0, evaluationLimit - 1 - s_.Liczba_ocen); }

    template <typename Count>
    void take(int steps, Count count) {
        count(steps);
        s_.Liczba_ocen += steps;
    }

    /// True where all steps of a row were plain.
    template <typename IsPlain, typename Count>
    bool takeRow(IsPlain isPlain, Count count) {
        MarchAhead::Row distances;
        Double c = s_.C_linii;
        for (Double& distance : distances)
            distance = c += s_.Krok_c;
        const MarchAhead::Row errors = ahead_->at(distances);
        const auto most =
            static_cast<std::size_t>(std::min(evaluationsAhead(), MarchAhead::lanes));
        std::size_t taken = 0;
        Double before = s_.Reszta_c;
        while (taken < most && isPlain(errors[taken], before))
            before = errors[taken++];
        if (taken > 0) {
            take(static_cast<int>(taken), count);
            s_.C_linii = distances[taken - 1];
            s_.Reszta_c = before;
        }
        return taken == errors.size();
    }

    Stan_przypadku& s_;
    const Stan& stan_;
    int plainSteps_ = 0;
    std::optional<MarchAhead> ahead_;
};

/// Cold start: marches until the error is negative; where it stops falling, steps back and refines.
void marchToNegative(Stan_przypadku& s, Stan& stan, Stride& stride) {
    const auto falls = [](Double error, Double before) { return error >= 0 && error < before; };
    Rownowaga_c(s, stan);
    for (;;) {
        s.C_linii += s.Krok_c;
        s.Reszta_c_poprz = s.Reszta_c;
        Rownowaga_c(s, stan);
        if (s.Reszta_c < 0)
            return;
        if (s.Reszta_c < s.Reszta_c_poprz) {
            stride.goOn(falls, [](int) {});
            continue;
        }
        stride.rest();
        s.C_linii -= s.Krok_c;
        s.Krok_c = 0.1 * s.Krok_c;
    }
}

/// Marches until the error changes its sign, reversing at a tenth of the step where it moves away.
void marchToSignChange(Stan_przypadku& s, Stan& stan, Stride& stride) {
    const auto nears = [](Double error, Double before) {
        return !(before * error < 0) && movesTowardsZero(error, before);
    };
    for (;;) {
        countSteps(s, 1);
        s.Reszta_c_poprz = s.Reszta_c;
        s.C_linii += s.Krok_c;
        Rownowaga_c(s, stan);
        if (s.Reszta_c_poprz * s.Reszta_c < 0)
            return;
        if (movesTowardsZero(s.Reszta_c, s.Reszta_c_poprz)) {
            stride.goOn(nears, [&s](int steps) { countSteps(s, steps); });
            continue;
        }
        stride.rest();
        if (s.Kroki_c > 2) {
            s.Kroki_c = 0;
            s.C_linii -= s.Krok_c;
            s.Nawroty = 0;
            s.Krok_c = 0.1 * s.Krok_c;
            continue;
        }
        if (++s.Nawroty > 1) {
            s.Nawroty = 0;
            s.Krok_c = 0.1 * s.Krok_c;
            continue;
        }
        s.Krok_c = -0.1 * s.Krok_c;
        s.C_linii += s.Krok_c;
        s.Kroki_c = 0;
    }
}

/// Interpolates at the change of sign. True where the search ends: by the error of the last line
/// that was evaluated (the interpolated one is not), or by the step.
bool interpolateC(Stan_przypadku& s, Double oneDegree) {
    s.Nawroty = 0;
    s.C_linii -= stepBack(s.Krok_c, s.Reszta_c, s.Reszta_c_poprz);
    const Double tolerance = std::fabs(s.Krok_beta) > oneDegree ? coarseTolerance : fineTolerance;
    if (std::fabs(s.Reszta_c) < tolerance)
        return true;
    s.Krok_c = 0.1 * s.Krok_c;
    return std::fabs(s.Krok_c) < smallestStepC;
}

/// Interpolates the angle at the change of sign. True where the search ends.
bool interpolateBeta(Stan_przypadku& s, Stan& stan) {
    s.Beta -= stepBack(s.Krok_beta, s.Reszta_beta, s.Reszta_beta_poprz);
    Szukaj_c(s, stan);
    if (!s.Jest_rozw) // cannot be: the angle lies between two admissible ones
        throw RunTimeError(error::Internal);
    Rownowaga_beta(s, stan);
    if (std::fabs(s.Reszta_beta) < fineTolerance)
        return true;
    s.Krok_beta = 0.1 * s.Krok_beta;
    return std::fabs(s.Krok_beta) < smallestStepBetaDegrees / stan.opcje.Stopnie_na_radian;
}

/// Sees that the search of the angle has come back to a state it was in before: it will go round
/// until the evaluations are used up, and the whole rounds in between can be left out.
class RoundTrip {
public:
    explicit RoundTrip(Stan_przypadku& s)
        : s_(s), known_(state()), evaluations_(s.Liczba_ocen) {}

    void lookBack() {
        if (const State now = state(); now == known_) {
            const int round = s_.Liczba_ocen - evaluations_;
            if (round > 0 && s_.Liczba_ocen < evaluationLimit)
                s_.Liczba_ocen += (evaluationLimit - s_.Liczba_ocen) / round * round;
        } else if (++turns_ == power_) { // remembers the state ever more rarely, so that a round of
            known_ = now;                // any length is seen
            evaluations_ = s_.Liczba_ocen;
            power_ *= 2;
            turns_ = 0;
        }
    }

private:
    // Everything that the next turn of the search depends on.
    using State = std::array<Double, 7>;
    State state() const {
        return {s_.Beta,      s_.Krok_beta,         s_.C_linii,     s_.Reszta_c,
                s_.Reszta_beta, Double(s_.Kroki_c), Double(s_.Nawroty)};
    }

    Stan_przypadku& s_;
    State known_;
    int evaluations_;
    int turns_ = 0;
    int power_ = 1;
};

} // namespace

void Szukaj_c(Stan_przypadku& s, Stan& stan) {
    s.Reszta_c_poprz = 0;
    s.Nawroty = 0;
    s.Sin_beta = std::sin(s.Beta);
    s.Cos_beta = std::cos(s.Beta);
    s.Nachylenie = divided(-s.Cos_beta, s.Sin_beta);
    if (s.Beta < 0 || s.Beta > Pi / 2) {
        s.Jest_rozw = false;
        return;
    }
    s.Jest_rozw = true;

    Stride stride(s, stan);
    const Double oneDegree = 1 / stan.opcje.Stopnie_na_radian;
    if (s.Drugie_wejscie == 1) { // warm start; Kroki_c counts on
        s.C_linii -= s.Plyta_L / 20;
        Rownowaga_c(s, stan);
        s.Krok_c = 1;
    } else {
        marchToNegative(s, stan, stride);
        if (interpolateC(s, oneDegree))
            return;
        s.Kroki_c = 0;
    }
    for (;;) {
        marchToSignChange(s, stan, stride);
        if (interpolateC(s, oneDegree))
            return;
        s.Kroki_c = 0;
    }
}

void Szukaj_beta(Stan_przypadku& s, Stan& stan, Dialogs& dialogs) {
    s.Reszta_c_poprz = 0;
    Rownowaga_beta(s, stan);
    s.Nawroty = 0;
    RoundTrip roundTrip(s);
    for (;;) {
        roundTrip.lookBack();
        s.Reszta_beta_poprz = s.Reszta_beta;
        s.Beta += s.Krok_beta;
        Szukaj_c(s, stan);
        if (!s.Jest_rozw) {
            Ponow_probe(s, stan, dialogs);
            return;
        }
        Rownowaga_beta(s, stan);
        if (s.Reszta_beta_poprz * s.Reszta_beta < 0) {
            if (interpolateBeta(s, stan))
                return;
            continue;
        }
        if (movesTowardsZero(s.Reszta_beta, s.Reszta_beta_poprz))
            continue;
        // Szukaj_c has just zeroed the shared counter, so every step away turns the march back.
        if (++s.Nawroty > 1) {
            s.Nawroty = 0;
            s.Krok_beta = 0.1 * s.Krok_beta;
            continue;
        }
        s.Krok_beta = -s.Krok_beta;
        s.Beta += s.Krok_beta;
    }
}

void Ponow_probe(Stan_przypadku& s, Stan& stan, Dialogs& dialogs) {
    s.Jest_rozw = false;
    Obciazenia& loads = stan.obciazenia;
    if (loads.Pierwsza_proba(loads.Nr_przyp)) {
        loads.Pierwsza_proba(loads.Nr_przyp) = false;
        if (std::fabs(loads.Moment_M2_kGcm) < std::fabs(loads.Moment_M1_kGcm))
            loads.Moment_M2_kGcm = 1.1 * loads.Moment_M2_kGcm;
        else
            loads.Moment_M1_kGcm = 1.1 * loads.Moment_M1_kGcm;
        return;
    }
    dialogs.message(QStringLiteral("Brak ścisłego rozwiazania!\nRozwiązanie przybliżone."),
                    programTitle, MessageStyle::Plain);
    if (!s.Dane_skorygowane) {
        s.Dane_skorygowane = true;
        const int last = stan.plyta.Liczba_srub;
        stan.plyta.X_kotwy(last) = CSng(stan.plyta.X_kotwy(last) * 0.995);
        stan.plyta.Y_kotwy(last) = CSng(stan.plyta.Y_kotwy(last) * 0.995);
        return;
    }
    dialogs.message(QStringLiteral("BRAK ROZWIĄZANIA\nZmodyfikuj nieco dane"), programTitle,
                    MessageStyle::Plain);
    s.Przerwij_obliczenia = true;
}

} // namespace ferna
