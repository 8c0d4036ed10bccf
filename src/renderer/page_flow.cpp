#include "renderer/page_flow.h"

#include "renderer/fitting.h"
#include "renderer/layout.h"

#include <algorithm>

namespace ferna::renderer {

namespace {

constexpr double sumTolerance = 0.005; // mm, of sums of decimals
constexpr double clearance = 1;        // mm between what was pushed apart

bool tooLow(const TextLine& line) {
    return line.y >= noLineFrom - sumTolerance;
}
bool tooLow(const Block& block) {
    return block.rect.bottom() > noPicturePast + sumTolerance;
}

bool breaksRule(const Group& group) {
    return std::any_of(group.lines.begin(), group.lines.end(),
                       [](const TextLine& line) { return tooLow(line); })
           || std::any_of(group.blocks.begin(), group.blocks.end(),
                          [](const Block& block) { return tooLow(block); });
}

/// A block taller than a page is made smaller.
void fitHeight(Group& group) {
    for (Block& block : group.blocks) {
        const double room = noPicturePast - block.rect.top();
        if (tooLow(block) && room > 0)
            block.scale(room / block.rect.height());
    }
}

/// The box of the frame's rules; empty for a frame that encloses the body too.
QRectF frameBox(const pages::Page& page) {
    constexpr double shortest = 1; // mm; the stroke at the page's edge is no part of it
    QRectF box;
    for (const pages::Line& rule : page.lines)
        if (rule.line.length() > shortest)
            box |= QRectF(rule.line.p1(), rule.line.p2()).normalized();
    return box.bottom() < bodyTop ? box : QRectF();
}

double pushOf(const QRectF& box, const std::vector<QRectF>& obstacles) {
    double push = 0;
    for (const QRectF& obstacle : obstacles)
        if (overlap(box, obstacle))
            push = qMax(push, obstacle.bottom() + clearance - box.top());
    return push;
}

} // namespace

void addTo(pages::Page& page, const TextLine& line) {
    for (const Chain& chain : line.chains)
        for (const pages::Text& text : chain.texts)
            if (text.leavesInk())
                page.texts.push_back(text);
}

void addTo(pages::Page& page, const Block& block) {
    if (!block.picture.isEmpty())
        page.pictures.push_back(block.picture);
    page.lines.insert(page.lines.end(), block.lines.begin(), block.lines.end());
    page.texts.insert(page.texts.end(), block.texts.begin(), block.texts.end());
}

void PageFlow::newPage() {
    pages_.push_back(start_(static_cast<int>(pages_.size())));
    offset_ = 0;
    pageEmpty_ = true;
    textBoxes_.clear();
    solid_.clear();
    const QRectF frame = frameBox(pages_.back());
    if (!frame.isEmpty())
        solid_.push_back(frame);
}

void PageFlow::place(Section section) {
    while (!takes(section.groups, section.groups.size())) {
        const bool movesWhole = halfFull() && startsPageFor(section.groups);
        const std::size_t fitting = movesWhole ? 0 : lastBreakThatFits(section);
        if (fitting == 0 && pageEmpty_)
            break; // no better place is left
        for (std::size_t i = 0; i < fitting; ++i)
            place(std::move(section.groups[i]));
        section.dropFirst(fitting);
        newPage();
        offset_ = bodyTop - section.groups.front().top();
    }
    for (Group& group : section.groups)
        place(std::move(group));
}

/// True where the first `count` groups find their place on the present page.
bool PageFlow::takes(const Groups& groups, std::size_t count) const {
    PageFlow trial = *this;
    for (std::size_t i = 0; i < count; ++i)
        trial.place(groups[i]);
    return trial.pages_.size() == pages_.size();
}

/// True where the groups fit together on a page of their own.
bool PageFlow::startsPageFor(const Groups& groups) const {
    PageFlow trial = *this;
    trial.newPage();
    trial.offset_ = bodyTop - groups.front().top();
    return trial.takes(groups, groups.size());
}

/// How many groups stand before the last break up to which the section fits on the page; 0 where
/// there is no such break.
std::size_t PageFlow::lastBreakThatFits(const Section& section) const {
    for (std::size_t count = section.groups.size() - 1; count > 0; --count)
        if (section.mayBreakBefore(count) && takes(section.groups, count))
            return count;
    return 0;
}

/// True where what stands on the page reaches down to the middle of its body at least.
bool PageFlow::halfFull() const {
    constexpr double middle = (bodyTop + noLineFrom) / 2;
    const auto reaches = [](const QRectF& box) { return box.bottom() >= middle; };
    return std::any_of(textBoxes_.begin(), textBoxes_.end(), reaches)
           || std::any_of(solid_.begin(), solid_.end(), reaches);
}

void PageFlow::place(Group group) {
    const double top = group.top();
    Group moved = group;
    moved.translate(offset_);
    pushClear(moved);
    std::vector<TextLine> later;
    if (breaksRule(moved)) {
        if (!pageEmpty_)
            newPage();
        offset_ = bodyTop - top;
        moved = std::move(group);
        moved.translate(offset_);
        fitHeight(moved);
        later = takeLinesTooLow(moved);
    }
    commit(moved);
    const double shift = offset_;
    for (TextLine& line : later) {
        Group own{{std::move(line)}, {}, false};
        own.translate(-shift);
        place(std::move(own));
    }
}

double PageFlow::pushNeeded(const Group& group) const {
    double push = 0;
    for (const Block& block : group.blocks)
        push = qMax(push, qMax(pushOf(block.rect, solid_), pushOf(block.rect, textBoxes_)));
    for (const TextLine& line : group.lines)
        for (const Chain& chain : line.chains)
            if (chain.leavesInk())
                push = qMax(push, pushOf(chain.box(), solid_));
    return push;
}

void PageFlow::pushClear(Group& group) {
    // Every push clears at least one obstacle for good.
    for (double push = pushNeeded(group); push > 0; push = pushNeeded(group)) {
        group.translate(push);
        offset_ += push;
    }
}

std::vector<TextLine> PageFlow::takeLinesTooLow(Group& group) const {
    const auto first = std::stable_partition(group.lines.begin(), group.lines.end(),
                                             [](const TextLine& line) { return !tooLow(line); });
    std::vector<TextLine> later(std::make_move_iterator(first),
                                std::make_move_iterator(group.lines.end()));
    group.lines.erase(first, group.lines.end());
    return later;
}

void PageFlow::commit(const Group& group) {
    pages::Page& page = pages_.back();
    for (const Block& block : group.blocks) {
        addTo(page, block);
        solid_.push_back(block.rect);
    }
    for (const TextLine& line : group.lines) {
        addTo(page, line);
        if (line.outline)
            page.headings.push_back({line.words().trimmed(), *line.outline, line.y});
        for (const Chain& chain : line.chains)
            if (chain.leavesInk())
                textBoxes_.push_back(chain.box());
    }
    pageEmpty_ = false;
}

} // namespace ferna::renderer
