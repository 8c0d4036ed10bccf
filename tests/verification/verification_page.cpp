#include "verification/verification_page.h"

#include "support/decimal_comma.h"
#include "support/random_tasks.h"
#include "support/stored_equilibrium.h"
#include "verification/printed.h"
#include "verification/published_examples.h"
#include "verification/search_record.h"

#include <algorithm>

namespace ferna::testing {

namespace {

constexpr std::uint64_t recordTasks = 12'000;

/// Deviation from a published figure.
std::string deviationText(const Compared& one, double figure) {
    const double deviation = one.deviationOf(figure);
    return one.published != 0 ? printed("%.3f %%", 100 * deviation) : printed("%.3g", deviation);
}

std::string table(const char* reference, const std::vector<Compared>& figures) {
    std::string out = printed("| | %s | here | deviation | exact equilibrium | deviation |\n"
                              "|---|---:|---:|---:|---:|---:|\n",
                              reference);
    for (const Compared& one : figures)
        out += printed("| %s | %.5g | %.5g | %s | %.5g | %s |\n", one.what.c_str(), one.published,
                       one.here + 0.0, deviationText(one, one.here).c_str(), one.exact + 0.0,
                       deviationText(one, one.exact).c_str());
    return out + '\n';
}

/// What many random column bases with one load case ended in.
struct Statistics {
    static constexpr std::uint64_t tasks = 6000;
    std::vector<Double> forces;
    std::vector<Double> moments;
    int negativeScale = 0; ///< the stress scale has the wrong sign
    int wholePlate = 0;
    int unsolved = 0;
    int approximate = 0; ///< a moment was scaled or an anchor moved

    Statistics() {
        for (std::uint64_t number = 1; number <= tasks; ++number)
            if (!isNasty(number))
                add(number);
        std::sort(forces.begin(), forces.end());
        std::sort(moments.begin(), moments.end());
    }

