#include "analysis/case_results.h"

#include "analysis/clauses.h"
#include "runtime/format.h"
#include "runtime/line_of_text.h"

namespace ferna {

namespace {

/// Adds a line and returns it.
QString& nextLine(Wyniki& results, const QString& text) {
    results.Nr_wiersza = CInt(results.Nr_wiersza + 1);
    QString& line = results.Wiersze_wynikow(results.Nr_wiersza);
    line = text;
    return line;
}

void takeSigma_b(Stan& stan, int c, Double stress) {
    Wyniki& results = stan.wyniki;
    results.Sigma_b(c) = stressInMegapascals(stress);
    if (results.Sigma_b(c) > results.Sigma_b_max)
        results.Sigma_b_max = results.Sigma_b(c);
}

QString concreteLine(const Stan& stan, int c) {
    return LineOfText().add(stan.Teksty(3)).number(stan.wyniki.Sigma_b(c), u"###0.0# MPa ");
}

/// The two points where the neutral line leaves the plate, mirrored back to the axes of the input.
void storeLineEnds(Stan& stan, const Stan_przypadku& s, int c) {
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
    const Integer signs = stan.obciazenia.Klasa_znaku(c);
    const Double signX = signs == 3 || signs == 4 ? -1 : 1;
    const Double signY = signs == 2 || signs == 4 ? -1 : 1;
    stan.wyniki.Przec_a(c) = CSng(signX * x1);
    stan.wyniki.Przec_b(c) = CSng(signY * y1);
    stan.wyniki.Przec_c(c) = CSng(signX * x2);
    stan.wyniki.Przec_d(c) = CSng(signY * y2);
}

/// Force, stress and line of an anchor in tension.
void storeAnchor(Stan& stan, const Stan_przypadku& s, int i, int c) {
    Wyniki& r = stan.wyniki;
    const Double area = stan.plyta.Pole_kotwy(i);
    const Double n = stan.opcje.Wsp_n_val;
    r.Sila_kotwy_kG(i) = anchorForce(stan.plyta.Odl_kotwy(i), n, s.Wsp_k, area);
    r.Sigma_kotwy_kG(i) = anchorStress(r.Sila_kotwy_kG(i), area);
    Single& stress = r.Sigma_kotwy(i)(c);
    stress = stressInMegapascals(r.Sigma_kotwy_kG(i));
    if (stress < r.Sigma_s_max)
        r.Sigma_s_max = stress;
    r.Sila_kotwy(i) = anchorForceOfStress(stress, area);
    if (r.Sila_kotwy(i) < r.Sila_kotwy_max) {
        r.Sila_kotwy_max = r.Sila_kotwy(i);
        r.Nr_kotwy_max = CInt(i);
    }
    QString& line = nextLine(r, LineOfText()
                                    .number(i, u"##  ")
                                    .number(stress, u"#########0.0# MPa      ")
                                    .number(r.Sila_kotwy(i), u"########0.0 kN"));
    if (std::fabs(stress) > stan.materialy.Fd_kotwy) {
        line += stan.Teksty(2);
        r.Kotwy_OK = False;
    }
}

void checkConcrete(Stan& stan, int c) {
    Wyniki& r = stan.wyniki;
    const Single Rb = stan.materialy.Rb_betonu;
    switch (concreteVerdict(r.Sigma_b(c), Rb)) {
    case ConcreteVerdict::AboveDouble:
        r.Wiersze_wynikow(r.Nr_wiersza) += stan.Teksty(4);
        break;
    case ConcreteVerdict::Satisfied:
        r.Wiersze_wynikow(r.Nr_wiersza) = LineOfText()
                                              .add(r.Wiersze_wynikow(r.Nr_wiersza))
                                              .add(u" < Rb = ")
                                              .number(Rb, u"###.0 MPa");
        break;
    case ConcreteVerdict::Exceeded:
        const Single ratio = concreteRatio(r.Sigma_b(c), Rb);
        nextLine(r, stan.Teksty(5));
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
QString shearByTensionSide(const Stan& stan, const Stan_przypadku& s, Single V) {
    Single A = 0;
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        if (s.Typ_strefy == zone::WholePlate || stan.plyta.Odl_kotwy(i) < 0)
            A = CSng(A + stan.plyta.Pole_kotwy(i));
    return shearLine(stan, shearUtilisation(anchorShear(V, A), stan.materialy.Fv_kotwy), 47);
}

/// The shear goes to all anchors, together with the tension of the most stressed one. Stresses that
/// an earlier calculation left for the case take part.
QString shearByAllAnchors(const Stan& stan, int c, Single V) {
    Single A = 0;
    Single sm = 0;
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i) {
        A = CSng(A + stan.plyta.Pole_kotwy(i));
        sm = qMin(sm, stan.wyniki.Sigma_kotwy(i)(c));
    }
    const Materialy& steel = stan.materialy;
    const Single w = interactionUtilisation(sm, steel.Fd2_kotwy, anchorShear(V, A), steel.Fv_kotwy);
    return shearLine(stan, w, 50);
}

void checkHorizontalForces(Stan& stan, const Stan_przypadku& s, int c) {
    constexpr Double none = 0.01; // kN
    const Obciazenia& loads = stan.obciazenia;
    const Single V = horizontalForce(loads.Sila_Vx(c), loads.Sila_Vy(c));
    if (V <= none)
        return;
    QString& line = nextLine(stan.wyniki, QString());
    if (frictionForce(loads.Sila_N(c)) > V)
        line = stan.Teksty(46);
    else if (stan.opcje.Hsily_wszystkie != 0)
        line = shearByTensionSide(stan, s, V);
    else
        line = shearByAllAnchors(stan, c, V);
}

} // namespace

void Wyniki_calej_plyty(Stan& stan, Stan_przypadku& s) {
    const Obciazenia& loads = stan.obciazenia;
    const int c = loads.Nr_przyp;
    s.Wy_plyty = sectionModulus(s.Plyta_L, s.Plyta_B);
    s.Wx_plyty = sectionModulus(s.Plyta_B, s.Plyta_L);
    takeSigma_b(stan, c,
                cornerStress(loads.Sila_N_kG(c), s.Plyta_L, s.Plyta_B, loads.Moment_M1_kGcm,
                             s.Wx_plyty, loads.Moment_M2_kGcm, s.Wy_plyty));
    s.Typ_strefy = zone::WholePlate;
    stan.wyniki.Przyp_policzony(c) = True;
    nextLine(stan.wyniki, stan.Teksty(6));
    nextLine(stan.wyniki, concreteLine(stan, c));
}

void Wyniki_linii_obojetnej(Stan& stan, Stan_przypadku& s) {
    const int c = stan.obciazenia.Nr_przyp;
    storeLineEnds(stan, s, c);
    stan.wyniki.Typ_strefy_przyp(c) = s.Typ_strefy;
    if (s.Suma_Ad == 0) {
        nextLine(stan.wyniki, stan.Teksty(1));
    } else {
        for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
            if (stan.plyta.Odl_kotwy(i) < 0)
                storeAnchor(stan, s, i, c);
    }
    takeSigma_b(stan, c, concreteStress(s.Sila_C, s.V_strefy));
    nextLine(stan.wyniki, concreteLine(stan, c));
}

void Sprawdz_beton_i_sily_poziome(Stan& stan, const Stan_przypadku& s) {
    const int c = stan.obciazenia.Nr_przyp;
    checkConcrete(stan, c);
    checkHorizontalForces(stan, s, c);
    stan.wyniki.Ostatni_wiersz(c) = stan.wyniki.Nr_wiersza;
}

} // namespace ferna
