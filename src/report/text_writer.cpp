#include "report/text_writer.h"

namespace ferna {

namespace {

void writeCase(TextFileWriter& file, const Stan& stan, const Raport& raport, ResultLines& results,
               int c) {
    file.line(caseTitle(stan, c));
    if (!wholePlate(stan, c)) {
        file.line(raport.Wiersze_strefy(c - 1));
        file.line(raport.Wiersze_stale(1));
    }
    file.line(raport.Wiersze_stale(2));
    results.ofCase(
        c, [&](const QString& text) { file.line(text); },
        [&](const QString& text, const QString& ratio) {
            file.line(text + QStringLiteral("omega ") + omegaSubscript(stan) + ratio);
        });
    file.line(raport.Wiersze_stale(2));
}

} // namespace

TextFileWriter textReport(const Stan& stan, const Raport& raport) {
    TextFileWriter file;
    for (int i = 1; i <= 8; ++i)
        file.line(raport.Wiersze_naglowka(i));
    for (int i = 1; i <= 4; ++i)
        file.line(raport.Wiersze_danych(i));
    for (int i = 0; i <= stan.plyta.Liczba_srub; ++i)
        file.line(stan.raport.Wiersze_srub(i));
    const int cases = stan.obciazenia.Liczba_przyp;
    for (int i = 0; i <= cases + 2; ++i)
        file.line(stan.raport.Wiersze_obciazen(i));

    ResultLines results(stan);
    for (int c = 1; c <= cases; ++c)
        writeCase(file, stan, raport, results, c);
    if (cases > 1) {
        file.line(raport.Wiersze_stale(3));
        for (const QString& line : Wiersze_podsumowania(stan))
            file.line(line);
    }
    if (stan.raport.Liczba_wierszy_blachy > 0)
        for (int i = 0; i <= stan.raport.Liczba_wierszy_blachy; ++i)
            file.line(stan.raport.Wiersze_blachy(i));
    for (int i = 1; i <= stan.raport.Liczba_wierszy_kotwy; ++i)
        file.line(stan.raport.Wiersze_kotwy(i));
    return file;
}

} // namespace ferna
