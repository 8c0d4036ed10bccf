#include "batch/equilibrium_section.h"

namespace ferna::batch {

namespace {

/// No sign on a nought.
double plain(double value) {
    return value + 0.0;
}

Json segmentJson(const equilibrium::Segment& segment) {
    Json points = Json::array();
    for (const equilibrium::Point& point : segment)
        points.push_back({plain(point.x), plain(point.y)});
    return points;
}

Json equilibriumJson(const equilibrium::Result& found, int anchors) {
    if (!found.exists)
        return {{"istnieje", false}, {"os", segmentJson(found.tippingAxis)}};
    Json stresses = Json::array();
    for (int i = 0; i < anchors; ++i)
        stresses.push_back(plain(found.sigmaAnchor.at(static_cast<std::size_t>(i))));
    const equilibrium::Plane& plane = found.plane;
    return {{"istnieje", true},
            {"Sigma_b", plain(found.sigmaConcrete)},
            {"Sigma_kotwy", std::move(stresses)},
            {"Plaszczyzna", {plain(plane.s0), plain(plane.sx), plain(plane.sy)}},
            {"Linia", found.neutralLine ? segmentJson(*found.neutralLine) : Json()},
            {"Reszta", plain(found.residual)}};
}

} // namespace

Json equilibriaJson(const EnteredEquilibria& found) {
    if (!found.hasBase)
        return nullptr;
    Json cases = Json::array();
    for (int c = 0; c < found.cases; ++c) {
        const auto& one = found.byCase.at(static_cast<std::size_t>(c));
        cases.push_back(one ? equilibriumJson(*one, found.anchors) : Json());
    }
    return cases;
}

} // namespace ferna::batch
