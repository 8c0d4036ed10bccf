#pragma once

#include "protocol/complaints.h"
#include "protocol/job.h"
#include "renderer/drawing_list.h"

namespace ferna::renderer {

/// The rules of the page, mm below the frame's corner.
inline constexpr double noLineFrom = 225;    ///< no text line starts here or beyond
inline constexpr double noPicturePast = 290; ///< no picture ends past this
inline constexpr double bodyTop = 40;        ///< the body of a following page starts here

/// Lays frame and body out on pages numbered from `firstPage`. What would break a rule moves to the
/// next page, a picture together with the lines beside it; a text that would run into a picture, a
/// rule of the frame or off the sheet is set in smaller letters.
std::vector<pages::Page> layOut(Segment frame, std::vector<Segment> body, int firstPage);

/// Reads both command files of a job and lays them out. `language` (BCP 47) is that of the words
/// which are not the files' own, and of the report. Errors of `readLines`, 57 where the frame file
/// holds no record at all.
pages::Report compose(const Job& job, wyd::Complaints& complaints, const QString& language = {});

} // namespace ferna::renderer
