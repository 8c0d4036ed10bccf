#include "plate/clauses.h"

namespace ferna {

namespace {

constexpr Double newtonsPerKilonewton = 1000;

static_assert(wellFormed(tensionStripThicknessClause) && wellFormed(momentOfFallingStressClause)
              && wellFormed(momentOfRisingStressClause)
              && wellFormed(compressionStripThicknessClause) && wellFormed(sideRatioClause)
              && wellFormed(coefficientTimesLengthClause) && wellFormed(edgeFragmentThicknessClause)
              && wellFormed(columnBaseThicknessClause) && wellFormed(chartWidthClause)
              && wellFormed(chartPlaceClause) && wellFormed(threeEdgesCoefficientClause)
              && wellFormed(twoEdgesCoefficientClause) && wellFormed(anchorFragmentThicknessClause)
              && wellFormed(thicknessAtStrengthClause) && wellFormed(wholeThicknessClause));

} // namespace

Single tensionStripThickness(Single S, Single ca, Single bs, Single fd) {
    return CSng(2.2 * Sqr(divided(S * newtonsPerKilonewton * ca, Double{fd} * bs)));
}

Single compressionStripMoment(Single ca, Single sigma_k, Single sigma_p) {
    const Double length = ca;
    const Double sk = sigma_k;
    const Double sp = sigma_p;
    return sk < sp ? CSng(length * length * ((sp - sk) / 6 + sk * 0.5))
                   : CSng(length * length * ((sk - sp) / 3 + sp * 0.5));
}

Single compressionStripThickness(Single M, Single fd) {
    return CSng(Sqr(divided(M * 6.0, fd)));
}

Single sideRatio(Integer b, Integer l) {
    return CSng(divided(b, l));
}

Single coefficientTimesLength(Double y0, Double y1, Single r, Double r0, Double d, Integer l) {
    return CSng(((y1 - y0) * (r - r0) / d + y0) * l);
}

Single edgeFragmentThickness(Single share, Single sigma, Single fd) {
    return CSng(share * Sqr(divided(sigma, fd)));
}

Single columnBaseThickness(Single sigma, Integer h, Integer s, Double k, Single fd) {
    return CSng(1.7 * Sqr(divided(Double{sigma} * h * s, fd * k)));
}

Single chartRatio(Integer dimension, Integer c) {
    return CSng(divided(dimension, c));
}

Single curveCoefficient(Single x0, Single y0, Single y1, Single w, Single q) {
    return storedSingle(Extended{y0}
                        + (Extended{q} - x0) * (Extended{y1} - Extended{y0}) / Extended{w});
}

Single chartCoefficient(Single y1, Single y2, Single p, Single L, Double d) {
    return storedSingle((Extended{y2} - Extended{y1}) * (Extended{p} - Extended{L}) / Extended{d}
                        + Extended{y1});
}

Single anchorFragmentThickness(Single S, Single y, Single fd) {
    return CSng(2.2 * Sqr(divided(S * newtonsPerKilonewton, Double{fd} * y)));
}

Single thicknessAtStrength(Single t, Double fd, Double fd1) {
    return CSng(divided(t * fd, fd1));
}

Integer wholeThickness(Single t) {
    return CInt(Int(t + 0.5));
}

} // namespace ferna
