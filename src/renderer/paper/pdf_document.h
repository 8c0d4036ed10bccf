#pragma once

#include "pages/page.h"

#include <QByteArray>
#include <QDateTime>

namespace ferna::renderer {

/// The moment that a document says it was made at: SOURCE_DATE_EPOCH where it is set, else now;
/// UTC.
QDateTime pdfTime();

/// The pages of a PDF as a document: its properties and language, and the headings of the pages as
/// bookmarks. The same pages and properties give the same bytes. Error 57 where the pages are no
/// PDF.
QByteArray finishedPdf(const QByteArray& pages, const pages::Report& report, const QString& title,
                       const QDateTime& made);

} // namespace ferna::renderer
