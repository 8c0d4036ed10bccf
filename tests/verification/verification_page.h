#pragma once

#include <string>

namespace ferna::testing {

/// The page docs/verification.md, its figures computed now. Takes some seconds.
std::string verificationPage();

} // namespace ferna::testing
