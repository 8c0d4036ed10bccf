#include "renderer/grouping.h"

#include "renderer/fitting.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <optional>

namespace ferna::renderer {

namespace {

constexpr double touchTolerance = 0.01; // mm
constexpr double widestLineStep = 6;    // mm; lines further apart are two paragraphs
constexpr double lastLinesHeight = 2;   // mm above a picture's end where a new paragraph leaves it

bool sideBySide(const QRectF& a, const QRectF& b) {
    const bool level = qMin(a.bottom(), b.bottom()) - qMax(a.top(), b.top()) > touchTolerance;
    const bool apart =
        a.right() <= b.left() + touchTolerance || b.right() <= a.left() + touchTolerance;
    return level && apart;
}

/// For each block the number of its group: blocks side by side share one.
std::vector<std::size_t> blockGroups(const std::vector<Block>& blocks) {
    std::vector<std::size_t> group(blocks.size());
    std::iota(group.begin(), group.end(), std::size_t{0});
    for (std::size_t i = 0; i < blocks.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (group[i] != group[j] && sideBySide(blocks[i].rect, blocks[j].rect))
                std::replace(group.begin(), group.end(), group[i], group[j]);
    return group;
}

/// A group that is one line of text and must not stand at the foot of a page without the next one:
/// an underlined line, or a line with room above it and a picture right below it.
bool headsNext(const Group& group, const Group& next) {
    if (!group.blocks.empty() || group.lines.size() != 1)
        return false;
    const TextLine& line = group.lines.front();
    return line.underlined()
           || (group.startsParagraph && !next.blocks.empty()
               && next.top() - line.y < widestLineStep);
}

void joinHeadings(std::vector<Group>& groups) {
    for (std::size_t i = groups.size(); i-- > 1;) {
        Group& next = groups[i];
        Group& heading = groups[i - 1];
        if (!headsNext(heading, next))
            continue;
        next.lines.insert(next.lines.begin(), heading.lines.front());
        next.startsParagraph = false;
        next.emptyLinesAbove = heading.emptyLinesAbove;
        groups.erase(groups.begin() + static_cast<std::ptrdiff_t>(i) - 1);
    }
}

void fitAcross(Segment& segment) {
    for (TextLine& line : segment.lines)
        fitLine(line);
    for (Block& block : segment.blocks) {
        const double room = rightMost - block.rect.left();
        if (room > 0 && block.rect.width() > room)
            block.scale(room / block.rect.width());
    }
}

/// Sorts the lines of a segment into groups.
class Grouping {
public:
    explicit Grouping(Segment segment) : segment_(std::move(segment)) {
        std::stable_sort(segment_.lines.begin(), segment_.lines.end(),
                         [](const TextLine& a, const TextLine& b) { return a.y < b.y; });
        fitAcross(segment_);
    }

    std::vector<Group> groups() {
        const std::vector<std::size_t> ofBlock = blockGroups(segment_.blocks);
        std::vector<Group> groups(segment_.blocks.size());
        for (std::size_t i = 0; i < segment_.lines.size(); ++i) {
            if (!segment_.lines[i].leavesInk())
                continue;
            const std::optional<std::size_t> owner = blockBeside(i);
            Group& group = owner ? groups[ofBlock[*owner]] : groups.emplace_back();
            group.startsParagraph = !owner && startsParagraph(i);
            if (group.lines.empty())
                group.emptyLinesAbove = emptyLinesAbove(i);
            group.lines.push_back(segment_.lines[i]);
        }
        for (std::size_t i = 0; i < ofBlock.size(); ++i)
            groups[ofBlock[i]].blocks.push_back(std::move(segment_.blocks[i]));
        std::erase_if(groups, [](const Group& g) { return g.lines.empty() && g.blocks.empty(); });
        std::stable_sort(groups.begin(), groups.end(),
                         [](const Group& a, const Group& b) { return a.top() < b.top(); });
        joinHeadings(groups);
        for (Group& group : groups)
            for (Block& block : group.blocks)
                fitBeside(group.lines, block);
        return groups;
    }

private:
    /// The block that the line stands beside: the lowest that starts above it and reaches down to
    /// it. A paragraph that starts level with a block's last millimetres is not beside it.
    std::optional<std::size_t> blockBeside(std::size_t index) const {
        const double y = segment_.lines[index].y;
        std::optional<std::size_t> found;
        for (std::size_t i = 0; i < segment_.blocks.size(); ++i) {
            const QRectF& rect = segment_.blocks[i].rect;
            const bool beside =
                rect.top() <= y + touchTolerance && y <= rect.bottom() + touchTolerance;
            const bool leaves = y > rect.bottom() - lastLinesHeight && startsParagraph(index);
            if (beside && !leaves && (!found || rect.top() > segment_.blocks[*found].rect.top()))
                found = i;
        }
        return found;
    }

    bool startsParagraph(std::size_t index) const {
        return index == 0 || !segment_.lines[index - 1].leavesInk()
               || segment_.lines[index].y - segment_.lines[index - 1].y > widestLineStep;
    }

    int emptyLinesAbove(std::size_t index) const {
        int empty = 0;
        while (index-- > 0 && !segment_.lines[index].leavesInk())
            ++empty;
        return empty;
    }

    Segment segment_;
};

} // namespace

double Group::top() const {
    double top = std::numeric_limits<double>::max();
    for (const TextLine& line : lines)
        top = qMin(top, line.y);
    for (const Block& block : blocks)
        top = qMin(top, block.rect.top());
    return top;
}

void Group::translate(double dy) {
    for (TextLine& line : lines) {
        line.y += dy;
        for (Chain& chain : line.chains)
            for (pages::Text& text : chain.texts)
                text.baseline.ry() += dy;
    }
    for (Block& block : blocks)
        block.translate(dy);
}

std::vector<Group> groupsOf(Segment segment) {
    return Grouping(std::move(segment)).groups();
}

} // namespace ferna::renderer
