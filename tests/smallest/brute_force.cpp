#include "smallest/brute_force.h"

#include "plate/plate_tables.h"
#include "selection/anchor_catalogue.h"

#include <algorithm>
#include <cmath>

namespace ferna::testing {

namespace {

using equilibrium::Anchor;
using smallest::Design;
using smallest::DesignRange;
using smallest::Task;

double axisFromEdge(const DesignRange& range, Integer d) {
    double edge = 0;
    while (edge < range.edge * d - 1e-9)
        edge += 5;
    return std::max<double>(edge, range.leastEdge);
}

std::vector<Anchor> anchorsOf(const Design& design, double area) {
    const double x = std::floor(design.length / 2.0) - design.edge;
    const double y = std::floor(design.width / 2.0) - design.edge;
    std::vector<Anchor> anchors;
    const auto fourfold = [&](double ax, double ay) {
        for (const double signX : {1.0, -1.0})
            for (const double signY : {1.0, -1.0})
                anchors.push_back({signX * ax, signY * ay, area});
    };
    fourfold(x, y);
    if (design.layout == 6 || design.layout == 8) {
        anchors.push_back({x, 0, area});
        anchors.push_back({-x, 0, area});
    }
    if (design.layout == 8) {
        anchors.push_back({0, y, area});
        anchors.push_back({0, -y, area});
    }
    if (design.layout == 12) {
        fourfold(x, std::round(y / 3));
        fourfold(std::round(x / 3), y);
    }
    return anchors;
}

double beyondColumn(const DesignRange& range, const Anchor& anchor) {
    const double dx = std::max(0.0, std::fabs(anchor.x) - 0.5 * range.columnLength);
    const double dy = std::max(0.0, std::fabs(anchor.y) - 0.5 * range.columnWidth);
    return std::sqrt(dx * dx + dy * dy);
}

double nearest(const std::vector<Anchor>& anchors, const Anchor& to) {
    double least = 1e9;
    for (const Anchor& other : anchors)
        if (&other != &to)
            least = std::min(least, std::hypot(other.x - to.x, other.y - to.y));
    return least;
}

bool fits(const DesignRange& range, const Design& design, const std::vector<Anchor>& anchors) {
    if (design.length < range.columnLength || design.width < range.columnWidth
        || design.width > design.length || anchors[0].x <= 0 || anchors[0].y <= 0)
        return false;
    return std::all_of(anchors.begin(), anchors.end(), [&](const Anchor& anchor) {
        return beyondColumn(range, anchor) >= range.clear * design.diameter
               && nearest(anchors, anchor) >= std::max<double>(range.spacing, 1) * design.diameter;
    });
}

bool bears(const DesignRange& range, const Task& task, const CheckLimits& limits, Design& design,
           const std::vector<Anchor>& anchors) {
    const equilibrium::Base base(design.length, design.width, task.n, anchors);
    const double fd = plateSteel(range.plateSteel).Fd_blachy;
    double thickness = range.leastThickness;
    for (const smallest::LoadCase& loads : task.cases) {
        const equilibrium::Result found = base.solve(loads.load);
        const auto used = utilisation(found, loads.load, loads.shear, limits, anchors);
        if (!used || used->bearingFactor > range.pressure || used->tension > 1 || used->shear >= 1
            || used->interaction >= 1)
            return false;
        const double arm =
            std::max(design.length - range.columnLength, design.width - range.columnWidth) / 2.0;
        thickness = std::max(thickness, arm * std::sqrt(3 * found.sigmaConcrete / fd));
        for (std::size_t i = 0; i < anchors.size(); ++i) {
            const double clear = beyondColumn(range, anchors[i]);
            const double strip =
                2 * std::min({clear, double(design.edge), nearest(anchors, anchors[i]) / 2});
            if (strip > 0)
                thickness =
                    std::max(thickness, 2.2
                                            * std::sqrt(-found.sigmaAnchor[i] * anchors[i].area
                                                        * clear / (fd * strip)));
        }
    }
    if (range.stiffened) {
        design.thickness = range.leastThickness;
        return true;
    }
    design.thickness = static_cast<int>(std::ceil(thickness - 0.001));
    return design.thickness
           <= (range.plateSteel == 2 ? 100 : plateSteel(range.plateSteel).Max_grubosc);
}

double massOf(const DesignRange& range, const Task& task, Design& design) {
    const CatalogueAnchor row = catalogueAnchor(design.diameter);
    const int straight =
        row.Lk != 0
            ? row.Lk
            : static_cast<int>(std::floor(task.anchorageCoefficient * *coreArea(design.diameter)));
    const double whole = straight + design.thickness + range.grout + row.Ld + 5 * design.diameter;
    design.anchorLength = 50 * static_cast<int>(std::floor(whole / 50 + 0.5));
    design.plateMass = 7.85e-6 * design.length * design.width * design.thickness;
    design.anchorMass =
        7.85e-6 * design.layout * M_PI * std::pow(design.diameter / 2.0, 2) * design.anchorLength;
    return design.mass();
}

} // namespace

std::vector<Design> byBruteForce(const DesignRange& range, const Task& task) {
    std::vector<Design> passing;
    Design design;
    const auto weigh = [&] {
        const auto nth =
            std::find(std::begin(anchorDiameters), std::end(anchorDiameters), design.diameter)
            - std::begin(anchorDiameters);
        const auto& limits = task.limits.at(static_cast<std::size_t>(design.steel - 1))
                                 .at(static_cast<std::size_t>(nth));
        design.edge = static_cast<int>(axisFromEdge(range, design.diameter));
        const std::vector<Anchor> anchors = anchorsOf(design, *coreArea(design.diameter) * 100);
        if (!limits || !fits(range, design, anchors)
            || !bears(range, task, *limits, design, anchors))
            return;
        massOf(range, task, design);
        passing.push_back(design);
    };
    for (design.length = range.length.from; design.length <= range.length.to;
         design.length += range.length.step) {
        const int only = 10 * static_cast<int>(std::lround(range.ratio * design.length / 10));
        const smallest::Sizes widths =
            range.ratio != 0 ? smallest::Sizes{only, only, 1} : range.width;
        for (design.width = widths.from; design.width <= widths.to; design.width += widths.step)
            for (const int layout : range.layouts)
                for (const Integer diameter : range.diameters)
                    for (const Integer steel : range.steels) {
                        design.layout = layout;
                        design.diameter = diameter;
                        design.steel = steel;
                        weigh();
                    }
    }
    std::stable_sort(passing.begin(), passing.end(), [](const Design& a, const Design& b) {
        return std::round(a.mass() * 1e9) < std::round(b.mass() * 1e9);
    });
    return passing;
}

} // namespace ferna::testing
