#include "notes/note.h"

#include <algorithm>
#include <tuple>

namespace ferna::notes {

const char* codeName(Code code) {
    static constexpr std::array names{"odchylka",
                                      "werdykt",
                                      "brak_rozwiazania",
                                      "nie_stoi",
                                      "rozciaganie",
                                      "moment_powiekszony",
                                      "kotwa_przesunieta",
                                      "znak_z_poprzednich",
                                      "kotwy_w_jednym_miejscu",
                                      "kotwa_poza_plyta",
                                      "srednica_spoza_szeregu",
                                      "wspolrzedne_listy",
                                      "zero_przypadkow",
                                      "sprawdzenie_odrzucone",
                                      "grubosc_bez_sprawdzenia",
                                      "sila_mniejsza",
                                      "litera_spoza_strony",
                                      "nazwa_skrocona",
                                      "dokladnie"};
    static_assert(names.size() == static_cast<std::size_t>(Code::Dokladnie) + 1);
    return names.at(static_cast<std::size_t>(code));
}

void putInOrder(Notes& notes) {
    std::stable_sort(notes.begin(), notes.end(), [](const Note& a, const Note& b) {
        return std::tie(a.caseNumber, a.code) < std::tie(b.caseNumber, b.code);
    });
}

} // namespace ferna::notes
