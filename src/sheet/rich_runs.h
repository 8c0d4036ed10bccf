#pragma once

#include "sheet/sheet.h"

namespace ferna::sheet {

/// Letters of a text that look alike. A line break is a run of its own, QChar::LineSeparator.
struct RichRun {
    QString text; ///< without markup
    bool italic = false;
    bool bold = false;
    bool below = false; ///< an index
    bool above = false; ///< an exponent

    bool plain() const { return !italic && !bold && !below && !above; }
};

/// A text taken out of its markup. A "<" that begins none of the tags of `Rich` is a letter.
std::vector<RichRun> runsOf(const Rich& text);

} // namespace ferna::sheet
