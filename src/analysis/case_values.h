#pragma once

#include "analysis/stan_przypadku.h"
#include "design/case_outcome.h"
#include "design/sign_class.h"

#include <optional>
#include <vector>

namespace ferna {

/// A load case as the solver takes it. Lengths cm.
struct CaseInput {
    Double N;           ///< axial force, kG, positive in compression
    Double M1, M2;      ///< moments as typed, kNm
    Signs signs;        ///< of the moments
    Double L, B;        ///< plate
    int anchors;        ///< 0..20
    ByAnchor<Single> X; ///< from the plate centre; of the last anchor the Carry's position counts
    ByAnchor<Single> Y;
    ByAnchor<Double> area; ///< core areas, cm2
    Double n;              ///< Es / Eb
    Double degreesPerRadian;
};

/// What goes from one case, or one calculation, to the next. Nothing else does: a case depends on
/// its input and on this alone.
struct Carry {
    // Within the case: each is spent once.
    bool mayRaiseMoment = true; ///< the smaller moment may still be raised

    // From case to case of a calculation, which clears them.
    bool anchorMoved = false; ///< the last anchor has been moved
    bool gaveUp = false;      ///< a case ended without a solution: later searches give no results

    // From calculation to calculation.
    Single lastX = 0; ///< the last anchor, cm; where it was moved it stays until it is entered anew
    Single lastY = 0;
    bool wholePlate = false;   ///< mark: the plate was compressed as a whole in this case once
    ByAnchor<Single> stresses; ///< MPa; of an anchor without tension that of an earlier calculation
    Integer steps = 0;         ///< the march counts on from here, `Kroki_c`
    Double direction = 0;      ///< of the eccentricity, `Alfa`: kept where there is none along x
    Double length = 0;         ///< and its length, cm, `Mimosrod`
};

/// What the engineer must be told about a case.
enum class CaseMessage { Approximate, NoSolution, OutOfPlane };

/// The neutral line x cos(Beta) + y sin(Beta) = C in the mirrored frame, and the two points where
/// it leaves the plate, (a, b) and (c, d), in the axes of the input, cm.
struct NeutralLine {
    Double Beta;
    Double C;
    Single a, b, c, d;
};

/// An anchor in tension: forces and stresses are negative.
struct AnchorTension {
    Integer anchor;      ///< 1..20
    Single force_kG;     ///< kG
    Single stress_kGcm2; ///< kG/cm2
    Single stress;       ///< MPa
    Single force;        ///< kN
};

/// What a case has come to. A case that failed holds what was computed before the error.
struct CaseResult {
    CaseOutcome outcome = CaseOutcome::NotComputed;
    std::optional<NeutralLine> line; ///< empty where the plate is compressed as a whole
    Integer zone = 0;                ///< shape of the compressed zone
    bool anchorsInTension = false;   ///< false on a line that leaves none behind it
    int tensions = 0;                ///< so many of the anchors are in tension:
    std::array<AnchorTension, MaxAnchors> tension; ///< the rest is not set
    std::optional<Single> Sigma_b;                 ///< greatest concrete stress, MPa
    std::vector<CaseMessage> messages;
    std::optional<RunTimeError> failure; ///< with the outcome Failed
};

} // namespace ferna
