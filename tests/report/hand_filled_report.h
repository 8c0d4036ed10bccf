#pragma once

#include "report/report_model.h"

#include <QDateTime>

#include <initializer_list>
#include <set>

namespace ferna::testing {

/// A report whose lines are filled by hand, so that the writers are tested without a calculation.
struct HandFilledReport {
    Stan stan;
    Raport raport;
    QDateTime now{QDate(2025, 3, 14), QTime(9, 5)};

    /// Four anchors, `cases` load cases with `resultLines` lines each. The second line of the cases
    /// 2 and 3 is one of exceeded concrete stress, the third of case 1 is of no kind that is
    /// written. `whole`: the cases in which the whole plate is compressed.
    explicit HandFilledReport(int cases, int resultLines = 4, const std::set<int>& whole = {});

    ReportModel model() const { return reportModel(stan, raport); }

    /// Adds the plate section with these of the eight checks.
    HandFilledReport& withPlate(std::initializer_list<int> checks);
    /// Adds the anchor section of `lines` lines.
    HandFilledReport& withAnchorSection(int lines = 9);
};

} // namespace ferna::testing
