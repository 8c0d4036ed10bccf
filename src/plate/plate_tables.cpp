#include "plate/plate_tables.h"

#include "runtime/run_time_error.h"

#include <array>

namespace ferna {

namespace {

constexpr std::array steels{
    PlateSteel{"St0S", 175, 40},
    PlateSteel{"St3SX,St3SY,St3S,St3V,St3W", 205, 40},
    PlateSteel{"St4VX,St4VY,St4V,St4W", 225, 40},
    PlateSteel{"18G2,18G2A", 295, 30},
    PlateSteel{"18G2AV", 360, 30},
};

constexpr std::array profiles{
    ColumnProfile{"IPE 80", 80, 46, 8},      ColumnProfile{"IPE 100", 100, 55, 8},
    ColumnProfile{"IPE 120", 120, 64, 8},    ColumnProfile{"IPE 140", 140, 73, 8},
    ColumnProfile{"IPE 160", 160, 82, 8},    ColumnProfile{"IPE 180", 180, 91, 8},
    ColumnProfile{"IPE 200", 200, 100, 8},   ColumnProfile{"IPE 220", 220, 110, 8},
    ColumnProfile{"IPE 240", 240, 120, 8},   ColumnProfile{"IPE 270", 270, 135, 8},
    ColumnProfile{"IPE 300", 300, 150, 8},   ColumnProfile{"IPE 330", 330, 160, 8},
    ColumnProfile{"IPE 360", 360, 170, 8},   ColumnProfile{"IPE 400", 400, 180, 8},
    ColumnProfile{"IPE 450", 450, 190, 8},   ColumnProfile{"IPE 500", 500, 200, 8},
    ColumnProfile{"IPE 550", 550, 210, 8},   ColumnProfile{"IPE 600", 600, 220, 8},
    ColumnProfile{"HEB <=300", 300, 300, 7}, ColumnProfile{"HEB 360", 360, 300, 7.1},
    ColumnProfile{"HEB 400", 400, 300, 7.4}, ColumnProfile{"HEB 450", 450, 300, 7.8},
    ColumnProfile{"HEB 500", 500, 300, 8.1}, ColumnProfile{"HEB 550", 550, 300, 8.6},
    ColumnProfile{"HEB 600", 600, 300, 9.1},
};

constexpr FragmentNode nodesOnFourEdges[] = {{0.5, 0.354}, {0.6, 0.414}, {0.7, 0.466},
                                             {0.8, 0.506}, {0.9, 0.537}, {1.0, 0.556}};

constexpr FragmentNode nodesOnThreeEdges[] = {
    {0.3, 0.488}, {0.4, 0.595}, {0.5, 0.661}, {0.6, 0.697}, {0.7, 0.714}, {0.8, 0.72},
    {0.9, 0.721}, {1.0, 0.719}, {1.1, 0.718}, {1.2, 0.714}, {1.5, 0.711}, {2.0, 0.707}};

constexpr FragmentNode nodesOnTwoEdges[] = {{0.5, 0.795}, {0.6, 0.914}, {0.7, 1.008},
                                            {0.8, 1.084}, {0.9, 1.139}, {1.0, 1.187}};

template <typename Rows>
const auto& row(const Rows& rows, Integer number) {
    if (number < 1 || static_cast<std::size_t>(number) > rows.size())
        throw RunTimeError(error::Subscript);
    return rows[static_cast<std::size_t>(number - 1)];
}

} // namespace

const QStringList& plateSteelNames() {
    static const QStringList names = [] {
        QStringList list;
        for (const PlateSteel& steel : steels)
            list += QString::fromLatin1(steel.name);
        list += QStringLiteral("inna stal");
        return list;
    }();
    return names;
}

const PlateSteel& plateSteel(Integer Nr_stali_blachy) {
    return row(steels, Nr_stali_blachy);
}

const QStringList& profileNames() {
    static const QStringList names = [] {
        QStringList list;
        for (const ColumnProfile& profile : profiles)
            list += QString::fromLatin1(profile.name);
        return list;
    }();
    return names;
}

const ColumnProfile& columnProfile(Integer Nr_profilu) {
    return row(profiles, Nr_profilu);
}

std::span<const FragmentNode> fragmentNodes(int check) {
    switch (check) {
    case 3:
        return nodesOnFourEdges;
    case 5:
        return nodesOnThreeEdges;
    case 6:
        return nodesOnTwoEdges;
    default:
        throw RunTimeError(error::Subscript);
    }
}

FragmentInterval fragmentInterval(int check, Single r) {
    const std::span<const FragmentNode> nodes = fragmentNodes(check);
    std::size_t i = 0;
    while (i + 2 < nodes.size() && !(r < nodes[i + 1].r))
        ++i;
    // The widths of the table on three edges are Singles.
    const Single width = i + 2 == nodes.size() ? 0.5F : i + 3 == nodes.size() ? 0.3F : 0.1F;
    return {nodes[i].r, nodes[i].coefficient, nodes[i + 1].coefficient,
            check == 5 ? Double{width} : 0.1};
}

} // namespace ferna
