#pragma once

namespace ferna {

/// One row of loads at the base: N, M1, M2, Vx, Vy. Numbers are kN and kNm; texts are as typed.
template <typename T>
struct LoadRow {
    T N{};
    T M1{};
    T M2{};
    T Vx{};
    T Vy{};

    bool operator==(const LoadRow&) const = default;
};

} // namespace ferna
