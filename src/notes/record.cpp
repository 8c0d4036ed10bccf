#include "notes/record.h"

#include "design/material_tables.h"

#include <algorithm>

namespace ferna::notes {

namespace {

/// An anchor acts in a case with a line where it lies behind it.
Double toldStress(const Stan& stan, int i, int c) {
    return stan.plyta.Odl_kotwy(i) < 0 ? Double{stan.wyniki.Sigma_kotwy(i)(c)} : 0;
}

} // namespace

Entered entered(const Stan& stan, const InputFields& fields, const EnteredEquilibria& equilibria) {
    return {fields,
            stan.plyta,
            std::clamp<int>(stan.obciazenia.Liczba_przyp, 0, MaxCases),
            {},
            equilibria};
}

Entered entered(const Stan& stan, const InputFields& fields) {
    return entered(stan, fields, enteredEquilibria(stan, fields));
}

bool sameTask(const Entered& a, const Entered& b) {
    if (a.cases != b.cases || a.plate.Liczba_srub != b.plate.Liczba_srub || a.fields != b.fields)
        return false;
    for (int i = 1; i <= a.plate.Liczba_srub; ++i)
        if (a.plate.X_kotwy(i) != b.plate.X_kotwy(i) || a.plate.Y_kotwy(i) != b.plate.Y_kotwy(i)
            || a.plate.Fi_kotwy(i) != b.plate.Fi_kotwy(i))
            return false;
    return true;
}

bool hasLine(const ToldCase& told) {
    return told.outcome == CaseOutcome::Found || told.outcome == CaseOutcome::FoundWithRaisedMoment
           || told.outcome == CaseOutcome::FoundWithMovedAnchor;
}

bool solved(const ToldCase& told) {
    return hasLine(told) || told.outcome == CaseOutcome::WholePlate;
}

PlateFacts plateFacts(const Stan& stan, const PlateForm& form, bool written) {
    PlateFacts facts;
    facts.refused = form.refused;
    facts.why = form.why;
    facts.withdrawn = form.withdrawn;
    for (int n = 1; n <= PlateChecks; ++n)
        facts.required.at(static_cast<std::size_t>(n - 1)) = stan.raport.Spr_blachy(n);
    facts.inputs = form.inputs;
    facts.grade = form.Nr_stali_blachy;
    if (written) {
        facts.accepted = CSng(form.fields.Text4);
        if (stan.materialy.Blacha_uzytkownika != False)
            facts.steelName = stan.materialy.Blacha_nazwa;
    }
    facts.force = std::fabs(stan.wyniki.Sila_kotwy_max);
    facts.pressure = stan.wyniki.Sigma_b_max;
    return facts;
}

void Record::begin(Entered entered) {
    *this = Record();
    entered_ = std::move(entered);
}

void Record::takeMaterials(const Stan& stan) {
    anchorLimit_ = stan.materialy.Fd_kotwy;
    pressureLimit_ = 2.0 * stan.materialy.Rb_betonu;
    if (stan.opcje.Nr_stali == userSteel)
        entered_->steelName = stan.materialy.Stal_nazwa;
}

void Record::caseEnded(const Stan& stan, int c) {
    takeMaterials(stan);
    ToldCase& told = told_.at(static_cast<std::size_t>(c - 1));
    told.outcome = stan.wyniki.outcomes(c);
    if (!solved(told))
        return;
    told.sigmaConcrete = stan.wyniki.Sigma_b(c);
    if (!hasLine(told))
        return;
    const int anchors = stan.plyta.Liczba_srub;
    for (int i = 1; i <= anchors; ++i)
        told.sigmaAnchor.at(static_cast<std::size_t>(i - 1)) = toldStress(stan, i, c);
    told.lastX = 10.0 * static_cast<Double>(stan.plyta.X_kotwy(anchors));
    told.lastY = 10.0 * static_cast<Double>(stan.plyta.Y_kotwy(anchors));
    told.markOfWholePlate = stan.wyniki.Przyp_policzony(c) == True;
}

void Record::caseRefused(const Stan& stan, int c) {
    takeMaterials(stan);
    refusedCase_ = c;
}

} // namespace ferna::notes
