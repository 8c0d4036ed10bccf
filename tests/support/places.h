#pragma once

#include <QString>

/// Folders of the tree and of its build, with a path below them where one is given ("/Ferpl.txt").
/// They stand in one source, so that no other test is compiled anew for a checkout elsewhere.
namespace places {

QString data(const char* below = "");   ///< the delivered data
QString golden(const char* below = ""); ///< reference results
QString bin(const char* below = "");    ///< the built programs
QString source(const char* below = ""); ///< the tree

} // namespace places
