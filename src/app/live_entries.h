#pragma once

#include "input/forms/Ferna3.h"
#include "live/forms/Podglad.h"

#include <memory>

namespace ferna {

/// The live view over the main form, with its entry in the menu "&Widok" (F9). To be told of every
/// calculation by `calculated`. Owned by the caller, who keeps it no longer than the form.
std::unique_ptr<Podglad> addLiveView(Ferna3& form, Stan& stan, Dialogs& dialogs);

} // namespace ferna
