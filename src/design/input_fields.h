#pragma once

#include "design/load_row.h"
#include "design/stan.h"

#include <QString>

#include <array>

namespace ferna {

/// The fields and options of the main form `Ferna3` that the calculation reads, as they stand
/// there: texts are texts until a command reads them. Member names are those of the controls.
struct InputFields {
    QString txtNaz_proj;
    QString txtNr_strony;
    QString Text2;                                ///< ratio n
    QString Text3;                                ///< plate length, mm
    QString Text4;                                ///< plate width, mm
    int cmbStal = -1;                             ///< chosen item, -1 for none
    bool Option1_0 = true;                        ///< "Betonowa" is selected
    bool optHsruby_0 = true;                      ///< "przez wszystkie kotwy" is selected
    std::array<LoadRow<QString>, MaxCases> loads; ///< the load table, row r = case - 1

    bool operator==(const InputFields&) const = default;
};

/// Takes the plate size from the fields: cm as Singles, mm as whole numbers rounded down.
/// Error 13 where a field is no number, 6 beyond 16 bits.
void Czytaj_plyte(Stan& stan, const InputFields& fields);

} // namespace ferna
