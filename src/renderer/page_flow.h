#pragma once

#include "renderer/sections.h"

#include <functional>

namespace ferna::renderer {

/// Adds primitives to a page as they stand.
void addTo(pages::Page& page, const TextLine& line);
void addTo(pages::Page& page, const Block& block);

/// Fills pages from top to bottom. A group that would break a rule of the page starts the next one;
/// from then on everything is drawn that much higher.
class PageFlow {
public:
    /// `start` gives the page of an index from 0, with its frame.
    explicit PageFlow(std::function<pages::Page(int)> start) : start_(std::move(start)) {}

    /// An explicit new page; coordinates count anew from its frame.
    void newPage();
    /// Sections come in their order, in the coordinates of the file. One that does not fit starts
    /// the next page; where that would leave a page less than half full, and where it is longer
    /// than a page, it is divided at the last of its breaks that fits.
    void place(Section section);
    std::vector<pages::Page> takePages() { return std::exchange(pages_, {}); }

private:
    using Groups = std::vector<Group>;
    void place(Group group);
    bool takes(const Groups& groups, std::size_t count) const;
    bool startsPageFor(const Groups& groups) const;
    std::size_t lastBreakThatFits(const Section& section) const;
    bool halfFull() const;
    double pushNeeded(const Group& group) const;
    void pushClear(Group& group);
    std::vector<TextLine> takeLinesTooLow(Group& group) const;
    void commit(const Group& group);

    std::function<pages::Page(int)> start_;
    std::vector<pages::Page> pages_;
    double offset_ = 0;             ///< mm from the file's y to the page's
    bool pageEmpty_ = true;         ///< nothing but the frame so far
    std::vector<QRectF> solid_;     ///< pictures and the frame on the present page
    std::vector<QRectF> textBoxes_; ///< texts on it
};

} // namespace ferna::renderer
