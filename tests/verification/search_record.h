#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace ferna::testing {

/// What the search made of many ordinary column bases with one load case each, beside the exact
/// equilibrium of the same case. Counts of cases.
struct SearchRecord {
    static constexpr double smallDeviation = 0.02;
    static constexpr double falseDeviation = 0.5;

    int outside = 0;       ///< outside the kern, ended in results or in none
    int gaveUp = 0;        ///< without a solution, though an equilibrium exists
    int gaveUpPasses = 0;  ///< of these: the exact stresses pass
    int gaveUpRightly = 0; ///< without a solution, and there is none
    int raised = 0;        ///< solved with the smaller moment raised by a tenth
    int moved = 0;         ///< solved with the last anchor moved
    int deviates = 0;      ///< a told stress is more than 2 % below the exact one
    int isFalse = 0;       ///< more than half of it is missing
    int falsePasses = 0;   ///< of these: every told stress passes, an exact one fails
    int verdictFalls = 0;  ///< of all solved: the told stresses pass, an exact one fails
    std::array<int, 21> falseByAnchors{};
};

/// Of the tasks 1 to `tasks` of the random series, without the nasty ones.
SearchRecord searchRecord(std::uint64_t tasks);

/// As a table of Markdown, with what it says in words below.
std::string textOf(const SearchRecord& record, std::uint64_t tasks);

} // namespace ferna::testing
