#pragma once

#include "report/report_lines.h"

#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace ferna {

/// A result line of a case.
struct ReportResultLine {
    QString text;
    /// Set where the line says that the concrete stress is exceeded: it goes on with omega, the
    /// report's subscript and this ratio.
    std::optional<QString> ratio;
};

/// The section of a load case.
struct ReportCase {
    QString title;
    QString figure;   ///< file of its sketch; empty where the whole plate is compressed
    QStringList axis; ///< neutral-axis line and the heading of the anchors below it; likewise
    std::vector<ReportResultLine> results;
    int countedLines = 0; ///< result lines with those of a kind that no output writes

    bool wholePlate() const { return figure.isEmpty(); }
};

/// The largest values of several cases.
struct ReportSummary {
    QString heading;
    std::array<QString, 3> lines;
};

/// A check of the plate section.
struct ReportPlateBlock {
    int check = 0;  ///< 1..8
    QString figure; ///< file of its sketch; empty for the check that has none
    QStringList lines;
};

/// The plate section.
struct ReportPlate {
    std::array<QString, 3> head; ///< an empty line, the heading, an empty line
    std::vector<ReportPlateBlock> blocks;
    QStringList rest; ///< lines behind the blocks up to the last one that the state counts

    const QString& heading() const { return head[1]; }
    /// All lines in their order, those of the head first.
    QStringList lines() const;
};

/// The section of the selected anchor.
struct ReportAnchor {
    QString heading;
    QStringList lines;  ///< behind the heading
    QString figure;     ///< file of its sketch
    Integer sketch = 0; ///< which of the delivered ones is saved there, 1..3
};

/// The report as sections of lines and figures, made from the lines that the state and the results
/// form hold. Every output walks it, const, and adds the layout of its own file and nothing else.
struct ReportModel {
    IndexedArray<QString, 8> title; ///< from 1; line 6 is that of the page number
    QString generalView;            ///< files of the two fixed figures
    QString platePicture;
    QStringList data;    ///< plate, concrete, anchor steel
    QStringList anchors; ///< heading, then a line an anchor
    QStringList loads;   ///< heading, columns, a line a case, an empty line
    QString resultsHeading;
    std::vector<ReportCase> cases;
    std::optional<ReportSummary> summary; ///< of more than one case
    std::optional<ReportPlate> plate;
    std::optional<ReportAnchor> anchor;

    QChar omegaSubscript;  ///< of the lines with a ratio
    Integer firstPage = 1; ///< number of the first page
    Integer language = 0;  ///< of the catalogue, 0..4
    Integer norm = 0;      ///< 0 the older, 1 the newer
    QDateTime titledAt;    ///< when the title block was made

    int caseCount() const { return static_cast<int>(cases.size()); }
    int anchorCount() const { return static_cast<int>(anchors.size()) - 1; }
    /// Number of the last result line, counted over all cases.
    int lastResultLine() const;
};

/// The report of a calculation as it stands now. Error 9 where the counters of the state lead out
/// of its arrays.
ReportModel reportModel(const Stan& stan, const Raport& raport);

} // namespace ferna
