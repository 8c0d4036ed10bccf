#pragma once

#include "command/calculation.h"
#include "command/entered_equilibria.h"
#include "plate/plate_form.h"

#include <array>
#include <optional>

namespace ferna::notes {

/// What an engineer has entered, taken before a calculation moves or raises any of it.
struct Entered {
    InputFields fields;
    Plyta_i_kotwy plate;
    int cases = 0;
    QString steelName; ///< of the user's anchor steel, once its dialog has been
    EnteredEquilibria equilibria;

    const std::optional<equilibrium::Result>& equilibrium(int c) const {
        return equilibria.byCase.at(static_cast<std::size_t>(c - 1));
    }
};
Entered entered(const Stan& stan, const InputFields& fields);
/// The same where the equilibria are there already.
Entered entered(const Stan& stan, const InputFields& fields, const EnteredEquilibria& equilibria);

/// True where both are the same task, as far as a calculation reads it.
bool sameTask(const Entered& a, const Entered& b);

/// What a calculation has told about a load case.
struct ToldCase {
    CaseOutcome outcome = CaseOutcome::NotComputed;
    Double sigmaConcrete = 0;                     ///< MPa
    std::array<Double, MaxAnchors> sigmaAnchor{}; ///< MPa, negative in tension, else 0
    Double lastX = 0;                             ///< where the last anchor stood then, mm
    Double lastY = 0;
    bool markOfWholePlate = false;
};

/// True where the case has results of a neutral line.
bool hasLine(const ToldCase& told);
/// True where the case has results.
bool solved(const ToldCase& told);

/// What the checks of a plate section were given and have given; entries of check n at n - 1.
struct PlateFacts {
    std::array<bool, PlateChecks> refused{};   ///< asked for, and nothing came of it
    std::array<QString, PlateChecks> why{};    ///< what the refusal has told; empty where nothing
    std::array<bool, PlateChecks> withdrawn{}; ///< had a result or a refusal, and was withdrawn
    std::array<Integer, PlateChecks>
        required{};                 ///< thickness, mm; 0 where the check does not stand
    PlateInputs inputs;             ///< of the checks that stand
    std::optional<Single> accepted; ///< thickness in the report, mm
    QString steelName;              ///< of the user's steel in the report, else empty
    Integer grade = 0;              ///< of the plate in the list of steels, from 1
    Double force = 0;               ///< the greatest of an anchor as computed, kN
    Double pressure = 0;            ///< the greatest as computed, MPa
};
/// `written`: the section stands in the report.
PlateFacts plateFacts(const Stan& stan, const PlateForm& form, bool written);

/// A calculation taken down while it runs: what it was given and what it has told.
class Record {
public:
    /// To be called before the calculation.
    void begin(Entered entered);
    /// To be called from the calculation's host.
    void caseEnded(const Stan& stan, int c);
    void caseRefused(const Stan& stan, int c);
    /// A run-time error has ended the calculation: nothing was told.
    void stopped() { told_ = {}; }
    /// The plate section has been through its form.
    void plateWorked(const PlateFacts& facts) { plate_ = facts; }
    /// The label of the footing, as typed.
    void labelled(const QString& label) { label_ = label; }

    bool begun() const { return entered_.has_value(); }
    /// Once `begun`.
    const Entered& given() const { return *entered_; }
    const ToldCase& told(int c) const { return told_.at(static_cast<std::size_t>(c - 1)); }
    /// The case that was refused for its axial force, 0 for none.
    int refusedCase() const { return refusedCase_; }
    /// Strength of the anchors and greatest pressure allowed, MPa, as the calculation took them.
    Double anchorLimit() const { return anchorLimit_; }
    Double pressureLimit() const { return pressureLimit_; }
    const std::optional<PlateFacts>& plate() const { return plate_; }
    const QString& label() const { return label_; }

private:
    void takeMaterials(const Stan& stan);

    std::optional<Entered> entered_;
    std::array<ToldCase, MaxCases> told_;
    int refusedCase_ = 0;
    Double anchorLimit_ = 0;
    Double pressureLimit_ = 0;
    std::optional<PlateFacts> plate_;
    QString label_;
};

} // namespace ferna::notes
