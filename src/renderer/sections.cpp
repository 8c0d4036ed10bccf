#include "renderer/sections.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>

namespace ferna::renderer {

namespace {

constexpr double level = 0.05;          // mm between a title and the top of its sketch
constexpr double shifted = 2;           // mm that a sketch may have made room for a wide heading
constexpr std::size_t linesOfTitle = 5; // that stay with a case's title, the title included
constexpr std::size_t linesKeptTogether = 3; // of a case that stay together
constexpr std::size_t fewLines = 2;          // of a paragraph that do not stand alone
constexpr std::size_t shortRun = 6;          // lines that are not divided at all
constexpr std::size_t shortRest = 4;         // lines of the report's end that go with their sketch

QString wordsOf(const Group& group) {
    return group.lines.empty() ? QString() : group.lines.front().words();
}

bool isLine(const Group& group) {
    return group.blocks.empty() && group.lines.size() == 1;
}

bool isHeading(const Group& group) {
    return !group.lines.empty() && group.lines.front().underlined();
}

/// A heading that the sketch of its group stands beside, as that of the anchor section does.
bool headsItsSketch(const Group& group) {
    if (!isHeading(group) || group.blocks.empty())
        return false;
    const double below = group.blocks.front().rect.top() - group.lines.front().y;
    return below > -level && below < shifted;
}

/// A line of an anchor in tension begins with the anchor's number.
bool isAnchorLine(const Group& group) {
    const QString words = wordsOf(group).trimmed();
    return isLine(group) && !words.isEmpty() && words.front().isDigit();
}

/// The line of the load table's column letters.
bool isColumnsLine(const Group& group) {
    constexpr qsizetype inside = 10; // blanks before the first letter
    const QString words = wordsOf(group);
    return isLine(group) && words.startsWith(QString(inside, u' '));
}

/// Puts the first line into the table of contents.
void head(Group& group, int depth) {
    if (!group.lines.empty())
        group.lines.front().outline = depth;
}

std::size_t linesOf(const std::vector<Group>& groups, std::size_t first, std::size_t last) {
    return std::accumulate(
        groups.begin() + static_cast<std::ptrdiff_t>(first),
        groups.begin() + static_cast<std::ptrdiff_t>(last), std::size_t{0},
        [](std::size_t sum, const Group& group) { return sum + group.lines.size(); });
}

/// Takes the groups from the front and makes sections of them.
class Reading {
public:
    explicit Reading(std::vector<Group> groups) : groups_(std::move(groups)) {}

    std::vector<Section> sections() {
        while (next_ < groups_.size()) {
            if (isHeading(groups_[next_]) || inSection_)
                takeOfSection();
            else if (const std::size_t title = titleFrom(next_); title < groups_.size())
                takeCase(title);
            else
                takeParagraph();
        }
        return std::move(sections_);
    }

private:
    /// The line of the group that is level with the top of its sketch, the first or, below a
    /// heading, the second; none where there is no such line.
    static std::optional<std::size_t> titleLine(const Group& group) {
        if (!group.blocks.empty())
            for (std::size_t i = 0; i < qMin(fewLines, group.lines.size()); ++i)
                if (qAbs(group.lines[i].y - group.blocks.front().rect.top()) < level)
                    return i;
        return {};
    }

    static bool isTitleBesideSketch(const Group& group) { return titleLine(group).has_value(); }

    /// A line with an empty one above and one below it.
    bool isTitleAlone(std::size_t i) const {
        return isLine(groups_[i]) && i + 1 < groups_.size() && !isHeading(groups_[i + 1])
               && !isTitleBesideSketch(groups_[i + 1]) && groups_[i + 1].emptyLinesAbove == 1
               && isLine(groups_[i + 1]);
    }

    bool isTitle(std::size_t i) const {
        return i < groups_.size() && (isTitleBesideSketch(groups_[i]) || isTitleAlone(i));
    }

    /// The title of the case that begins with this group, perhaps below a heading; else the number
    /// of groups.
    std::size_t titleFrom(std::size_t i) const {
        if (isTitleBesideSketch(groups_[i]))
            return i;
        if (groups_[i].emptyLinesAbove == 0)
            return groups_.size();
        if (isTitleAlone(i))
            return i;
        const bool heads = isLine(groups_[i]) && i + 1 < groups_.size()
                           && groups_[i + 1].emptyLinesAbove == 0 && isTitle(i + 1);
        return heads ? i + 1 : groups_.size();
    }

