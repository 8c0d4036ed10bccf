#include "smallest/search.h"

#include "capacity/strength.h"
#include "command/entered_equilibria.h"
#include "runtime/run_time_error.h"
#include "smallest/steel_mass.h"

#include <algorithm>
#include <tuple>

namespace ferna::smallest {

namespace {

std::size_t placeInSeries(Integer diameter) {
    return static_cast<std::size_t>(
        std::find(std::begin(anchorDiameters), std::end(anchorDiameters), diameter)
        - std::begin(anchorDiameters));
}

/// The limits of a layout of one steel and diameter, as a calculation would take them.
std::optional<CheckLimits> limitsOf(const Stan& stan, const InputFields& fields, Integer steel,
                                    Integer diameter) {
    if (steel == userSteel && diameter > stan.materialy.Stal_fi_max)
        return std::nullopt;
    Stan one;
    one.opcje = stan.opcje;
    one.materialy = stan.materialy;
    one.plyta.Liczba_srub = 1;
    one.plyta.Fi_kotwy(1) = diameter;
    InputFields chosen = fields;
    chosen.cmbStal = steel - 1;
    return enteredLimits(one, chosen);
}

/// A plate with its anchors, all steels at once: what they are used does not change the stresses.
class Candidate {
public:
    Candidate(const DesignRange& range, const Task& task, int length, int width, int layout,
              Integer diameter)
        : range_(range), task_(task), length_(length), width_(width), layout_(layout),
          diameter_(diameter), places_(anchorPlaces(range, length, width, layout, diameter)) {}

    /// Tells each design that passes, and counts all in `found`.
    template <typename Tell>
    void weigh(Found& found, const Tell& tell) {
        found.candidates += static_cast<long>(range_.steels.size());
        if (places_.empty())
            return;
        for (const Integer steel : range_.steels)
            if (const auto& limits = task_.limits.at(static_cast<std::size_t>(steel - 1))
                                         .at(placeInSeries(diameter_)))
                standing_.push_back({steel, &*limits, {}, 0});
        found.placed += static_cast<long>(standing_.size());
        if (standing_.empty() || !holds())
            return;
        const auto holding = static_cast<long>(standing_.size());
        (tellDesigns(tell) ? found.passed : found.tooThick) += holding;
    }

private:
    struct Standing {
        Integer steel;
        const CheckLimits* limits;
        Utilisation used;
        int worstCase;
        double worst = -1;
    };

    /// Leaves the steels that pass in every case.
    bool holds() {
        const double area = *coreArea(diameter_) * 100;
        for (const equilibrium::Point& place : places_)
            anchors_.push_back({place.x, place.y, area});
        const equilibrium::Base base(length_, width_, task_.n, anchors_);
        solved_.reserve(task_.cases.size());
        for (std::size_t c = 0; c < task_.cases.size() && !standing_.empty(); ++c) {
            solved_.push_back(base.solve(task_.cases[c].load));
            std::erase_if(standing_, [&](Standing& one) { return !passes(one, c); });
        }
        return !standing_.empty();
    }

    bool passes(Standing& one, std::size_t c) const {
        const LoadCase& loads = task_.cases[c];
        const std::optional<Utilisation> used =
            utilisation(solved_[c], loads.load, loads.shear, *one.limits, anchors_);
        if (!used || !smallest::passes(*used, range_.pressure))
            return false;
        const double worst = judged(*used, range_.pressure);
        if (worst > one.worst) {
            one.worst = worst;
            one.worstCase = static_cast<int>(c) + 1;
        }
        Utilisation& all = one.used;
        if (used->tension > all.tension)
            all.anchor = used->anchor;
        all.concrete = std::max(all.concrete, used->concrete);
        all.tension = std::max(all.tension, used->tension);
        all.shear = std::max(all.shear, used->shear);
        all.interaction = std::max(all.interaction, used->interaction);
        all.bearingFactor = std::max(all.bearingFactor, used->bearingFactor);
        return true;
    }

