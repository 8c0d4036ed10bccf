#include "batch/failure_words.h"

#include <array>
#include <utility>

namespace ferna::batch {

namespace {

using Phrase = std::pair<const char*, const char*>;

// The details of the rooms below. A phrase that begins as another one stands before it.
constexpr std::array phrases{
    Phrase{", wiersz ", ", line "},
    Phrase{"to nie jest tekst w stronie kodowej 1250", "not a text in code page 1250"},
    Phrase{"to nie jest tekst w UTF-8", "not a text in UTF-8"},
    Phrase{"to nie jest zwykły plik", "not a plain file"},
    Phrase{"to nie jest obraz", "not a picture"},
    Phrase{"to dowiązanie innego użytkownika w folderze wspólnym",
           "another user's link in a shared folder"},
    Phrase{"to łącze innego użytkownika w folderze wspólnym",
           "another user's pipe in a shared folder"},
    Phrase{"nikt nie czyta z tego łącza", "nobody reads this pipe"},
    Phrase{"ten plik zapisuje właśnie inny program", "another program is writing this file"},
    Phrase{"plik ma ponad ", "the file has more than "},
    Phrase{"nieznany wpis ", "unknown entry "},
    Phrase{"katalog ma 66 wierszy", "a catalogue has 66 lines"},
    Phrase{"język nr ", "language no. "},
    Phrase{"program rysujący strony raportu", "the program that draws the pages of a report"},
    Phrase{" nie skończył pracy (Przerwij)", " was given up"},
    Phrase{" zakończył pracę z kodem ", " ended with code "},
    Phrase{" przerwał pracę", " has crashed"},
    Phrase{"dokument zapisuje LibreOffice Writer; trzeba zainstalować pakiet libreoffice-writer "
           "albo libreoffice-writer-nogui",
           "LibreOffice Writer writes the document; the package libreoffice-writer or "
           "libreoffice-writer-nogui has to be installed"},
    Phrase{"brak modułu druku i dokumentów PDF ",
           "the module for printing and PDF documents is missing: "},
    Phrase{"brak modułu zapisu dokumentów ", "the module that writes documents is missing: "},
    Phrase{"program zbudowany ze źródeł: trzeba zainstalować pakiet libreoffice-dev i zbudować "
           "program od nowa; program z pakietu: zainstalować pakiet ferna ponownie",
           "a program from its sources: the package libreoffice-dev has to be installed and the "
           "program built again; a program from its package: the package ferna has to be installed "
           "again"},
    Phrase{"brak programu ", "missing program "},
    Phrase{"LibreOffice nie otwiera dokumentu tekstowego",
           "LibreOffice does not open a text document"},
    Phrase{"LibreOffice Writer nie uruchomił się", "LibreOffice Writer did not start"},
    Phrase{"LibreOffice Writer nie zgłosił się w ciągu ",
           "LibreOffice Writer did not answer within "},
    Phrase{"LibreOffice Writer nie odpowiada", "LibreOffice Writer does not answer"},
    Phrase{"dokument nie jest otwarty", "the document is not open"},
    Phrase{"raport RTF jest wyłączony", "the RTF report is switched off"},
    Phrase{"nie można złożyć dokumentu", "the document cannot be packed"},
    Phrase{"nie można zapisać PDF", "the PDF cannot be written"},
    Phrase{"nie można narysować strony", "the page cannot be drawn"},
    Phrase{"brak poleceń ramki strony", "no commands of the page's frame"},
    Phrase{"brak pamięci", "out of memory"},
    Phrase{"rysunki mają razem ponad ", "the pictures have together more than "},
};

} // namespace

QString failureWords(const RunTimeError& failure) {
    constexpr int lastNumber = error::Cancelled; // the largest with a text of its own
    QString detail = failure.detail();
    for (const auto& [polish, english] : phrases)
        detail.replace(QString::fromUtf8(polish), QString::fromUtf8(english));
    // What the renderer says of its own errors.
    const QString unknown = errorText(-1);
    for (int number = 1; number <= lastNumber; ++number)
        if (const QString text = errorText(number); text != unknown)
            detail.replace(text, errorTextEnglish(number));
    const QString words = errorTextEnglish(failure.number());
    return detail.isEmpty() ? words : words + QStringLiteral(": ") + detail;
}

} // namespace ferna::batch
