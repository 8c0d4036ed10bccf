#pragma once

#include <cfloat>

namespace ferna::equilibrium {

#if LDBL_MANT_DIG >= 113
using Quad = long double;
#else
__extension__ typedef __float128 Quad;
#endif

/// A number of 226 bits, the unevaluated sum of two of 113 whose second is below the last digit of
/// the first (Dekker, A floating-point technique for extending the available precision, Numer.
/// Math. 18, 1971). Its exponents are those of a Quad; sums and products err by some 1e-67 of
/// themselves.
class Wide {
public:
    constexpr Wide() noexcept = default;
    constexpr Wide(int value) noexcept : high_(value) {}
    constexpr Wide(double value) noexcept : high_(value) {}
    constexpr Wide(Quad value) noexcept : high_(value) {}

    constexpr explicit operator double() const noexcept { return static_cast<double>(high_); }

    friend constexpr Wide operator-(const Wide& a) noexcept { return {-a.high_, -a.low_}; }
    friend constexpr Wide operator+(const Wide& a, const Wide& b) noexcept {
        const Wide high = exactSum(a.high_, b.high_);
        const Wide low = exactSum(a.low_, b.low_);
        const Wide middle = joined(high.high_, high.low_ + low.high_);
        return joined(middle.high_, middle.low_ + low.low_);
    }
    friend constexpr Wide operator-(const Wide& a, const Wide& b) noexcept { return a + -b; }
    friend constexpr Wide operator*(const Wide& a, const Wide& b) noexcept {
        const Wide high = exactProduct(a.high_, b.high_);
        return joined(high.high_, high.low_ + (a.high_ * b.low_ + a.low_ * b.high_));
    }
    friend constexpr Wide operator/(const Wide& a, const Wide& b) noexcept {
        const Quad first = a.high_ / b.high_;
        const Wide rest = a - b * first;
        const Quad second = rest.high_ / b.high_;
        const Quad third = (rest - b * second).high_ / b.high_;
        return joined(first, second) + third;
    }
    constexpr Wide& operator+=(const Wide& other) noexcept { return *this = *this + other; }
    constexpr Wide& operator/=(const Wide& other) noexcept { return *this = *this / other; }

    friend constexpr bool operator<(const Wide& a, const Wide& b) noexcept {
        return a.high_ < b.high_ || (a.high_ == b.high_ && a.low_ < b.low_);
    }
    friend constexpr bool operator>(const Wide& a, const Wide& b) noexcept { return b < a; }
    friend constexpr bool operator<=(const Wide& a, const Wide& b) noexcept {
        return a.high_ < b.high_ || (a.high_ == b.high_ && a.low_ <= b.low_);
    }
    friend constexpr bool operator>=(const Wide& a, const Wide& b) noexcept { return b <= a; }

private:
    constexpr Wide(Quad high, Quad low) noexcept : high_(high), low_(low) {}

    /// The sum of two where the first is the larger.
    static constexpr Wide joined(Quad a, Quad b) noexcept {
        const Quad sum = a + b;
        return {sum, b - (sum - a)};
    }
    static constexpr Wide exactSum(Quad a, Quad b) noexcept {
        const Quad sum = a + b;
        const Quad ofB = sum - a;
        return {sum, (a - (sum - ofB)) + (b - ofB)};
    }
    /// The upper half of the digits, so that products of halves are exact.
    static constexpr Quad upper(Quad a) noexcept {
        constexpr Quad split = Quad(1LL << 57) + 1;
        const Quad shifted = split * a;
        return shifted - (shifted - a);
    }
    static constexpr Wide exactProduct(Quad a, Quad b) noexcept {
        const Quad product = a * b;
        const Quad a1 = upper(a);
        const Quad a2 = a - a1;
        const Quad b1 = upper(b);
        const Quad b2 = b - b1;
        return {product, ((a1 * b1 - product) + a1 * b2 + a2 * b1) + a2 * b2};
    }

    Quad high_ = 0;
    Quad low_ = 0;
};

} // namespace ferna::equilibrium
