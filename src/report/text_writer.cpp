#include "report/text_writer.h"

namespace ferna {

namespace {

void writeLines(TextFileWriter& file, const QStringList& lines) {
    for (const QString& line : lines)
        file.line(line);
}

void writeCase(TextFileWriter& file, const ReportCase& section, QChar omegaSubscript) {
    file.line(section.title);
    writeLines(file, section.axis);
    file.line();
    for (const ReportResultLine& line : section.results)
        file.line(line.ratio ? line.text + QStringLiteral("omega ") + omegaSubscript + *line.ratio
                             : line.text);
    file.line();
}

} // namespace

TextFileWriter textReport(const ReportModel& report) {
    TextFileWriter file;
    for (int i = 1; i <= 8; ++i)
        file.line(report.title(i));
    writeLines(file, report.data);
    writeLines(file, report.anchors);
    writeLines(file, report.loads);
    for (const ReportCase& section : report.cases)
        writeCase(file, section, report.omegaSubscript);
    if (report.summary) {
        file.line(report.summary->heading);
        for (const QString& line : report.summary->lines)
            file.line(line);
    }
    if (report.plate)
        writeLines(file, report.plate->lines());
    if (report.anchor) {
        file.line(report.anchor->heading);
        writeLines(file, report.anchor->lines);
    }
    return file;
}

} // namespace ferna
