#pragma once

#include <QString>

#include <array>
#include <vector>

namespace ferna::notes {

/// What is doubtful about an input or a result. The order is that in which notes of one case stand.
enum class Code {
    Odchylka,              ///< the told result is below the exact one by more than 2 %
    Werdykt,               ///< a check that passes as told fails with the exact stresses
    BrakRozwiazania,       ///< the search gave up although an equilibrium exists
    NieStoi,               ///< no equilibrium exists
    Rozciaganie,           ///< N below 0 was refused
    MomentPowiekszony,     ///< solved with the smaller moment raised
    KotwaPrzesunieta,      ///< solved with the last anchor moved
    ZnakZPoprzednich,      ///< carries the mark of a whole plate from an earlier calculation
    KotwyWJednymMiejscu,   ///< two anchors closer than the larger of their diameters
    KotwaPozaPlyta,        ///< off the plate, or nearer to its edge than its radius
    SrednicaSpozaSzeregu,  ///< a diameter off the series
    WspolrzedneListy,      ///< the list gives other places than those that are computed
    ZeroPrzypadkow,        ///< a report without a load case
    SprawdzenieOdrzucone,  ///< a plate check was asked for and gave nothing
    GruboscBezSprawdzenia, ///< the accepted thickness is below what a check needs, or none stands
    SilaMniejsza,          ///< a plate check was given less than what was computed
    LiteraSpozaStrony,     ///< letters that the files of the report cannot hold
    NazwaSkrocona,         ///< a name was cut on its way into the report
    /// The exact stresses of a case that has no results. Says nothing doubtful of its own: it
    /// stands in the windows beside the case that has ended the calculation, and in no result.
    Dokladnie
};

/// The code as results write it: "odchylka".
const char* codeName(Code code);

/// Numbers that do not apply are 0.
struct Note {
    Code code{};
    int caseNumber = 0; ///< 1..6
    int anchor = 0;     ///< 1..20
    int check = 0;      ///< of the plate, 1..8
    QString text;       ///< a sentence or some: what, how much, what to do

    bool operator==(const Note&) const = default;
};
using Notes = std::vector<Note>;

/// By case, what belongs to none first; then in the order of the codes.
void putInOrder(Notes& notes);

} // namespace ferna::notes
