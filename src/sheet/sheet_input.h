#pragma once

#include "combinations/digest.h"
#include "design/stan.h"
#include "notes/record.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace ferna::sheet {

/// What a calculation leaves for its sheet. The record has begun: it holds what was entered, the
/// exact equilibria and what was told.
struct SheetInput {
    const Stan& stan;            ///< after the calculation
    const notes::Record& record; ///< of the same calculation
    bool hasResults = false;     ///< the calculation has ended with results
    QStringList messages = {};   ///< what it has said, where it has none
    QString project = {};        ///< the project's name, as typed
    QString program = {};        ///< name and version
    QDateTime now = {};          ///< date and time of the sheet
    /// The table whose rows the load cases are; null where they are none.
    const combinations::Digest* combinations = nullptr;
};

} // namespace ferna::sheet
