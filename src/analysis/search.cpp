#include "analysis/search.h"

#include "analysis/shortcuts.h"

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
    s.Kroki_c = CInt(counted < stepsWrapAt
                         ? counted
                         : stepsWrapTo + (counted - stepsWrapAt) % (stepsWrapAt - stepsWrapTo));
}

/// Cold start: marches until the error is negative; where it stops falling, steps back and refines.
void marchToNegative(Stan_przypadku& s, const CaseInput& in, Stride& stride) {
    const auto falls = [](Double error, Double before) { return error >= 0 && error < before; };
    Rownowaga_c(s, in);
    for (;;) {
        s.C_linii += s.Krok_c;
        s.Reszta_c_poprz = s.Reszta_c;
        Rownowaga_c(s, in);
        if (s.Reszta_c < 0)
            return;
        if (s.Reszta_c < s.Reszta_c_poprz) {
            stride.goOn(falls, [](int) {});
            continue;
        }
        s.C_linii -= s.Krok_c;
        s.Krok_c = 0.1 * s.Krok_c;
    }
}

/// Marches until the error changes its sign, reversing at a tenth of the step where it moves away.
void marchToSignChange(Stan_przypadku& s, const CaseInput& in, Stride& stride) {
    const auto nears = [](Double error, Double before) {
        return !(before * error < 0) && movesTowardsZero(error, before);
    };
    for (;;) {
        countSteps(s, 1);
        s.Reszta_c_poprz = s.Reszta_c;
        s.C_linii += s.Krok_c;
        Rownowaga_c(s, in);
        if (s.Reszta_c_poprz * s.Reszta_c < 0)
            return;
        if (movesTowardsZero(s.Reszta_c, s.Reszta_c_poprz)) {
            stride.goOn(nears, [&s](int steps) { countSteps(s, steps); });
            continue;
        }
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
bool interpolateBeta(Stan_przypadku& s, const CaseInput& in) {
    s.Beta -= stepBack(s.Krok_beta, s.Reszta_beta, s.Reszta_beta_poprz);
    Szukaj_c(s, in);
    if (!s.Jest_rozw) // cannot be: the angle lies between two admissible ones
        throw RunTimeError(error::Internal);
    Rownowaga_beta(s, in);
    if (std::fabs(s.Reszta_beta) < fineTolerance)
        return true;
    s.Krok_beta = 0.1 * s.Krok_beta;
    return std::fabs(s.Krok_beta) < smallestStepBetaDegrees / in.degreesPerRadian;
}

} // namespace

void Szukaj_c(Stan_przypadku& s, const CaseInput& in) {
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

    Stride stride(s, in);
    const Double oneDegree = 1 / in.degreesPerRadian;
    if (s.Drugie_wejscie == 1) { // warm start; Kroki_c counts on
        s.C_linii -= s.Plyta_L / 20;
        Rownowaga_c(s, in);
        s.Krok_c = 1;
    } else {
        marchToNegative(s, in, stride);
        if (interpolateC(s, oneDegree))
            return;
        s.Kroki_c = 0;
    }
    for (;;) {
        marchToSignChange(s, in, stride);
        if (interpolateC(s, oneDegree))
            return;
        s.Kroki_c = 0;
    }
}

void Szukaj_beta(Stan_przypadku& s, const CaseInput& in) {
    s.Reszta_c_poprz = 0;
    Rownowaga_beta(s, in);
    s.Nawroty = 0;
    RoundTrip roundTrip(s);
    for (;;) {
        roundTrip.lookBack();
        s.Reszta_beta_poprz = s.Reszta_beta;
        s.Beta += s.Krok_beta;
        Szukaj_c(s, in);
        if (!s.Jest_rozw)
            return;
        Rownowaga_beta(s, in);
        if (s.Reszta_beta_poprz * s.Reszta_beta < 0) {
            if (interpolateBeta(s, in))
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

Retry Ponow_probe(Stan_przypadku& s, Carry& carry, std::vector<CaseMessage>& messages) {
    s.Jest_rozw = false;
    if (carry.mayRaiseMoment) {
        carry.mayRaiseMoment = false;
        Double& smaller = std::fabs(s.M2k) < std::fabs(s.M1k) ? s.M2k : s.M1k;
        smaller = 1.1 * smaller;
        return Retry::RaisedMoment;
    }
    messages.push_back(CaseMessage::Approximate);
    if (!carry.anchorMoved) {
        carry.anchorMoved = true;
        carry.lastX = CSng(carry.lastX * 0.995);
        carry.lastY = CSng(carry.lastY * 0.995);
        return Retry::MovedAnchor;
    }
    messages.push_back(CaseMessage::NoSolution);
    carry.gaveUp = true;
    return Retry::None;
}

} // namespace ferna
