#include "design/material_tables.h"

#include "runtime/run_time_error.h"

#include <algorithm>
#include <array>
#include <span>

namespace ferna {

namespace {

static_assert(wellFormed(ratioNClause));

struct SteelRow {
    Integer Nr_stali;
    Integer upTo; // largest Fi_max of the row, mm
    AnchorSteel steel;
};

// The row of a steel is the first one whose `upTo` is not below Fi_max.
constexpr std::array steelRows{
    SteelRow{1, 16, {175, 165.75F, 141.75F, " (A-0) "}},
    SteelRow{1, 40, {165, 157.25F, 141.75F, " (A-0) "}},
    SteelRow{2, 16, {215, 199.75F, 168.75F, " (A-I) "}},
    SteelRow{2, 40, {205, 191.25F, 168.75F, " (A-I) "}},
    SteelRow{2, 100, {195, 182.75F, 168.75F, " (A-I) "}},
    SteelRow{3, 16, {235, 216.75F, 184.5F, " "}},
    SteelRow{3, 40, {225, 208.25F, 184.5F, " "}},
    SteelRow{4, 16, {305, 301.75F, 220.5F, " (A-II) "}},
    SteelRow{4, 30, {295, 293.25F, 220.5F, " (A-II) "}},
    SteelRow{4, 50, {285, 284.75F, 220.5F, " (A-II) "}},
    SteelRow{5, 16, {370, 374, 252, " "}},
    SteelRow{5, 29, {360, 365.5F, 252, " "}},
    SteelRow{5, 50, {350, 357, 252, " "}},
    SteelRow{6, 32, {310, 290, 220, " (A-II) "}},
};

// PN-84/B-03264
constexpr std::array olderNorm{
    Concrete{"B15", 7.1F, 8.7F, 23100, 0.75F, 40, 1.0F},
    Concrete{"B17.5", 8.3F, 10.2F, 25300, 0.83F, 38, 0.961F},
    Concrete{"B20", 9.4F, 11.5F, 27000, 0.9F, 35, 0.866F},
    Concrete{"B25", 11.6F, 14.3F, 30000, 1.03F, 32, 0.775F},
    Concrete{"B30", 13.9F, 17.1F, 32400, 1.15F, 30, 0.693F},
};

// PN-B-03264:1999
constexpr std::array newerNorm{
    Concrete{"B15", 6.7F, 8.0F, 26000, std::nullopt, 40, 1.0F},
    Concrete{"B20", 8.9F, 10.6F, 27500, std::nullopt, 35, 0.866F},
    Concrete{"B25", 11.1F, 13.3F, 29000, std::nullopt, 32, 0.775F},
    Concrete{"B30", 13.9F, 16.7F, 30500, std::nullopt, 30, 0.693F},
};

// Core areas of the anchors, cm2, in the order of anchorDiameters.
constexpr std::array coreAreas{0.85,  1.57,  2.45, 3.53,  5.61,  8.17, 11.2,
                               14.72, 17.57, 20.3, 26.75, 34.58, 43.42};
static_assert(coreAreas.size() == std::size(anchorDiameters));

std::span<const Concrete> concretes(Integer Nr_normy) {
    return Nr_normy == 0 ? std::span<const Concrete>(olderNorm)
                         : std::span<const Concrete>(newerNorm);
}

QStringList namesOf(std::span<const Concrete> classes) {
    QStringList names;
    for (const Concrete& one : classes)
        names += QString::fromLatin1(one.name);
    return names;
}

} // namespace

const QStringList& steelNames() {
    static const QStringList names{QStringLiteral("St0S"),
                                   QStringLiteral("St3SX,St3SY,St3S,St3V,St3W"),
                                   QStringLiteral("St4VX,St4VY,St4V,St4W"),
                                   QStringLiteral("18G2,18G2A"),
                                   QStringLiteral("18G2AV"),
                                   QStringLiteral("50B"),
                                   QStringLiteral("inna stal")};
    return names;
}

const QStringList& concreteNames(Integer Nr_normy) {
    static const QStringList older = namesOf(olderNorm);
    static const QStringList newer = namesOf(newerNorm);
    return Nr_normy == 0 ? older : newer;
}

std::optional<AnchorSteel> anchorSteel(Integer Nr_stali, Integer Fi_max) {
    for (const SteelRow& row : steelRows)
        if (row.Nr_stali == Nr_stali && Fi_max <= row.upTo)
            return row.steel;
    return std::nullopt;
}

const Concrete& concrete(Integer Nr_normy, Integer Nr_betonu) {
    std::span<const Concrete> classes = concretes(Nr_normy);
    if (Nr_betonu == 5)
        classes = olderNorm;
    if (Nr_betonu < 1 || Nr_betonu > static_cast<int>(classes.size()))
        throw RunTimeError(error::Subscript);
    return classes[static_cast<std::size_t>(Nr_betonu - 1)];
}

std::optional<Double> coreArea(Integer fi) {
    const auto* const found = std::find(std::begin(anchorDiameters), std::end(anchorDiameters), fi);
    if (found == std::end(anchorDiameters))
        return std::nullopt;
    return coreAreas[static_cast<std::size_t>(found - std::begin(anchorDiameters))];
}

Single ratioN(Single Eb_betonu) {
    return CSng(Int(divided(2.05e7, Eb_betonu) + 0.5) / 100);
}

} // namespace ferna
