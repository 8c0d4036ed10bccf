#include "live/picture_values.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ferna::live {

namespace {

bool finite(const PictureAnchor& anchor) {
    return std::isfinite(anchor.x) && std::isfinite(anchor.y) && std::isfinite(anchor.area);
}

bool finite(const PictureCase& one) {
    const equilibrium::Plane& plane = one.found.plane;
    return std::isfinite(plane.s0) && std::isfinite(plane.sx) && std::isfinite(plane.sy)
           && std::all_of(one.found.sigmaAnchor.begin(), one.found.sigmaAnchor.end(),
                          [](Double stress) { return std::isfinite(stress); });
}

} // namespace

bool PictureValues::drawable() const {
    return std::isfinite(length) && std::isfinite(width) && length > 0 && width > 0
           && anchors.size() <= MaxAnchors
           && std::all_of(anchors.begin(), anchors.end(),
                          [](const PictureAnchor& anchor) { return finite(anchor); })
           && std::all_of(cases.begin(), cases.end(),
                          [](const PictureCase& one) { return finite(one); });
}

std::vector<AnchorPull> pullsOf(const PictureValues& values) {
    constexpr Double newtons = 1000; // in a kN
    std::vector<AnchorPull> pulls(values.anchors.size());
    for (const PictureCase& one : values.cases)
        for (std::size_t i = 0; i < pulls.size(); ++i) {
            const Double stress = -one.found.sigmaAnchor.at(i);
            if (stress > pulls[i].stress)
                pulls[i] = {stress * values.anchors[i].area / newtons, stress, one.number};
        }
    return pulls;
}

int governingAnchor(const std::vector<AnchorPull>& pulls) {
    const auto most =
        std::max_element(pulls.begin(), pulls.end(), [](const AnchorPull& a, const AnchorPull& b) {
            return a.stress < b.stress;
        });
    return most == pulls.end() || !(most->stress > 0) ? -1 : static_cast<int>(most - pulls.begin());
}

std::optional<PressedCorner> governingCorner(const PictureValues& values) {
    PressedCorner most;
    for (const PictureCase& one : values.cases)
        for (const equilibrium::Point corner :
             {equilibrium::Point{values.length / 2, values.width / 2},
              {-values.length / 2, values.width / 2},
              {values.length / 2, -values.width / 2},
              {-values.length / 2, -values.width / 2}})
            if (const Double pressure = one.found.plane.at(corner);
                one.found.exists && pressure > most.pressure)
                most = {corner, pressure, one.number};
    return most.pressure > 0 ? std::optional(most) : std::nullopt;
}

} // namespace ferna::live
