#pragma once

#include "renderer/grouping.h"

#include <set>

namespace ferna::renderer {

/// What a reader takes in as one: a load case from its title to its last check, the load table with
/// its heading, the summary, a block of the plate section, a paragraph.
struct Section {
    std::vector<Group> groups;
    std::set<std::size_t> breaks; ///< groups that may start a page where the section is divided

    bool mayBreakBefore(std::size_t group) const { return breaks.contains(group); }
    /// Leaves out the first groups.
    void dropFirst(std::size_t count);
};

/// The sections of a report, read off its layout and not off its words, which are of five
/// languages: empty lines part them, a sketch starts level with the title of its case, a case
/// without a sketch has its title on a line of its own, an underlined line heads the plate and the
/// anchor section, the line of the load table's columns begins far inside.
///
/// A case may be divided only before a line of an anchor, at least its title and four lines above
/// and three lines below; any other paragraph so that two lines stand on either side.
std::vector<Section> sectionsOf(std::vector<Group> groups);

} // namespace ferna::renderer