    void add(std::uint64_t number) {
        ColumnBase base;
        randomTask(base, number);
        base.cases = 1;
        base.stan.obciazenia.Liczba_przyp = 1;
        try {
            if (base.calculate() == CalculationEnd::Refused)
                return;
        } catch (const RunTimeError&) {
            return; // no anchor takes the shear
        }
        if (base.stan.wyniki.Przyp_policzony(1) == True) {
            ++wholePlate;
            return;
        }
        if (base.solver.Przerwij_obliczenia) {
            ++unsolved;
            return;
        }
        approximate += !base.stan.obciazenia.Pierwsza_proba(1);
        if (base.solver.Wsp_k <= 0) {
            ++negativeScale;
            return;
        }
        const Deviation d = deviation(base, 1);
        forces.push_back(d.N);
        moments.push_back(d.M);
    }
};

std::string row(const char* what, const std::vector<Double>& sorted) {
    const auto at = [&sorted](Double share) {
        return 100
               * sorted[static_cast<std::size_t>(share * static_cast<Double>(sorted.size() - 1))];
    };
    return printed("| %s | %.3f %% | %.3f %% | %.3f %% | %.3f %% |\n", what, at(0.5), at(0.95),
                   at(0.99), at(1));
}

std::string examples() {
    return "## Published examples\n\n"
           "All of them take the plate as rigid, the concrete as linear and in compression only, "
           "the anchors in\ntension only, and n = Es / Ec. The program stops its search at "
           "tolerances "
           "(100 kG cm, or steps of 0.01 cm\nand 0.01 degree), so agreement is a deviation, not an "
           "equality.\n\n"
           "### Two axes, four anchors\n\n"
           "Plate 250 x 250 mm, four anchors of 84.3 mm2 at (+-90, +-90) mm, Es = 200, Ec = 30 "
           "GPa, "
           "N = 14 kN of\ncompression, 7.6 and 1.0 kNm: the loads that the published resultants "
           "balance. "
           "The equilibrium functions of\nthe solver, both moment errors brought to zero by "
           "Newton's "
           "method. The published places are whole\nmillimetres.\n\n"
           + table("published", biaxialFourAnchors())
           + "The whole program, which has 85 mm2 for an M12 in its table:\n\n"
           + table("published", biaxialFourAnchorsOfTheTable())
           + "### Two axes, eight anchors\n\n"
             "Plate 500 x 600 mm, eight anchors M24 (353 mm2) at (+-190, +-240), (0, +-240) and "
             "(+-190, 0) "
             "mm,\nEc = 30, Es = 205 GPa, N = 400 kN, moments 150 and 60 kNm. The published values "
             "are "
             "those of an\nindependent solver that clips the zone and iterates by Newton's method. "
             "The whole "
             "program, x and y\nexchanged, since it wants the length along x.\n\n"
           + table("published", biaxialEightAnchors())
           + "### One axis, one row of anchors\n\n"
             "The bearing length Y of a plate D x B with the load P at the eccentricity e and "
             "anchors of "
             "the area As\nat f from the centre follows from Y^3 + K1 Y^2 + K2 Y + K3 = 0, "
             "K1 = 3 (e - D / 2),\nK2 = 6 n As (f + e) / B, K3 = -K2 (D / 2 + f). At the published "
             "figures "
             "(D = B = 300, f = 86 mm,\nAs = 390.7817 mm2, n = 10, P = 1075 kg, M = 1 096 875 kg "
             "mm):\n\n"
           + table("published", uniaxialEquation())
           + "The whole program beside that equation, for two M20 at x = -86 mm, N = 50 kN, M1 = "
             "20 kNm. "
             "It gives\nthe axis without a moment 700 kG cm (0.07 kNm), as a line parallel to an "
             "edge has no "
             "slope:\n\n"
           + table("equation", uniaxialProgram());
}

std::string equilibrium() {
    const Statistics s;
    return "## Equilibrium of the results\n\n"
           + printed(
               "Of %d random column bases with one load case, %d are compressed as a whole, %d "
               "have a neutral\nline with results and %d end without a solution. For %d of those "
               "with "
               "results a moment had to\nbe raised by a tenth, or the last anchor moved, before "
               "the "
               "search ended.\n\n",
               static_cast<int>(Statistics::tasks / 10 * 9), s.wholePlate,
               static_cast<int>(s.forces.size()) + s.negativeScale, s.unsolved, s.approximate)
           + "For the cases with a neutral line the resultants of concrete and anchors were summed "
             "anew from "
             "the\nstored stresses and the stored ends of the line (polygon clipping, exact "
             "integrals), and "
             "compared with\nthe loads that the search balanced:\n\n"
             "| deviation | median | 95 % | 99 % | largest |\n|---|---:|---:|---:|---:|\n"
           + row("force, share of N", s.forces) + row("moment, share of the larger", s.moments)
           + printed("\n%d of these cases ended with a negative stress scale: the march of the "
                     "neutral line jumped over the\npole where concrete and anchors cancel. "
                     "Such forces have the wrong sign. They are left out of the\ntable.\n\n",
                     s.negativeScale)
           + "The large deviations at the end of the table belong to cases whose last "
             "interpolation moved the "
             "line\nfar from the one that was evaluated. The stored stresses belong to the "
             "evaluated line.\n\n";
}

std::string besideTheExactEquilibrium() {
    return "## The search beside the exact equilibrium\n\n"
           "The exact equilibrium (`equilibrium/`) balances every load to 1e-10 of its size, or "
           "tells that none exists.\nBeside it the search, which stays as it is, made of random "
           "ordinary bases (1 to 12 anchors, mostly in the\nusual layouts, loads around the "
           "border of the kern and beyond):\n\n"
           + textOf(searchRecord(recordTasks), recordTasks)
           + "So a single anchor is not what makes a result false. Another number of tasks: "
             "`build/release/tests/verification\n--search 100000`. Every result of `ferna-wsad` "
             "carries the exact equilibrium under `Rownowaga` and the notes\nunder `Uwagi`: "
             "`odchylka` tells a stress more than 2 % below the exact one, `werdykt` a check "
             "that\nonly the told stresses pass, `brak_rozwiazania` a case that the search gave up "
             "though it has an\nequilibrium, `moment_powiekszony` and `kotwa_przesunieta` a case "
             "solved for other data than typed.\nWith a note, do not sign the report alone: "
             "compare its stresses with the exact ones.\n\n";
}

} // namespace

std::string verificationPage() {
    const WithDecimalSign comma(u',');
    return "# Verification\n\n"
           "This page is written by `build/release/tests/verification`; a test compares it with "
           "what the "
           "program\ngives today.\n\n"
           + examples() + equilibrium() + besideTheExactEquilibrium()
           + "## What the method does not cover\n\n"
             "- A tensile or vanishing axial force is refused.\n"
             "- The plate is rigid. Prying forces and the bending of the plate do not change the "
             "anchor "
             "forces; the\n  plate's thickness is checked apart.\n"
             "- The concrete is linear. Its strength under local pressure, the reinforcement of "
             "the footing "
             "and the\n  pull-out of the anchors are checked only as far as the report's lines "
             "say.\n"
             "- Anchors in compression carry nothing, and holes are not taken out of the bearing "
             "area.\n"
             "- A vanishing moment is replaced by a small one, so a case about one axis deviates "
             "slightly "
             "from the\n  equation of that axis (see above).\n"
             "- A case whose search fails is solved with its smaller moment raised by a tenth, "
             "then with the "
             "last\n  anchor moved by 0.5 % towards the centre; the program says \"Rozwiązanie "
             "przybliżone.\" only in the\n  second case, and the report shows the loads as typed.\n"
             "- Lines that end at a tolerance leave the deviations of the table above.\n";
}

} // namespace ferna::testing
