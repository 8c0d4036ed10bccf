#pragma once

#include "editable/document.h"
#include "report/report_model.h"

namespace ferna::editable {

/// The report as an editable document: every line of it in its order, headings as headings, the
/// columns of anchors, loads and anchor stresses as tables, and all its pictures. `pictures` is the
/// folder where they lie; the anchor's sketch is saved there first. Errors of `saveAnchorSketch`;
/// 53 for a picture that cannot be read.
Document editableReport(const ReportModel& report, const QString& pictures);

/// The document as a file: OpenDocument text, Office Open XML. The same document gives the same
/// bytes. Error 57 where it cannot be packed.
QByteArray odtFile(const Document& document);
QByteArray docxFile(const Document& document);

/// The writer that the ending of a file's name asks for, ".odt" or ".docx"; null for any other.
using Writer = QByteArray (*)(const Document& document);
Writer writerFor(const QString& file);

} // namespace ferna::editable
