#include "analysis/clauses.h"

#include "design/stan.h"

#include <cmath>

namespace ferna {

static_assert(wellFormed(forceInKilogramsClause) && wellFormed(momentInKilogramsClause)
              && wellFormed(stressInMegapascalsClause) && wellFormed(eccentricityClause)
              && wellFormed(eccentricityLengthClause) && wellFormed(kernRadiusClause)
              && wellFormed(sectionModulusClause) && wellFormed(cornerStressClause)
              && wellFormed(concreteStressClause) && wellFormed(anchorForceClause)
              && wellFormed(anchorStressClause) && wellFormed(anchorForceOfStressClause)
              && wellFormed(concreteRatioClause) && wellFormed(horizontalForceClause)
              && wellFormed(frictionForceClause) && wellFormed(anchorShearClause)
              && wellFormed(shearUtilisationClause) && wellFormed(interactionUtilisationClause));

Single forceInKilograms(Single kN) {
    return CSng(kN * 1000.0 / Gravity);
}

Double momentInKilograms(Double kNm) {
    return (kNm * 100000) / Gravity;
}

Single stressInMegapascals(Double kGcm2) {
    return CSng(kGcm2 * Gravity / 100);
}

Double eccentricity(Double M, Double N) {
    return divided(M, N);
}

Double eccentricityLength(Double ex, Double ey) {
    return Sqr(ey * ey + ex * ex);
}

Double kernRadius(Double L, Double B, Double alfa) {
    return divided(B, 6 * (std::sin(alfa) + B / L * std::cos(alfa)));
}

Double sectionModulus(Double width, Double depth) {
    return width * depth * depth / 6;
}

Double cornerStress(Double N, Double L, Double B, Double M1, Double Wx, Double M2, Double Wy) {
    return divided(N, L * B) + divided(M1, Wx) + divided(M2, Wy);
}

Double concreteStress(Double C, Double V) {
    return divided(C, V);
}

Single anchorForce(Double d, Double n, Double k, Double A) {
    return CSng(d * n * k * A);
}

Single anchorStress(Single F, Double A) {
    return CSng(divided(F, A));
}

Single anchorForceOfStress(Single sigma, Double A) {
    return CSng(sigma * A * 0.1);
}

Single concreteRatio(Single sigma_b, Single Rb) {
    return CSng(divided(sigma_b, Rb));
}

ConcreteVerdict concreteVerdict(Single sigma_b, Single Rb) {
    if (sigma_b > 2.0 * Rb)
        return ConcreteVerdict::AboveDouble;
    return sigma_b < Rb ? ConcreteVerdict::Satisfied : ConcreteVerdict::Exceeded;
}

Single horizontalForce(Single Vx, Single Vy) {
    const Double x = Vx;
    const Double y = Vy;
    return CSng(Sqr(x * x + y * y));
}

Double frictionForce(Single N) {
    return 0.3 * N;
}

Single anchorShear(Single V, Single A) {
    return CSng(divided(V, A) * 10);
}

Single shearUtilisation(Single tau, Single fv) {
    return CSng(divided(tau, fv));
}

Single interactionUtilisation(Single sigma, Single fd2, Single tau, Single fv) {
    const Double tension = divided(sigma, fd2);
    const Double shear = divided(tau, fv);
    return CSng(tension * tension + shear * shear);
}

ShearVerdict shearVerdict(Single w) {
    if (w < 1)
        return ShearVerdict::Satisfied;
    return w <= 1.05 ? ShearVerdict::WithinFivePercent : ShearVerdict::Exceeded;
}

} // namespace ferna