    /// False where the plate would have to be too thick.
    template <typename Tell>
    bool tellDesigns(const Tell& tell) const {
        const int edge = edgeDistance(range_, diameter_);
        PlateThickness plate(range_, length_, width_, edge, places_, anchors_.front().area);
        for (const equilibrium::Result& found : solved_)
            plate.take(found);
        const std::optional<int> thickness = plate.found();
        if (!thickness)
            return false;
        Design design;
        design.length = length_;
        design.width = width_;
        design.thickness = *thickness;
        design.layout = layout_;
        design.diameter = diameter_;
        design.edge = edge;
        design.anchorLength =
            smallest::anchorLength(diameter_, *thickness, range_.grout, task_.anchorageCoefficient);
        design.plateMass = smallest::plateMass(length_, width_, *thickness);
        design.anchorMass = smallest::anchorMass(layout_, diameter_, design.anchorLength);
        for (const Standing& one : standing_) {
            design.steel = one.steel;
            design.used = one.used;
            design.worstCase = one.worstCase;
            tell(design);
        }
        return true;
    }

    const DesignRange& range_;
    const Task& task_;
    int length_;
    int width_;
    int layout_;
    Integer diameter_;
    std::vector<equilibrium::Point> places_;
    std::vector<equilibrium::Anchor> anchors_;
    std::vector<Standing> standing_;
    std::vector<equilibrium::Result> solved_;
};

/// The lightest so many of all that are told.
class Lightest {
public:
    explicit Lightest(std::size_t most) : most_(most) {}

    void take(const Design& design) {
        if (most_ == 0 || (heap_.size() == most_ && !isLighter(design, heap_.front())))
            return;
        if (heap_.size() == most_) {
            std::pop_heap(heap_.begin(), heap_.end(), isLighter);
            heap_.pop_back();
        }
        heap_.push_back(design);
        std::push_heap(heap_.begin(), heap_.end(), isLighter);
    }

    std::vector<Design> inOrder() && {
        std::sort_heap(heap_.begin(), heap_.end(), isLighter);
        return std::move(heap_);
    }

private:
    std::size_t most_;
    std::vector<Design> heap_;
};

} // namespace

double judged(const Utilisation& used, double pressureLimit) {
    return std::max(
        {used.bearingFactor / pressureLimit, used.tension, used.shear, used.interaction});
}

bool passes(const Utilisation& used, double pressureLimit) {
    return used.bearingFactor <= pressureLimit && used.tension <= 1 && used.shear < 1
           && used.interaction < 1;
}

bool isLighter(const Design& one, const Design& other) {
    const auto key = [](const Design& d) {
        return std::tuple(d.mass(), d.length * d.width, d.layout, d.diameter, d.steel, d.length);
    };
    return key(one) < key(other);
}

std::optional<Task> enteredTask(const Stan& stan, const InputFields& fields) {
    Task task;
    try {
        task.n = CDbl(fields.Text2);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
    if (!(task.n >= 0))
        return std::nullopt;
    for (int c = 1; c <= std::clamp<int>(stan.obciazenia.Liczba_przyp, 0, MaxCases); ++c) {
        const std::optional<equilibrium::Load> load = enteredLoad(fields, c);
        const std::optional<Shear> shear = enteredShear(fields, c);
        if (!load || !shear)
            return std::nullopt;
        task.cases.push_back({*load, *shear});
    }
    if (task.cases.empty())
        return std::nullopt;
    task.anchorageCoefficient =
        concrete(stan.opcje.Nr_normy, stan.opcje.Nr_betonu).Mnoznik_dlugosci;
    for (Integer steel = 1; steel <= userSteel; ++steel)
        for (const Integer diameter : anchorDiameters)
            task.limits.at(static_cast<std::size_t>(steel - 1)).at(placeInSeries(diameter)) =
                limitsOf(stan, fields, steel, diameter);
    return task;
}

Found lightest(const DesignRange& range, const Task& task, std::size_t most, const GoesOn& goesOn) {
    Found found;
    Lightest kept(most);
    const auto all = static_cast<double>(candidates(range));
    for (int length = range.length.from; length <= range.length.to && !found.stopped;
         length += range.length.step)
        for (const int width : widthsFor(range, length)) {
            for (const int layout : range.layouts)
                for (const Integer diameter : range.diameters)
                    Candidate(range, task, length, width, layout, diameter)
                        .weigh(found, [&](const Design& design) { kept.take(design); });
            if (goesOn && !goesOn(static_cast<double>(found.candidates) / all)) {
                found.stopped = true;
                break;
            }
        }
    found.best = std::move(kept).inOrder();
    return found;
}

} // namespace ferna::smallest
