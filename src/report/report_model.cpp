#include "report/report_model.h"

#include "design/plate_blocks.h"
#include "pages/sketch_files.h"
#include "report/zone_sketch.h"

#include <numeric>

namespace ferna {

namespace {

/// Values of `Znak_wiersza`. A line of another mark is written by no output.
enum Mark { PlainLine = 0, ExceedanceLine = 1 };

/// Makes the cases in their order: the result lines of each stand behind those of the one before,
/// and the ratios of exceeded concrete stress are counted over the whole report.
class Cases {
public:
    Cases(const Stan& stan, const Raport& raport) : stan_(stan), raport_(raport) {}

    ReportCase next() {
        const Wyniki& results = stan_.wyniki;
        const int c = ++case_;
        ReportCase section;
        section.title = caseTitle(stan_, c);
        if (!wholePlate(stan_, c)) {
            section.figure = zoneSketchFile(c);
            section.axis = {raport_.Wiersze_strefy(c - 1), raport_.Wiersze_stale(1)};
        }
        section.countedLines = results.Ostatni_wiersz(c) - results.Ostatni_wiersz(c - 1);
        for (; line_ <= results.Ostatni_wiersz(c); ++line_)
            add(section);
        return section;
    }

private:
    void add(ReportCase& section) {
        const Wyniki& results = stan_.wyniki;
        const QString& text = results.Wiersze_wynikow(line_);
        if (results.Znak_wiersza(line_) == PlainLine)
            section.results.push_back({text, {}});
        else if (results.Znak_wiersza(line_) == ExceedanceLine)
            section.results.push_back({text, results.Tekst_przekroczenia(ratio_++)});
    }

    const Stan& stan_;
    const Raport& raport_;
    int case_ = 0;
    int line_ = 1;
    int ratio_ = 1;
};

/// The lines first..last of an array of the state.
template <typename Lines>
QStringList slice(const Lines& lines, int first, int last) {
    QStringList result;
    for (int i = first; i <= last; ++i)
        result += lines(i);
    return result;
}

ReportPlate plateSection(const Stan_raportu& report) {
    ReportPlate section;
    for (std::size_t i = 0; i < section.head.size(); ++i)
        section.head[i] = report.Wiersze_blachy(static_cast<int>(i));
    int next = plateHeadLines;
    for (const PlateBlockForm& form : plateBlockForms) {
        if (report.Spr_blachy(form.check) <= 0)
            continue;
        section.blocks.push_back({form.check, QString::fromLatin1(form.sketch),
                                  slice(report.Wiersze_blachy, next, next + form.lines - 1)});
        next += form.lines;
    }
    section.rest = slice(report.Wiersze_blachy, next, report.Liczba_wierszy_blachy);
    return section;
}

ReportAnchor anchorSection(const Stan_raportu& report) {
    return {report.Wiersze_kotwy(1), slice(report.Wiersze_kotwy, 2, report.Liczba_wierszy_kotwy),
            anchorSketchFile, report.Typ_szkicu_kotwy};
}

} // namespace

QStringList ReportPlate::lines() const {
    QStringList all(head.begin(), head.end());
    for (const ReportPlateBlock& block : blocks)
        all += block.lines;
    all += rest;
    return all;
}

int ReportModel::lastResultLine() const {
    return std::accumulate(cases.begin(), cases.end(), 0, [](int sum, const ReportCase& section) {
        return sum + section.countedLines;
    });
}

ReportModel reportModel(const Stan& stan, const Raport& raport) {
    const int cases = stan.obciazenia.Liczba_przyp;
    ReportModel model;
    model.title = raport.Wiersze_naglowka;
    model.generalView = generalViewFile;
    model.platePicture = platePictureFile;
    model.data = slice(raport.Wiersze_danych, 1, 4);
    model.anchors = slice(stan.raport.Wiersze_srub, 0, stan.plyta.Liczba_srub);
    model.loads = slice(stan.raport.Wiersze_obciazen, 0, cases + 2);
    model.resultsHeading = raport.Wiersze_stale(0);
    Cases caseByCase(stan, raport);
    for (int c = 1; c <= cases; ++c)
        model.cases.push_back(caseByCase.next());
    if (cases > 1)
        model.summary = ReportSummary{raport.Wiersze_stale(3), Wiersze_podsumowania(stan)};
    if (stan.raport.Liczba_wierszy_blachy > 0)
        model.plate = plateSection(stan.raport);
    if (stan.raport.Liczba_wierszy_kotwy > 0)
        model.anchor = anchorSection(stan.raport);
    model.omegaSubscript = omegaSubscript(stan);
    model.firstPage = stan.opcje.Nr_strony;
    model.language = stan.opcje.Nr_jezyka;
    model.norm = stan.opcje.Nr_normy;
    model.titledAt = raport.titledAt;
    return model;
}

} // namespace ferna
