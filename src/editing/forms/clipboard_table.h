#pragma once

#include <QString>

class QMimeData;

namespace ferna {

/// The text of a table that another program has put on the clipboard: as text, or as bytes of a
/// CSV or tab-separated table in whatever encoding. Empty where there is none.
QString clipboardTable(const QMimeData* data);

} // namespace ferna
