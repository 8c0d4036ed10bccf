#pragma once

#include "combinations/combination.h"

#include <array>
#include <optional>
#include <vector>

namespace ferna::combinations {

inline constexpr int chosenRows = MaxCases; ///< as many as the load table takes

/// How far a combination uses a check; infinite where it has no equilibrium, as it then fails every
/// one.
Double useOf(const std::optional<Utilisation>& answer, Check check);
/// The largest of its checks.
Double worstOf(const std::optional<Utilisation>& answer);

/// True where a use is larger than another beyond what rounding does: by a billionth of it.
/// The two of a mirrored pair are equal.
bool isLarger(Double use, Double thanUse);

/// Picks out of a stream of combinations, in the room of a few rows, those that govern. A
/// combination is taken as a whole: no loads of several are ever mixed into one.
class Choice {
public:
    /// The answer of the next row; the rows come in ascending order, refused ones do not come.
    void add(RowNumber row, const std::optional<Utilisation>& answer);

    /// The row with the largest use of a check, the first of equal ones; 0 before the first row.
    /// A check that applies in no row is 0 in all of them.
    RowNumber governing(Check check) const { return at(check).row; }

    /// The largest use of a check, 0 before the first row.
    Double envelope(Check check) const { return envelope_.at(static_cast<std::size_t>(check)); }

    /// The rows for the load table, each once: those that govern, in the order of the checks, then
    /// the next worst by the largest of their checks, the first of equal ones, up to six.
    std::vector<RowNumber> six() const;

private:
    struct Ranked {
        RowNumber row = 0;
        Double use = 0;
    };
    const Ranked& at(Check check) const { return governing_.at(static_cast<std::size_t>(check)); }
    void rank(const Ranked& candidate);

    std::array<Ranked, allChecks.size()> governing_{};
    std::array<Double, allChecks.size()> envelope_{};
    std::array<Ranked, chosenRows> worst_{}; ///< descending, the first of equal ones before others
    std::size_t ranked_ = 0;
};

} // namespace ferna::combinations
