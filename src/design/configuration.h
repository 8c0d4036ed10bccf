#pragma once

#include "design/stan.h"
#include "protocol/reply.h"

namespace ferna {

/// True where the configuration can hold the ratio n: it keeps whole hundredths, as a number of 16
/// bits, so n from -327.68 up to below 327.68.
bool canBeSaved(Single Wsp_n_val);

/// Takes the page number that the renderer reported, where it reported any, into `Nr_strony`.
void takeNextPage(Stan& stan, const RendererReply& reply);

/// Reads the last task. The state is changed only when the whole file has been read: 20 lines, in
/// each the values of the table in the .cpp file and behind them a label that is passed over. The
/// position of the first anchor of the last run comes in as a default in cm.
/// Errors of the field reader, with file and line.
void Czytaj_cfg(Stan& stan, const QString& path);

/// Writes the task: first takes the page number from the renderer's reply, then replaces the file
/// as a whole. Where the reply is missing the old configuration survives. Errors of the field
/// reader and of `writeFileWhole`.
void Zapisz_cfg(Stan& stan, const QString& path, const QString& replyPath);

} // namespace ferna
