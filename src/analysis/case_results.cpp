#include "analysis/case_results.h"

#include "analysis/clauses.h"
#include "design/catalogue.h"
#include "runtime/format.h"
#include "runtime/line_of_text.h"

namespace ferna {

namespace {

/// Adds a line and returns it.
QString& nextLine(Wyniki& results, QString text) {
    results.Nr_wiersza = CInt(results.Nr_wiersza + 1);
    QString& line = results.Wiersze_wynikow(results.Nr_wiersza);
    line = std::move(text);
    return line;
}

void takeSigma_b(Stan& stan, int c, Single stress) {
    Wyniki& results = stan.wyniki;
    results.Sigma_b(c) = stress;
    if (stress > results.Sigma_b_max)
        results.Sigma_b_max = stress;
}

QString concreteLine(const Stan& stan, Single stress) {
    return LineOfText().add(stan.Teksty(phrase::ConcreteStress)).number(stress, u"###0.0# MPa ");
}

/// Force, stress and line of an anchor in tension.
void storeAnchor(Stan& stan, const AnchorTension& anchor, int c) {
    Wyniki& r = stan.wyniki;
    const Integer i = anchor.anchor;
    r.Sila_kotwy_kG(i) = anchor.force_kG;
    r.Sigma_kotwy_kG(i) = anchor.stress_kGcm2;
    r.Sigma_kotwy(i)(c) = anchor.stress;
    if (anchor.stress < r.Sigma_s_max)
        r.Sigma_s_max = anchor.stress;
    r.Sila_kotwy(i) = anchor.force;
    if (anchor.force < r.Sila_kotwy_max) {
        r.Sila_kotwy_max = anchor.force;
        r.Nr_kotwy_max = i;
    }
    QString& line = nextLine(r, LineOfText()
                                    .number(i, u"##  ")
                                    .number(anchor.stress, u"#########0.0# MPa      ")
                                    .number(anchor.force, u"########0.0 kN"));
    if (std::fabs(anchor.stress) > stan.materialy.Fd_kotwy) {
        line += stan.Teksty(phrase::AnchorExceeded);
        r.Kotwy_OK = False;
    }
}

void storeLineOfPlate(Stan& stan, const CaseResult& result, int c) {
    Wyniki& r = stan.wyniki;
    r.Przec_a(c) = result.line->a;
    r.Przec_b(c) = result.line->b;
    r.Przec_c(c) = result.line->c;
    r.Przec_d(c) = result.line->d;
    r.Typ_strefy_przyp(c) = result.zone;
    if (!result.anchorsInTension)
        nextLine(r, stan.Teksty(phrase::NoAnchorInTension));
    for (int i = 0; i < result.tensions; ++i)
        storeAnchor(stan, result.tension[static_cast<std::size_t>(i)], c);
}

void checkConcrete(Stan& stan, int c) {
    Wyniki& r = stan.wyniki;
    const Single Rb = stan.materialy.Rb_betonu;
    switch (concreteVerdict(r.Sigma_b(c), Rb)) {
    case ConcreteVerdict::AboveDouble:
        r.Wiersze_wynikow(r.Nr_wiersza) += stan.Teksty(phrase::ConcreteNotAcceptable);
        break;
    case ConcreteVerdict::Satisfied:
        r.Wiersze_wynikow(r.Nr_wiersza).append(u" < Rb = ").append(Format(Rb, u"###.0 MPa"));
        break;
    case ConcreteVerdict::Exceeded:
        const Single ratio = concreteRatio(r.Sigma_b(c), Rb);
        nextLine(r, stan.Teksty(phrase::BearingFactorNeeded));
        r.Znak_wiersza(r.Nr_wiersza) = 1;
        r.Liczba_przekroczen = CInt(r.Liczba_przekroczen + 1);
        r.Tekst_przekroczenia(r.Liczba_przekroczen) =
            QStringLiteral(" = ") + Format(ratio, u"#0.0##");
        break;
    }
}

/// One of three catalogue lines by the utilisation w.
QString shearLine(const Stan& stan, Single w, int firstLine) {
    switch (shearVerdict(w)) {
    case ShearVerdict::Satisfied:
        return stan.Teksty(firstLine);
    case ShearVerdict::WithinFivePercent:
        return stan.Teksty(firstLine + 1) + Format((Double{w} - 1) * 100, u"#0.0") + u'%';
    case ShearVerdict::Exceeded:
        break;
    }
    return stan.Teksty(firstLine + 2);
}

/// The shear goes to the anchors on the tension side of the neutral line; where the whole plate is
/// compressed, to all of them.
QString shearByTensionSide(const Stan& stan, Integer zoneShape, Single V) {
    Single A = 0;
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        if (zoneShape == zone::WholePlate || stan.plyta.Odl_kotwy(i) < 0)
            A = CSng(A + stan.plyta.Pole_kotwy(i));
    return shearLine(stan, shearUtilisation(anchorShear(V, A), stan.materialy.Fv_kotwy),
                     phrase::ShearOfSomeAnchors);
}

/// The shear goes to all anchors, together with the tension of the most stressed one. Stresses that
/// an earlier calculation left for the case take part.
QString shearByAllAnchors(const Stan& stan, const ByAnchor<Single>& stresses, Single V) {
    Single A = 0;
    Single sm = 0;
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i) {
        A = CSng(A + stan.plyta.Pole_kotwy(i));
        sm = qMin(sm, stresses(i));
    }
    const Materialy& steel = stan.materialy;
    const Single w = interactionUtilisation(sm, steel.Fd2_kotwy, anchorShear(V, A), steel.Fv_kotwy);
    return shearLine(stan, w, phrase::ShearOfAllAnchors);
}

void checkHorizontalForces(Stan& stan, Integer zoneShape, const ByAnchor<Single>& stresses, int c) {
    constexpr Double none = 0.01; // kN
    const Obciazenia& loads = stan.obciazenia;
    const Single V = horizontalForce(loads.Sila_Vx(c), loads.Sila_Vy(c));
    if (V <= none)
        return;
    QString& line = nextLine(stan.wyniki, QString());
    if (frictionForce(loads.Sila_N(c)) > V)
        line = stan.Teksty(phrase::ShearByFriction);
    else if (stan.opcje.Hsily_wszystkie != 0)
        line = shearByTensionSide(stan, zoneShape, V);
    else
        line = shearByAllAnchors(stan, stresses, V);
}

} // namespace

