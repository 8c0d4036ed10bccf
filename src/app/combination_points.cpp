#include "app/combination_points.h"

#include "combinations/forms/combination_entries.h"

namespace ferna {

CapacityWindow::OtherLoads loadsOf(const CombinationEntries* entries) {
    if (entries == nullptr || entries->window() == nullptr)
        return {};
    const CombinationsWindow& window = *entries->window();
    const combinations::AnsweredTable& table = window.work().table();
    CapacityWindow::OtherLoads others{window.source(), {}};
    for (combinations::RowNumber row = 1; row <= std::ssize(table); ++row)
        if (const combinations::Combination* const one = table.combination(row))
            others.loads.push_back(
                {one->name.isEmpty() ? QStringLiteral("wiersz %1").arg(row) : one->name, one->load,
                 one->shear});
    return others;
}

} // namespace ferna
