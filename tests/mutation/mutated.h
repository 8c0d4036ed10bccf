#pragma once

// One program that holds many mutants. Each of them stands in the sources beside what it replaces,
// as (mutated(17) ? a - b : a + b); FERNA_MUTANT in the environment chooses the one that acts, 0 or
// nothing none. FERNA_REACHED names a file that takes a byte a mutant at the end: 1 where the run
// came to its place.

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <type_traits>

namespace ferna::mutation {

struct Mutants {
    static constexpr std::size_t most = 20000;

    Mutants() {
        if (const char* const chosen = std::getenv("FERNA_MUTANT"))
            acting = std::atoi(chosen);
    }
    ~Mutants() {
        const char* const name = std::getenv("FERNA_REACHED");
        std::FILE* const file = name ? std::fopen(name, "wb") : nullptr;
        if (!file)
            return;
        std::fwrite(reached.data(), 1, reached.size(), file);
        std::fclose(file);
    }

    int acting = 0;
    std::array<unsigned char, most> reached{};
};
inline Mutants mutants;

inline bool mutated(int mutant) {
    mutants.reached[static_cast<std::size_t>(mutant)] = 1;
    return mutants.acting == mutant;
}

/// The same in a constexpr function: never where the compiler computes.
constexpr bool mutatedAtRunTime(int mutant) {
    return !std::is_constant_evaluated() && mutated(mutant);
}

} // namespace ferna::mutation
