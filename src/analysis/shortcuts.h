#pragma once

#include "analysis/equilibrium.h"
#include "analysis/march_ahead.h"

#include <algorithm>
#include <array>
#include <optional>

namespace ferna {

// Shortcuts of the search. None changes a bit of what the search leaves: its line, its counters,
// the number of its evaluations.

/// Takes the plain steps of a march several at a time and leaves the step that ends it to the
/// march, which evaluates it in full. In between only distance, error and counters are kept up.
/// Takes at once all the steps of a march that no longer moves.
class Stride {
public:
    Stride(Stan_przypadku& s, const CaseInput& in) : s_(s), in_(in) {}

    /// After a plain step. `isPlain(error, error before)` tells one, `count(steps)` counts them.
    template <typename IsPlain, typename Count>
    void goOn(IsPlain isPlain, Count count) {
        const bool moves = s_.C_linii + s_.Krok_c != s_.C_linii;
        if (!moves && isPlain(s_.Reszta_c, s_.Reszta_c)) {
            take(evaluationsAhead(), count);
            return;
        }
        if (!ahead_)
            ahead_.emplace(s_, in_);
        std::size_t length = MarchAhead::shortRow; // most marches are short
        while (takeRow(length, isPlain, count))
            length = MarchAhead::longRow;
    }

private:
    /// Evaluations up to the last one allowed, which is the march's.
    int evaluationsAhead() const { return std::max(0, evaluationLimit - 1 - s_.Liczba_ocen); }

    template <typename Count>
    void take(int steps, Count count) {
        count(steps);
        s_.Liczba_ocen += steps;
    }

    /// True where all steps of a row were plain.
    template <typename IsPlain, typename Count>
    bool takeRow(std::size_t length, IsPlain isPlain, Count count) {
        MarchAhead::Row distances;
        Double c = s_.C_linii;
        for (std::size_t i = 0; i < length; ++i)
            distances[i] = c += s_.Krok_c;
        const MarchAhead::Row errors = ahead_->at(distances, length);
        const std::size_t most = std::min(static_cast<std::size_t>(evaluationsAhead()), length);
        std::size_t taken = 0;
        Double before = s_.Reszta_c;
        while (taken < most && isPlain(errors[taken], before))
            before = errors[taken++];
        if (taken > 0) {
            take(static_cast<int>(taken), count);
            s_.C_linii = distances[taken - 1];
            s_.Reszta_c = before;
        }
        return taken == length;
    }

    Stan_przypadku& s_;
    const CaseInput& in_;
    std::optional<MarchAhead> ahead_;
};

/// Sees that the search of the angle has come back to a state it was in before: it will go round
/// until the evaluations are used up, and the whole rounds in between can be left out.
class RoundTrip {
public:
    explicit RoundTrip(Stan_przypadku& s) : s_(s), known_(state()), evaluations_(s.Liczba_ocen) {}

    void lookBack() {
        if (const State now = state(); now == known_) {
            const int round = s_.Liczba_ocen - evaluations_;
            if (round > 0) // the evaluations never pass their limit
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
        return {s_.Beta,        s_.Krok_beta,       s_.C_linii,        s_.Reszta_c,
                s_.Reszta_beta, Double(s_.Kroki_c), Double(s_.Nawroty)};
    }

    Stan_przypadku& s_;
    State known_;
    int evaluations_;
    int turns_ = 0;
    int power_ = 1;
};

} // namespace ferna
