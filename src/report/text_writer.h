#pragma once

#include "report/report_model.h"
#include "runtime/text_file.h"

namespace ferna {

/// The report as plain text, one report line a file line: the report model in its bare order, with
/// no pictures and no pages.
TextFileWriter textReport(const ReportModel& report);

} // namespace ferna
