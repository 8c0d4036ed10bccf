#pragma once

#include "renderer/drawing_list.h"

namespace ferna::renderer {

/// What stays together on a page: pictures side by side with the lines beside them, a heading with
/// what follows it, or one single line. Coordinates are still those of the file.
struct Group {
    std::vector<TextLine> lines; ///< those that leave ink
    std::vector<Block> blocks;
    bool startsParagraph = false; ///< a line with room above it
    int emptyLinesAbove = 0;      ///< lines without ink right above its first line

    /// The uppermost baseline or block edge.
    double top() const;
    void translate(double dy);
};

/// The groups of a segment from top to bottom. Lines without ink belong to none.
std::vector<Group> groupsOf(Segment segment);

} // namespace ferna::renderer
