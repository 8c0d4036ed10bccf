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

/// The command files of a job as read; the twins of their pictures are being looked for. Needs Qt
/// to be started, but not its fonts.
class Commands {
public:
    /// Errors of `readLines`, 57 where the frame file holds no record at all.
    Commands(const Job& job, wyd::Complaints& complaints);

    const std::vector<wyd::Record>& frame() const { return frame_; }
    const std::vector<wyd::Record>& body() const { return body_; }
    const Twins& twins() const { return twins_; }

private:
    std::vector<wyd::Record> frame_;
    std::vector<wyd::Record> body_;
    Twins twins_;
};

/// Lays the command files of a job out. `language` (BCP 47) is that of the words which are not the
/// files' own, and of the report.
pages::Report compose(const Job& job, const Commands& commands, wyd::Complaints& complaints,
                      const QString& language = {});
/// The same with the reading.
pages::Report compose(const Job& job, wyd::Complaints& complaints, const QString& language = {});

} // namespace ferna::renderer
