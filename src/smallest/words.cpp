#include "smallest/words.h"

namespace ferna::smallest {

const QStringList& notChecked() {
    static const QStringList words{
        QStringLiteral("Grubość blachy bez żeber wynika tylko z dwóch wsporników: od słupa do "
                       "krawędzi i przy kotwach; pozostałe fragmenty blachy, a blachę z żebrami w "
                       "całości, sprawdź osobno."),
        QStringLiteral("Spoiny, żebra i sam słup nie są sprawdzane."),
        QStringLiteral("Długość kotew jest katalogowa (kotwy fajkowe); wyrwania z betonu, "
                       "rozłupania i odległości od krawędzi fundamentu program nie sprawdza."),
        QStringLiteral("Fundament i dopuszczalny docisk powyżej Rb wymagają osobnego wykazania."),
        QStringLiteral("Masa nie obejmuje nakrętek, podkładek, spoin i żeber.")};
    return words;
}

QString wordsOf(RangePart part) {
    switch (part) {
    case RangePart::Column:
        return QStringLiteral("Wymiary słupa muszą być od 0 do 32767 mm.");
    case RangePart::Length:
        return QStringLiteral("Długość płyty: od 1 mm, nie więcej niż do, z krokiem od 1 mm.");
    case RangePart::Width:
        return QStringLiteral("Szerokość płyty: od 1 mm, nie więcej niż do, z krokiem od 1 mm.");
    case RangePart::Ratio:
        return QStringLiteral("Proporcja szerokości do długości musi być od 0,05 do 1.");
    case RangePart::Layouts:
        return QStringLiteral("Wybierz co najmniej jeden układ kotew.");
    case RangePart::Diameters:
        return QStringLiteral("Wybierz co najmniej jedną średnicę kotew.");
    case RangePart::Steels:
        return QStringLiteral("Wybierz co najmniej jedną stal kotew.");
    case RangePart::Distances:
        return QStringLiteral("Odległości kotew muszą być od 0 do 100 średnic i od 0 do 1000 mm.");
    case RangePart::Pressure:
        return QStringLiteral("Dopuszczalny docisk musi być od 1 do 2 Rb.");
    case RangePart::PlateSteel:
        return QStringLiteral("Wybierz stal blachy z listy.");
    case RangePart::Thickness:
        return QStringLiteral(
            "Najmniejsza grubość blachy musi być od 1 do 100 mm, podlewka od 0 do "
            "500 mm.");
    case RangePart::TooMany:
        break;
    }
    return QStringLiteral("Zakres ma ponad 20 milionów podstaw: zwiększ krok albo wybierz mniej.");
}

} // namespace ferna::smallest
