#pragma once

#include "pages/page.h"

#include <QByteArray>

#include <span>

namespace ferna::renderer {

/// How a report is written into files.
struct OutputFormat {
    const char* option; ///< of the command line, without the two dashes; also the file suffix
    bool onePerPage;
    /// The bytes of one file: of the page with that index, or of all pages. Error 57.
    QByteArray (*bytes)(const pages::Report& report, std::size_t page, int dpi);
};

/// All formats there are.
std::span<const OutputFormat> outputFormats();

/// The format with that option; null where there is none.
const OutputFormat* outputFormat(const QString& option);

/// Name of the file of a page, index from 0: as given where there is one page, else with
/// "-strona-1-z-3" before the format's suffix, which is added where it is missing. So no page has a
/// name that another report is given by accident, and a page of an earlier, longer report is told
/// from those of the present one.
QString pageFileName(const QString& name, const OutputFormat& format, std::size_t page,
                     std::size_t pages);

/// The names of all files that a report takes under a name.
QStringList fileNames(const pages::Report& report, const OutputFormat& format, const QString& name);

/// Writes a report into these files. Errors of `writeFileWhole`, 57.
void writeReport(const pages::Report& report, const OutputFormat& format, const QString& name,
                 int dpi);

} // namespace ferna::renderer
