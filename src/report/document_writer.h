#pragma once

#include "desktop/word_processor.h"
#include "report/report_model.h"

namespace ferna {

/// Builds the report as an open document of the word processor, with the pictures of the program
/// folder embedded. It is then to be saved with `saveDocument` under the name that the user gives.
/// Errors of `WordProcessor`.
void buildDocument(WordProcessor& word, const ReportModel& report, const QString& folder);

/// Saves the built document and closes it. Errors of `WordProcessor::SaveAs`; a command that keeps
/// silent about a file that cannot be saved keeps silent about these, and about no others.
void saveDocument(WordProcessor& word, const QString& path);

/// Both with the installed word processor, for a file whose name is known beforehand.
void writeDocument(const ReportModel& report, const QString& folder, const QString& path,
                   const WordProcessorPlace& place = {});

/// The question for the name of the document.
SaveQuestion documentQuestion();

/// What the user is told of a saved document, in three lines, and its title.
QString documentAdvice();
QString documentAdviceTitle();

} // namespace ferna