ByAnchor<Single> stressesOf(const Stan& stan, int c) {
    ByAnchor<Single> stresses;
    const ByCase<Single>* const ofAnchor = stan.wyniki.Sigma_kotwy.data();
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        stresses(i) = ofAnchor[i](c);
    return stresses;
}

void Zapisz_wyniki(Stan& stan, const CaseResult& result) {
    const int c = stan.obciazenia.Nr_przyp;
    if (result.line)
        storeLineOfPlate(stan, result, c);
    if (!result.Sigma_b)
        return;
    takeSigma_b(stan, c, *result.Sigma_b);
    if (result.zone == zone::WholePlate) {
        stan.wyniki.Przyp_policzony(c) = True;
        nextLine(stan.wyniki, stan.Teksty(phrase::WholePlateInCompression));
    }
    nextLine(stan.wyniki, concreteLine(stan, *result.Sigma_b));
}

void Sprawdz_beton_i_sily_poziome(Stan& stan, Integer zoneShape, const ByAnchor<Single>& stresses) {
    const int c = stan.obciazenia.Nr_przyp;
    checkConcrete(stan, c);
    checkHorizontalForces(stan, zoneShape, stresses, c);
    stan.wyniki.Ostatni_wiersz(c) = stan.wyniki.Nr_wiersza;
}

} // namespace ferna
