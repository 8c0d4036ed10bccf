#pragma once

#include <QStringView>

#include <array>

namespace ferna {

// Descriptions of formulas, for whoever prints a calculation: each stands beside the function that
// computes the formula. They are constants; texts in them are in no language.

/// Where a formula or a value stands. What is empty is not given; an empty `standard` is a formula
/// of plain mechanics or of this program.
struct Source {
    QStringView standard = {}; ///< "PN-B-03215:1998"
    QStringView annex = {};    ///< "B"
    QStringView point = {};    ///< "B 2"
    QStringView formula = {};  ///< "B.6"
    QStringView table = {};    ///< "B.2"
    QStringView figure = {};   ///< "B.3"
};

/// A symbol of a formula and its unit, empty for a plain number.
struct Symbol {
    QStringView name;
    QStringView unit;
};

inline constexpr std::size_t mostSymbols = 7;

/// One formula. Its text is an expression of numbers, + - · /, brackets, √( ), sin( ), cos( ),
/// int( ) and ², in which every input stands in braces: "{M} / {W}". Without the braces it reads as
/// the formula, with values in their place as the calculation.
struct Clause {
    Source source;
    Symbol result;
    QStringView text;
    std::array<Symbol, mostSymbols> inputs; ///< in the order of the function's; the rest is empty
};

/// True where the braces of the text name inputs only, and every input at least once.
constexpr bool wellFormed(const Clause& clause) {
    std::array<bool, mostSymbols> used{};
    for (qsizetype i = 0; i < clause.text.size(); ++i) {
        if (clause.text[i] != u'{')
            continue;
        bool known = false;
        for (std::size_t n = 0; n < mostSymbols; ++n) {
            const QStringView name = clause.inputs[n].name;
            bool same = !name.empty() && i + name.size() + 1 < clause.text.size()
                        && clause.text[i + name.size() + 1] == u'}';
            for (qsizetype j = 0; same && j < name.size(); ++j)
                same = clause.text[i + 1 + j] == name[j];
            if (same)
                known = used[n] = true;
        }
        if (!known)
            return false;
    }
    for (std::size_t n = 0; n < mostSymbols; ++n)
        if (used[n] == clause.inputs[n].name.empty())
            return false;
    return true;
}

} // namespace ferna
