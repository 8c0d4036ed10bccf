#pragma once

#include <QStringView>

namespace ferna::drawing {

/// Width of a text in the proportional face of reports with letters of `height`, in the unit of
/// `height`. Needs no fonts, so that it can be asked for where no page is drawn: from the advance
/// widths of Liberation Sans, whose pairs (kerning) are left aside. A character outside code page
/// 1250 counts as the "?" that stands for it.
double textWidth(QStringView text, double height);

} // namespace ferna::drawing
