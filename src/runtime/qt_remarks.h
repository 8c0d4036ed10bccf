#pragma once

namespace ferna {

/// Keeps one remark of Qt out of standard error: that the session has no XDG_RUNTIME_DIR, the
/// folder of sockets, which no program here uses. All others come through. To be called before the
/// application object is made.
void hushMissingRuntimeFolder();

} // namespace ferna
