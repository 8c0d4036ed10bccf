#pragma once

#include "runtime/run_time_error.h"

#include <array>

namespace ferna {

/// Array with the subscripts 0..Last. A subscript outside is error 9, as everywhere.
template <typename T, int Last>
class IndexedArray {
public:
    T& operator()(int index) { return values_[checked(index)]; }
    const T& operator()(int index) const { return values_[checked(index)]; }

    void fill(const T& value) { values_.fill(value); }
    static constexpr int last() { return Last; }

    /// Unchecked, for the inner loops of the solver: subscripts 0..Last.
    T* data() { return values_.data(); }
    const T* data() const { return values_.data(); }

    bool operator==(const IndexedArray&) const = default;

private:
    static std::size_t checked(int index) {
        if (index < 0 || index > Last)
            throw RunTimeError(error::Subscript);
        return static_cast<std::size_t>(index);
    }

    std::array<T, Last + 1> values_{};
};

} // namespace ferna
