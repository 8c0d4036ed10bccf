#pragma once

#include "runtime/numbers.h"

#include <QString>
#include <QStringList>

namespace ferna {

struct ReportModel;

/// What a report says beside its lines: in a document's properties, in captions and headers. The
/// lines themselves come from the catalogues.
struct ReportWords {
    QString tag;     ///< language of the report (BCP 47)
    QString title;   ///< what the document is; %1 and %2 are the two standards
    QString subject; ///< what it is about
    QString data;    ///< the part before the results, in a table of contents
    QString page;    ///< before the page's number
    QString figure;  ///< before a figure's number
    QString views;   ///< caption of general view and plate
    QString zone;    ///< of a case's sketch; %1 is the case's title
    QString anchor;  ///< of the anchor's sketch
};

/// The words of a catalogue's language, 0..4. Error 9.
ReportWords reportWords(Integer Nr_jezyka);

/// Title of a document in its language, with the standards that the norm stands for.
QString documentTitle(Integer Nr_jezyka, Integer Nr_normy);

/// The options by which the renderer learns what a PDF of the report says of itself.
QStringList documentOptions(const ReportModel& report);

/// A line of a catalogue with the letters that code page 1250 lacks and the catalogue therefore
/// writes bare: French accents.
QString fullSpelling(QString line, Integer Nr_jezyka);

} // namespace ferna
