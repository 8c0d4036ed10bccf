#pragma once

#include "design/stan.h"
#include "runtime/dialogs.h"

#include <QDateTime>

#include <array>

namespace ferna {

/// The lines of the report that belong to the results form. Together with the shared lines of the
/// state they are the whole report: `reportModel` makes its sections of them.
struct Raport {
    IndexedArray<QString, 8> Wiersze_naglowka; ///< title block, from 1
    IndexedArray<QString, 10> Wiersze_danych;  ///< general data, 1..4
    IndexedArray<QString, 3> Wiersze_stale;    ///< fixed lines
    IndexedArray<QString, 5> Wiersze_strefy;   ///< neutral-axis line, by case - 1
    QString Nazwa_stopy;                       ///< label of the footing, at most 32 characters
    QString typedLabel;                        ///< the same before it was cut
    QDateTime titledAt;                        ///< when the title block was made
    std::array<QString, 2> titleLines;         ///< lines 2 and 3 of the title block (`titleLines`)
};

/// Asks for the label of the footing and keeps its first 32 characters; cancel gives an empty one.
void Nazwa_zadania(Raport& raport, Dialogs& dialogs);

/// Asks for the label and rebuilds the title block. `norm0`: the first option of the norm control
/// is set. `now` is the date and time of the block.
void Naglowek(Raport& raport, const Stan& stan, bool norm0, const QDateTime& now, Dialogs& dialogs);

/// Fills the heading of the anchors, the fixed lines, the data lines and the load table, in the
/// catalogue's language.
void Wypelnij_wiersze(Raport& raport, Stan& stan);

/// The neutral-axis line of a case: the catalogue's words and the ends of the line on the plate,
/// mm.
QString Wiersz_strefy(const Stan& stan, int c);

/// The three summary lines of a calculation with more than one case.
std::array<QString, 3> Wiersze_podsumowania(const Stan& stan);

/// The subscript of omega in the lines of exceeded concrete stress, by the norm.
QChar omegaSubscript(const Stan& stan);

/// Catalogue line 16 and the number of the case.
QString caseTitle(const Stan& stan, int c);

/// True where the whole plate was compressed in the case: no sketch, no neutral-axis line.
inline bool wholePlate(const Stan& stan, int c) {
    return stan.wyniki.Przyp_policzony(c) == True;
}

} // namespace ferna
