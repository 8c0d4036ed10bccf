#include "selection/anchor_catalogue.h"

#include "selection/clauses.h"

#include <array>

namespace ferna {

namespace {

constexpr Integer fromArea = 0; // Lk of the rows that take it from the core area
constexpr Integer none = 0;

constexpr std::array rows{
    // d, Lk, Lp0, Ld, a, t, L1
    CatalogueAnchor{12, 580, none, 45, none, none, none},
    CatalogueAnchor{16, 770, none, 50, none, none, none},
    CatalogueAnchor{20, 900, 500, 55, 100, 20, none},
    CatalogueAnchor{24, 1080, 500, 60, 110, 20, none},
    CatalogueAnchor{30, 1330, 650, 70, 120, 20, none},
    CatalogueAnchor{36, fromArea, 800, 80, 130, 20, none},
    CatalogueAnchor{42, fromArea, 900, 85, 150, 20, none},
    CatalogueAnchor{48, fromArea, 1000, 90, 170, 20, 160},
    CatalogueAnchor{52, fromArea, 1100, 95, 200, 20, 180},
    CatalogueAnchor{56, fromArea, 1200, 100, 200, 20, 200},
    CatalogueAnchor{64, fromArea, 1400, 110, 230, 25, 220},
    CatalogueAnchor{72, fromArea, 1600, 120, 250, 30, 240},
    CatalogueAnchor{80, fromArea, 1800, 130, 280, 32, 260},
};

} // namespace

CatalogueAnchor catalogueAnchor(Integer d) {
    for (const CatalogueAnchor& row : rows)
        if (row.d == d)
            return row;
    return {d, none, none, none, none, none, none};
}

Integer straightLengthHooked(const CatalogueAnchor& row, Single Mnoznik_dlugosci, Double A) {
    const bool inSeries = row.Ld != none;
    if (row.Lk != fromArea || !inSeries)
        return row.Lk;
    return anchorageOfArea(Mnoznik_dlugosci, A);
}

Integer straightLengthPlate(const CatalogueAnchor& row, Single Wsp_dlugosci) {
    return anchorageOfBase(Wsp_dlugosci, row.Lp0);
}

} // namespace ferna