    /// The first group behind `i` that has an empty line above it or starts something else.
    std::size_t endOfParagraph(std::size_t i) const {
        ++i;
        while (i < groups_.size() && groups_[i].emptyLinesAbove == 0 && !isHeading(groups_[i])
               && !isTitleBesideSketch(groups_[i]))
            ++i;
        return i;
    }

    Section take(std::size_t end) {
        Section section;
        section.groups.assign(
            std::make_move_iterator(groups_.begin() + static_cast<std::ptrdiff_t>(next_)),
            std::make_move_iterator(groups_.begin() + static_cast<std::ptrdiff_t>(end)));
        next_ = end;
        return section;
    }

    void takeCase(std::size_t title) {
        const std::size_t inGroup = titleLine(groups_[title]).value_or(0);
        const std::size_t above = linesOf(groups_, next_, title) + inGroup;
        const std::size_t titleLines = above + linesOfTitle;
        const bool alone = !isTitleBesideSketch(groups_[title]);
        if (above > 0)
            head(groups_[next_], 0);
        groups_[title].lines[inGroup].outline = 1;
        Section section = take(endOfParagraph(alone ? title + 1 : title));
        const std::size_t count = section.groups.size();
        for (std::size_t i = 1; i < count; ++i)
            if (isAnchorLine(section.groups[i]) && linesOf(section.groups, 0, i) >= titleLines
                && linesOf(section.groups, i, count) >= linesKeptTogether)
                section.breaks.insert(i);
        sections_.push_back(std::move(section));
    }

    void takeParagraph() {
        const std::size_t end = endOfParagraph(next_);
        for (std::size_t i = next_ + 1; i < end; ++i)
            if (isColumnsLine(groups_[i])) {
                head(groups_[i - 1], 0);
                if (i - 1 > next_)
                    addDivisible(take(i - 1));
                sections_.push_back(take(end));
                return;
            }
        const bool summary = groups_[next_].emptyLinesAbove > 1 && end - next_ <= shortRun;
        if (summary)
            head(groups_[next_], 0);
        Section section = take(end);
        if (summary)
            sections_.push_back(std::move(section));
        else
            addDivisible(std::move(section));
    }

    void addDivisible(Section section) {
        const std::size_t count = section.groups.size();
        for (std::size_t i = 1; i < count; ++i)
            if (linesOf(section.groups, 0, i) >= fewLines
                && linesOf(section.groups, i, count) >= fewLines)
                section.breaks.insert(i);
        sections_.push_back(std::move(section));
    }

    /// True where the few last lines of the report, up to `end`, belong to a sketch that is level
    /// with its heading.
    bool isRestOfSketch(std::size_t end) const {
        return inSection_ && end == groups_.size() && linesOf(groups_, next_, end) <= shortRest
               && groups_[next_].blocks.empty() && !isHeading(groups_[next_])
               && headsItsSketch(sections_.back().groups.front());
    }

    /// A block of the plate or anchor section: what stands beside its sketch, or a run of lines. A
    /// single line goes with what stands above it, and the anchor section stays whole.
    void takeOfSection() {
        std::size_t end = next_ + 1;
        if (isHeading(groups_[next_]))
            head(groups_[next_], 0);
        if (groups_[next_].blocks.empty())
            while (end < groups_.size() && isLine(groups_[end]) && !isHeading(groups_[end])
                   && !groups_[end].startsParagraph)
                ++end;
        const bool single =
            end - next_ == 1 && isLine(groups_[next_]) && inSection_ && !isHeading(groups_[next_]);
        const bool joins = single || isRestOfSketch(end);
        inSection_ = true;
        Section section = take(end);
        if (joins)
            std::move(section.groups.begin(), section.groups.end(),
                      std::back_inserter(sections_.back().groups));
        else if (linesOf(section.groups, 0, section.groups.size()) <= shortRun)
            sections_.push_back(std::move(section));
        else
            addDivisible(std::move(section));
    }

    std::vector<Group> groups_;
    std::size_t next_ = 0;
    bool inSection_ = false; ///< behind the first underlined heading
    std::vector<Section> sections_;
};

} // namespace

void Section::dropFirst(std::size_t count) {
    groups.erase(groups.begin(), groups.begin() + static_cast<std::ptrdiff_t>(count));
    std::set<std::size_t> later;
    for (const std::size_t place : breaks)
        if (place > count)
            later.insert(place - count);
    breaks = std::move(later);
}

std::vector<Section> sectionsOf(std::vector<Group> groups) {
    return Reading(std::move(groups)).sections();
}

} // namespace ferna::renderer
