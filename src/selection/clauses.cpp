#include "selection/clauses.h"

namespace ferna {

namespace {

constexpr Integer leastThickDiameter = 20; // mm, from which the bend is wide
constexpr Integer nutAllowance = 30;       // mm, below the plate of an anchor without a rib

static_assert(wellFormed(anchorCapacityClause) && wellFormed(bendOfThinAnchorClause)
              && wellFormed(bendDiameterClause) && wellFormed(hookLengthClause)
              && wellFormed(anchorageOfAreaClause) && wellFormed(anchorageOfBaseClause)
              && wellFormed(straightPartClause) && wellFormed(hookedAnchorLengthClause)
              && wellFormed(ribbedAnchorLengthClause) && wellFormed(plateAnchorLengthClause));

/// A sum of whole numbers, each partial sum within 16 bits.
Integer sum(Integer x, Integer y) {
    return CInt(x + y);
}

} // namespace

Single anchorCapacity(Double A, Single fd) {
    return CSng(A * (fd * 0.1)); // cm2 MPa / 10 = kN
}

Integer bendDiameter(Integer d) {
    return d < leastThickDiameter ? CInt(2.5 * d) : CInt(5 * d);
}

Integer hookLength(Integer d) {
    return CInt(5 * d);
}

Integer anchorageOfArea(Single k, Double A) {
    return CInt(Int(k * A));
}

Integer anchorageOfBase(Single coefficient, Integer Lp0) {
    return CInt(Double{coefficient} * Lp0); // the Double product of two Singles is exact
}

Integer straightPart(Integer anchorage, Integer g, Integer Ld) {
    return sum(sum(anchorage, g), Ld);
}

Integer hookedAnchorLength(Integer Lo, Integer Lh) {
    return R50(sum(Lo, Lh));
}

Integer plateAnchorLength(Integer Lo, Integer t, bool hasRib) {
    const Integer S = sum(Lo, t);
    return R50(hasRib ? S : sum(S, nutAllowance));
}

Integer R50(Integer x) {
    return CInt(50 * Int(x / 50.0 + 0.5));
}

} // namespace ferna
