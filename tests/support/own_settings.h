#pragma once

#include <QTemporaryDir>

namespace ferna::testing {

/// A configuration folder for the length of a test program, so that no test reads or writes the
/// settings of the user who runs it. To be made before anything asks for them.
class OwnSettings {
public:
    OwnSettings() { qputenv("XDG_CONFIG_HOME", folder_.path().toLocal8Bit()); }

private:
    QTemporaryDir folder_;
};

} // namespace ferna::testing
