#include "smallest/design_range.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferna::smallest {

namespace {

constexpr int largestSize = 32'767; // mm, what the plate's fields hold

bool isSizes(const Sizes& sizes) {
    return sizes.from >= 1 && sizes.from <= sizes.to && sizes.to <= largestSize && sizes.step >= 1;
}

bool isWithin(double value, double least, double most) {
    return value >= least && value <= most;
}

template <typename List, typename Allowed>
bool isChoice(const List& list, const Allowed& allowed) {
    return !list.empty() && std::all_of(list.begin(), list.end(), allowed);
}

bool sizesHold(const DesignRange& range) {
    return isSizes(range.length) && (range.ratio != 0 || isSizes(range.width));
}

} // namespace

std::optional<RangePart> wrongPart(const DesignRange& range) {
    if (!isWithin(range.columnLength, 0, largestSize)
        || !isWithin(range.columnWidth, 0, largestSize))
        return RangePart::Column;
    if (!isSizes(range.length))
        return RangePart::Length;
    if (range.ratio != 0 && !isWithin(range.ratio, 0.05, 1))
        return RangePart::Ratio;
    if (!sizesHold(range))
        return RangePart::Width;
    if (!isChoice(range.layouts, [](int n) { return n == 4 || n == 6 || n == 8 || n == 12; }))
        return RangePart::Layouts;
    if (!isChoice(range.diameters, [](Integer fi) { return coreArea(fi).has_value(); }))
        return RangePart::Diameters;
    if (!isChoice(range.steels, [](Integer steel) { return isWithin(steel, 1, userSteel); }))
        return RangePart::Steels;
    for (const double distance : {range.edge, range.spacing, range.clear})
        if (!isWithin(distance, 0, 100))
            return RangePart::Distances;
    if (!isWithin(range.leastEdge, 0, 1000))
        return RangePart::Distances;
    if (!isWithin(range.pressure, 1, 2))
        return RangePart::Pressure;
    if (!isWithin(range.plateSteel, 1, 5))
        return RangePart::PlateSteel;
    if (!isWithin(range.leastThickness, 1, 100) || !isWithin(range.grout, 0, 500))
        return RangePart::Thickness;
    if (candidates(range) > mostCandidates)
        return RangePart::TooMany;
    return std::nullopt;
}

std::vector<int> widthsFor(const DesignRange& range, int length) {
    if (range.ratio != 0) {
        const int width = 10 * static_cast<int>(std::lround(range.ratio * length / 10));
        return width >= 1 && width <= length ? std::vector<int>{width} : std::vector<int>{};
    }
    std::vector<int> widths;
    for (int width = range.width.from; width <= std::min(range.width.to, length);
         width += range.width.step)
        widths.push_back(width);
    return widths;
}

long candidates(const DesignRange& range) {
    long plates = 0;
    for (int length = range.length.from; length <= range.length.to; length += range.length.step) {
        const int last = std::min(range.width.to, length);
        if (range.ratio != 0)
            ++plates;
        else if (last >= range.width.from)
            plates += (last - range.width.from) / range.width.step + 1;
    }
    return plates
           * static_cast<long>(range.layouts.size() * range.diameters.size() * range.steels.size());
}

int edgeDistance(const DesignRange& range, Integer diameter) {
    const int rule = 5 * static_cast<int>(std::ceil(range.edge * diameter / 5));
    return std::max(rule, range.leastEdge);
}

double fromColumn(const DesignRange& range, const equilibrium::Point& place) {
    return std::hypot(std::max(std::fabs(place.x) - range.columnLength / 2.0, 0.0),
                      std::max(std::fabs(place.y) - range.columnWidth / 2.0, 0.0));
}

double toNearest(const std::vector<equilibrium::Point>& places, std::size_t place) {
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < places.size(); ++i)
        if (i != place)
            least = std::min(
                least, std::hypot(places[i].x - places[place].x, places[i].y - places[place].y));
    return least;
}

std::vector<equilibrium::Point> anchorPlaces(const DesignRange& range, int length, int width,
                                             int layout, Integer diameter) {
    const int edge = edgeDistance(range, diameter);
    const int halfLength = length / 2; // whole millimetres, as the form takes them
    const int halfWidth = width / 2;
    const double x = halfLength - edge;
    const double y = halfWidth - edge;
    if (!(x > 0 && y > 0) || length < range.columnLength || width < range.columnWidth)
        return {};
    std::vector<equilibrium::Point> places{{x, y}, {-x, y}, {x, -y}, {-x, -y}};
    const auto add = [&places](std::initializer_list<equilibrium::Point> more) {
        places.insert(places.end(), more);
    };
    if (layout == 6 || layout == 8)
        add({{x, 0}, {-x, 0}});
    if (layout == 8)
        add({{0, y}, {0, -y}});
    if (layout == 12) {
        const double xThird = std::round(x / 3);
        const double yThird = std::round(y / 3);
        add({{x, yThird}, {-x, yThird}, {x, -yThird}, {-x, -yThird}});
        add({{xThird, y}, {-xThird, y}, {xThird, -y}, {-xThird, -y}});
    }
    for (std::size_t i = 0; i < places.size(); ++i)
        if (fromColumn(range, places[i]) < range.clear * diameter
            || toNearest(places, i) < std::max(range.spacing * diameter, double(diameter)))
            return {};
    return places;
}

} // namespace ferna::smallest
