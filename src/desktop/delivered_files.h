#pragma once

#include <QString>

namespace ferna {

/// Brings the delivered data into the user's data folder. What is missing there is copied; a file
/// that an earlier installation brought is replaced by that of a newer one. What the engineer
/// changed stays as it is, and so does what the program itself writes (configuration and reply
/// file). Errors of `readFileWhole` and `writeFileWhole`.
void bringDeliveredFiles(const QString& delivered, const QString& own);

} // namespace ferna
