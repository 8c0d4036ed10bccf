#pragma once

#include "smallest/design_range.h"

#include <QStringList>

namespace ferna::smallest {

/// What the search does not check, in Polish: who takes a base from it has to.
const QStringList& notChecked();

/// What is wrong with a part of a range, in Polish.
QString wordsOf(RangePart part);

} // namespace ferna::smallest
