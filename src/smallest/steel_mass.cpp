#include "smallest/steel_mass.h"

#include "plate/clauses.h"
#include "plate/plate_tables.h"
#include "selection/anchor_catalogue.h"
#include "selection/clauses.h"

#include <algorithm>
#include <cmath>

namespace ferna::smallest {

namespace {

constexpr double density = 7850e-9; // kg/mm3

} // namespace

PlateThickness::PlateThickness(const DesignRange& range, int length, int width, int edge,
                               const std::vector<equilibrium::Point>& places, double area)
    : cantilever_(std::max(length - range.columnLength, width - range.columnWidth) / 2.0),
      pulls_(places.size(), 0), area_(area), least_(range.leastThickness),
      stiffened_(range.stiffened), steel_(range.plateSteel) {
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double clear = fromColumn(range, places[i]);
        strips_.push_back({clear, 2 * std::min({clear, double(edge), toNearest(places, i) / 2})});
    }
}

void PlateThickness::take(const equilibrium::Result& found) {
    pressure_ = std::max(pressure_, found.sigmaConcrete);
    for (std::size_t i = 0; i < pulls_.size(); ++i)
        pulls_[i] = std::max(pulls_[i], -found.sigmaAnchor[i] * area_ / 1e3);
}

std::optional<int> PlateThickness::found() const {
    if (stiffened_)
        return least_;
    const Single fd = plateSteel(steel_).Fd_blachy;
    const Single length = CSng(cantilever_);
    const Single pressure = CSng(pressure_);
    Single most = compressionStripThickness(compressionStripMoment(length, pressure, pressure), fd);
    for (std::size_t i = 0; i < pulls_.size(); ++i)
        if (pulls_[i] > 0 && strips_[i].width > 0)
            most = std::max(most, tensionStripThickness(CSng(pulls_[i]), CSng(strips_[i].length),
                                                        CSng(strips_[i].width), fd));
    constexpr double nothing = 0.001; // mm, no reason for a thicker plate
    const double needed = std::max(std::ceil(Double{most} - nothing), Double(least_));
    return needed <= thickestPlate(steel_) ? std::optional(static_cast<int>(needed)) : std::nullopt;
}

int thickestPlate(Integer plateSteelNumber) {
    constexpr Integer St3 = 2;
    return plateSteelNumber == St3 ? 100 : plateSteel(plateSteelNumber).Max_grubosc;
}

int anchorLength(Integer diameter, int thickness, int grout, Single coefficient) {
    const CatalogueAnchor row = catalogueAnchor(diameter);
    const Integer anchorage =
        straightLengthHooked(row, coefficient, coreArea(diameter).value_or(0));
    const Integer straight = straightPart(anchorage, CInt(thickness + grout), row.Ld);
    return hookedAnchorLength(straight, hookLength(diameter));
}

double plateMass(int length, int width, int thickness) {
    return density * length * width * thickness;
}

double anchorMass(int anchors, Integer diameter, int lengthOfAnAnchor) {
    return density * anchors * M_PI / 4 * diameter * diameter * lengthOfAnAnchor;
}

} // namespace ferna::smallest
