#include "combinations/choice.h"

#include <algorithm>
#include <limits>

namespace ferna::combinations {

Double useOf(const std::optional<Utilisation>& answer, Check check) {
    return answer ? answer->of(check) : std::numeric_limits<Double>::infinity();
}

Double worstOf(const std::optional<Utilisation>& answer) {
    return answer ? answer->worst() : std::numeric_limits<Double>::infinity();
}

bool isLarger(Double use, Double thanUse) {
    constexpr Double equal = 1 + 1e-9;
    return use > thanUse * equal;
}

void Choice::add(RowNumber row, const std::optional<Utilisation>& answer) {
    for (const Check check : allChecks) {
        Ranked& best = governing_.at(static_cast<std::size_t>(check));
        const Double use = useOf(answer, check);
        if (best.row == 0 || isLarger(use, best.use))
            best = {row, use};
        Double& most = envelope_.at(static_cast<std::size_t>(check));
        most = std::max(most, use);
    }
    rank({row, worstOf(answer)});
}

void Choice::rank(const Ranked& candidate) {
    const auto end = worst_.begin() + static_cast<std::ptrdiff_t>(ranked_);
    const auto place = std::find_if(worst_.begin(), end, [&](const Ranked& other) {
        return isLarger(candidate.use, other.use);
    });
    if (place == worst_.end())
        return;
    if (ranked_ < worst_.size())
        ++ranked_;
    std::move_backward(place, worst_.begin() + static_cast<std::ptrdiff_t>(ranked_) - 1,
                       worst_.begin() + static_cast<std::ptrdiff_t>(ranked_));
    *place = candidate;
}

std::vector<RowNumber> Choice::six() const {
    std::vector<RowNumber> rows;
    const auto take = [&rows](const Ranked& one) {
        if (rows.size() < chosenRows && std::find(rows.begin(), rows.end(), one.row) == rows.end())
            rows.push_back(one.row);
    };
    if (ranked_ == 0)
        return rows;
    std::for_each(governing_.begin(), governing_.end(), take);
    std::for_each_n(worst_.begin(), ranked_, take);
    return rows;
}

} // namespace ferna::combinations
