#pragma once

#include "protocol/job.h"
#include "renderer/command_line.h"

namespace ferna::renderer {

/// True where the call opens a dialog or uses the clipboard, so that it needs a screen.
bool needsScreen(const Call& call, const Job& job);

/// True where a run that does not come about leaves the reply of an earlier one as it is: a print
/// or a save that is cancelled or fails takes back no page that was made before.
bool keepsLastReply(const Call& call, const Job& job);

/// Hands a report over as the call or the job's mode asks. Errors of the ways: 57, 70, 75, 76, 61,
/// 32755 where a dialog is cancelled.
void deliver(const pages::Report& report, const Call& call, const Job& job);

} // namespace ferna::renderer
