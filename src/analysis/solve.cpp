#include "analysis/solve.h"

#include "analysis/clauses.h"
#include "analysis/search.h"

namespace ferna {

namespace {

/// A resultant of the tension anchors outside the plane of the moment, for a moment in one plane
/// alone: `side` are the coordinates that tell the tension side, `across` the others.
bool resultantOutOfPlane(const CaseInput& in, const ByAnchor<Double>& side,
                         const ByAnchor<Double>& across) {
    Double first = 0;
    Double product = 0;
    for (int i = 1; i <= in.anchors; ++i) {
        if (side(i) < 0) {
            first += in.area(i) * across(i);
            product += in.area(i) * across(i) * side(i);
        }
    }
    return first != 0 || product != 0;
}

CaseOutcome oneMoment(const Stan_przypadku& s, const CaseInput& in, CaseResult& result) {
    if (s.M1k == 0 ? resultantOutOfPlane(in, s.Yn, s.Xn) : resultantOutOfPlane(in, s.Xn, s.Yn)) {
        result.messages.push_back(CaseMessage::OutOfPlane);
        return CaseOutcome::OutOfPlane;
    }
    return CaseOutcome::OneMoment;
}

/// The first line, the first steps and the fresh counters of an attempt.
void startSearch(Stan_przypadku& s, const CaseInput& in) {
    s.Liczba_ocen = 0;
    s.Drugie_wejscie = 0;
    s.Reszta_beta = 0;
    s.Krok_c = s.Plyta_L / 10;
    s.C_linii = -s.Prom_R * std::cos(s.Kat_fi - s.Alfa); // the corner (-a, -b)
    const auto degrees = [&in](Double g) { return g / in.degreesPerRadian; };
    if (s.Alfa >= Pi / 4) {
        s.Krok_beta = (Pi / 2 - s.Alfa) / 5;
        s.Beta = s.Alfa + 2 * s.Krok_beta;
        return;
    }
    s.Beta = s.Alfa;
    if (s.Beta > degrees(10))
        s.Krok_beta = (Pi / 2 - s.Alfa) / 5;
    else if (s.Beta > degrees(5))
        s.Krok_beta = degrees(5);
    else if (s.Beta > degrees(1))
        s.Krok_beta = degrees(1);
    else
        s.Krok_beta = degrees(0.1);
}

/// One attempt; `Jest_rozw` tells whether it found a line. False where its first angle is not
/// admissible. One that runs out of evaluations is like one whose angle leaves its range.
bool attempt(Stan_przypadku& s, const CaseInput& in) {
    startSearch(s, in);
    try {
        Szukaj_c(s, in);
        if (!s.Jest_rozw)
            return false;
        s.Drugie_wejscie = 1;
        Szukaj_beta(s, in);
    } catch (const EvaluationLimitReached&) {
        s.Jest_rozw = false;
    }
    return true;
}

/// The kern test and the search with its retries.
CaseOutcome settle(Stan_przypadku& s, const CaseInput& in, Carry& carry, CaseResult& result) {
    CaseOutcome found = CaseOutcome::Found;
    bool fromTheInput = true; // a raised moment must survive, a moved anchor begins anew
    for (;;) {
        if (fromTheInput) {
            Normalizuj_znaki(s, in, carry);
            Ustal_momenty(s);
        }
        Ustal_mimosrody(s, in.N);
        if (!Poza_rdzeniem(s))
            return CaseOutcome::WholePlate;
        if (s.M1k == 0 || s.M2k == 0)
            return oneMoment(s, in, result);
        if (!attempt(s, in))
            return CaseOutcome::NoStart;
        const Retry retry = s.Jest_rozw ? Retry::None : Ponow_probe(s, carry, result.messages);
        if (carry.gaveUp)
            return result.messages.empty() ? CaseOutcome::PassedOver : CaseOutcome::GaveUp;
        if (s.Jest_rozw)
            return found;
        // Once the anchor has been moved in a calculation, a raised moment is dropped again.
        fromTheInput = carry.anchorMoved;
        if (retry == Retry::MovedAnchor)
            found = CaseOutcome::FoundWithMovedAnchor;
        else if (!fromTheInput)
            found = CaseOutcome::FoundWithRaisedMoment;
    }
}

/// The plate is compressed as a whole.
void stressOfWholePlate(Stan_przypadku& s, const CaseInput& in, Carry& carry, CaseResult& result) {
    s.Wy_plyty = sectionModulus(s.Plyta_L, s.Plyta_B);
    s.Wx_plyty = sectionModulus(s.Plyta_B, s.Plyta_L);
    result.Sigma_b = stressInMegapascals(
        cornerStress(in.N, s.Plyta_L, s.Plyta_B, s.M1k, s.Wx_plyty, s.M2k, s.Wy_plyty));
    s.Typ_strefy = zone::WholePlate;
    result.zone = zone::WholePlate;
    carry.wholePlate = true;
}

/// The line with the two points where it leaves the plate, mirrored back to the axes of the input.
NeutralLine lineOf(const Stan_przypadku& s, const Signs& signs) {
    const Double a = s.Pol_a;
    const Double b = s.Pol_b;
    Double x1 = s.Pk_xT;
    Double y1 = b;
    Double x2 = a;
    Double y2 = s.Pk_yR;
    if (s.Typ_strefy == zone::AlongLength || s.Typ_strefy == zone::LessTriangle) {
        x1 = -a;
        y1 = s.Pk_yL;
    }
    if (s.Typ_strefy == zone::AlongWidth || s.Typ_strefy == zone::LessTriangle) {
        x2 = s.Pk_xB;
        y2 = -b;
    }
    return {s.Beta,
            s.C_linii,
            CSng(signs.x * x1),
            CSng(signs.y * y1),
            CSng(signs.x * x2),
            CSng(signs.y * y2)};
}

void requirePlateSize(const CaseInput& in) {
    if (in.L < 0 || in.B < 0)
        throw RunTimeError(error::InvalidCall, QStringLiteral("wymiar płyty jest ujemny"));
}

void compute(Stan_przypadku& s, const CaseInput& in, Carry& carry, CaseResult& result) {
    requirePlateSize(in);
    result.outcome = settle(s, in, carry, result);
    switch (result.outcome) {
    case CaseOutcome::WholePlate:
        stressOfWholePlate(s, in, carry, result);
        break;
    case CaseOutcome::Found:
    case CaseOutcome::FoundWithRaisedMoment:
    case CaseOutcome::FoundWithMovedAnchor:
        stressesAtLine(s, in, carry, result);
        break;
    default:
        break;
    }
}

} // namespace

void Normalizuj_znaki(Stan_przypadku& s, const CaseInput& in, const Carry& carry) {
    s.M1n = in.signs.x * in.M1;
    s.M2n = in.signs.y * in.M2;
    for (int i = 1; i <= in.anchors; ++i) {
        s.Xn(i) = in.signs.x * in.X(i);
        s.Yn(i) = in.signs.y * in.Y(i);
    }
    s.Xn(in.anchors) = in.signs.x * carry.lastX;
    s.Yn(in.anchors) = in.signs.y * carry.lastY;
    s.Plyta_L = in.L;
    s.Plyta_B = in.B;
}

void Ustal_momenty(Stan_przypadku& s) {
    constexpr Single none = 0.006F;    // kNm
    constexpr Double substitute = 700; // kG cm
    // The line of an axis-parallel moment is singular, so a vanishing moment becomes a small one.
    // The two branches are not alike: 0.009 stands in one threshold only.
    if (std::fabs(CSng(s.M1n)) <= none) {
        s.M2k = momentInKilograms(s.M2n);
        s.M1k = substitute;
        if (substitute < 0.009 * std::fabs(s.M2k))
            s.M1k = 0.0009 * s.M2k;
    } else {
        s.M1k = momentInKilograms(s.M1n);
    }
    if (std::fabs(CSng(s.M2n)) <= none) {
        s.M2k = substitute;
        if (substitute < 0.0009 * std::fabs(s.M1k))
            s.M2k = 0.0009 * s.M1k;
    } else {
        s.M2k = momentInKilograms(s.M2n);
    }
}

void Ustal_mimosrody(Stan_przypadku& s, Double N) {
    s.Ex = eccentricity(s.M1k, N);
    s.Ey = eccentricity(s.M2k, N);
    if (s.Ex != 0) {
        s.Alfa = std::atan(s.Ey / s.Ex);
        s.Mimosrod = eccentricityLength(s.Ex, s.Ey);
    }
    s.Pol_a = s.Plyta_L / 2;
    s.Pol_b = s.Plyta_B / 2;
    s.Kat_fi = std::atan(divided(s.Pol_b, s.Pol_a));
    s.Prom_R = Sqr(s.Pol_b * s.Pol_b + s.Pol_a * s.Pol_a);
}

bool Poza_rdzeniem(Stan_przypadku& s) {
    if (s.M1k != 0) {
        if (s.Ex > s.Plyta_L / 6 || s.Ey > s.Plyta_B / 6)
            return true;
    } else if (s.M2k != 0) {
        if (s.Ey > s.Plyta_B / 6)
            return true;
    }
    s.Rdzen = kernRadius(s.Plyta_L, s.Plyta_B, s.Alfa);
    return s.Rdzen < s.Mimosrod;
}

void stressesAtLine(const Stan_przypadku& s, const CaseInput& in, Carry& carry,
                    CaseResult& result) {
    result.line = lineOf(s, in.signs);
    result.zone = s.Typ_strefy;
    result.anchorsInTension = s.Suma_Ad != 0;
    for (int i = 1; result.anchorsInTension && i <= in.anchors; ++i) {
        const Double d = s.Odl_kotwy(i);
        if (!(d < 0))
            continue;
        const Double area = in.area(i);
        AnchorTension one{};
        one.anchor = CInt(i);
        one.force_kG = anchorForce(d, in.n, s.Wsp_k, area);
        one.stress_kGcm2 = anchorStress(one.force_kG, area);
        one.stress = stressInMegapascals(one.stress_kGcm2);
        one.force = anchorForceOfStress(one.stress, area);
        carry.stresses(i) = one.stress;
        result.tension[static_cast<std::size_t>(result.tensions++)] = one;
    }
    result.Sigma_b = stressInMegapascals(concreteStress(s.Sila_C, s.V_strefy));
}

CaseResult solve(const CaseInput& in, Carry& carry, Stan_przypadku& s) {
    CaseResult result;
    s.Kroki_c = carry.steps;
    s.Alfa = carry.direction;
    s.Mimosrod = carry.length;
    try {
        compute(s, in, carry, result);
    } catch (const RunTimeError& failure) {
        result.outcome = CaseOutcome::Failed;
        result.failure = failure;
    }
    carry.steps = s.Kroki_c;
    carry.direction = s.Alfa;
    carry.length = s.Mimosrod;
    return result;
}

CaseResult solve(const CaseInput& in, Carry& carry) {
    Stan_przypadku s;
    return solve(in, carry, s);
}

} // namespace ferna
